#include "statements/mt940_text.h"

#include <cstring>

#include "validation/ascii.h"

namespace tivex {

void point_for_comma(char* from, const char* to) {
  auto* const comma =
      static_cast<char*>(std::memchr(from, ',', static_cast<std::size_t>(to - from)));
  if (comma != nullptr) *comma = '.';
}

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

char* next_character::find(char* from) {
  if (found_ != nullptr && from <= found_) {
    if (found_ == end_ || *found_ == character_) return found_;
    // It has been replaced; there was none in front of it.
    from = found_ + 1;
  }
  auto* const found =
      static_cast<char*>(std::memchr(from, character_, static_cast<std::size_t>(end_ - from)));
  found_ = found == nullptr ? end_ : found;
  return found_;
}

bool last_tag_start::is_behind(const char* line_end) {
  constexpr std::string_view tag_start = "\r\n:";
  if (found_ == nullptr) {
    found_ = end_;
    while (found_ > text_ && !starts_with(found_, end_, tag_start)) --found_;
  }
  return found_ >= line_end && starts_with(found_, end_, tag_start);
}

}  // namespace tivex
