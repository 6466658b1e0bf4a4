#include "core/number_scanner.h"

namespace tivex {

bool number_scanner::read_unsigned(std::uint32_t& value) {
  constexpr std::uint64_t largest = UINT64_MAX;
  std::size_t width = rest_.size();
  const bool negative = skip_to_digits(width);
  std::uint64_t number = 0;
  bool any = false;
  bool too_large = false;
  for (; !rest_.empty() && is_digit(rest_.front()); rest_.remove_prefix(1)) {
    const auto digit = static_cast<std::uint64_t>(rest_.front() - '0');
    too_large = too_large || number > (largest - digit) / 10;
    number = number * 10 + digit;
    any = true;
  }
  if (!any) return false;
  if (negative) number = 0 - number;
  value = static_cast<std::uint32_t>(too_large ? largest : number);
  return true;
}

bool number_scanner::skip(char character) {
  if (!rest_.starts_with(character)) return false;
  rest_.remove_prefix(1);
  return true;
}

}  // namespace tivex
