#include "de_account/methods.h"

namespace tivex::check_digits {

namespace {

// By the first two digits, a line for each ten: W check digit at the end, T check
// digit at the third place, D a date in the number instead of a check digit, U
// unchecked.
constexpr char kinds[] =
    "-DDDDDDDDD"
    "DDDDDDDDDD"
    "DDDDDDDDDD"
    "DDTTTTTTTT"
    "UTTTTTTTTT"
    "UWTTTWTTTT"
    "TWTTWWWTTT"
    "WTTWWWWWWW"
    "WWWTTTTTWT"
    "TUTTWWTTTU";

account_result check_dated(const normalised_account& account) {
  if (account.has("0185125434")) return VALID;
  const int month = 10 * account.d(3) + account.d(4);
  const int serial = 100 * account.d(7) + 10 * account.d(8) + account.d(9);
  return valid_if(month >= 1 && month <= 12 && serial < 500);
}

constexpr account_method& check_whole = choose<any_of<at<1, "777777">, at<1, "888888">>, unchecked,
                                               XS<10, 10, 0, 1, 2, 1, 2, 1, 2, 1, 2, 1>>;

constexpr account_method& check_third = XS<10, 3, 1, 2, 1, 2, 1, 2, 1, 0, 2, 1>;

}  // namespace

// The first two digits tell where the check digit stands, if there is one.
account_result method_57(const normalised_account& account) {
  const int first_two = 10 * account.d(1) + account.d(2);
  if (first_two < 1 || first_two > 99) return INVALID;
  switch (kinds[first_two]) {
    case 'W':
      return check_whole(account);
    case 'T':
      return check_third(account);
    case 'D':
      return check_dated(account);
    default:
      return NOT_CHECKED;
  }
}

}  // namespace tivex::check_digits
