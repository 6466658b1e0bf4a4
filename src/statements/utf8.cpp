#include "statements/utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace tivex {

namespace {

unsigned byte_at(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]);
}

// Where the ASCII characters from here on end.
std::size_t skip_ascii(std::string_view text, std::size_t at) {
  constexpr std::uint64_t high_bits = 0x8080808080808080;
  std::uint64_t characters = 0;
  for (; text.size() - at >= sizeof characters; at += sizeof characters) {
    std::memcpy(&characters, text.data() + at, sizeof characters);
    if ((characters & high_bits) != 0) break;
  }
  while (at < text.size() && byte_at(text, at) < 0x80) ++at;
  return at;
}

// First bytes of characters, how many bytes follow, and between which the second one is.
struct lead_row {
  unsigned first, last;
  std::size_t following;
  unsigned second_from, second_to;
};

constexpr lead_row leads[] = {{0xC2, 0xDF, 1, 0x80, 0xBF}, {0xE0, 0xE0, 2, 0xA0, 0xBF},
                              {0xE1, 0xEC, 2, 0x80, 0xBF}, {0xED, 0xED, 2, 0x80, 0x9F},
                              {0xEE, 0xEF, 2, 0x80, 0xBF}, {0xF0, 0xF0, 3, 0x90, 0xBF},
                              {0xF1, 0xF3, 3, 0x80, 0xBF}, {0xF4, 0xF4, 3, 0x80, 0x8F}};

// The length of the character that begins at a place; 0 when none does.
std::size_t character_length(std::string_view text, std::size_t at) {
  const unsigned lead = byte_at(text, at);
  for (const lead_row& row : leads) {
    if (lead < row.first || lead > row.last) continue;
    if (text.size() - at <= row.following) return 0;
    const unsigned second = byte_at(text, at + 1);
    if (second < row.second_from || second > row.second_to) return 0;
    const char* const further = text.data() + at + 1;
    return std::none_of(further, further + row.following, begins_character) ? 1 + row.following : 0;
  }
  return 0;
}

}  // namespace

bool is_utf8(std::string_view text) {
  for (std::size_t at = skip_ascii(text, 0); at < text.size(); at = skip_ascii(text, at)) {
    const std::size_t length = character_length(text, at);
    if (length == 0) return false;
    at += length;
  }
  return true;
}

bool is_ascii(std::string_view text) { return skip_ascii(text, 0) == text.size(); }

std::size_t count_utf8_characters(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins_character));
}

std::size_t whole_characters(std::string_view text, std::size_t room) {
  if (text.size() <= room) return text.size();
  if (!is_utf8(text)) return room;
  while (room > 0 && !begins_character(text[room])) --room;
  return room;
}

}  // namespace tivex
