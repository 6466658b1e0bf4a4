#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "validation/ascii.h"

namespace tivex {

// Reads numbers as scanf does with %Nd and %u from where a text goes on: white space is
// skipped, line ends included, and a sign is taken. Unlike scanf on Windows it needs no
// memory. A scan of a statement never goes past a tag's colon, so all scans together take
// time in proportion to the text.
class number_scanner {
 public:
  explicit number_scanner(std::string_view text) : rest_(text) {}

  // At most so many characters, the sign among them but no white space.
  bool read_signed(std::size_t width, int& value);
  // Any number of digits; what is beyond 64 bits counts as the largest of them, and
  // of those the low 32 bits are taken.
  bool read_unsigned(std::uint32_t& value);
  bool skip(char character);

 private:
  // The sign, and where the digits begin.
  bool skip_to_digits(std::size_t& width);

  std::string_view rest_;
};

inline bool number_scanner::skip_to_digits(std::size_t& width) {
  while (!rest_.empty() && is_space(rest_.front())) rest_.remove_prefix(1);
  const bool negative = rest_.starts_with('-');
  if ((negative || rest_.starts_with('+')) && width > 0) {
    rest_.remove_prefix(1);
    --width;
  }
  return negative;
}

inline bool number_scanner::read_signed(std::size_t width, int& value) {
  const bool negative = skip_to_digits(width);
  const char* const digits = rest_.data();
  const char* const limit = digits + std::min(width, rest_.size());
  const char* at = digits;
  int number = 0;
  for (; at < limit && is_digit(*at); ++at) number = number * 10 + (*at - '0');
  if (at == digits) return false;
  rest_.remove_prefix(static_cast<std::size_t>(at - digits));
  value = negative ? -number : number;
  return true;
}

}  // namespace tivex
