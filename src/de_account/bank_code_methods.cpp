#include "de_account/bank_code_methods.h"

#include "de_account/methods.h"

namespace tivex::check_digits {

namespace {

// An account number of the former system is put together from six digits of the
// bank code and the account, the last of them the check digit, and a tail.
constexpr std::size_t head_length = 6;
constexpr std::size_t longest_tail = 6;

int digit_of(char character) { return static_cast<unsigned char>(character) - '0'; }

// Weights from the right; the check digit is the smallest that brings the sum to
// remainder 10 by 11.
account_result check_legacy_number(const char (&head)[head_length], std::string_view tail) {
  constexpr int weights[head_length + longest_tail] = {2, 4, 8, 5, 10, 9, 7, 3, 6, 1, 2, 4};
  const int* weight = weights;
  int total = 0;
  for (; !tail.empty(); tail.remove_suffix(1)) total += digit_of(tail.back()) * *weight++;
  const int check_weight = *weight++;
  for (int index = head_length - 2; index >= 0; --index) {
    total += digit_of(head[index]) * *weight++;
  }
  for (int digit = 0; digit <= 9; ++digit) {
    if ((total % 11 + digit * check_weight) % 11 == 10) {
      return valid_if(digit == digit_of(head[head_length - 1]));
    }
  }
  return INVALID;
}

std::string_view without_leading_zeros(std::string_view text) {
  while (text.starts_with('0')) text.remove_prefix(1);
  return text;
}

}  // namespace

// The second half of the bank code, the account's first digit and its check digit,
// and what follows them without its leading zeros. Ten-digit accounts beginning
// with 9 are checked as method 20 does.
account_result method_52(const normalised_account& account, const char* bank_code) {
  if (account.c(1) == '9') return method_20(account);
  const std::string_view digits = without_leading_zeros(account.text());
  // Too few digits to hold a check digit.
  if (digits.size() < 2) return INVALID;
  const std::string_view tail = without_leading_zeros({digits.data() + 2, digits.size() - 2});
  if (tail.size() > longest_tail) return INVALID;
  const char head[] = {bank_code[4], bank_code[5], bank_code[6],
                       bank_code[7], digits[0],    digits[1]};
  return check_legacy_number(head, tail);
}

// As method 52 for accounts of nine digits: the second half of the bank code with
// the account's third digit in it, the second digit, the fourth as check digit,
// and the rest without its leading zeros.
account_result method_53(const normalised_account& account, const char* bank_code) {
  if (account.c(1) == '9') return method_20(account);
  const std::string_view digits = account.text();
  const char head[] = {bank_code[4], bank_code[5], digits[2], bank_code[7], digits[1], digits[3]};
  return check_legacy_number(head, without_leading_zeros(account.text(5)));
}

// Method 20 for ten-digit accounts and those from 0269100000 to 0269999999, else
// method 53.
account_result method_b6(const normalised_account& account, const char* bank_code) {
  if (account.c(1) > '0') return method_20(account);
  if (account.has("0269") && account.c(5) > '0') return method_20(account);
  return method_53(account, bank_code);
}

// Accounts of exactly eight digits by method 52, and all others, or when that
// fails, by method 20.
account_result method_c0(const normalised_account& account, const char* bank_code) {
  const bool eight_digits = account.has("00") && account.c(3) != '0';
  const account_result by_52 = eight_digits ? method_52(account, bank_code) : INVALID;
  return by_52 != INVALID ? by_52 : method_20(account);
}

}  // namespace tivex::check_digits
