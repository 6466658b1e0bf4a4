#include "de_account/methods.h"

namespace tivex::check_digits {

namespace {

// Each digit goes through one of two wheels and may pass the next one to the
// other. `odd` tells whether its place counts as odd, `crossed` whether the
// second wheel is on.
struct wheels {
  int odd;
  int crossed = 0;
  int sum = 0;

  void turn_together(int digit) {
    const bool both_off = odd == 0 && crossed == 0;
    const bool high = digit > 5;
    sum += high && both_off ? 12 - digit : digit;
    odd = both_off ? 1 : 0;
    if (high) crossed = odd;
  }

  void turn_apart(int digit) {
    const bool high = digit > 5;
    sum += high && odd == 0 ? digit - 12 : -digit;
    if (high) crossed = odd == 0 ? 0 : 1;
    odd = 1 - odd;
  }
};

// How digits are written for the wheels.
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
// position 4 on, turn two wheels; five sums are possible, and each wheel names the
// check digit of each. A 0 at position 4 allows the other wheel's digit too.
account_result method_87_a(const normalised_account& account) {
  constexpr int check_digits[2][5] = {{0, 4, 3, 2, 6}, {7, 1, 5, 9, 8}};
  int position = 4;
  while (position <= 10 && account.c(position) == '0') ++position;
  wheels state = {position % 2};
  for (; position < 10; ++position) {
    const int digit = written(account.d(position));
    if (state.odd == state.crossed) {
      state.turn_together(digit);
    } else {
      state.turn_apart(digit);
    }
  }
  const int sum = (state.sum % 5 + 5) % 5;
  const int digit = check_digits[state.crossed][sum];
  if (digit == account.d(10)) return VALID;
  const int other = digit > 4 ? digit - 5 : digit + 5;
  return valid_if(account.c(4) == '0' && other == account.d(10));
}

}  // namespace tivex::check_digits
