// Direct debits through tivex_add.

#include "transactions/direct_debit.h"
#include "support/refusals.h"

namespace {

const char* const bad_mandate = "Invalid mandate reference (must be 1-35 characters)";
const char* const bad_old_mandate = "Invalid old mandate reference (must be 1-35 characters)";
const char* const bad_signature = "Invalid mandate signature date (format: yyyy-mm-dd)";
const char* const bad_sequence = "Invalid/unknown sequence type";

const refused_value refused[] = {
    {"name", "a\nb", "Invalid character '\n' in debtor name"},
    {"seq", nullptr, bad_sequence},
    {"seq", "", bad_sequence},
    {"seq", "first", bad_sequence},
    {"seq", "FRS", bad_sequence},
    {"mref", nullptr, bad_mandate},
    {"mref", "", bad_mandate},
    {"mref", letters(36), bad_mandate},
    {"mref", "M 1", "Invalid character ' ' in mandate reference", "DE-2.9"},
    {"mref", "M&1", "Invalid character '&' in mandate reference", "DE-3.0"},
    {"mdate", nullptr, bad_signature},
    {"mdate", "2024-1-1", bad_signature},
    {"mdate", "2024-01-011", bad_signature},
    {"old_mref", nullptr, bad_old_mandate},
    {"old_mref", "", bad_old_mandate},
    {"old_mref", letters(36), bad_old_mandate},
    {"old_mref", "M 1", "Invalid character ' ' in old mandate reference", "DE-3.7"},
    {"old_iban", nullptr, "Invalid IBAN (NULL)"},
    {"old_iban", "AT611904300234573202", "Invalid IBAN checksum"},
    {"smnda", nullptr, "Invalid value '(null)' for SMNDA flag"},
    {"smnda", "0", "Invalid value '0' for SMNDA flag"},
    {"smnda", "yes", "Invalid value 'yes' for SMNDA flag"},
    {"smnda", "1 ", "Invalid value '1 ' for SMNDA flag"},
    {"purp", "SALA", "Invalid transaction property 'purp'"},
    {"Adress", "x", "Invalid transaction property 'Adress'"},
};

message_ptr direct_debit(const char* rulebook) { return new_message(TIVEX_DIRECT_DEBIT, rulebook); }

}  // namespace

TEST(DirectDebit, RefusedValueSaysWhyAndChangesNothing) {
  expect_refusals(TIVEX_DIRECT_DEBIT, collection, refused);
}

TEST(DirectDebit, StoresEachValueAsGiven) {
  const message_ptr msg = direct_debit("DE-3.5");
  ASSERT_EQ(add(msg, with(collection, {{"MREF", "M 1"},
                                       {"mdate", "yyyy-mm-dd"},
                                       {"old_mref", letters(35)},
                                       {"Old_Iban", "NO9386011117947"},
                                       {"smnda", "1"},
                                       {"ref", ""}})),
            1)
      << error_of(msg);
  const auto& tx = static_cast<const tivex::dd_transaction&>(*msg->last);
  EXPECT_STREQ(tx.mandate_id.c_str(), "M 1");
  EXPECT_STREQ(tx.mandate_date.c_str(), "yyyy-mm-dd");
  EXPECT_STREQ(tx.old_mandate_id.c_str(), letters(35));
  EXPECT_STREQ(tx.old_iban.c_str(), "NO9386011117947");
  EXPECT_EQ(tx.smnda, 1);
  EXPECT_STREQ(tx.remittance.c_str(), "");
}

TEST(DirectDebit, KnowsFourSequenceTypes) {
  const message_ptr msg = direct_debit("DE-3.7");
  const char* const names[] = {"frst", "RCUR", "Ooff", "FNAL"};
  for (int index = 0; index < 4; ++index) {
    ASSERT_EQ(add(msg, with(collection, {{"seq", names[index]}})), 1);
    EXPECT_EQ(static_cast<const tivex::dd_transaction&>(*msg->last).sequence_type, index + 1);
  }
  EXPECT_EQ(msg->tx_count, 4u);
  EXPECT_EQ(msg->control_sum, 50.0);
}

TEST(DirectDebit, NeedsIbanSequenceAmountAndUnderOneRulebookBic) {
  for (const char* const rulebook : all_rulebooks) {
    const message_ptr msg = direct_debit(rulebook);
    const bool without_bic = std::string(rulebook) != "DE-2.6";
    const struct {
      pairs list;
      const char* error;
    } rows[] = {
        {{}, "IBAN missing"},
        {{{"iban", "NO9386011117947"}}, without_bic ? "Sequence type missing" : "BIC missing"},
        {{{"iban", "NO9386011117947"}, {"bic", "DEUTDEFF"}}, "Sequence type missing"},
        {{{"iban", "NO9386011117947"}, {"bic", "DEUTDEFF"}, {"seq", "OOFF"}}, "Amount missing"},
    };
    for (const auto& row : rows) {
      EXPECT_EQ(add(msg, row.list), 0) << rulebook;
      EXPECT_EQ(error_of(msg), row.error) << rulebook;
    }
    EXPECT_EQ(tivex_add(msg.get(), nullptr), 0);
    EXPECT_EQ(error_of(msg), "No key-value list submitted");
  }
}

TEST(DirectDebit, NeedsAnAddressWhereTheBankIsOutsideTheEea) {
  const char* const line = "Address required for BICs outside EEA";
  const char* const parts =
      "Structured address required for BICs outside EEA (at least town and country)";
  const struct {
    const char* rulebook;
    pairs more;
    const char* error;
  } rows[] = {
      {"DE-2.6", {}, ""},
      {"DE-3.0", {}, ""},
      {"AT-6", {}, ""},
      {"DE-3.1", {}, line},
      {"DE-3.5", {{"addrCC", "CH"}}, line},
      {"DE-3.1", {{"addrLine1", "x"}}, ""},
      {"DE-3.5", {{"addrLine2", "x"}}, ""},
      {"DE-3.7", {}, parts},
      {"DE-3.7", {{"addrCC", "CH"}, {"addrStreet", "x"}}, parts},
      {"DE-3.7", {{"addrTown", "Zug"}}, parts},
      {"DE-3.7", {{"addrTown", "Zug"}, {"addrCC", "CH"}}, ""},
  };
  for (const auto& row : rows) {
    const message_ptr msg = direct_debit(row.rulebook);
    const pairs swiss = with(collection, {{"bic", "zkbkchzz80a"}});
    EXPECT_EQ(add(msg, with(swiss, row.more)), *row.error == '\0' ? 1 : 0) << row.rulebook;
    EXPECT_EQ(error_of(msg), row.error) << row.rulebook;
    EXPECT_EQ(add(msg, collection), 1) << "never within it";
  }
  const message_ptr msg = direct_debit("DE-3.7");
  EXPECT_EQ(add(msg, {{"iban", "CH9300762011623852957"}, {"amount", "1"}, {"seq", "FRST"}}), 1)
      << "nor without a BIC";
}
