// Rulebook selection, error texts, version, cleanup and the number helper.

#include <gtest/gtest.h>

#include "support/messages.h"
#include "support/runtime_control.h"
#include "support/table.h"

using runtime_control::fixed_clock;

TEST(Rulebook, IsSelectedByItsExactName) {
  for (std::size_t number = 0; number < all_rulebooks.size(); ++number) {
    EXPECT_EQ(tivex_init(3, all_rulebooks[number].c_str()), 1);
    EXPECT_EQ(tivex::rulebook, static_cast<int>(number)) << all_rulebooks[number];
  }
  for (const char* const name : {"de-3.7", "DE-3.7 ", " DE-3.7", "DE-3", "DE-26.1", ""}) {
    EXPECT_EQ(tivex_init(3, name), 0) << name;
  }
  EXPECT_EQ(tivex_init(3, nullptr), 0);
  for (const int option : {-1, 0, 4}) EXPECT_EQ(tivex_init(option, "DE-2.6"), 0);
  EXPECT_EQ(tivex::rulebook, tivex::RULEBOOK_DE_26_11);
}

TEST(Rulebook, DefaultFollowsTheLocalDateOfTheFirstMessage) {
  for (const row& r : read_table("default_rulebooks.tsv", 6)) {
    const auto number = [&r](std::size_t column) { return std::stoi(r[column].str()); };
    if (sizeof(std::time_t) < 8 && number(0) > 2037) continue;
    const fixed_clock clock(number(0), number(1), number(2), number(3), 0, 0, r[4].c_str());
    tivex::rulebook = tivex::RULEBOOK_NONE;
    EXPECT_EQ(tivex_new(3), nullptr) << "a refused type selects it too";
    EXPECT_EQ(all_rulebooks.at(static_cast<std::size_t>(tivex::rulebook)), r[5].str());
  }
  const fixed_clock later(2030, 1, 1);
  const message_ptr msg(tivex_new(TIVEX_CREDIT_TRANSFER));
  EXPECT_EQ(tivex::rulebook, tivex::RULEBOOK_DE_3_5) << "it is decided once";
}

TEST(ErrorText, IsTheLastFailureAndSurvivesSuccess) {
  EXPECT_STREQ(tivex_getError(nullptr), "Invalid tivex_t handle (NULL)");
  const message_ptr msg = new_message(TIVEX_CREDIT_TRANSFER);
  EXPECT_EQ(tivex_getError(msg.get()), nullptr);
  EXPECT_EQ(tivex_setName(msg.get(), ""), 0);
  EXPECT_EQ(tivex_setName(msg.get(), "Name"), 1);
  EXPECT_EQ(error_of(msg), "tivex_setAccount: Name too short");
}

TEST(ErrorText, IsCutAt255BytesEvenWhenItRepeatsItself) {
  const message_ptr msg = new_message(TIVEX_CREDIT_TRANSFER);
  EXPECT_EQ(tivex_setIBAN(msg.get(), ("AT" + std::string(400, '7')).c_str()), 0);
  const std::string first = "Wrong IBAN length (AT" + std::string(255 - 21, '7');
  EXPECT_EQ(error_of(msg), first);
  EXPECT_EQ(tivex_setIBAN(msg.get(), tivex_getError(msg.get())), 0);
  EXPECT_EQ(error_of(msg), ("Invalid or unknown IBAN country code (" + first).substr(0, 255));
}

TEST(Cleanup, LeavesTheLibraryUsable) {
  const message_ptr msg = new_message(TIVEX_CREDIT_TRANSFER, "NL-6");
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
