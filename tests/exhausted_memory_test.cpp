// Every allocation of a message's life fails once, for each in turn.

#include <gtest/gtest.h>

#include "support/messages.h"
#include "support/runtime_control.h"

using runtime_control::failing_allocation;

namespace {

// The document of a small message, or nothing when a call failed.
std::string life_of_a_message(int type, unsigned char strict) {
  const message_ptr msg = with_header(message_ptr(tivex_new(type)));
  pairs more = {{"name", "Eva"}, {"ref", "r"}, {"id", "i"}, {"addrCC", "AT"}, {"addrTown", "W"}};
  if (type == TIVEX_DIRECT_DEBIT) more.insert(more.end(), {{"mref", "M"}, {"mdate", "2024-01-01"}});
  if (!msg || add(msg, more) != 1 || add(msg, more) != 1) return "";
  EXPECT_EQ(tivex_setStrict(msg.get(), strict), 1);
  return document_of(msg);
}

}  // namespace

TEST(ExhaustedMemory, IsReportedAndLosesNothing) {
  ASSERT_EQ(tivex_init(3, "DE-3.7"), 1);
  const runtime_control::fixed_clock clock(2024, 4, 17);
  for (const int kind : {0, 1, 2, 3}) {
    const int type = kind < 2 ? TIVEX_CREDIT_TRANSFER : TIVEX_DIRECT_DEBIT;
    const auto strict = static_cast<unsigned char>(kind % 2);
    ASSERT_NE(life_of_a_message(type, strict), "");
    bool happened = true;
    std::size_t refused = 0;
    for (std::size_t n = 1; happened; ++n) {
      const failing_allocation failing(n);
      const std::string document = life_of_a_message(type, strict);
      happened = failing.happened();
      refused += document.empty() ? 1 : 0;
      // A copy of an optional value may be missing, but no document is cut short.
      EXPECT_TRUE(document.empty() || document.ends_with("</Document>\n"));
    }
    EXPECT_GT(refused, 10u);
  }
}

TEST(ExhaustedMemory, LeavesTransactionsAsTheyWere) {
  for (const int type : {TIVEX_CREDIT_TRANSFER, TIVEX_DIRECT_DEBIT}) {
    const message_ptr msg = new_message(type, "DE-2.6");
    ASSERT_EQ(add(msg), 1);
    const char* const errors[] = {"Out of memory", "IBAN missing", "BIC missing"};
    for (std::size_t n = 1; n <= std::size(errors); ++n) {
      const failing_allocation failing(n);
      EXPECT_EQ(add(msg), 0);
      EXPECT_EQ(error_of(msg), errors[n - 1]);
      EXPECT_EQ(msg->tx_count, 1u);
    }
  }
}

TEST(ExhaustedMemory, OfADocumentIsToldOrLeavesTheErrorAsItWas) {
  for (const int type : {TIVEX_CREDIT_TRANSFER, TIVEX_DIRECT_DEBIT}) {
    const bool transfer = type == TIVEX_CREDIT_TRANSFER;
    const message_ptr msg = with_header(message_ptr(tivex_new(type)));
    ASSERT_EQ(add(msg), 1);
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
