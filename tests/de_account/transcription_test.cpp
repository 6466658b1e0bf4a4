// The check-digit methods beside a second, literal writing of their rules, on
// accounts of digits and of any other bytes. TIVEX_ACCOUNT_CHECKS sets how many.

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <set>

#include "de_account/transcribed_methods.h"
#include "tivex.h"

namespace {

class random_numbers {
 public:
  unsigned below(unsigned bound) { return static_cast<unsigned>(random_() % bound); }
  char digit() { return static_cast<char>('0' + below(10)); }
  char byte() { return static_cast<char>(1 + below(255)); }

 private:
  std::mt19937_64 random_{1};
};

struct account_case {
  std::string account, bank_code;
  int method;

  explicit account_case(random_numbers& random) {
    // Mostly codes that may have a method; of the rest only the low byte counts.
    method = static_cast<int>(16 * random.below(15) + random.below(10));
    if (random.below(16) == 0) method = static_cast<int>(random.below(1024)) - 512;
    add(account, random.below(4) == 0 ? 1 + random.below(10) : 10, random);
    if (random.below(2) == 0) add_structure(random);
    // Sums of any bytes are found wrong too often without a check digit among them.
    if (random.below(2) == 0) account.back() = random.digit();
    if (random.below(4) == 0) add(bank_code, 8, random);
  }

 private:
  static void add(std::string& text, unsigned length, random_numbers& random) {
    const unsigned kind = random.below(4);
    while (text.size() < length) text += kind == 3 ? random.byte() : random.digit();
    if (kind != 2) return;
    text[random.below(length)] = random.byte();
    text[random.below(length)] = random.byte();
  }

  // Zeros, nines and the other texts for which methods look, in front of the rest.
  void add_structure(random_numbers& random) {
    static const char* const beginnings[] = {
        "0",  "00",    "000", "0000", "00000", "9",     "09",        "009",    "0099",
        "99", "0009",  "910", "90",   "57",    "48",    "0269",      "777777", "888888",
        "08", "00048", "5",   "7",    "85",    "00001", "0185125434"};
    const std::string_view beginning = beginnings[random.below(std::size(beginnings))];
    account.replace(0, beginning.size(), beginning);
  }
};

std::string in_hex(const std::string& text) {
  std::string written;
  for (const char c : text) {
    written += "0123456789ABCDEF"[static_cast<unsigned char>(c) / 16];
    written += "0123456789ABCDEF"[static_cast<unsigned char>(c) % 16];
  }
  return written;
}

}  // namespace

TEST(AccountTranscription, GivesTheSameResultForAnyBytes) {
  const char* const set = std::getenv("TIVEX_ACCOUNT_CHECKS");
  const long count = set == nullptr ? 1500000 : std::atol(set);
  random_numbers random;
  std::set<int> results[256];
  int differences = 0;
  for (long each = 0; each < count && differences < 50; ++each) {
    const account_case tried(random);
    const char* const account = tried.account.c_str();
    const char* const bank_code = tried.bank_code.empty() ? nullptr : tried.bank_code.c_str();
    const int result = bank_code == nullptr
                           ? tivex_account_check(account, tried.method)
                           : tivex_account_check2(account, bank_code, tried.method);
    const int expected = transcribed_check(account, bank_code, tried.method);
    results[tried.method & 0xFF].insert(expected);
    if (result == expected) continue;
    ++differences;
    ADD_FAILURE() << "method " << std::hex << tried.method << ", account " << in_hex(tried.account)
                  << ", bank code " << in_hex(tried.bank_code) << ": " << std::dec << result
                  << ", not " << expected;
  }
  // Each method has met accounts that it accepts and that it refuses.
  int methods = 0;
  for (const std::set<int>& of_method : results) {
    methods += of_method.contains(-1) && of_method.contains(1);
  }
  EXPECT_EQ(methods, 123);
}
