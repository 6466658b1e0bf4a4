// Credit transfers through tivex_add.

#include "transactions/credit_transfer.h"
#include "support/refusals.h"

namespace {

const tivex::ct_transaction& last_of(const message_ptr& msg) {
  return static_cast<const tivex::ct_transaction&>(*msg->last);
}

const char* const bad_purpose = "Invalid purpose (must be 4 characters)";

const refused_value refused[] = {
    {"name", "a\nb", "Invalid character '\n' in creditor name"},
    {"name", "Ä", "Invalid character '\xC3' in creditor name", "DE-2.6"},
    {"purp", nullptr, bad_purpose},
    {"purp", "SAL", bad_purpose},
    {"purp", "SALAR", bad_purpose},
};

}  // namespace

TEST(CreditTransfer, RefusedValueSaysWhyAndChangesNothing) {
  expect_refusals(TIVEX_CREDIT_TRANSFER, payment, refused);
}

TEST(CreditTransfer, StoresEachValueAsGiven) {
  const message_ptr msg = credit_transfer("DE-3.5");
  ASSERT_EQ(add(msg, {{"NAME", letters(70)},
                      {"Iban", "AT611904300234573201"},
                      {"bic", "bkauatww"},
                      {"addrCC", "AT"},
                      {"addrline1", "Am Tor 1"},
                      {"ADDRLINE2", letters(70)},
                      {"ref", letters(140)},
                      {"purp", "sa<1"},
                      {"AMOUNT", "0.005"},
                      {"date", "yyyy-mm-dd"},
                      {"id", "RE 1"}}),
            1)
      << error_of(msg);
  const tivex::ct_transaction& tx = last_of(msg);
  EXPECT_STREQ(tx.name.c_str(), letters(70));
  EXPECT_STREQ(tx.iban.c_str(), "AT611904300234573201");
  EXPECT_STREQ(tx.bic.c_str(), "BKAUATWW");
  EXPECT_STREQ(tx.addr_country.c_str(), "AT");
  EXPECT_STREQ(tx.addr_line1.c_str(), "Am Tor 1");
  EXPECT_STREQ(tx.addr_line2.c_str(), letters(70));
  EXPECT_STREQ(tx.remittance.c_str(), letters(140));
  EXPECT_STREQ(tx.purpose.c_str(), "sa<1");
  EXPECT_EQ(tx.amount, 0.01);
  EXPECT_STREQ(tx.date.c_str(), "yyyy-mm-dd");
  EXPECT_STREQ(tx.end_to_end_id.c_str(), "RE 1");
}

TEST(CreditTransfer, NeedsIbanAmountAndUnderOneRulebookBic) {
  for (const char* const rulebook : all_rulebooks) {
    const message_ptr msg = credit_transfer(rulebook);
    EXPECT_EQ(add(msg, {}), 0);
    EXPECT_EQ(error_of(msg), "IBAN missing");
    EXPECT_EQ(add(msg, {{"iban", "AT611904300234573201"}, {"bic", "BKAUATWW"}}), 0);
    EXPECT_EQ(error_of(msg), "Amount missing");
    const bool without_bic = std::string(rulebook) != "DE-2.6";
    EXPECT_EQ(add(msg, {{"iban", "AT611904300234573201"}, {"amount", "1"}}), without_bic ? 1 : 0);
    EXPECT_EQ(error_of(msg), without_bic ? "Amount missing" : "BIC missing");
  }
  const message_ptr msg = credit_transfer();
  EXPECT_EQ(tivex_add(msg.get(), nullptr), 0);
  EXPECT_EQ(error_of(msg), "No key-value list submitted");
  EXPECT_EQ(tivex_add(nullptr, payment.data()), 0);
  msg->type = TIVEX_DIRECT_DEBIT;
  EXPECT_FALSE(tivex::cti_add(*msg, payment.data()));
  EXPECT_EQ(error_of(msg), "No CTI message");
  msg->type = TIVEX_CREDIT_TRANSFER;
}

TEST(CreditTransfer, CountsAndSumsInOrder) {
  const message_ptr msg = credit_transfer();
  for (const char* const amount : {"0.1", "0.2", "12.345"}) {
    ASSERT_EQ(add(msg, with(payment, {{"amount", amount}, {"ref", ""}})), 1);
  }
  EXPECT_EQ(msg->tx_count, 3u);
  EXPECT_DOUBLE_EQ(msg->control_sum, 12.65);
  EXPECT_STREQ(last_of(msg).remittance.c_str(), "");
  EXPECT_EQ(tivex::first_transaction<tivex::ct_transaction>(*msg)->next->amount, 0.2);
}

TEST(CreditTransfer, TakesTheLastValueOfAKeyAndChecksAll) {
  const message_ptr msg = credit_transfer();
  EXPECT_EQ(add(msg, with(payment, {{"name", "Eva"}, {"name", "Adam"}})), 1);
  EXPECT_STREQ(last_of(msg).name.c_str(), "Adam");
  EXPECT_EQ(add(msg, with(payment, {{"purp", "XX"}, {"purp", "SALA"}})), 0);
}

TEST(CreditTransfer, IgnoresWhatItDoesNotKnow) {
  const message_ptr msg = credit_transfer();
  EXPECT_EQ(add(msg, with(payment, {{"nam", ""}, {"", ""}, {"names", nullptr}, {"mref", "x"}})), 1);
}
