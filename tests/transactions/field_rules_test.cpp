// Character sets, decimal numbers, amounts and the countries outside the EEA.

#include <cerrno>
#include <cmath>
#include <limits>
#include <string_view>

#include "support/messages.h"
#include "transactions/amount.h"
#include "transactions/charset.h"
#include "transactions/decimal.h"
#include "transactions/eea.h"

TEST(Charset, AdmitsSingleBytesByLevelAndRulebook) {
  const std::string_view marks = "':?,-()+/.";
  const std::string_view wide = "!\"#;<=>@[]^_{|}~";
  for (const char* const rulebook : all_rulebooks) {
    ASSERT_EQ(tivex_init(3, rulebook), 1);
    for (int level = 0; level <= 2; ++level) {
      for (int byte = 1; byte < 256; ++byte) {
        const char text[] = {static_cast<char>(byte), '\0'};
        const bool alphanumeric = (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
                                  (byte >= '0' && byte <= '9');
        const bool expected =
            alphanumeric || marks.find(text[0]) != marks.npos || (byte == ' ' && level >= 1) ||
            (std::string_view("&*$%").find(text[0]) != std::string_view::npos && level == 2 &&
             std::string_view(rulebook) != "DE-2.6") ||
            (wide.find(text[0]) != wide.npos && std::string_view(rulebook) == "AT-6");
        EXPECT_EQ(tivex::charset_check(text, nullptr, level), expected)
            << rulebook << " level " << level << " byte " << byte;
      }
    }
  }
}

TEST(Charset, KnowsSomeSequencesAndNamesTheFirstByteRefused) {
  const struct {
    const char* rulebook;
    int level;
    const char* text;
    char refused;  // 0: admitted
  } rows[] = {
      {"DE-3.5", 2, nullptr, 0},
      {"DE-3.5", 0, "", 0},
      {"DE-3.5", 2, "ÄÖÜäöüß", 0},
      {"DE-3.5", 1, "ä", '\xC3'},
      {"DE-2.6", 2, "Müller & Söhne", '\xC3'},
      {"DE-2.6", 2, "A & B", '&'},
      {"DE-3.5", 2, "Müller & Söhne", 0},
      {"DE-3.5", 1, "Mueller und Soehne", 0},
      {"DE-3.5", 0, "Mueller und Soehne", ' '},
      {"DE-3.5", 2, "é", '\xC3'},
      {"DE-3.5", 2, "\xC3", '\xC3'},
      {"DE-3.5", 2, "\xC3\xC3\xA4", '\xC3'},
      {"DE-3.5", 2, "§", '\xC2'},
      {"AT-6", 2, "§", '\xC2'},
      {"AT-6", 1, "Preis 10 €", 0},
      {"AT-6", 0, "[x]€", 0},
      {"AT-6", 0, "\xE2\x82", '\xE2'},
      {"AT-6", 1, "ä", '\xC3'},
      {"AT-6", 2, "ä€~", 0},
      {"DE-3.5", 2, "Preis 10 €", '\xE2'},
      {"DE-3.5", 2, "a[x]", '['},
  };
  for (const auto& row : rows) {
    ASSERT_EQ(tivex_init(3, row.rulebook), 1);
    char offending = '\0';
    const char* const shown = row.text ? row.text : "null";
    EXPECT_EQ(tivex::charset_check(row.text, &offending, row.level), row.refused == 0) << shown;
    EXPECT_EQ(offending, row.refused) << row.rulebook << " " << shown;
  }
}

TEST(Decimal, ReadsTheNumberAndStopsBehindIt) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  const struct {
    const char* text;
    double value;
    std::size_t end;
    bool out_of_range = false;
  } rows[] = {
      {"  12.50", 12.5, 7},
      {"\t\n\v\f\r7", 7, 6},
      {"1,50", 1, 1},
      {".", 0, 0},
      {"", 0, 0},
      {" -x", 0, 0},
      {"-.e5", 0, 0},
      {"+7", 7, 2},
      {"--7", 0, 0},
      {".5", 0.5, 2},
      {"5.", 5, 2},
      {"1.2.3", 1.2, 3},
      {"1e3", 1000, 3},
      {"1E+3", 1000, 4},
      {"25e-1x", 2.5, 5},
      {"1e", 1, 2},
      {"1e-", 1, 3},
      {"-0.5", -0.5, 4},
      {"1234567890123456789012345", 1.23456789012345678e24, 25},
      {"0.000000000000000000125", 0, 23},  // the eighteen counted digits are all zeros
      {"000000000000000001.25", 1, 21},    // what stands behind them is dropped
      {"123456789.123456789", 123456789.123456789, 19},
      {"1e600", infinity, 5, true},
      {"1e-600", 0, 6, true},
      {"1e511", infinity, 5},
      {"1e512", infinity, 5, true},
      {"1e4294967296", infinity, 12, true},
      {"1e18446744073709551617", infinity, 22, true},
      {"1e-99999999999999999999999999", 0, 29, true},
  };
  for (const auto& row : rows) {
    const char* end = nullptr;
    errno = 0;
    EXPECT_DOUBLE_EQ(tivex::parse_decimal(row.text, &end), row.value) << row.text;
    EXPECT_EQ(static_cast<std::size_t>(end - row.text), row.end) << row.text;
    EXPECT_EQ(errno, row.out_of_range ? ERANGE : 0) << row.text;
  }
  EXPECT_TRUE(std::signbit(tivex::parse_decimal("-", nullptr)));
  EXPECT_TRUE(std::isnan(tivex::parse_decimal("0e511", nullptr)));
}

