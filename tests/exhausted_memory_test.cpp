// Every allocation of a message's life fails once, for each in turn.

#include "support/messages.h"
#include "support/runtime_control.h"

using runtime_control::failing_allocation;

namespace {

const pairs full_payment = with(payment, {{"name", "Eva"},
                                          {"ref", "r"},
                                          {"purp", "SALA"},
                                          {"id", "i"},
                                          {"date", "2024-05-03"},
                                          {"addrCC", "AT"},
                                          {"addrTown", "Wien"}});

// The document of a small message, or nothing when a call failed.
std::string life_of_a_message() {
  const message_ptr msg(tivex_new(TIVEX_CREDIT_TRANSFER));
  if (!msg) return "";
  const bool filled = tivex_setName(msg.get(), "Name") == 1 &&
                      tivex_setIBAN(msg.get(), "NO9386011117947") == 1 &&
                      tivex_setBIC(msg.get(), "DEUTDEFF") == 1 && add(msg, full_payment) == 1 &&
                      add(msg, payment) == 1;
  return filled ? document_of(msg) : "";
}

}  // namespace

TEST(ExhaustedMemory, IsReportedAndLosesNothing) {
  ASSERT_EQ(tivex_init(3, "DE-3.7"), 1);
  const runtime_control::fixed_clock clock(2024, 4, 17);
  tivex_cleanup();
  const std::string expected = life_of_a_message();
  ASSERT_NE(expected, "");
  bool happened = true;
  std::size_t refused = 0;
  for (std::size_t n = 1; happened; ++n) {
    tivex_cleanup();
    const failing_allocation failing(n);
    const std::string document = life_of_a_message();
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
  const message_ptr msg = credit_transfer();
  ASSERT_EQ(add(msg, payment), 1);
  const struct {
    std::size_t n;
    const char* error;
  } rows[] = {{1, ""},  // the output text itself
              {2, "malloc() failed"},
              {3, ""},  // the declaration
              {4, "cti_toXML: strdup() failed"},
              {5, "Out of memory"}};  // the payment blocks
  for (const auto& [n, error] : rows) {
    msg->error = nullptr;
    msg->date.clear();
    msg->message_id.clear();
    const failing_allocation failing(n, true);
    EXPECT_EQ(document_of(msg), "");
    EXPECT_EQ(error_of(msg), error) << n;
  }
  // In the markup the error text stays, in a value it changes.
  std::string seen;
  for (std::size_t n = 3; n < 10; ++n) {
    msg->error = nullptr;
    const failing_allocation failing(n, true);
    if (document_of(msg).empty()) seen += error_of(msg) + ";";
  }
  EXPECT_NE(seen.find("Out of memory;"), seen.npos) << seen;
}
