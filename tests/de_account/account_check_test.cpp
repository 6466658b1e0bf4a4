// German account numbers: each method's branches, and that no input leads out of
// the prescribed results.

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <random>
#include <set>

#include "de_account/account_methods.h"
#include "support/table.h"
#include "tivex.h"

namespace {

const int bank_code_methods[] = {0x52, 0x53, 0xB6, 0xC0};

std::set<int> all_methods() {
  std::set<int> methods(std::begin(bank_code_methods), std::end(bank_code_methods));
  for (int code = 0; code < 256; ++code) {
    if (tivex::check_digits::account_methods[static_cast<unsigned>(code)]) methods.insert(code);
  }
  return methods;
}

// Blocks of exactly the size, so that a sanitizer sees any step outside.
struct tight_text {
  explicit tight_text(const std::string& text) : characters(new char[text.size() + 1]) {
    std::memcpy(characters.get(), text.c_str(), text.size() + 1);
  }
  std::unique_ptr<char[]> characters;
};

int check(int method, const std::string& account, const std::string& bank_code) {
  const tight_text account_text(account), bank_code_text(bank_code);
  return bank_code.empty() ? tivex_account_check(account_text.characters.get(), method)
                           : tivex_account_check2(account_text.characters.get(),
                                                  bank_code_text.characters.get(), method);
}

// 2 belongs to method 76 alone.
void expect_prescribed(int method, int result, const std::string& account) {
  const bool prescribed = (result >= -1 && result <= 1) || (result == 2 && method == 0x76);
  EXPECT_TRUE(prescribed) << method << ' ' << account << ": " << result;
}

}  // namespace

TEST(AccountCheck, GivesTheResultOfEachBranch) {
  std::map<int, std::set<int>> results;
  for (const row& r : read_table("account_checks.tsv", 5)) {
    const int method = std::stoi(r[0].str(), nullptr, 16);
    const int result = check(method, r[2].str(), r[1].str());
    EXPECT_EQ(std::to_string(result), r[3].str())
        << r[0].str() << ' ' << r[1].str() << ' ' << r[2].str() << ": " << r[4].str();
    results[method].insert(result);
    // A method that does not need the bank code ignores it, and the code's low
    // byte is all that counts.
    const bool needs_bank_code =
        std::find(std::begin(bank_code_methods), std::end(bank_code_methods), method) !=
        std::end(bank_code_methods);
    const bool any_bank_code = r[1].str().empty() && !needs_bank_code;
    const std::string bank_code = any_bank_code ? "0000000x" : r[1].str();
    EXPECT_EQ(check(method + 0x100, r[2].str(), bank_code), result) << r[0].str();
  }
  for (const int method : all_methods()) {
    EXPECT_TRUE(results[method].contains(-1)) << std::hex << method;
    EXPECT_EQ(results[method].contains(1), method != 0x09) << std::hex << method;
  }
}

TEST(AccountCheck, HasAMethodForEachCodeOfTheList) {
  const char* const without_method =
      "12 35 36 37 39 54 62 69 70 72 77 79 80 82 83 86 89 97 A0 B0 B4 E5 E6 E7 E8 E9";
  std::set<int> empty;
  for (const std::string& code : split(without_method, " ")) {
    empty.insert(std::stoi(code, nullptr, 16));
  }
  for (int code = 0; code < 256; ++code) {
    const bool is_code = code % 16 < 10 && code < 0xEA;
    EXPECT_EQ(all_methods().contains(code), is_code && !empty.contains(code)) << std::hex << code;
    if (!all_methods().contains(code)) {
      EXPECT_EQ(check(code, "1234567890", ""), 0);
      EXPECT_EQ(check(code, "1234567890", "10000000"), 0);
    }
  }
  for (const int code : bank_code_methods) EXPECT_EQ(check(code, "1234567890", ""), 0);
}

TEST(AccountCheck, RefusesBadArgumentsUnderEveryMethod) {
  for (int method = 0; method < 256; ++method) {
    EXPECT_EQ(tivex_account_check(nullptr, method), -1);
    EXPECT_EQ(tivex_account_check("", method), -1);
    EXPECT_EQ(tivex_account_check("12345678901", method), -1);
    EXPECT_EQ(tivex_account_check2(nullptr, "10000000", method), -1);
    EXPECT_EQ(tivex_account_check2("", "10000000", method), -1);
    EXPECT_EQ(tivex_account_check2("12345678901", "10000000", method), -1);
    for (const char* const bank_code : {"", "1000000", "100000000"}) {
      EXPECT_EQ(tivex_account_check2("1", bank_code, method), -1);
    }
    EXPECT_EQ(tivex_account_check2("1", nullptr, method), -1);
  }
}

// Each valid account of the table with one digit changed, accounts with a single
// digit that is not zero, and any bytes at all.
TEST(AccountCheck, EndsInAPrescribedResultWhateverItIsGiven) {
  std::mt19937 random(1);
  const auto try_all = [](int method, const std::string& account) {
    expect_prescribed(method, check(method, account, ""), account);
    expect_prescribed(method, check(method, account, "13051172"), account);
  };
  for (const row& r : read_table("account_checks.tsv", 5)) {
    if (r[3].str() == "-1") continue;
    for (std::size_t at = 0; at < r[2].str().size(); ++at) {
      std::string account = r[2].str();
      for (account[at] = '0'; account[at] <= '9'; ++account[at]) {
        try_all(std::stoi(r[0].str(), nullptr, 16), account);
      }
    }
  }
  for (const int method : all_methods()) {
    for (std::size_t at = 0; at < 10; ++at) {
      for (int byte = 1; byte < 256; ++byte) {
        std::string account = "0000000000";
        account[at] = static_cast<char>(byte);
        try_all(method, account);
        account = "7364918250";
        account[at] = static_cast<char>(byte);
        try_all(method, account);
      }
    }
    for (int round = 0; round < 200; ++round) {
      std::string account(1 + random() % 10, ' '), bank_code(8, ' ');
      for (char& c : account) c = static_cast<char>(1 + random() % 255);
      for (char& c : bank_code) c = static_cast<char>(1 + random() % 255);
      expect_prescribed(method, check(method, account, bank_code), account);
    }
  }
}
