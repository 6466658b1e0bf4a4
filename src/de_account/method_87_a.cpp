#include "de_account/methods.h"

namespace tivex::check_digits {

namespace {

// How digits are written for the sum.
int written(int digit) {
  switch (digit) {
    case 0:
      return 5;
    case 1:
      return 6;
    case 5:
      return 10;
    case 6:
      return 1;
    default:
      return digit;
  }
}

}  // namespace

// Variant A of method 87: the digits from the first that is not 0, counted from
// position 4 on, are added or subtracted by turns, as the place is odd or even;
// each digit above 5 turns that round and brings the other row of check digits. A
// 0 at position 4 allows the check digit of the other row, too.
account_result method_87_a(const normalised_account& account) {
  constexpr int check_digits[2][5] = {{0, 4, 3, 2, 6}, {7, 1, 5, 9, 8}};
  int position = 4;
  while (position <= 10 && account.c(position) == '0') ++position;
  int odd = position % 2;
  int row = 0;
  int sum = 0;
  for (; position < 10; ++position) {
    const int digit = written(account.d(position));
    const bool high = digit > 5;
    const int step = high && odd == 0 ? 12 - digit : digit;
    sum += odd == row ? step : -step;
    if (high) row = 1 - row;
    odd = 1 - odd;
  }
  const int digit = check_digits[row][(sum % 5 + 5) % 5];
  if (digit == account.d(10)) return VALID;
  const int other = digit > 4 ? digit - 5 : digit + 5;
  return valid_if(account.c(4) == '0' && other == account.d(10));
}

}  // namespace tivex::check_digits
