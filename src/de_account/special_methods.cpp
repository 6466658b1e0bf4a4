// Methods with a rule of their own, in the order of their codes.
#include "de_account/methods.h"

namespace tivex::check_digits {

namespace {

// As weighted_xsum, but a digit that is not doubled counts as it is: not the same
// for a character that is no digit.
template <typename... int_weights>
int doubled_sum(const normalised_account& account, int_weights... weights) {
  return weighted_xsum(account, (weights == 2 ? 2 : 0)...) +
         weighted_sum(account, (weights == 2 ? 0 : weights)...);
}

}  // namespace

// As method 10, but a computed check digit 10 becomes 9.
account_result method_11(const normalised_account& account) {
  const int remainder = weighted_sum(account, 0, 2, 3, 4, 5, 6, 7, 8, 9, 10) % 11;
  const int digit = remainder == 0 ? 0 : 11 - remainder;
  return valid_if((digit == 10 ? 9 : digit) == account.d(10));
}

// As method 06, but for remainder 1 the account is also valid when its last two
// digits are the same.
account_result method_16(const normalised_account& account) {
  const int remainder = weighted_sum(account, 0, 2, 3, 4, 5, 6, 7, 2, 3, 4) % 11;
  if (remainder == 1 && account.c(9) == account.c(10)) return VALID;
  return valid_if((remainder == 0 || remainder == 1 ? 0 : 11 - remainder) == account.d(10));
}

// The check digit at position 8 covers the six-digit root at positions 2 to 7:
// sum with cross sums of the doubled digits less 1, modulus 11, difference to 10.
account_result method_17(const normalised_account& account) {
  const int total = doubled_sum(account, 0, 0, 0, 2, 1, 2, 1, 2, 1, 0) - 1;
  return valid_if((10 - total % 11) % 10 == account.d(8));
}

// As method 00, but the cross sum of the total is taken until one digit is left,
// and the check digit is its difference to 10.
account_result method_21(const normalised_account& account) {
  int total = weighted_xsum(account, 0, 2, 1, 2, 1, 2, 1, 2, 1, 2);
  while (total >= 10) total = cross_sum(total);
  return valid_if(10 - total == account.d(10));
}

// Weights 3 and 1; of each product only the units digit counts.
account_result method_22(const normalised_account& account) {
  int total = 0;
  for (int position = 9; position >= 1; --position) {
    total += account.d(position) * (position % 2 == 1 ? 3 : 1) % 10;
  }
  return valid_if((10 - total % 10) % 10 == account.d(10));
}

// As method 16 over positions 1 to 6, with the check digit at position 7: for
// remainder 1 positions 6 and 7 have to be the same.
account_result method_23(const normalised_account& account) {
  const int remainder = weighted_sum(account, 0, 0, 0, 0, 2, 3, 4, 5, 6, 7) % 11;
  if (remainder == 1) return valid_if(account.c(6) == account.c(7));
  return valid_if((remainder == 0 ? 0 : 11 - remainder) == account.d(7));
}

// A first digit 3 to 6 does not count, after a 9 the next two do not either, and
// then leading zeros. From there on weights 1, 2, 3 from the left, each product
// increased by its weight, modulus 11; the check digit is the sum's last digit.
account_result method_24(const normalised_account& account) {
  int position = 1;
  if (account.c(1) >= '3' && account.c(1) <= '6') position = 2;
  if (account.c(1) == '9') position = 4;
  while (position < 10 && account.c(position) == '0') ++position;
  int total = 0;
  for (int weight = 1; position < 10; ++position, weight = weight % 3 + 1) {
    total += (account.d(position) + 1) * weight % 11;
  }
  return valid_if(total % 10 == account.d(10));
}

// Modulus 11 without position 1. A computed check digit 10 is written 0 and
// allowed with 8 or 9, the working digit, at position 2 only.
account_result method_25(const normalised_account& account) {
  const int total = weighted_sum(account, 0, 2, 3, 4, 5, 6, 7, 8, 9, 0);
  const int digit = (11 - total % 11) % 11;
  if (digit != 10) return valid_if(digit == account.d(10));
  return valid_if(account.c(10) == '0' && (account.c(2) == '8' || account.c(2) == '9'));
}

// Of methods 27 and 29: each digit from position 9 leftwards is transformed by the
// rows of a table in turn; the check digit completes the sum to a multiple of 10.
account_result check_transformed(const normalised_account& account) {
  static constexpr signed char transform_table[4][10] = {{0, 1, 5, 9, 3, 7, 4, 8, 2, 6},
                                                         {0, 1, 7, 6, 9, 8, 3, 2, 5, 4},
                                                         {0, 1, 8, 4, 6, 2, 9, 5, 7, 3},
                                                         {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}};
  int total = 0;
  for (int step = 0; step < 9; ++step) {
    const int digit = account.d(9 - step);
    if (digit < 0 || digit > 9) return INVALID;
    total += transform_table[step % 4][digit];
  }
  return valid_if((10 - total % 10) % 10 == account.d(10));
}

// Weights 9 to 1 from position 9 leftwards; the check digit is the remainder by
// 11 itself, and 10 is none.
account_result method_31(const normalised_account& account) {
  const int remainder = weighted_sum(account, 0, 9, 8, 7, 6, 5, 4, 3, 2, 1) % 11;
  return valid_if(remainder != 10 && remainder == account.d(10));
}

// Of methods 51, 73, 81, 84, 87 and A8 for impersonal accounts (9 at position 3):
// modulus 11 from position 3 on, or else over all positions. Remainders below 0
// give 0, too.
account_result exception_51(const normalised_account& account) {
  const auto agrees = [&account](int remainder) {
    return (remainder <= 1 ? 0 : 11 - remainder) == account.d(10);
  };
  return valid_if(agrees(weighted_sum(account, 0, 2, 3, 4, 5, 6, 7, 8, 0, 0) % 11) ||
                  agrees(weighted_sum(account, 0, 2, 3, 4, 5, 6, 7, 8, 9, 10) % 11));
}

// Modulus 11, difference to 11; results 10 and 11 are no check digits.
account_result method_56(const normalised_account& account) {
  const int remainder = weighted_sum(account, 0, 2, 3, 4, 5, 6, 7, 2, 3, 4) % 11;
  return valid_if(remainder != 0 && remainder != 1 && 11 - remainder == account.d(10));
}

// Method 63 on the account without its first two positions, with the sub-account
// 00 behind it.
account_result method_63_shifted(const normalised_account& account) {
  return method_63(normalised_account(account.text(3), "00"));
}

// Modulus 11 without positions 3 and 4; remainder 0 gives 1, remainder 1 gives 0.
// Accounts with a 9 at position 2 are not checked.
account_result method_66(const normalised_account& account) {
  if (account.c(1) != '0') return INVALID;
  if (account.c(2) == '9') return NOT_CHECKED;
  const int remainder = weighted_sum(account, 0, 2, 3, 4, 5, 6, 0, 0, 7, 0) % 11;
  const bool swapped = remainder == 0 || remainder == 1;
  return valid_if((swapped ? 1 - remainder : 11 - remainder) == account.d(10));
}

// Modulus 11 over positions 2 to 7; remainders 0 and 1 are the check digit
// themselves.
account_result method_71(const normalised_account& account) {
  const int remainder = weighted_sum(account, 0, 0, 0, 1, 2, 3, 4, 5, 6, 0) % 11;
  const bool as_it_is = remainder == 0 || remainder == 1;
  return valid_if((as_it_is ? remainder : 11 - remainder) == account.d(10));
}

// For an account of exactly six digits: the sum as in method 17; the check digit
// completes it to the next number that ends in 5.
account_result method_74_six_digits(const normalised_account& account) {
  if (!account.has("0000") || account.c(5) == '0') return INVALID;
  const int total = doubled_sum(account, 0, 2, 1, 2, 1, 2, 0, 0, 0, 0);
  return valid_if((15 - total % 10) % 10 == account.d(10));
}

namespace {

// Method 76 knows kinds of account 0, 4 and 6 to 9, in front of the account's root
// of more than three digits.
bool refused_76(const normalised_account& account, int kind_at) {
  const int kind = account.c(kind_at);
  return kind == '1' || kind == '2' || kind == '3' || kind == '5' ||
         account.has("000", kind_at + 1);
}

}  // namespace

// The check digit is the remainder by 11 itself, and an account with remainder 10
// is not checked. Second variant: the sub-account 00 is left out, so that the
// account stands two positions further to the right.
account_result method_76(const normalised_account& account) {
  if (refused_76(account, 1)) return INVALID;
  int remainder = weighted_sum(account, 0, 0, 0, 2, 3, 4, 5, 6, 7, 0) % 11;
  if (remainder == 10) return NOT_CHECKED;
  if (remainder == account.d(8)) return VALID;
  if (!account.has("00") || refused_76(account, 3)) return INVALID;
  remainder = weighted_sum(account, 0, 2, 3, 4, 5, 6, 7, 0, 0, 0) % 11;
  if (remainder == 10) return NOT_CHECKED;
  return remainder == account.d(10) ? VALID_BY_VARIANT_2 : INVALID;
}

// Accounts of eight digits as method 24 with weights 1, 3, 2 from the right;
// accounts of seven digits by weights 1 to 6, modulus 11. The check digit is the
// sum's last digit, or that of the sum and 5.
account_result method_b9(const normalised_account& account) {
  if (!account.has("00") || account.has("00", 3)) return INVALID;
  int total = 0;
  if (account.c(3) == '0') {
    total = weighted_sum(account, 0, 1, 2, 3, 4, 5, 6, 0, 0, 0) % 11;
  } else {
    constexpr int weights[] = {1, 3, 2};
    for (int step = 0; step < 7; ++step) {
      total += (account.d(9 - step) + 1) * weights[step % 3] % 11;
    }
  }
  return valid_if(total % 10 == account.d(10) || (total + 5) % 10 == account.d(10));
}

// As method 17, over positions 1 to 9 and with the check digit at position 10.
account_result method_c1_five(const normalised_account& account) {
  const int total = doubled_sum(account, 0, 1, 2, 1, 2, 1, 2, 1, 2, 1) - 1;
  return valid_if((10 - total % 11) % 10 == account.d(10));
}

// As method 00, but the check digit is the sum's last digit.
account_result method_d7(const normalised_account& account) {
  return valid_if(weighted_xsum(account, 0, 2, 1, 2, 1, 2, 1, 2, 1, 2) % 10 == account.d(10));
}

// As method 00 with 7 added to the sum.
account_result method_e0(const normalised_account& account) {
  const int total = weighted_xsum(account, 0, 2, 1, 2, 1, 2, 1, 2, 1, 2) + 7;
  return valid_if((10 - total % 10) % 10 == account.d(10));
}

// Computes with the characters' codes in ASCII; the check digit is the remainder
// by 11 itself, and 10 is none.
account_result method_e1(const normalised_account& account) {
  constexpr int weights[] = {9, 10, 11, 6, 5, 4, 3, 2, 1};
  int total = 0;
  for (int position = 1; position < 10; ++position) {
    total += account.c(position) * weights[position - 1];
  }
  const int remainder = total % 11;
  return valid_if(remainder != 10 && remainder == account.d(10));
}

}  // namespace tivex::check_digits
