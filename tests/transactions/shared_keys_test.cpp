// The keys that credit transfers and direct debits share.

#include "support/refusals.h"
#include "transactions/transaction.h"

namespace {

const char* const address_required = "selected SEPA rulebook requires structured address data";
const char* const bad_name = "Invalid name (must be 1-70 characters)";
const char* const bad_line1 = "Invalid address line 1 (must be 1-70 chars)";
const char* const bad_line2 = "Invalid address line 2 (must be 1-70 chars)";
const char* const bad_reference =
    "Invalid unstructured remittance information (must be 0-140 characters)";
const char* const bad_date = "Invalid execution date (format: yyyy-mm-dd)";
const char* const bad_id = "Invalid end-to-end ID (must be 1-35 characters)";

const refused_value refused[] = {
    {"name", nullptr, bad_name},
    {"name", "", bad_name},
    {"name", letters(71), bad_name},
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

// A message of each type with what it needs added once.
struct kind {
  int type;
  pairs needed;
};
const kind kinds[] = {{TIVEX_CREDIT_TRANSFER, payment}, {TIVEX_DIRECT_DEBIT, collection}};

}  // namespace

TEST(SharedKeys, RefusedValueSaysWhyAndChangesNothing) {
  for (const kind& k : kinds) expect_refusals(k.type, k.needed, refused);
}

TEST(StructuredAddress, IsCheckedAndStoredUnderItsRulebook) {
  for (const kind& k : kinds) {
    for (const address_key& part : address_keys) {
      const message_ptr msg = new_message(k.type, "DE-3.7");
      EXPECT_EQ(tivex_setName(msg.get(), ""), 0) << "an old error must not matter";
      ASSERT_EQ(add(msg, with(k.needed, {{part.key, "x"}, {part.key, letters(part.limit)}})), 1);
      EXPECT_STREQ((msg->last->*part.field).c_str(), letters(part.limit)) << part.key;
      std::string upper = part.key;
      for (char& c : upper) c = static_cast<char>(std::toupper(c));
      for (const char* const bad :
           {letters(part.limit + 1), "", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(add(msg, with(k.needed, {{upper.c_str(), bad}})), 0) << upper;
        EXPECT_EQ(error_of(msg), "Invalid format for '" + upper + "'");
      }
    }
  }
}

TEST(StructuredAddress, IsIgnoredOrRefusedUnderTheOtherRulebooks) {
  for (const char* const rulebook : all_rulebooks) {
    if (std::string(rulebook) == "DE-3.7") continue;
    for (const address_key& part : address_keys) {
      const message_ptr transfer = credit_transfer(rulebook);
      EXPECT_EQ(add(transfer, with(payment, {{part.key, letters(part.limit + 1)}})), 1);
      EXPECT_FALSE(transfer->last->*part.field) << part.key;

      const message_ptr debit = new_message(TIVEX_DIRECT_DEBIT, rulebook);
      EXPECT_EQ(add(debit, with(collection, {{part.key, "x"}})), 0);
      const std::string key = part.key;
      EXPECT_EQ(error_of(debit),
                key == "addrDept"
                    ? "selected SEPA rulebook does not support structured address data"
                    : "Invalid transaction property '" + key + "'");
    }
  }
}
