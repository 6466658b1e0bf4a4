#include "transactions/charset.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/rulebook.h"

namespace tivex {

namespace {

// The sets that a byte may stand in alone; some others begin a longer sequence.
constexpr std::uint8_t set_of_level(int level) { return static_cast<std::uint8_t>(1 << level); }
constexpr std::uint8_t wide_set = set_of_level(CHARSET_TEXT + 1);  // wide punctuation

constexpr auto byte_sets = [] {
  std::array<std::uint8_t, 256> sets = {};
  const auto admit = [&sets](std::string_view characters, std::uint8_t set) {
    for (const char c : characters) sets[static_cast<unsigned char>(c)] = set;
  };
  admit("ABCDEFGHIJKLMNOPQRSTUVWXYZ", set_of_level(CHARSET_REFERENCE));
  admit("abcdefghijklmnopqrstuvwxyz", set_of_level(CHARSET_REFERENCE));
  admit("0123456789':?,-()+/.", set_of_level(CHARSET_REFERENCE));
  admit(" ", set_of_level(CHARSET_PLAIN));
  admit("&*$%", set_of_level(CHARSET_TEXT));
  admit("!\"#;<=>@[]^_{|}~", wide_set);
  return sets;
}();

constexpr std::uint8_t set_of_byte(char c) { return byte_sets[static_cast<unsigned char>(c)]; }

// The sequences of UTF-8 that are known.
constexpr std::string_view german_letters[] = {"Ä", "Ö", "Ü", "ä", "ö", "ü", "ß"};
constexpr std::string_view euro_sign = "€";

bool begins_with(const char* text, std::string_view sequence) {
  for (const char c : sequence) {
    if (*text++ != c) return false;
  }
  return true;
}

// How many bytes the sequence at `text` takes; 0 when it is not admitted.
std::size_t sequence_bytes(const char* text, int level, bool wide_punctuation) {
  if (level >= CHARSET_TEXT) {
    for (const std::string_view letter : german_letters) {
      if (begins_with(text, letter)) return letter.size();
    }
  }
  return wide_punctuation && begins_with(text, euro_sign) ? euro_sign.size() : 0;
}

}  // namespace

bool charset_check(const char* text, char* offending, int level) {
  if (text == nullptr) return true;
  const rulebook_rules& rules = current_rules();
  if (rules.plain_text_only && level > CHARSET_PLAIN) level = CHARSET_PLAIN;
  // A level's set with those before it.
  int admitted = set_of_level(level + 1) - 1;
  if (rules.wide_punctuation) admitted |= wide_set;
  for (;;) {
    while ((set_of_byte(*text) & admitted) != 0) ++text;
    if (*text == '\0') return true;
    const std::size_t bytes = sequence_bytes(text, level, rules.wide_punctuation);
    if (bytes == 0) {
      if (offending != nullptr) *offending = *text;
      return false;
    }
    text += bytes;
  }
}

bool is_reference_character(char c) { return set_of_byte(c) == set_of_level(CHARSET_REFERENCE); }

}  // namespace tivex
