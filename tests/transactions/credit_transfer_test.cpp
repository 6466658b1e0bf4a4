// Credit transfers through tivex_add.

#include "transactions/credit_transfer.h"
#include "support/messages.h"

namespace {

const std::string long_text(200, 'x');
const char* letters(std::size_t count) { return long_text.c_str() + 200 - count; }

const tivex::ct_transaction& last_of(const message_ptr& msg) {
  return static_cast<const tivex::ct_transaction&>(*msg->last);
}

struct refused_value {
  const char* key;
  const char* value;
  const char* error;
  const char* rulebook = "DE-3.5";
};

const char* const address_required = "selected SEPA rulebook requires structured address data";
const char* const bad_name = "Invalid name (must be 1-70 characters)";
const char* const bad_line1 = "Invalid address line 1 (must be 1-70 chars)";
const char* const bad_line2 = "Invalid address line 2 (must be 1-70 chars)";
const char* const bad_reference =
    "Invalid unstructured remittance information (must be 0-140 characters)";
const char* const bad_purpose = "Invalid purpose (must be 4 characters)";
const char* const bad_date = "Invalid execution date (format: yyyy-mm-dd)";
const char* const bad_id = "Invalid end-to-end ID (must be 1-35 characters)";

const refused_value refused[] = {
    {"name", nullptr, bad_name},
    {"name", "", bad_name},
    {"name", letters(71), bad_name},
    {"name", "a\nb", "Invalid character '\n' in creditor name"},
    {"name", "Ä", "Invalid character '\xC3' in creditor name", "DE-2.6"},
    {"iban", nullptr, "Invalid IBAN (NULL)"},
    {"iban", "XX12", "Invalid or unknown IBAN country code"},
    {"iban", "AT6119043002345732011", "Wrong IBAN length"},
    {"iban", "at611904300234573201", "Invalid IBAN format"},
    {"iban", "AT611904300234573202", "Invalid IBAN checksum"},
    {"bic", nullptr, "Invalid BIC"},
    {"bic", "BKAUATWWXXXX", "Invalid BIC"},
    {"bic", "BKAUATWWX", "Invalid BIC format"},
    {"bic", "", "Invalid BIC format"},
    {"addrCC", nullptr, "Invalid country code"},
    {"addrCC", "D", "Invalid country code"},
    {"addrCC", "DEU", "Invalid country code"},
    {"addrCC", "dE", "Invalid country code"},
    {"addrCC", "D1", "Invalid country code"},
    {"addrLine1", "Street 1", address_required, "DE-3.7"},
    {"addrLine1", nullptr, bad_line1},
    {"addrLine1", "", bad_line1},
    {"addrLine1", letters(71), bad_line1},
    {"addrLine1", "Street\t1", "Invalid character '\t' in address line 1"},
    {"addrLine2", nullptr, address_required, "DE-3.7"},
    {"addrLine2", letters(71), bad_line2},
    {"addrLine2", "@", "Invalid character '@' in address line 2"},
    {"ref", nullptr, bad_reference},
    {"ref", letters(141), bad_reference},
    {"ref", "a|b", "Invalid character '|' in unstructured remittance information"},
    {"purp", nullptr, bad_purpose},
    {"purp", "SAL", bad_purpose},
    {"purp", "SALAR", bad_purpose},
    {"amount", nullptr, "Invalid amount"},
    {"amount", "1,00", "Invalid amount"},
    {"amount", "", "Empty amount not allowed"},
    {"amount", "-1", "Negative or zero amount not allowed"},
    {"amount", "0.004", "Amount missing"},
    {"date", nullptr, bad_date},
    {"date", "2024-1-1", bad_date},
    {"date", "2024-01-011", bad_date},
    {"id", nullptr, bad_id},
    {"id", "", bad_id},
    {"id", letters(36), bad_id},
    {"id", "a&b", "Invalid character '&' in end-to-end ID"},
};

struct address_key {
  const char* key;
  std::size_t limit;
  tivex::owned_text tivex::transaction::*field;
};

const address_key address_keys[] = {
    {"addrDept", 70, &tivex::transaction::addr_department},
    {"addrSubDept", 70, &tivex::transaction::addr_sub_department},
    {"addrStreet", 70, &tivex::transaction::addr_street},
    {"addrNum", 16, &tivex::transaction::addr_building_number},
    {"addrBldg", 35, &tivex::transaction::addr_building_name},
    {"addrFloor", 70, &tivex::transaction::addr_floor},
    {"addrPoBox", 16, &tivex::transaction::addr_post_box},
    {"addrRoom", 70, &tivex::transaction::addr_room},
    {"addrCode", 16, &tivex::transaction::addr_post_code},
    {"addrTown", 35, &tivex::transaction::addr_town},
    {"addrLoc", 35, &tivex::transaction::addr_town_location},
    {"addrDstrct", 35, &tivex::transaction::addr_district},
    {"addrCtrySub", 35, &tivex::transaction::addr_country_subdivision},
};

}  // namespace

TEST(CreditTransfer, RefusedValueSaysWhyAndChangesNothing) {
  for (const refused_value& r : refused) {
    const message_ptr msg = credit_transfer(r.rulebook);
    ASSERT_EQ(add(msg, payment), 1);
    const std::string what = std::string(r.key) + "=" + (r.value ? r.value : "null");
    EXPECT_EQ(add(msg, with(payment, {{r.key, r.value}})), 0) << what;
    EXPECT_EQ(error_of(msg), r.error) << what;
    EXPECT_EQ(msg->tx_count, 1u);
    EXPECT_EQ(msg->control_sum, 12.5);
    EXPECT_EQ(msg->first, msg->last);
  }
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

TEST(StructuredAddress, IsCheckedAndStoredUnderOneRulebookAndIgnoredUnderTheOthers) {
  for (const char* const rulebook : all_rulebooks) {
    const bool structured = std::string(rulebook) == "DE-3.7";
    for (const address_key& part : address_keys) {
      const message_ptr msg = credit_transfer(rulebook);
      EXPECT_EQ(tivex_setName(msg.get(), ""), 0) << "an old error must not matter";
      ASSERT_EQ(add(msg, with(payment, {{part.key, letters(1)}, {part.key, letters(part.limit)}})),
                1);
      EXPECT_STREQ((last_of(msg).*part.field).c_str(), structured ? letters(part.limit) : nullptr)
          << part.key;
      std::string upper = part.key;
      for (char& c : upper) c = static_cast<char>(std::toupper(c));
      for (const char* const bad :
           {letters(part.limit + 1), "", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(add(msg, with(payment, {{upper.c_str(), bad}})), structured ? 0 : 1) << upper;
        EXPECT_EQ(error_of(msg), structured ? "Invalid format for '" + upper + "'"
                                            : "tivex_setAccount: Name too short");
      }
    }
  }
}
