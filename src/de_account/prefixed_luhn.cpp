// Methods that put a constant in front of the account and check the whole as
// method 00 does: weights 2 and 1 from the right, sum of cross sums.
#include "de_account/methods.h"

namespace tivex::check_digits {

namespace {

// The account's positions from the first on, up to 9, stand behind the prefix.
account_result prefix_luhn(const normalised_account& account, std::string_view prefix, int first) {
  int total = 0;
  int weight = 2;
  const auto add = [&](int digit) {
    total += cross_sum(digit * weight);
    weight = 3 - weight;
  };
  for (int position = 9; position >= first; --position) add(account.d(position));
  for (; !prefix.empty(); prefix.remove_suffix(1)) add(prefix.back() - '0');
  return valid_if((10 - total % 10) % 10 == account.d(10));
}

// By the digit at position 1, which the constant stands for.
constexpr std::string_view prefixes_c6[] = {"4451970", "4451981", "4451992", "4451993", "4344992",
                                            "4344990", "4344991", "5499570", "4451994", "5499579"};
constexpr std::string_view prefixes_d1[] = {"4363380", "4363381", "4363382", "4363383", "4363384",
                                            "4363385", "4363386", "4363387", "0000000", "4363389"};
constexpr std::string_view prefixes_e2[] = {"4383200", "4383201", "4383202", "4383203", "4383204",
                                            "4383205", "0000000", "0000000", "0000000", "0000000"};

account_result prefix_luhn(const normalised_account& account,
                           const std::string_view (&prefixes)[10]) {
  const int digit = account.d(1);
  if (digit < 0 || digit > 9) return INVALID;
  return prefix_luhn(account, prefixes[digit], 2);
}

}  // namespace

account_result method_c6(const normalised_account& account) {
  return prefix_luhn(account, prefixes_c6);
}

account_result prefixed_luhn_d1(const normalised_account& account) {
  return prefix_luhn(account, prefixes_d1);
}

account_result prefixed_luhn_d4(const normalised_account& account) {
  return prefix_luhn(account, "428259", 1);
}

account_result prefixed_luhn_e2(const normalised_account& account) {
  return prefix_luhn(account, prefixes_e2);
}

}  // namespace tivex::check_digits
