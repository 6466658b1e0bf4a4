// BICs and texts of limited length.

#include <gtest/gtest.h>

#include "support/runtime_control.h"
#include "tivex.h"
#include "validation/format_check.h"

using namespace tivex;

TEST(Format, BicHasEightOrElevenCharactersOfThePattern) {
  const struct {
    const char* bic;
    bool valid;
  } rows[] = {
      {"DEUTDEFF", true},      {"DEUTDEFF500", true},  {"ABCDXXFF", true},
      {"DEUTDE2F", true},      {"DEUTDEF0", true},     {"DEUTDEFFA1Z", true},
      {"DEUTDE1F", false},     {"DEUTDE0F", false},    {"DEUTDEFO", false},
      {"DEUTDEOF", true},      {"deutdeff", false},    {"DEUTDEFF50", false},
      {"DEUTDEFF5000", false}, {"DEUTDEFF5", false},   {"DEU1DEFF", false},
      {"DEUTD1FF", false},     {"DEUTDEFF50a", false}, {"DEUTDEF", false},
      {" DEUTDEFF", false},    {"DEUTDEFF\n", false},  {"", false},
      {nullptr, false},
  };
  for (const auto& [bic, valid] : rows) {
    EXPECT_EQ(format_check(FORMAT_BIC, bic), valid) << (bic ? bic : "null");
  }
}

TEST(Format, TextKindsLimitTheLength) {
  const struct {
    unsigned kind;
    std::size_t limit;
  } rows[] = {{FORMAT_TEXT70, 70}, {FORMAT_TEXT16, 16}, {FORMAT_TEXT35, 35}};
  for (const auto& [kind, limit] : rows) {
    EXPECT_TRUE(format_check(kind, "\n"));
    EXPECT_TRUE(format_check(kind, std::string(limit, 'x').c_str()));
    EXPECT_FALSE(format_check(kind, std::string(limit + 1, 'x').c_str()));
    EXPECT_FALSE(format_check(kind, ""));
    EXPECT_FALSE(format_check(kind, nullptr));
  }
  EXPECT_FALSE(format_check(4, "x"));
}

TEST(Format, FailsForEveryKindUntilThePatternCompiles) {
  tivex_cleanup();
  for (std::size_t n = 1; n <= 2; ++n) {
    const runtime_control::failing_allocation failing(n);
    EXPECT_FALSE(format_check(FORMAT_TEXT70, "x"));
  }
  EXPECT_TRUE(format_check(FORMAT_TEXT70, "x"));
}
