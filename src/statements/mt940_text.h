// Reading steps on a text of known end, none of which goes past it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "validation/ascii.h"

namespace tivex {

// The next CR LF; null when there is none. What goes before `from` is not looked at.
inline char* find_line_end(char* from, const char* end) {
  while (from < end) {
    auto* const found =
        static_cast<char*>(std::memchr(from, '\r', static_cast<std::size_t>(end - from)));
    // A text is followed by NUL.
    if (found == nullptr || found[1] == '\n') return found;
    from = found + 1;
  }
  return nullptr;
}

inline bool starts_with(const char* at, const char* end, std::string_view text) {
  if (static_cast<std::size_t>(end - at) < text.size()) return false;
  // Mostly the first character tells already.
  for (const char character : text) {
    if (*at++ != character) return false;
  }
  return true;
}

// Where the text goes on some characters further, at its end at the latest.
inline char* step(char* at, const char* end, std::size_t count) {
  const auto left = static_cast<std::size_t>(end - at);
  return at + (count < left ? count : left);
}

inline std::string_view between(const char* from, const char* to) {
  return {from, static_cast<std::size_t>(to - from)};
}

inline bool all_digits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), is_digit);
}

// Of two digits.
inline int two_digits(const char* at) { return (at[0] - '0') * 10 + (at[1] - '0'); }

// Copies as much as there is room for, behind the bytes that are used already.
template <std::size_t size>
void copy_text(char (&field)[size], std::string_view text, std::size_t used = 0) {
  const std::size_t room = size - 1 - used;
  const std::size_t length = text.size() < room ? text.size() : room;
  std::memcpy(field + used, text.data(), length);
  field[used + length] = '\0';
}

// The first comma, if there is one, becomes a point.
void point_for_comma(char* from, const char* to);

// The first of one character from a place on, for places that only grow: each
// stretch of the text is searched once.
class next_character {
 public:
  next_character(char character, char* end) : character_(character), end_(end) {}

  // The text's end when there is none.
  char* find(char* from);

 private:
  char character_;
  char* end_;
  char* found_ = nullptr;
};

// The last place of a text where a tag may begin a line. It is searched when it is first
// asked for; lines that are asked about later must still be as they were.
class last_tag_start {
 public:
  last_tag_start(char* text, char* end) : text_(text), end_(end) {}

  // Whether the CR LF in front of it stands at this line end or behind.
  bool is_behind(const char* line_end);

 private:
  char* text_;
  char* end_;
  const char* found_ = nullptr;
};

}  // namespace tivex
