// Where the marks of the prescribed grammar stand.
#pragma once

#include <cstddef>
#include <cstring>

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
