// What a message tells when memory is exhausted; tests/preload fails each allocation of
// every call.

#include <gtest/gtest.h>

#include "support/messages.h"
#include "support/runtime_control.h"

using runtime_control::failing_allocation;

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
