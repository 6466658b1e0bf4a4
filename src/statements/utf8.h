// Lengths of texts that are UTF-8, or may be: others have a byte for each character.
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace tivex {

// What may stand in front of a text of UTF-8.
inline constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

bool is_ascii(std::string_view text);
bool is_utf8(std::string_view text);

// Of a text that is UTF-8, or part of one.
constexpr bool begins_character(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}
std::size_t count_utf8_characters(std::string_view text);

// Copies as many whole characters of UTF-8 as there is room for.
template <std::size_t size>
void copy_utf8_characters(char (&field)[size], std::string_view text) {
  std::size_t length = text.size();
  if (length >= size) {
    length = size - 1;
    while (!begins_character(text[length])) --length;
  }
  if (length != 0) std::memcpy(field, text.data(), length);
  field[length] = '\0';
}

// How many bytes of a text fit, without a part of a character where it is UTF-8.
std::size_t whole_characters(std::string_view text, std::size_t room);

}  // namespace tivex
