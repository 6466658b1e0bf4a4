#include "core/text_to_int64.h"

#include <limits>

#include "validation/ascii.h"

namespace tivex {

std::int64_t text_to_int64(const char* text) {
  constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();
  constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();

  while (is_space(*text)) ++text;
  const bool negative = *text == '-';
  if (*text == '-' || *text == '+') ++text;

  // Counted downwards: the negative numbers reach one further.
  std::int64_t value = 0;
  for (; is_digit(*text); ++text) {
    const std::int64_t digit = *text - '0';
    if (value < (smallest + digit) / 10) return negative ? smallest : largest;
    value = value * 10 - digit;
  }
  if (negative) return value;
  return value == smallest ? largest : -value;
}

}  // namespace tivex
