#include "statements/camt/encodings.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string_view>

#include "statements/camt/faults.h"
#include "statements/camt/xml_characters.h"
#include "statements/camt/xml_declaration.h"
#include "statements/text_steps.h"
#include "statements/utf8.h"
#include "validation/ascii.h"

namespace tivex {

namespace {

// What a byte of an encoding stands for that is not the character of this number; 0 for
// none.
struct other_character {
  unsigned char byte;
  std::uint16_t character;
};

constexpr other_character of_latin_9[] = {{0xA4, 0x20AC}, {0xA6, 0x160}, {0xA8, 0x161},
                                          {0xB4, 0x17D},  {0xB8, 0x17E}, {0xBC, 0x152},
                                          {0xBD, 0x153},  {0xBE, 0x178}};
constexpr other_character of_windows[] = {
    {0x80, 0x20AC}, {0x81, 0},      {0x82, 0x201A}, {0x83, 0x192},  {0x84, 0x201E}, {0x85, 0x2026},
    {0x86, 0x2020}, {0x87, 0x2021}, {0x88, 0x2C6},  {0x89, 0x2030}, {0x8A, 0x160},  {0x8B, 0x2039},
    {0x8C, 0x152},  {0x8D, 0},      {0x8E, 0x17D},  {0x8F, 0},      {0x90, 0},      {0x91, 0x2018},
    {0x92, 0x2019}, {0x93, 0x201C}, {0x94, 0x201D}, {0x95, 0x2022}, {0x96, 0x2013}, {0x97, 0x2014},
    {0x98, 0x2DC},  {0x99, 0x2122}, {0x9A, 0x161},  {0x9B, 0x203A}, {0x9C, 0x153},  {0x9D, 0},
    {0x9E, 0x17E},  {0x9F, 0x178}};

enum class encoding { utf_8, ascii, latin_1, latin_9, windows };

struct encoding_row {
  const char* name;
  encoding is;
};

constexpr encoding_row encodings[] = {
    {"UTF-8", encoding::utf_8},          {"UTF8", encoding::utf_8},
    {"US-ASCII", encoding::ascii},       {"ASCII", encoding::ascii},
    {"ISO-8859-1", encoding::latin_1},   {"ISO8859-1", encoding::latin_1},
    {"ISO_8859-1", encoding::latin_1},   {"latin1", encoding::latin_1},
    {"ISO-8859-15", encoding::latin_9},  {"ISO8859-15", encoding::latin_9},
    {"ISO_8859-15", encoding::latin_9},  {"latin9", encoding::latin_9},
    {"windows-1252", encoding::windows}, {"cp1252", encoding::windows}};

// Null when the encoding is not known. The name is followed by a quotation mark.
const encoding_row* find_encoding(std::string_view name) {
  for (const encoding_row& row : encodings) {
    if (name.size() != std::strlen(row.name)) continue;
    std::size_t same = 0;
    while (same < name.size() && to_upper(name[same]) == to_upper(row.name[same])) ++same;
    if (same == name.size()) return &row;
  }
  return nullptr;
}

// Characters of two or four bytes, by their mark or by the NULs of a first "<".
bool has_wide_characters(const text_block& block) {
  constexpr std::string_view beginnings[] = {"\xFE\xFF",
                                             "\xFF\xFE",
                                             std::string_view("\0<", 2),
                                             std::string_view("<\0", 2),
                                             std::string_view("\0\0\xFE\xFF", 4),
                                             std::string_view("\0\0\0<", 4)};
  const std::string_view text(block.text, block.length);
  return std::any_of(std::begin(beginnings), std::end(beginnings),
                     [text](std::string_view beginning) { return begins_with(text, beginning); });
}

// The characters of an encoding of one byte each.
class byte_characters {
 public:
  explicit byte_characters(encoding of) {
    for (std::size_t byte = 0; byte < 0x80; ++byte) {
      characters_[byte] = static_cast<std::uint16_t>(byte + 0x80);
    }
    if (of == encoding::latin_9) put(of_latin_9);
    if (of == encoding::windows) put(of_windows);
  }

  // Of a byte beyond ASCII.
  char32_t of(char byte) const { return characters_[static_cast<unsigned char>(byte) - 0x80U]; }

 private:
  template <std::size_t count>
  void put(const other_character (&others)[count]) {
    for (const other_character& other : others) {
      characters_[other.byte - 0x80U] = other.character;
    }
  }

  std::uint16_t characters_[0x80];
};

constexpr bool is_ascii(char c) { return static_cast<unsigned char>(c) < 0x80; }

// Puts the text as UTF-8 into a new block. Returns 1, or 0 with the reason.
int turn_into_utf_8(statement_parser& parser, text_block& block, encoding from) {
  const byte_characters characters(from);
  const char* const end = block.text + block.length;
  std::size_t length = 0;
  for (const char* at = block.text; at != end; ++at) {
    const char32_t character = is_ascii(*at) ? 'a' : characters.of(*at);
    if (character == 0) return fail_at(parser, block.text, at);
    length += character < 0x80 ? 1 : character < 0x800 ? 2 : 3;
  }
  text_block turned(length + 1);
  if (turned.text == nullptr) {
    return parser.fail("Failed to allocate %lli bytes", static_cast<long long>(length));
  }
  platform::prefer_large_pages(turned.text, turned.size);
  char* to = turned.text;
  for (const char* at = block.text; at != end; ++at) {
    if (is_ascii(*at)) {
      *to++ = *at;
    } else {
      to = write_character(characters.of(*at), to);
    }
  }
  *to = '\0';
  turned.length = length;
  block.take(turned);
  return 1;
}

}  // namespace

document_start begin_document(statement_parser& parser, text_block& block) {
  constexpr const char* unsupported = "Unsupported encoding: %.255s";
  if (has_wide_characters(block)) {
    parser.fail(unsupported, "UTF-16");
    return {};
  }
  const bool is_marked = begins_with({block.text, block.length}, byte_order_mark);
  const xml_declaration declared =
      read_declaration(block.text + (is_marked ? byte_order_mark.size() : 0));
  if (!declared.is_good) {
    fail_at(parser, block.text, declared.end);
    return {};
  }
  encoding is = encoding::utf_8;
  if (!declared.encoding.empty()) {
    const encoding_row* const row = find_encoding(declared.encoding);
    if (row == nullptr) {
      block.text[declared.encoding.data() + declared.encoding.size() - block.text] = '\0';
      parser.fail(unsupported, declared.encoding.data());
      return {};
    }
    is = row->is;
    // The mark is one of UTF-8 only.
    if (is_marked && is != encoding::utf_8) {
      fail_at(parser, block.text, declared.encoding.data());
      return {};
    }
  }
  // All before is ASCII and stays where it is.
  const std::ptrdiff_t place = declared.end - block.text;
  const bool is_turned = is != encoding::utf_8 && is != encoding::ascii;
  if (is_turned && turn_into_utf_8(parser, block, is) != 1) return {};
  return {block.text + place, line_of(block.text, block.text + place), is == encoding::ascii};
}

}  // namespace tivex
