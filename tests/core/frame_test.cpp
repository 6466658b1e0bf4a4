// Rulebook selection, error texts, version, cleanup and the number helper.

#include <climits>

#include "core/bounded_format.h"
#include "core/text_to_int64.h"
#include "support/messages.h"
#include "support/runtime_control.h"

using runtime_control::fixed_clock;
using runtime_control::fixed_zone;

TEST(Rulebook, IsSelectedByItsExactName) {
  for (std::size_t number = 0; number < all_rulebooks.size(); ++number) {
    EXPECT_EQ(tivex_init(3, all_rulebooks[number]), 1);
    EXPECT_EQ(tivex::rulebook, static_cast<int>(number)) << all_rulebooks[number];
  }
  const struct {
    int option;
    const char* value;
  } refused[] = {{3, "de-3.7"}, {3, "DE-3.7 "}, {3, " DE-3.7"}, {3, "DE-3"},   {3, ""},
                 {3, nullptr},  {0, "DE-2.6"},  {4, "DE-2.6"},  {-1, "DE-2.6"}};
  for (const auto& [option, value] : refused) {
    EXPECT_EQ(tivex_init(option, value), 0) << option << " " << (value ? value : "null");
    EXPECT_EQ(tivex::rulebook, tivex::RULEBOOK_DE_3_7);
  }
}

TEST(Rulebook, DefaultFollowsTheLocalDateOfTheFirstMessage) {
  const struct {
    int year, month, day, hour;
    const char* zone;
    int expected;
  } rows[] = {
      {2023, 12, 31, 12, "UTC", tivex::RULEBOOK_DE_3_5},
      {2024, 1, 31, 12, "UTC", tivex::RULEBOOK_DE_3_5},
      {2024, 3, 31, 12, "UTC", tivex::RULEBOOK_DE_3_5},
      {2024, 4, 16, 12, "UTC", tivex::RULEBOOK_DE_3_5},
      {2024, 4, 17, 0, "UTC", tivex::RULEBOOK_DE_3_7},
      {2024, 5, 1, 12, "UTC", tivex::RULEBOOK_DE_3_7},
      {2025, 1, 1, 0, "UTC", tivex::RULEBOOK_DE_3_7},
      {2024, 4, 16, 23, "CET-1CEST", tivex::RULEBOOK_DE_3_7},  // the 17th there
      {2024, 4, 17, 3, "EST5", tivex::RULEBOOK_DE_3_5},        // still the 16th
  };
  for (const auto& row : rows) {
    const fixed_zone zone(row.zone);
    const fixed_clock clock(row.year, row.month, row.day, row.hour);
    tivex::rulebook = tivex::RULEBOOK_NONE;
    EXPECT_EQ(tivex_new(3), nullptr) << "a refused type selects it too";
    EXPECT_EQ(tivex::rulebook, row.expected) << row.year << "-" << row.month << "-" << row.day;
  }
  const fixed_clock later(2030, 1, 1);
  const message_ptr msg(tivex_new(TIVEX_CREDIT_TRANSFER));
  EXPECT_EQ(tivex::rulebook, tivex::RULEBOOK_DE_3_5) << "it is decided once";
}

TEST(ErrorText, IsTheLastFailureAndSurvivesSuccess) {
  EXPECT_STREQ(tivex_getError(nullptr), "Invalid tivex_t handle (NULL)");
  const message_ptr msg = credit_transfer();
  EXPECT_EQ(tivex_getError(msg.get()), nullptr);
  EXPECT_EQ(tivex_setName(msg.get(), ""), 0);
  EXPECT_EQ(tivex_setName(msg.get(), "Name"), 1);
  EXPECT_EQ(error_of(msg), "tivex_setAccount: Name too short");
}

TEST(ErrorText, IsCutAt255BytesEvenWhenItRepeatsItself) {
  const message_ptr msg = credit_transfer();
  EXPECT_EQ(tivex_setIBAN(msg.get(), ("AT" + std::string(400, '7')).c_str()), 0);
  const std::string first = "Wrong IBAN length (AT" + std::string(255 - 21, '7');
  EXPECT_EQ(error_of(msg), first);
  EXPECT_EQ(tivex_setIBAN(msg.get(), tivex_getError(msg.get())), 0);
  EXPECT_EQ(error_of(msg), ("Invalid or unknown IBAN country code (" + first).substr(0, 255));
}

TEST(Cleanup, LeavesTheLibraryUsable) {
  const message_ptr msg = credit_transfer("NL-6");
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(tivex_iban_check("NO9386011117947"), 1);
    EXPECT_EQ(tivex_iban_check("NO9386011117948"), -1);
    EXPECT_EQ(tivex_setBIC(msg.get(), "DEUTDEFF"), 1);
    EXPECT_EQ(tivex_setBIC(msg.get(), "DEUTDE1F"), 0);
    tivex_cleanup();
    tivex_cleanup();
  }
  EXPECT_EQ(tivex::rulebook, tivex::RULEBOOK_NL_6);
}

TEST(Version, IsThatOfTheHeader) {
  EXPECT_EQ(tivex_version_int, 22800);
  EXPECT_STREQ(tivex_version_str, "2.28");
}

TEST(BoundedFormat, TerminatesWhatItCuts) {
  char text[8] = "";
  tivex::bounded_format(text, sizeof text, "%s", "1234567890");
  EXPECT_STREQ(text, "1234567");
}

TEST(TextToInt64, ReadsTheNumberAtTheStart) {
  const struct {
    const char* text;
    long long expected;
  } rows[] = {
      {"", 0},
      {"x1", 0},
      {" \t\r\n\v\f42abc", 42},
      {"-17", -17},
      {"+8", 8},
      {"+-8", 0},
      {"- 8", 0},
      {"0012.9", 12},
      {"9223372036854775807", LLONG_MAX},
      {"9223372036854775808", LLONG_MAX},
      {"-9223372036854775808", LLONG_MIN},
      {"-9223372036854775807", -LLONG_MAX},
      {"-99999999999999999999", LLONG_MIN},
      {"99999999999999999999", LLONG_MAX},
  };
  for (const auto& [text, expected] : rows) {
    EXPECT_EQ(tivex::text_to_int64(text), expected) << text;
  }
}