TEST(Decimal, RoundsHalvesUp) {
  const struct {
    double value, expected;
  } rows[] = {{0.5, 1},
              {1.49, 1},
              {-0.5, 0},
              {-1.5, -1},
              {-2.5, -2},
              {2, 2},
              {-2.51, -3},
              {0.49999999999999994, 0},
              {4503599627370497.5, 4503599627370498.0}};
  for (const auto& [value, expected] : rows) EXPECT_EQ(tivex::round_half_up(value), expected);
}

TEST(Amount, IsRoundedToCentsOrRefused) {
  const struct {
    const char* text;
    double amount;
    const char* error = nullptr;
  } rows[] = {
      {"12.345", 12.35},
      {"2.675", 2.68},
      {"1.005", 1.00},
      {"0.005", 0.01},
      {"0.004", 0.0},
      {"+7", 7},
      {" 7", 7},
      {"1e2", 100},
      {"1,00", 0, "Invalid amount"},
      {"12.50 ", 0, "Invalid amount"},
      {"EUR", 0, "Invalid amount"},
      {" ", 0, "Invalid amount"},
      {nullptr, 0, "Invalid amount"},
      {"1e600", 0, "Invalid amount"},
      {"-1e600", 0, "Invalid amount"},
      {"1e-600", 0, "Invalid amount"},
      {"1e400", 0, "Invalid amount"},
      {"1e308", 0, "Invalid amount"},
      {"", 0, "Empty amount not allowed"},
      {"0", 0, "Empty amount not allowed"},
      {"0.00", 0, "Empty amount not allowed"},
      {"-0", 0, "Empty amount not allowed"},
      {"-1", 0, "Negative or zero amount not allowed"},
      {"0e511", 0, "Negative or zero amount not allowed"},
  };
  for (const auto& row : rows) {
    double amount = 0.0;
    errno = ERANGE;  // an old value must not matter
    const char* const shown = row.text ? row.text : "null";
    EXPECT_STREQ(tivex::amount_rule(row.text, amount), row.error) << shown;
    EXPECT_DOUBLE_EQ(amount, row.amount) << shown;
  }
}

TEST(Eea, IsToldByTheCountryOfTheBic) {
  for (const char* const country : {"AD", "BL", "CH", "MC", "SM", "GB", "GI", "GG", "IM", "JE",
                                    "NC", "PF", "PM", "TF", "WF", "VA", "ch", "Gb"}) {
    EXPECT_EQ(tivex::bic_outside_eea((std::string("ABCD") + country + "22").c_str()), 1) << country;
  }
  for (const char* const bic : {"CHCHDECH", "GBGBATWW", "ABCDXX22", "ABCDLI22XXX"}) {
    EXPECT_EQ(tivex::bic_outside_eea(bic), 0) << bic;
  }
  for (const char* const bic : {"", "ABCDCH2"}) EXPECT_EQ(tivex::bic_outside_eea(bic), -1) << bic;
}
