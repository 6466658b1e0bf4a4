#pragma once

namespace tivex {

// The character sets of text fields, each with those above it.
enum charset_level : int {
  CHARSET_REFERENCE = 0,  // letters, digits and ' : ? , - ( ) + / .
  CHARSET_PLAIN = 1,      // and the blank
  CHARSET_TEXT = 2,       // and & * $ % and the German letters with umlaut and sharp s
};

// Whether the selected rulebook admits every character of a text at a level; a
// null text has none. If not, and `offending` is not null, the first byte of the
// first character refused is stored there.
bool charset_check(const char* text, char* offending, int level);

// Whether a character is of the lowest set, which is the same under every
// rulebook.
bool is_reference_character(char c);

}  // namespace tivex
