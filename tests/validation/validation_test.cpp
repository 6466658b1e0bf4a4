// IBANs, BICs and texts of limited length.

#include <gtest/gtest.h>

#include "support/table.h"
#include "tivex.h"
#include "validation/format_check.h"
#include "validation/iban.h"
#include "validation/iban_countries.h"

namespace {

std::string fault_of(const char* iban) {
  const char* reason = "";
  const bool valid = tivex::iban_validate(iban, &reason);
  EXPECT_EQ(valid, *reason == '\0');
  EXPECT_EQ(tivex::iban_validate(iban, nullptr), valid);
  EXPECT_EQ(tivex_iban_check(iban), valid ? 1 : -1);
  return reason;
}

}  // namespace

TEST(Iban, IsValidOrHasAFault) {
  std::size_t valid = 0;
  for (const row& r : read_table("ibans.tsv", 2)) {
    EXPECT_EQ(fault_of(r[0].c_str()), r[1].str()) << r[0].str();
    if (!r[1].str().empty()) continue;
    EXPECT_EQ(r[0].str().substr(0, 2), tivex::iban_country_table.at(valid++).code);
  }
  EXPECT_EQ(valid, tivex::iban_country_table.size()) << "one of each country";
}

TEST(Iban, IsRefusedWithAnyCharacterChanged) {
  for (const row& r : read_table("ibans.tsv", 2)) {
    const std::string valid = r[0].str();
    for (std::size_t at = 2; r[1].str().empty() && at < valid.size(); ++at) {
      std::string changed = valid;
      for (const char c : std::string("0123456789ABCXYZ")) {
        // A digit for a letter changes the number's length and may go unseen.
        if ((c <= '9') != (valid[at] <= '9')) continue;
        changed[at] = c;
        EXPECT_EQ(tivex_iban_check(changed.c_str()), changed == valid ? 1 : -1) << changed;
      }
      for (const char c : {' ', '-', 'a', '\xC3'}) {
        changed[at] = c;
        EXPECT_EQ(fault_of(changed.c_str()), "Invalid IBAN format") << changed;
      }
    }
  }
}

// A bank whose method does not check, one whose method does, the second variant of
// method 76, and a method that needs the bank code.
TEST(Iban, OfGermanyPassesUnlessTheAccountIsInvalid) {
  for (const char* const valid : {"DE54100000000000012345", "DE89370400440532013000",
                                  "DE88100800000072510273", "DE18130510420010000014"}) {
    EXPECT_EQ(fault_of(valid), "") << valid;
  }
}

TEST(Iban, RemainderTakesLettersOfEitherCase) {
  EXPECT_EQ(tivex::iban_remainder("gb29nwbk60161331926819"), 1);
  EXPECT_EQ(tivex::iban_remainder("DE0010000000"), (10000000LL * 1000000 + 131400) % 97);
  EXPECT_EQ(tivex::iban_remainder("AT6 1904"), tivex::IBAN_BAD_CHARACTER);
  EXPECT_EQ(tivex::iban_remainder("AT611904-"), tivex::IBAN_BAD_CHARACTER);
}

TEST(Format, BicHasEightOrElevenCharactersOfThePattern) {
  for (const row& r : read_table("bics.tsv", 2)) {
    EXPECT_EQ(tivex::format_check(tivex::FORMAT_BIC, r[0].c_str()), r[1].str() == "1")
        << r[0].str();
  }
}

TEST(Format, TextKindsLimitTheLength) {
  const std::size_t limits[] = {0, 70, 16, 35};
  for (unsigned kind = 1; kind <= 4; ++kind) {
    const std::size_t limit = kind < 4 ? limits[kind] : 0;  // there is no kind 4
    EXPECT_EQ(tivex::format_check(kind, "\n"), limit > 0);
    EXPECT_EQ(tivex::format_check(kind, std::string(limit, 'x').c_str()), limit > 0);
    EXPECT_FALSE(tivex::format_check(kind, std::string(limit + 1, 'x').c_str()));
    EXPECT_FALSE(tivex::format_check(kind, ""));
    EXPECT_FALSE(tivex::format_check(kind, nullptr));
  }
}
