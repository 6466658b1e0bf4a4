#include "statements/camt/xml_characters.h"

#include <algorithm>
#include <iterator>

namespace tivex {

namespace {

struct character_range {
  char32_t first;
  char32_t last;
};

constexpr character_range first_of_names[] = {
    {0xC0, 0xD6},     {0xD8, 0xF6},     {0xF8, 0x2FF},    {0x370, 0x37D},
    {0x37F, 0x1FFF},  {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF},
    {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF}};
constexpr character_range further_in_names[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <std::size_t count>
bool is_in(const character_range (&ranges)[count], char32_t character) {
  return std::any_of(std::begin(ranges), std::end(ranges),
                     [character](const character_range& range) {
                       return character >= range.first && character <= range.last;
                     });
}

constexpr unsigned byte_at(const char* at) { return static_cast<unsigned char>(*at); }

// By the first byte; 0 when none begins so.
constexpr std::size_t length_by_first(unsigned byte) {
  if (byte < 0xC2) return 0;
  if (byte < 0xE0) return 2;
  if (byte < 0xF0) return 3;
  return byte < 0xF5 ? 4 : 0;
}

}  // namespace

std::size_t length_beyond_ascii(const char* at) {
  constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
  const std::size_t length = length_by_first(byte_at(at));
  for (std::size_t place = 1; place < length; ++place) {
    if ((byte_at(at + place) & 0xC0U) != 0x80U) return 0;
  }
  if (length == 0) return 0;
  const char32_t character = character_at(at);
  return character >= least[length] && is_xml_character(character) ? length : 0;
}

char32_t character_at(const char* at) {
  const unsigned first = byte_at(at);
  if (first < 0x80) return first;
  const std::size_t length = length_by_first(first);
  char32_t character = first & (0x7FU >> length);
  for (std::size_t place = 1; place < length; ++place) {
    character = character << 6 | (byte_at(at + place) & 0x3FU);
  }
  return character;
}

unsigned line_of(const char* text, const char* at) {
  unsigned line = 1;
  for (; text < at; ++text) {
    if (*text == '\n' || (*text == '\r' && text[1] != '\n')) ++line;
  }
  return line;
}

bool is_xml_character(char32_t character) {
  if (character < 0x20) return character == '\t' || character == '\n' || character == '\r';
  return character <= 0xD7FF || (character >= 0xE000 && character <= 0xFFFD) ||
         (character >= 0x10000 && character <= 0x10FFFF);
}

bool begins_name(char32_t character) { return is_in(first_of_names, character); }

bool goes_on_with_name(char32_t character) {
  return is_in(first_of_names, character) || is_in(further_in_names, character);
}

char* write_character(char32_t character, char* to) {
  const auto put = [&to](char32_t byte) { *to++ = static_cast<char>(byte); };
  const auto put_rest = [&put, character](unsigned shift) {
    put(0x80U | ((character >> shift) & 0x3FU));
  };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0U | character >> 6);
    put_rest(0);
  } else if (character < 0x10000) {
    put(0xE0U | character >> 12);
    put_rest(6);
    put_rest(0);
  } else {
    put(0xF0U | character >> 18);
    put_rest(12);
    put_rest(6);
    put_rest(0);
  }
  return to;
}

}  // namespace tivex
