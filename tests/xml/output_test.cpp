// The output text, number texts and what a document says of its making.

#include <cstring>
#include <random>

#include "support/messages.h"
#include "support/runtime_control.h"
#include "xml/amount_text.h"
#include "xml/date_key.h"
#include "xml/document_stamp.h"
#include "xml/xml_buffer.h"

using namespace tivex;

TEST(XmlBuffer, GrowsInStepsOf256) {
  const struct {
    std::size_t text, capacity;
  } rows[] = {{0, 256}, {254, 256}, {255, 512}, {256, 512}, {510, 512}, {511, 768}};
  for (const auto& [text, capacity] : rows) {
    const xml_buffer_ptr buf(xml_buffer_new());
    ASSERT_TRUE(xml_buffer_append(*buf, std::string(text, 'x').c_str()));
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
    if (round % 2 == 0) {
      ASSERT_TRUE(xml_buffer_append(*buf, text.c_str()));
      expected += text;
    } else {
      ASSERT_TRUE(xml_buffer_append_escaped(*buf, text.c_str()));
      for (const char c : text) {
        expected += c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '&' ? "&amp;" : std::string(1, c);
      }
    }
    ASSERT_EQ(buf->length, expected.size() + 1);
    ASSERT_EQ(buf->capacity % 256, 0u);
    ASSERT_GE(buf->capacity, buf->length);
    ASSERT_GE(buf->allocated, buf->capacity);
    ASSERT_EQ(std::strlen(buf->data), expected.size());
  }
  EXPECT_EQ(buf->data, expected);
}

TEST(XmlBuffer, AppendsNothingForNull) {
  const xml_buffer_ptr buf(xml_buffer_new());
  EXPECT_TRUE(xml_buffer_append(*buf, {}));
  EXPECT_TRUE(xml_buffer_append_escaped(*buf, nullptr));
  EXPECT_TRUE(xml_buffer_append_list(*buf, {}));
  EXPECT_EQ(buf->length, 0u);
  EXPECT_TRUE(xml_buffer_append_escaped(*buf, ""));
  EXPECT_EQ(buf->length, 1u);
  EXPECT_TRUE(xml_buffer_append_list(*buf, {"<a>", "1", {}, "</a>"}));
  EXPECT_STREQ(buf->data, "<a>1");
  EXPECT_TRUE(xml_buffer_append_escaped(*buf, "&amp;<>"));
  EXPECT_STREQ(buf->data, "<a>1&amp;amp;&lt;&gt;");
  xml_buffer_free(nullptr);
}

TEST(XmlBuffer, StaysAsItWasWhenMemoryIsExhausted) {
  const xml_buffer_ptr buf(xml_buffer_new());
  ASSERT_TRUE(xml_buffer_append(*buf, "start"));
  {
    const runtime_control::failing_allocation failing(1, true);
    const std::string large(300, '&');
    EXPECT_FALSE(xml_buffer_append(*buf, large.c_str()));
    EXPECT_FALSE(xml_buffer_append_escaped(*buf, large.c_str()));
    EXPECT_FALSE(xml_buffer_append_list(*buf, {"ed", large.c_str(), "x"}));
    EXPECT_FALSE(xml_buffer_reserve(*buf, std::size_t{1} << 33));
  }
  EXPECT_FALSE(xml_buffer_reserve(*buf, 0xFFFFFFF0u)) << "a text ends below 4 GiB";
  EXPECT_STREQ(buf->data, "started");
  EXPECT_EQ(buf->length, 8u);
  EXPECT_EQ(buf->capacity, 256u);
}

TEST(AmountText, HasTwoDecimals) {
  const struct {
    double value;
    const char* text;
  } rows[] = {
      {0, "0.00"},
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
      {1e300, "92233720368547758.07"},
      {-1e300, "-92233720368547758.07"},
  };
  for (const auto& [value, expected] : rows) {
    number_text text;
    format_amount(text, sizeof text, value);
    EXPECT_STREQ(text, expected);
  }
  number_text count;
  format_count(count, sizeof count, 4294967295u);
  EXPECT_STREQ(count, "4294967295");
}

TEST(DocumentStamp, IdentifierTakesLocalTimeProcessAndCounter) {
  const runtime_control::fixed_zone zone("CET-1CEST");
  const runtime_control::fixed_clock clock(2024, 4, 17, 22, 5, 9);
  const struct {
    unsigned process_id;
    unsigned counter;
    const char* expected;
  } rows[] = {{4294967295u, 0, "SEPA-20240418000509-4967196"},
              {123, 45, "SEPA-20240418000509-0012345"},
              {99999, 100, "SEPA-20240418000509-0000000"},
              {0, 4294967295u, "SEPA-20240418000509-4967295"}};
  for (const auto& row : rows) {
    const runtime_control::fixed_process_id process(row.process_id);
    msgid_counter = row.counter;
    const message_ptr msg = credit_transfer();
    const std::string document = document_of(msg);
    EXPECT_EQ(lines_with(document, "MsgId"), std::string("<MsgId>") + row.expected + "</MsgId>\n");
    EXPECT_EQ(lines_with(document, "CreDtTm"), "<CreDtTm>2024-04-17T22:05:09Z</CreDtTm>\n");
    EXPECT_STREQ(msg->date.c_str(), "2024-04-18") << "local too";
    EXPECT_EQ(msgid_counter, row.counter + 1);
  }
}

TEST(DocumentStamp, StaysWithItsMessage) {
  const message_ptr msg = credit_transfer();
  std::string first;
  {
    const runtime_control::fixed_clock clock(2024, 4, 17);
    first = document_of(msg);
  }
  const runtime_control::fixed_clock clock(2025, 1, 2);
  const std::string second = document_of(msg);
  EXPECT_EQ(lines_with(first, "MsgId"), lines_with(second, "MsgId"));
  EXPECT_STREQ(msg->date.c_str(), "2024-04-17");
  EXPECT_NE(lines_with(first, "CreDtTm"), lines_with(second, "CreDtTm"));
  const message_ptr other = credit_transfer();
  EXPECT_NE(lines_with(document_of(other), "MsgId"), lines_with(second, "MsgId"));
}

TEST(DateKey, OrdersAsUnsignedBytes) {
  const char* const ascending[] = {"\x01zzzzzzzzz", "2024-05-01", "2024-05-02", "2024-06-01",
                                   "2025-01-01",    "9999-99-98", "9999-99-99", "\x80zzzzzzzzz"};
  for (const char* const left : ascending) {
    for (const char* const right : ascending) {
      EXPECT_EQ(date_key(left) < date_key(right), std::strcmp(left, right) < 0) << left << right;
      EXPECT_EQ(date_key(left) == date_key(right), left == right);
    }
  }
}
