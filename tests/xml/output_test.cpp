// The output text, number texts and what a document says of its making.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <span>
#include <tuple>

#include "support/messages.h"
#include "support/runtime_control.h"
#include "xml/amount_text.h"
#include "xml/document_stamp.h"
#include "xml/document_writer.h"
#include "xml/key_order.h"

using namespace tivex;

TEST(XmlBuffer, GrowsInStepsOf256) {
  const std::size_t rows[][2] = {{0, 256}, {254, 256}, {255, 512}, {510, 512}, {511, 768}};
  for (const auto& [text, capacity] : rows) {
    const xml_buffer_ptr buf(xml_buffer_new());
    ASSERT_TRUE(xml_buffer_append(*buf, std::string(text, 'x')));
    EXPECT_EQ(buf->length, text + 1);
    EXPECT_EQ(buf->capacity, capacity) << text;
  }
}

TEST(XmlBuffer, HoldsWhatWasAppendedAtEveryStep) {
  const xml_buffer_ptr buf(xml_buffer_new());
  std::string expected;
  std::mt19937 random(7);
  for (int round = 0; round < 3000; ++round) {
    std::string text(random() % 400, 'a');
    for (char& c : text) c = "ab<>&\"'\xC3"[random() % 8];
    const bool escaped = round % 2 == 0;
    ASSERT_TRUE(escaped ? xml_buffer_append_escaped(*buf, text.c_str())
                        : xml_buffer_append(*buf, text));
    for (const char c : text) {
      const char* const entity = c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '&' ? "&amp;" : "";
      expected += escaped && *entity != '\0' ? entity : std::string(1, c);
    }
    ASSERT_EQ(buf->length, expected.size() + 1);
    ASSERT_EQ(buf->capacity % 256, 0u);
    ASSERT_TRUE(buf->capacity >= buf->length && buf->allocated >= buf->capacity);
  }
  EXPECT_EQ(buf->data, expected);
}

TEST(XmlBuffer, AppendsNothingForNull) {
  const xml_buffer_ptr buf(xml_buffer_new());
  EXPECT_TRUE(xml_buffer_append(*buf, {}) && xml_buffer_append_escaped(*buf, nullptr));
  EXPECT_EQ(buf->length, 0u);
  EXPECT_TRUE(xml_buffer_append_escaped(*buf, "") && buf->length == 1);
  EXPECT_TRUE(xml_buffer_append_list(*buf, {"<a>", "1", {}, "</a>"}));
  EXPECT_STREQ(buf->data, "<a>1");
}

TEST(XmlBuffer, StaysAsItWasWhenMemoryIsExhausted) {
  const xml_buffer_ptr buf(xml_buffer_new());
  ASSERT_TRUE(xml_buffer_append(*buf, "start"));
  const std::string large(300, '&');
  const runtime_control::failing_allocation failing(1, true);
  EXPECT_FALSE(xml_buffer_append(*buf, large));
  EXPECT_FALSE(xml_buffer_append_escaped(*buf, large.c_str()));
  EXPECT_FALSE(xml_buffer_append_list(*buf, {"ed", large, "x"}));
  const std::size_t highest_bit = ~(~std::size_t{0} / 2);
  for (const std::size_t need : {std::size_t{0xFFFFFFF0}, highest_bit}) {
    EXPECT_FALSE(xml_buffer_reserve(*buf, need)) << "a text ends below 4 GiB";
  }
  EXPECT_STREQ(buf->data, "started");
  EXPECT_TRUE(buf->length == 8 && buf->capacity == 256);
}

TEST(DocumentWriter, TellsOfValuesThatDoNotFitButNotOfMarkup) {
  const std::pair<void (*)(document_writer&, const char*), const char*> rows[] = {
      {[](document_writer& out, const char* text) { out.open(text); }, ""},
      {[](document_writer& out, const char* text) { out.fixed("A", text); }, ""},
      {[](document_writer& out, const char* text) { out.escaped(text, ""); }, ""},
      {[](document_writer& out, const char* text) { out.value("A", text); }, "Out of memory"},
      {[](document_writer& out, const char* text) { out.escaped("A", text); }, "Out of memory"},
  };
  for (const auto& [write, error] : rows) {
    const message_ptr msg = new_message(TIVEX_CREDIT_TRANSFER);
    const xml_buffer_ptr out(xml_buffer_new());
    ASSERT_TRUE(xml_buffer_append(*out, std::string(230, 'x')));
    document_writer document(*out, false);
    const runtime_control::failing_allocation failing(1, true);
    write(document, std::string(50, 'y').c_str());
    const std::uint32_t length = out->length;
    document.value("A", "");
    EXPECT_EQ(out->length, length) << "nothing is written behind a gap";
    EXPECT_FALSE(document.succeeded(*msg));
    EXPECT_EQ(error_of(msg), error);
  }
}

