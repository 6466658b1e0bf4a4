#include "files/text_encoding.h"

#include <cstddef>
#include <iterator>

#include "files/utf8.h"

namespace tivex_program {
namespace {

constexpr char16_t unknown = 0xFFFD;

// What windows-1252 has in place of the control characters from 0x80 on.
constexpr unsigned first_own = 0x80;
constexpr char16_t own_characters[] = {
    0x20AC,  unknown, 0x201A, 0x0192, 0x201E, 0x2026,  0x2020, 0x2021,   // 80
    0x02C6,  0x2030,  0x0160, 0x2039, 0x0152, unknown, 0x017D, unknown,  // 88
    unknown, 0x2018,  0x2019, 0x201C, 0x201D, 0x2022,  0x2013, 0x2014,   // 90
    0x02DC,  0x2122,  0x0161, 0x203A, 0x0153, unknown, 0x017E, 0x0178};  // 98

char32_t latin1_character(unsigned char byte) { return byte; }

std::string each_byte(std::string_view text, char32_t (*character)(unsigned char byte)) {
  std::string result;
  for (const char c : text) append_utf8(result, character(static_cast<unsigned char>(c)));
  return result;
}

std::string sound_utf8(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const std::size_t length = utf8_character_length(text);
    if (length == 0) append_utf8(result, unknown);
    result.append(text.substr(0, length));
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return result;
}

}  // namespace

char32_t windows1252_character(unsigned char byte) {
  const bool own = byte >= first_own && byte - first_own < std::size(own_characters);
  return own ? own_characters[byte - first_own] : byte;
}

void append_utf8(std::string& text, char32_t character) {
  const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
  if (character < 0x80) return append(character);
  if (character < 0x800) {
    append(0xC0 | character >> 6);
  } else {
    if (character < 0x10000) {
      append(0xE0 | character >> 12);
    } else {
      append(0xF0 | character >> 18);
      append(0x80 | (character >> 12 & 0x3F));
    }
    append(0x80 | (character >> 6 & 0x3F));
  }
  append(0x80 | (character & 0x3F));
}

bool is_utf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = utf8_character_length(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

std::string to_utf8(std::string_view text, text_encoding encoding) {
  switch (encoding) {
    case text_encoding::utf8:
      return sound_utf8(text);
    case text_encoding::latin1:
      return each_byte(text, latin1_character);
    case text_encoding::windows1252:
      return each_byte(text, windows1252_character);
    default:
      return is_utf8(text) ? std::string(text) : each_byte(text, latin1_character);
  }
}

}  // namespace tivex_program
