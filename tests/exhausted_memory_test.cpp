// Every allocation of a message's life fails once, for each in turn.

#include "support/messages.h"
#include "support/runtime_control.h"
#include "xml/document_writer.h"

using runtime_control::failing_allocation;

namespace {

// A message of a type with its header.
message_ptr with_header(int type) {
  message_ptr msg(tivex_new(type));
  const bool filled = msg && tivex_setName(msg.get(), "Name") == 1 &&
                      tivex_setIBAN(msg.get(), "NO9386011117947") == 1 &&
                      tivex_setBIC(msg.get(), "DEUTDEFF") == 1 &&
                      tivex_setCreditorIdentifier(msg.get(), "DE98ZZZ09999999999") == 1;
  return filled ? std::move(msg) : nullptr;
}

// The document of a small message, or nothing when a call failed.
std::string life_of_a_message(int type) {
  const message_ptr msg = with_header(type);
  const pairs needed = type == TIVEX_CREDIT_TRANSFER ? payment : collection;
  const pairs more = {{"name", "Eva"},        {"ref", "r"},     {"id", "i"},
                      {"date", "2024-05-03"}, {"addrCC", "AT"}, {"addrTown", "Wien"}};
  if (!msg || add(msg, with(needed, more)) != 1 || add(msg, needed) != 1) return "";
  return document_of(msg);
}

}  // namespace

TEST(ExhaustedMemory, IsReportedAndLosesNothing) {
  ASSERT_EQ(tivex_init(3, "DE-3.7"), 1);
  const runtime_control::fixed_clock clock(2024, 4, 17);
  for (const int type : {TIVEX_CREDIT_TRANSFER, TIVEX_DIRECT_DEBIT}) {
    tivex_cleanup();
    ASSERT_NE(life_of_a_message(type), "");
    bool happened = true;
    std::size_t refused = 0;
    for (std::size_t n = 1; happened; ++n) {
      tivex_cleanup();
      const failing_allocation failing(n);
      const std::string document = life_of_a_message(type);
      happened = failing.happened();
      // A copy of an optional value may be missing, but no document is cut short.
      if (document.empty()) {
        ++refused;
      } else {
        EXPECT_EQ(document.substr(document.size() - 12), "</Document>\n");
      }
    }
    EXPECT_GT(refused, 50u);
  }
}

TEST(ExhaustedMemory, SaysWhichCopyFailed) {
  const struct {
    int (*set)(tivex_t*, const char*);
    const char* value;
    const char* error;
    tivex::owned_text tivex::message::*field;
  } rows[] = {
      {tivex_setIBAN, "NO9386011117947", "strdup() failed", &tivex_t::iban},
      {tivex_setBIC, "DEUTDEFF", "tivex_setBIC: strdup() failed", &tivex_t::bic},
      {tivex_setName, "Name", "tivex_setName: strdup() failed", &tivex_t::name},
      {tivex_setCreditorIdentifier, "DE98ZZZ09999999999", "strdup() failed", &tivex_t::creditor_id},
      {tivex_setDate, "2024-04-17", "strdup() failed", &tivex_t::date},
      {tivex_setMessageId, "M", "strdup() failed", &tivex_t::message_id},
  };
  const message_ptr msg = credit_transfer();
  for (const auto& row : rows) {
    ASSERT_EQ(row.set(msg.get(), row.value), 1) << row.error;  // also compiles the patterns
    const failing_allocation failing(1);
    EXPECT_EQ(row.set(msg.get(), row.value), 0) << row.error;
    EXPECT_EQ(error_of(msg), row.error);
    EXPECT_FALSE(msg.get()->*row.field) << "the earlier value is gone";
  }
}

TEST(ExhaustedMemory, LeavesTransactionsAsTheyWere) {
  const message_ptr msg = credit_transfer("DE-2.6");
  ASSERT_EQ(add(msg, payment), 1);
  const char* const errors[] = {"Out of memory", "IBAN missing", "BIC missing"};
  for (std::size_t n = 1; n <= std::size(errors); ++n) {
    const failing_allocation failing(n);
    EXPECT_EQ(add(msg, payment), 0);
    EXPECT_EQ(error_of(msg), errors[n - 1]);
    EXPECT_EQ(msg->tx_count, 1u);
  }
}

TEST(ExhaustedMemory, OfADocumentIsToldOrLeavesTheErrorAsItWas) {
  for (const int type : {TIVEX_CREDIT_TRANSFER, TIVEX_DIRECT_DEBIT}) {
    const bool transfer = type == TIVEX_CREDIT_TRANSFER;
    const message_ptr msg = with_header(type);
    ASSERT_EQ(add(msg, transfer ? payment : collection), 1);
    const struct {
      std::size_t n;
      const char* error;
    } rows[] = {{1, ""},  // the output text itself
                {2, "malloc() failed"},
                {3, ""},  // the declaration
                {4, transfer ? "cti_toXML: strdup() failed" : "ddi_toXML: strdup() failed"},
                {5, "Out of memory"}};  // the payment blocks
    for (const auto& [n, error] : rows) {
      msg->error = nullptr;
      msg->date.clear();
      msg->message_id.clear();
      const failing_allocation failing(n, true);
      EXPECT_EQ(document_of(msg), "");
      EXPECT_EQ(error_of(msg), error) << n;
    }
  }
}

TEST(ExhaustedMemory, IsToldOfValuesButNotOfMarkup) {
  using writer = tivex::document_writer;
  const struct {
    void (*write)(writer&, const char*);
    const char* error;
  } rows[] = {
      {[](writer& out, const char* text) { out.open(text); }, ""},
      {[](writer& out, const char* text) { out.fixed("A", text); }, ""},
      {[](writer& out, const char* text) { out.escaped(text, ""); }, ""},
      {[](writer& out, const char* text) { out.value("A", text); }, "Out of memory"},
      {[](writer& out, const char* text) { out.escaped("A", text); }, "Out of memory"},
  };
  for (const auto& row : rows) {
    const message_ptr msg = credit_transfer();
    const tivex::xml_buffer_ptr out(tivex::xml_buffer_new());
    ASSERT_TRUE(tivex::xml_buffer_append(*out, std::string(230, 'x').c_str()));
    writer document(*out);
    const failing_allocation failing(1, true);
    row.write(document, std::string(50, 'y').c_str());
    const std::uint32_t length = out->length;
    document.value("A", "");
    EXPECT_EQ(out->length, length) << "nothing is written behind a gap";
    EXPECT_FALSE(document.succeeded(*msg));
    EXPECT_EQ(error_of(msg), row.error);
  }
}
