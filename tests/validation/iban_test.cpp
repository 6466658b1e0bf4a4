// IBANs of every country, and why others are none.

#include <gtest/gtest.h>

#include "support/runtime_control.h"
#include "tivex.h"
#include "validation/iban.h"
#include "validation/iban_countries.h"

namespace {

// A valid IBAN of each country, in the order of the table.
const char* const valid_ibans[] = {
    "AT611904300234573201",
    "BE68539007547034",
    "BG80BNBG96611020345678",
    "HR1210010051863000160",
    "CY17002001280000001200527600",
    "CZ6508000000192000145399",
    "DK5000400440116243",
    "FO6264600001631634",
    "GL8964710001000206",
    "EE382200221020145685",
    "FI2112345600000785",
    "FR1420041010050500013M02606",
    "DE54100000000000012345",
    "GI75NWBK000000007099453",
    "GR1601101250000000012300695",
    "HU42117730161111101800000000",
    "IS140159260076545510730339",
    "IE29AIBK93115212345678",
    "IT60X0542811101000000123456",
    "LV80BANK0000435195001",
    "LI21088100002324013AA",
    "LT121000011101001000",
    "LU280019400644750000",
    "MT84MALT011000012345MTLCAST001S",
    "MC5811222000010123456789030",
    "NL91ABNA0417164300",
    "NO9386011117947",
    "PL61109010140000071219812874",
    "PT50000201231234567890154",
    "RO49AAAA1B31007593840000",
    "SM86U0322509800000000270100",
    "SK3112000000198742637541",
    "SI56263300012039086",
    "ES9121000418450200051332",
    "SE4550000000058398257466",
    "CH9300762011623852957",
    "GB29NWBK60161331926819",
};

std::string fault_of(const char* iban) {
  const char* reason = "";
  const bool valid = tivex::iban_validate(iban, &reason);
  EXPECT_EQ(valid, *reason == '\0');
  EXPECT_EQ(tivex::iban_validate(iban, nullptr), valid);
  return reason;
}

}  // namespace

TEST(Iban, IsKnownOfEveryCountry) {
  ASSERT_EQ(std::size(valid_ibans), tivex::iban_country_table.size());
  for (std::size_t index = 0; index < std::size(valid_ibans); ++index) {
    EXPECT_EQ(fault_of(valid_ibans[index]), "") << valid_ibans[index];
    EXPECT_EQ(std::string(valid_ibans[index], 2), tivex::iban_country_table[index].code);
    EXPECT_EQ(tivex_iban_check(valid_ibans[index]), 1);
  }
}

TEST(Iban, IsRefusedWithAnyCharacterChanged) {
  for (const std::string valid : valid_ibans) {
    for (std::size_t position = 2; position < valid.size(); ++position) {
      std::string changed = valid;
      for (const char c : std::string("0123456789ABCXYZ")) {
        // A digit for a letter changes the number's length and may go unseen.
        if ((c <= '9') != (valid[position] <= '9')) continue;
        changed[position] = c;
        EXPECT_EQ(tivex_iban_check(changed.c_str()), changed == valid ? 1 : -1) << changed;
      }
      for (const char c : {' ', '-', 'a', '\xC3'}) {
        changed[position] = c;
        EXPECT_EQ(fault_of(changed.c_str()), "Invalid IBAN format") << changed;
      }
    }
    EXPECT_EQ(fault_of((valid + "0").c_str()), "Wrong IBAN length");
    EXPECT_EQ(fault_of(valid.substr(0, valid.size() - 1).c_str()), "Wrong IBAN length");
  }
}

TEST(Iban, FaultsComeInOrder) {
  const struct {
    const char* iban;
    const char* fault;
  } rows[] = {
      {nullptr, "Invalid IBAN (NULL)"},
      {"", "Invalid or unknown IBAN country code"},
      {"A", "Invalid or unknown IBAN country code"},
      {"US64SVBKUS6S3300958879", "Invalid or unknown IBAN country code"},
      {"AT", "Wrong IBAN length"},
      {"AT61 1904 3002 3457 3201", "Wrong IBAN length"},
      {"at611904300234573201", "Invalid IBAN format"},
      {"aT611904300234573201", "Invalid IBAN format"},
      {"AT611904300234573202", "Invalid IBAN checksum"},
  };
  for (const auto& [iban, fault] : rows) {
    EXPECT_EQ(fault_of(iban), fault) << (iban ? iban : "null");
    EXPECT_EQ(tivex_iban_check(iban), -1);
  }
}

TEST(Iban, RemainderTakesLettersOfEitherCase) {
  EXPECT_EQ(tivex::iban_remainder("GB29NWBK60161331926819"), 1);
  EXPECT_EQ(tivex::iban_remainder("gb29nwbk60161331926819"), 1);
  EXPECT_EQ(tivex::iban_remainder("DE0010000000"), (10000000LL * 1000000 + 131400) % 97);
  EXPECT_EQ(tivex::iban_remainder("AT6 1904"), tivex::IBAN_BAD_CHARACTER);
  EXPECT_EQ(tivex::iban_remainder("AT611904-"), tivex::IBAN_BAD_CHARACTER);
}

TEST(Iban, SaysWhenPatternsCannotBeCompiledAndTriesAgain) {
  tivex_cleanup();
  // One allocation for the set and one for each pattern.
  for (std::size_t n = 1; n <= tivex::iban_country_table.size() + 1; ++n) {
    const runtime_control::failing_allocation failing(n, true);
    EXPECT_EQ(fault_of("NO9386011117947"), "Error while initializing regular expressions") << n;
    tivex_cleanup();
  }
  EXPECT_EQ(fault_of("NO9386011117947"), "");
}
