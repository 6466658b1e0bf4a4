#include "files/transliteration.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <iterator>

#include "files/utf8.h"

namespace tivex_program {
namespace {

struct table_row {
  std::uint32_t code;
  const char* text;
};

constexpr table_row table[] = {
#include "files/transliteration_rows.inc"
};

static_assert(std::is_sorted(std::begin(table), std::end(table),
                             [](const table_row& a, const table_row& b) {
                               return a.code < b.code;
                             }));

std::uint32_t code_of(std::string_view character) {
  const auto byte = [character](std::size_t i) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(character[i]));
  };
  if (character.size() == 1) return byte(0);
  std::uint32_t code = byte(0) & (0xFFU >> (character.size() + 1));
  for (std::size_t i = 1; i < character.size(); ++i) code = code << 6 | (byte(i) & 0x3F);
  return code;
}

// The character that a text begins with; of bytes that are no UTF-8 the first one.
std::string_view first_character(std::string_view text) {
  return text.substr(0, std::max(utf8_character_length(text), std::size_t{1}));
}

struct umlaut {
  std::string_view decomposed;
  std::string_view letter;
};
constexpr umlaut umlauts[] = {{"A\u0308", "\u00C4"}, {"O\u0308", "\u00D6"}, {"U\u0308", "\u00DC"},
                              {"a\u0308", "\u00E4"}, {"o\u0308", "\u00F6"}, {"u\u0308", "\u00FC"}};

const umlaut* umlaut_at(std::string_view text) {
  const auto* const found = std::ranges::find_if(
      umlauts, [text](const umlaut& each) { return text.starts_with(each.decomposed); });
  return found == std::end(umlauts) ? nullptr : found;
}

}  // namespace

std::optional<std::string_view> table_text(std::string_view character) {
  if (utf8_character_length(character) != character.size()) return std::nullopt;
  const std::uint32_t code = code_of(character);
  const auto* const found = std::ranges::lower_bound(table, code, {}, &table_row::code);
  if (found == std::end(table) || found->code != code) return std::nullopt;
  return found->text;
}

std::string transliterated(std::string_view text, const character_test& may_stay) {
  std::string result;
  while (!text.empty()) {
    const umlaut* const decomposed = umlaut_at(text);
    std::string_view character = first_character(text);
    text.remove_prefix(decomposed != nullptr ? decomposed->decomposed.size() : character.size());
    if (decomposed != nullptr) character = decomposed->letter;
    const auto written = may_stay(character) ? std::nullopt : table_text(character);
    result += written.value_or(character);
  }
  return result;
}

std::string_view first_refused(std::string_view text, const character_test& may_stay) {
  while (!text.empty()) {
    const std::string_view character = first_character(text);
    if (!may_stay(character)) return character;
    text.remove_prefix(character.size());
  }
  return {};
}

std::string shown_character(std::string_view character) {
  char code[16];
  std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(code_of(character)));
  return std::string(character) + ", " + code;
}

std::size_t count_characters(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); ++count) text.remove_prefix(first_character(text).size());
  return count;
}

}  // namespace tivex_program
