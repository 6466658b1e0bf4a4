// The weighted sums with which most check-digit methods work. Weights stand in
// the order of positions 10 to 1; a weight of 0 leaves its position out. The
// computed check digit is compared with the digit at position P.
#pragma once

#include "de_account/normalised_account.h"

namespace tivex::check_digits {

enum account_result {
  INVALID = -1,
  NOT_CHECKED = 0,
  VALID = 1,
  VALID_BY_VARIANT_2 = 2,  // of method 76 only
};

constexpr account_result valid_if(bool condition) { return condition ? VALID : INVALID; }

// The sum of the digits of a number up to 99.
constexpr int cross_sum(int number) { return number < 10 ? number : number / 10 + number % 10; }

template <typename... int_weights>
int weighted_sum(const normalised_account& account, int_weights... weights) {
  static_assert(sizeof...(weights) == normalised_account::width);
  int position = 11;
  int total = 0;
  ((--position, total += account.d(position) * weights), ...);
  return total;
}

// The same with the cross sum of each product.
template <typename... int_weights>
int weighted_xsum(const normalised_account& account, int_weights... weights) {
  static_assert(sizeof...(weights) == normalised_account::width);
  int position = 11;
  int total = 0;
  ((--position, total += cross_sum(account.d(position) * weights)), ...);
  return total;
}

// Sum of cross sums; the check digit completes it to a multiple of the modulus.
template <typename... int_weights>
account_result check_weighted_xsum(const normalised_account& account, int modulus, int P,
                                   int_weights... weights) {
  int remainder = weighted_xsum(account, weights...) % modulus;
  if (remainder > 0) remainder = modulus - remainder;
  return valid_if(remainder % 10 == account.d(P));
}

// Sum of products, modulus 10.
template <typename... int_weights>
account_result check_weighted_mod10(const normalised_account& account, int P,
                                    int_weights... weights) {
  return valid_if((10 - weighted_sum(account, weights...) % 10) % 10 == account.d(P));
}

// Sum of products, modulus 11; there is no check digit for remainder 1.
template <typename... int_weights>
account_result check_weighted_mod11(const normalised_account& account, int P,
                                    int_weights... weights) {
  const int remainder = weighted_sum(account, weights...) % 11;
  if (remainder == 1) return INVALID;
  return valid_if((remainder == 0 ? 0 : 11 - remainder) == account.d(P));
}

// Sum of products; the check digit completes it to a multiple of the modulus, 10
// counts as 0.
template <typename... int_weights>
account_result check_weighted_mod(const normalised_account& account, int modulus, int P,
                                  int_weights... weights) {
  const int remainder = weighted_sum(account, weights...) % modulus;
  return valid_if((remainder == 0 ? 0 : (modulus - remainder) % 10) == account.d(P));
}

}  // namespace tivex::check_digits
