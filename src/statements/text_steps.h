// Reading steps on a text of known end, none of which goes past it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "validation/ascii.h"

namespace tivex {

inline bool starts_with(const char* at, const char* end, std::string_view text) {
  if (static_cast<std::size_t>(end - at) < text.size()) return false;
  // Mostly the first character tells already.
  for (const char character : text) {
    if (*at++ != character) return false;
  }
  return true;
}

inline bool begins_with(std::string_view text, std::string_view beginning) {
  return starts_with(text.data(), text.data() + text.size(), beginning);
}

// Where the text goes on some characters further, at its end at the latest.
inline char* step(char* at, const char* end, std::size_t count) {
  const auto left = static_cast<std::size_t>(end - at);
  return at + (count < left ? count : left);
}

constexpr std::string_view between(const char* from, const char* to) {
  return {from, static_cast<std::size_t>(to - from)};
}

inline bool all_digits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), is_digit);
}

// Of two digits.
inline int two_digits(const char* at) { return (at[0] - '0') * 10 + (at[1] - '0'); }

// The first comma, if there is one, becomes a point.
inline void point_for_comma(char* from, const char* to) {
  auto* const comma =
      static_cast<char*>(std::memchr(from, ',', static_cast<std::size_t>(to - from)));
  if (comma != nullptr) *comma = '.';
}

// Copies as much as there is room for, behind the bytes that are used already.
template <std::size_t size>
void copy_text(char (&field)[size], std::string_view text, std::size_t used = 0) {
  const std::size_t room = size - 1 - used;
  const std::size_t length = text.size() < room ? text.size() : room;
  std::memcpy(field + used, text.data(), length);
  field[used + length] = '\0';
}

}  // namespace tivex
