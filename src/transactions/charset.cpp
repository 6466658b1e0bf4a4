#include "transactions/charset.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/rulebook.h"

namespace tivex {

namespace {

// The lowest level that admits a byte, or one of the marks below.
constexpr std::uint8_t wide = 3;     // with wide punctuation, at every level
constexpr std::uint8_t refused = 4;  // alone; it may begin a longer sequence

constexpr auto byte_levels = [] {
  std::array<std::uint8_t, 256> levels = {};
  levels.fill(refused);
  const auto admit = [&levels](std::string_view characters, std::uint8_t level) {
    for (const char c : characters) levels[static_cast<unsigned char>(c)] = level;
  };
  admit("ABCDEFGHIJKLMNOPQRSTUVWXYZ", CHARSET_REFERENCE);
  admit("abcdefghijklmnopqrstuvwxyz", CHARSET_REFERENCE);
  admit("0123456789':?,-()+/.", CHARSET_REFERENCE);
  admit(" ", CHARSET_PLAIN);
  admit("&*$%", CHARSET_TEXT);
  admit("!\"#;<=>@[]^_{|}~", wide);
  return levels;
}();

// The sequences of UTF-8 that are known.
constexpr std::string_view german_letters[] = {"Ä", "Ö", "Ü", "ä", "ö", "ü", "ß"};
constexpr std::string_view euro_sign = "€";

bool begins_with(const char* text, std::string_view sequence) {
  for (const char c : sequence) {
    if (*text++ != c) return false;
  }
  return true;
}

// How many bytes the character at `text` takes; 0 when it is not admitted.
std::size_t admitted_bytes(const char* text, int level, bool wide_punctuation) {
  const std::uint8_t lowest = byte_levels[static_cast<unsigned char>(*text)];
  if (lowest <= level) return 1;
  if (level >= CHARSET_TEXT) {
    for (const std::string_view letter : german_letters) {
      if (begins_with(text, letter)) return letter.size();
    }
  }
  if (wide_punctuation) {
    if (lowest == wide) return 1;
    if (begins_with(text, euro_sign)) return euro_sign.size();
  }
  return 0;
}

}  // namespace

bool charset_check(const char* text, char* offending, int level) {
  if (text == nullptr) return true;
  const rulebook_rules& rules = current_rules();
  if (rules.plain_text_only && level > CHARSET_PLAIN) level = CHARSET_PLAIN;
  while (*text != '\0') {
    const std::size_t bytes = admitted_bytes(text, level, rules.wide_punctuation);
    if (bytes == 0) {
      if (offending != nullptr) *offending = *text;
      return false;
    }
    text += bytes;
  }
  return true;
}

bool is_reference_character(char c) {
  return byte_levels[static_cast<unsigned char>(c)] == CHARSET_REFERENCE;
}

}  // namespace tivex