TEST(KeyOrder, IsOfBytesAndOtherwiseThatOfAdding) {
  struct entry {
    block_key key;
    std::string date;
    int slot;
    std::size_t place;
    bool operator<(const entry& other) const {
      return std::tie(date, slot) < std::tie(other.date, other.slot);
    }
  };
  std::mt19937 random(5);
  // Ever more bytes differ.
  for (std::size_t varying = 0; varying <= 10; ++varying) {
    std::vector<entry> entries;
    for (std::size_t place = 0; place < 300; ++place) {
      std::string date = "2026-11-30";
      for (std::size_t byte = 10 - varying; byte < 10; ++byte)
        date[byte] = "09\x7F\xFF"[random() % 4];
      const int slot = static_cast<int>(random() % 4);
      entries.push_back({block_key(date.c_str(), slot), date, slot, place});
    }
    std::vector<entry> expected = entries;
    std::stable_sort(expected.begin(), expected.end());
    EXPECT_FALSE(in_order<entry>(entries));
    std::vector<entry> room(entries.size());
    const std::span<entry> ordered = order_by_key<entry>(entries, room);
    EXPECT_TRUE(in_order<entry>(ordered));
    for (std::size_t index = 0; index < expected.size(); ++index) {
      ASSERT_EQ(ordered[index].place, expected[index].place);
      ASSERT_EQ(ordered[index].key.slot(), expected[index].slot);
    }
  }
}

TEST(AmountText, HasTwoDecimals) {
  const std::pair<double, const char*> rows[] = {{0, "0.00"},
                                                 {0.05, "0.05"},
                                                 {0.45, "0.45"},
                                                 {1, "1.00"},
                                                 {1234.5, "1234.50"},
                                                 {0.005, "0.01"},
                                                 {0.995, "1.00"},
                                                 {1.005, "1.00"},
                                                 {-0.025, "-0.02"},
                                                 {-0.004, "0.00"},
                                                 {-1.5, "-1.50"},
                                                 {999999999.99, "999999999.99"},
                                                 {1e17, "92233720368547758.07"},
                                                 {1e300, "92233720368547758.07"},
                                                 {-1e300, "-92233720368547758.07"}};
  number_text text;
  for (const auto& [value, expected] : rows) {
    format_amount(text, sizeof text, value);
    EXPECT_STREQ(text, expected);
  }
  format_count(text, sizeof text, 4294967295u);
  EXPECT_STREQ(text, "4294967295");
}

TEST(DocumentStamp, HoldsAnIdentifierThatStaysAndATimeThatDoesNot) {
  const std::tuple<unsigned, unsigned, const char*> rows[] = {
      {4294967295u, 0, "4967196"},  // the product wraps at 32 bits
      {99999, 100, "0000000"},
      {0, 4294967295u, "4967295"}};
  for (const auto& [process_id, counter, number] : rows) {
    const runtime_control::fixed_process_id process(process_id);
    msgid_counter = counter;
    const message_ptr msg = new_message(TIVEX_CREDIT_TRANSFER);
    ASSERT_NE(document_of(msg), "");
    const runtime_control::fixed_clock clock(2001, 2, 3);
    const std::string again = document_of(msg);
    EXPECT_NE(again.find("<CreDtTm>2001-02-03T12:00:00Z<"), again.npos);
    EXPECT_NE(again.find(number + std::string("</MsgId>")), again.npos);
    EXPECT_EQ(msgid_counter, counter + 1);
  }
}

TEST(DocumentStamp, IsOfOneReadingOfTheClock) {
  for (const int type : {TIVEX_CREDIT_TRANSFER, TIVEX_DIRECT_DEBIT}) {
    const message_ptr msg = with_header(new_message(type));
    ASSERT_EQ(add(msg), 1);
    ASSERT_EQ(tivex_setDate(msg.get(), "2026-11-30"), 1);
    const runtime_control::ticking_clock clock(2026, 11, 23, 10, 20, 30);
    const std::string document = document_of(msg);
    EXPECT_NE(document.find("<MsgId>SEPA-20261123102030-"), document.npos) << document;
    EXPECT_NE(document.find("<CreDtTm>2026-11-23T10:20:30Z<"), document.npos) << document;
  }
}

// The zone is changed behind the C library's back, as a host may.
TEST(DocumentStamp, FollowsLocalTimeWhereverTheHostIs) {
  const std::pair<const char*, const char*> rows[] = {
      {"JST-9", "2026-11-24"}, {"UTC", "2026-11-23"}, {"LINT-14", "2026-11-24"}};
  const runtime_control::fixed_clock clock(2026, 11, 23, 23, 30);
  for (const auto& [zone, date] : rows) {
    ASSERT_EQ(setenv("TZ", zone, 1), 0);
    const message_ptr msg = new_message(TIVEX_CREDIT_TRANSFER);
    ASSERT_EQ(add(msg), 1);
    const std::string document = document_of(msg);
    EXPECT_NE(document.find(">" + std::string(date) + "<"), document.npos) << zone;
    EXPECT_NE(document.find("<CreDtTm>2026-11-23T23:30:00Z<"), document.npos) << zone;
  }
}

TEST(DocumentStamp, IsNotDrawnByADirectDebitThatIsRefused) {
  const message_ptr msg = new_message(TIVEX_DIRECT_DEBIT, "DE-2.9");
  const std::uint32_t drawn = msgid_counter;
  EXPECT_EQ(document_of(msg), "");
  const message_ptr full = with_header(new_message(TIVEX_DIRECT_DEBIT, "DE-2.9"));
  ASSERT_TRUE(add(full) == 1 && tivex_setDDType(full.get(), TIVEX_DD_COR1) == 1);
  for (const char* const later : {"DE-3.0", "DE-3.1", "DE-3.5", "DE-3.7"}) {
    ASSERT_EQ(tivex_init(TIVEX_OPTION_RULEBOOK, later), 1);
    EXPECT_EQ(document_of(full), "") << later;
    EXPECT_EQ(error_of(full), "Unknown/unsupported LocalInstrumentCode (setDDType)");
  }
  EXPECT_EQ(msgid_counter, drawn);
}
