// German IBANs from bank codes and accounts: each rule by itself, the whole
// conversion, and BICs.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>

#include "de_iban/data/account_ibans.h"
#include "de_iban/data/account_ranges.h"
#include "de_iban/data/pair_maps.h"
#include "de_iban/data/rule_05_tables.h"
#include "de_iban/rules.h"
#include "edition_files.h"
#include "platform/platform.h"
#include "support/runtime_control.h"
#include "support/table.h"
#include "tivex.h"
#include "validation/iban.h"

namespace {

using namespace tivex::iban_rules;
using runtime_control::fixed_clock;

// A time_t of 32 bits ends in 2038.
bool has_clock_at(const std::string& seconds) {
  const long long moment = std::stoll(seconds);
  return static_cast<std::time_t>(moment) == moment;
}

fixed_clock clock_at(const std::string& seconds) {
  const auto utc = tivex::platform::utc_calendar(static_cast<std::time_t>(std::stoll(seconds)));
  return {utc.year, utc.month, utc.day, utc.hour, utc.minute, utc.second};
}

std::string join(const std::vector<std::string>& parts) {
  std::string text;
  for (const std::string& part : parts) text += part + ' ';
  return text;
}

// The outcome of one rule on an input.
std::string outcome_of_rule(const row& r) {
  rule_input input;
  input.set_bank_code(r[1].str());
  input.set_account(r[2].str());
  input.method = static_cast<std::uint8_t>(std::stoi(r[3].str(), nullptr, 16));
  input.check_result = static_cast<std::int8_t>(std::stoi(r[4].str()));
  char iban[iban_buffer_size] = {};
  const int result = iban_rule_table.at(std::stoul(r[0].str()))(iban, input);
  return join({std::to_string(result), result == 1 ? iban : "", input.account, input.bank_code,
               std::to_string(input.check_result), std::to_string(input.status)});
}

struct converted {
  int result;
  std::string iban;
  int status;
};

converted convert(const char* country, const char* account, const char* bank_code) {
  char iban[35];
  std::fill(std::begin(iban), std::end(iban), 'x');
  unsigned char status = 0xFF;
  const int result = tivex_iban_convert(country, account, bank_code, iban, &status);
  EXPECT_EQ(tivex_iban_convert(country, account, bank_code, nullptr, nullptr), result);
  // The rest of the buffer is cleared with an IBAN and left alone without one.
  EXPECT_EQ(std::count(std::begin(iban), std::end(iban), result == 1 ? '\0' : 'x'),
            result == 1 ? 13 : 34);
  return {result, iban, status};
}

}  // namespace

TEST(IbanRules, GiveTheResultOfEachBranchAndRow) {
  for (const row& r : read_table("iban_rules.tsv", 12)) {
    EXPECT_EQ(outcome_of_rule(r),
              join({r[5].str(), r[6].str(), r[7].str(), r[8].str(), r[9].str(), r[10].str()}))
        << "rule " << r[0].str() << ' ' << r[1].str() << ' ' << r[2].str() << ": " << r[11].str();
  }
}

TEST(IbanRules, HaveTablesOfTheDeclaredSizes) {
  const std::pair<std::size_t, std::size_t> sizes[] = {
      {std::size(account_map_4), 10},        {std::size(account_map_6), 4},
      {std::size(account_map_7), 33},        {std::size(account_map_15), 12},
      {std::size(account_map_16), 1},        {std::size(account_map_17), 10},
      {std::size(account_map_18), 5},        {std::size(account_map_22), 1},
      {std::size(account_map_23), 1},        {std::size(account_map_24), 4},
      {std::size(account_map_33), 5},        {std::size(account_map_34), 2},
      {std::size(account_map_35), 1},        {std::size(account_map_44), 1},
      {std::size(account_map_49), 4},        {std::size(account_map_51), 4},
      {std::size(account_map_54), 55},       {std::size(accounts_30), 113},
      {std::size(bank_codes_05), 110},       {std::size(accounts_05), 96},
      {std::size(account_range_table), 459}, {std::size(pair_map_52), 10},
      {std::size(pair_map_53), 46},          {std::size(account_ibans_54), 96},
      {std::size(account_ibans_56), 35}};
  for (const auto& [size, declared] : sizes) EXPECT_EQ(size, declared);
}

