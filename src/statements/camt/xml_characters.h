// The characters of XML 1.0.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tivex {

constexpr bool is_xml_space(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

// The length in bytes of the character beyond ASCII that begins here, or 0 when these bytes
// are no UTF-8 or stand for a character that XML does not know. A text is followed by NUL.
std::size_t length_beyond_ascii(const char* at);

// The character that begins here; it must be a good one.
char32_t character_at(const char* at);

// The line of a place, counted from 1. Lines end with LF, CR LF or CR.
unsigned line_of(const char* text, const char* at);

bool is_xml_character(char32_t character);
// Of characters beyond ASCII.
bool begins_name(char32_t character);
bool goes_on_with_name(char32_t character);

// Writes a character as UTF-8. Returns the end of what was written.
char* write_character(char32_t character, char* to);

// What an ASCII character may be in a name.
enum class in_name : std::uint8_t { nothing, further, first };

inline constexpr std::array<in_name, 128> ascii_in_name = [] {
  std::array<in_name, 128> table{};
  for (std::size_t c = 0; c < table.size(); ++c) {
    const bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    const bool digit = c >= '0' && c <= '9';
    if (letter || c == '_' || c == ':') table[c] = in_name::first;
    if (digit || c == '-' || c == '.') table[c] = in_name::further;
  }
  return table;
}();

}  // namespace tivex
