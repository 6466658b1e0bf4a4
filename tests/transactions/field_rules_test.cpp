// Character sets, numbers, amounts and the countries outside the EEA.

#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>

#include "core/text_to_int64.h"
#include "support/messages.h"
#include "support/table.h"
#include "transactions/amount.h"
#include "transactions/charset.h"
#include "transactions/decimal.h"
#include "transactions/eea.h"

TEST(Charset, AdmitsSingleBytesByLevelAndRulebook) {
  for (const std::string& rulebook : all_rulebooks) {
    ASSERT_EQ(tivex_init(3, rulebook.c_str()), 1);
    std::string admitted =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789':?,-()+/.";
    if (rulebook == "AT-6") admitted += "!\"#;<=>@[]^_{|}~";
    for (const int level : {0, 1, 2}) {
      if (level == 1) admitted += ' ';
      if (level == 2 && rulebook != "DE-2.6") admitted += "&*$%";
      for (int byte = 1; byte < 256; ++byte) {
        const char text[] = {static_cast<char>(byte), '\0'};
        EXPECT_EQ(tivex::charset_check(text, nullptr, level), admitted.find(text) != admitted.npos)
            << rulebook << " level " << level << " byte " << byte;
      }
    }
  }
}

TEST(Charset, KnowsSomeSequencesAndNamesTheFirstByteRefused) {
  for (const row& r : read_table("charset.tsv", 4)) {
    ASSERT_EQ(tivex_init(3, r[0].c_str()), 1);
    char offending[] = {'\0', '\0'};
    const bool admitted = tivex::charset_check(r[2].c_str(), offending, std::stoi(r[1].str()));
    EXPECT_EQ(admitted, r[3].str().empty()) << r[2].str();
    EXPECT_EQ(offending, r[3].str()) << r[2].str();
  }
}

TEST(Decimal, ReadsTheNumberAndStopsBehindIt) {
  for (const row& r : read_table("decimals.tsv", 4)) {
    const char* end = nullptr;
    errno = 0;
    EXPECT_DOUBLE_EQ(tivex::parse_decimal(r[0].c_str(), &end), std::stod(r[1].str())) << r[0].str();
    EXPECT_EQ(end - r[0].c_str(), std::stol(r[2].str())) << r[0].str();
    EXPECT_EQ(errno, r[3].str().empty() ? 0 : ERANGE) << r[0].str();
  }
  EXPECT_TRUE(std::signbit(tivex::parse_decimal("-", nullptr)));
  EXPECT_TRUE(std::isnan(tivex::parse_decimal("0e511", nullptr)));
}

TEST(Decimal, RoundsHalvesUp) {
  const double rows[][2] = {{0.5, 1},   {1.49, 1}, {-0.5, 0},   {-1.5, -1},
                            {-2.5, -2}, {2, 2},    {-2.51, -3}, {0.49999999999999994, 0}};
  for (const auto& [value, expected] : rows) EXPECT_EQ(tivex::round_half_up(value), expected);
}

TEST(Amount, IsRoundedToCentsOrRefused) {
  for (const row& r : read_table("amounts.tsv", 3)) {
    double amount = 0.0;
    errno = ERANGE;  // an old value must not matter
    const char* const error = tivex::amount_rule(r[0].c_str(), amount);
    EXPECT_EQ(error != nullptr ? error : "", r[2].str()) << r[0].str();
    EXPECT_DOUBLE_EQ(amount, std::stod(r[1].str())) << r[0].str();
  }
}

TEST(TextToInt64, ReadsTheNumberAtTheStart) {
  for (const row& r : read_table("integers.tsv", 2)) {
    EXPECT_EQ(tivex::text_to_int64(r[0].c_str()), std::stoll(r[1].str())) << r[0].str();
  }
}

TEST(Eea, IsToldByTheCountryOfTheBic) {
  const auto country = [](const std::string& code) {
    return tivex::bic_outside_eea(("ABCD" + code).c_str());
  };
  for (const std::string& code :
       split("AD BL CH MC SM GB GI GG IM JE NC PF PM TF WF VA ch Gb", " ")) {
    EXPECT_EQ(country(code + "22"), 1) << code;
    EXPECT_EQ(country(code + "2"), -1) << code;
  }
  for (const char* const code : {"DECH", "ATWW", "XX22", "LI22XXX"}) EXPECT_EQ(country(code), 0);
}