TEST(Conversion, MakesTheIbanOrTellsWhyNot) {
  std::set<int> statuses;
  for (const row& r : read_table("conversions.tsv", 8)) {
    if (!has_clock_at(r[0].str())) continue;
    const fixed_clock clock = clock_at(r[0].str());
    const converted seen = convert(r[1].c_str(), r[2].c_str(), r[3].c_str());
    EXPECT_EQ(join({std::to_string(seen.result), seen.iban, std::to_string(seen.status)}),
              join({r[4].str(), r[5].str(), r[6].str()}))
        << r[1].str() << ' ' << r[2].str() << ' ' << r[3].str() << ": " << r[7].str();
    statuses.insert(seen.status);
  }
  EXPECT_EQ(statuses, (std::set<int>{0, 1, 10, 11, 12, 13, 15, 50}));
  EXPECT_EQ(convert(nullptr, nullptr, nullptr).result, -1);
  EXPECT_EQ(convert("AT", nullptr, nullptr).result, 0);
  EXPECT_EQ(convert("DE", nullptr, "10000000").result, -1);
  EXPECT_EQ(convert("DE", "1", nullptr).result, -1);
}

// Every bank with accounts at random: the checksum is right, and what the standard
// rule makes is valid exactly when the conversion says so.
TEST(Conversion, AgreesWithTheValidationOfIbans) {
  tivex_edition::fault_list faults;
  const auto facts = tivex_edition::read_edition(TIVEX_EDITION, faults);
  const fixed_clock clock(2025, 3, 3);
  std::mt19937_64 random(1);
  std::size_t made = 0;
  for (const auto& bank : facts.german.rows) {
    for (int round = 0; round < 20; ++round) {
      const std::string account = std::to_string(random() % 10'000'000'000);
      const converted seen = convert("DE", account.c_str(), bank.bank_code.c_str());
      if (seen.result == 1) {
        ++made;
        ASSERT_EQ(tivex::iban_remainder(seen.iban.c_str()), 1) << seen.iban;
      }
      if (bank.iban_rule >= 100 || seen.status == TIVEX_CONVERSION_SUCCESSOR_USED) continue;
      rule_input input;
      input.set_account(std::string(10 - account.size(), '0') + account);
      input.set_bank_code(bank.bank_code);
      char iban[iban_buffer_size] = {};
      iban_build_standard(iban, input);
      const int check_number = 98 - tivex::iban_remainder(iban);
      iban[2] = static_cast<char>('0' + check_number / 10);
      iban[3] = static_cast<char>('0' + check_number % 10);
      ASSERT_EQ(tivex_iban_check(iban), seen.result) << iban;
      ASSERT_EQ(seen.iban, seen.result == 1 ? iban : "") << bank.bank_code << ' ' << account;
    }
  }
  EXPECT_GT(made, 10000u);
}

// What a bank code with a successor makes is what the successor's own makes, but for
// the status.
TEST(Conversion, OfABankCodeWithASuccessorIsThatOfTheSuccessor) {
  tivex_edition::fault_list faults;
  const auto facts = tivex_edition::read_edition(TIVEX_EDITION, faults);
  const fixed_clock clock(2024, 12, 9);
  std::mt19937_64 random(2);
  std::size_t compared = 0;
  std::size_t made = 0;
  for (const auto& bank : facts.german.rows) {
    // A rule of the former bank may change the account before its successor sees it.
    if (bank.successor.empty() || !bank.valid_from.empty() || bank.iban_rule >= 100) continue;
    for (int round = 0; round < 50; ++round) {
      const std::string account = std::to_string(random() % 10'000'000'000);
      const converted by_former = convert("DE", account.c_str(), bank.bank_code.c_str());
      const converted by_successor = convert("DE", account.c_str(), bank.successor.c_str());
      EXPECT_EQ(by_former.status, TIVEX_CONVERSION_SUCCESSOR_USED) << bank.bank_code;
      EXPECT_EQ(by_former.result, by_successor.result) << bank.bank_code << ' ' << account;
      EXPECT_EQ(by_former.iban, by_successor.iban) << bank.bank_code << ' ' << account;
      ++compared;
      made += by_former.result == 1 ? 1 : 0;
    }
  }
  EXPECT_GT(compared, 500u);
  EXPECT_GT(made, 50u);
}

TEST(BicOfIban, FollowsTheDirectoryAndTwoRules) {
  for (const row& r : read_table("bics_of_ibans.tsv", 5)) {
    const fixed_clock clock = clock_at(r[0].str());
    char bic[12];
    std::fill(std::begin(bic), std::end(bic), 'x');
    EXPECT_EQ(std::to_string(tivex_iban_getBIC(r[1].c_str(), bic)), r[2].str())
        << r[1].str() << ": " << r[4].str();
    EXPECT_EQ(std::string(bic, sizeof bic), r[3].str() + std::string(12 - r[3].str().size(), '\0'))
        << r[1].str() << ": " << r[4].str();
  }
  char bic[12] = "x";
  EXPECT_EQ(tivex_iban_getBIC(nullptr, bic), 0);
  EXPECT_STREQ(bic, "");
  EXPECT_EQ(tivex_iban_getBIC("DE54100000000000012345", nullptr), 1);
}
