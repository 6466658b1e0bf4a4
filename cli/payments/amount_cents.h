#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tivex_program {

// The cents of an amount of digits, and of a point and one or two more. What is larger than any
// payment is cut.
inline std::int64_t amount_cents(std::string_view amount) {
  constexpr std::int64_t largest = 1'000'000'000'000'000;
  std::int64_t cents = 0;
  std::size_t at = 0;
  for (; at < amount.size() && amount[at] != '.'; ++at) {
    cents = std::min(cents * 10 + (amount[at] - '0'), largest);
  }
  for (std::size_t decimal = at + 1; decimal <= at + 2; ++decimal) {
    cents = cents * 10 + (decimal < amount.size() ? amount[decimal] - '0' : 0);
  }
  return cents;
}

// With two decimals, always.
inline std::string euro_text(std::int64_t cents) {
  const std::string decimals = std::to_string(cents % 100);
  return std::to_string(cents / 100) + (decimals.size() == 1 ? ".0" : ".") + decimals;
}

}  // namespace tivex_program
