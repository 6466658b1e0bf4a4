#include "files/value_rules.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "files/date_text.h"
#include "files/grouped_code.h"
#include "files/utf8.h"

namespace tivex_program {
namespace {

bool is_digit(char c) { return '0' <= c && c <= '9'; }
bool is_capital(char c) { return 'A' <= c && c <= 'Z'; }

bool is_printable(char c) { return ' ' <= c && c <= '~'; }

// Whether eight bytes are printable ASCII characters.
bool are_printable(const char* bytes) {
  constexpr std::uint64_t each = 0x0101010101010101;
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, sizeof word);
  const std::uint64_t deleted = word ^ each * 0x7F;
  // The highest bit of a byte tells: one below a blank borrows, as does one that is 0x7F;
  // of those from 0x80 on each keeps its bit in one of the two.
  return (((word - each * ' ') | (deleted - each)) & each * 0x80) == 0;
}

// Most texts are printable ASCII, which eight bytes at a time tell.
bool is_printable(std::string_view text) {
  constexpr std::size_t step = sizeof(std::uint64_t);
  if (text.size() < step) return std::ranges::all_of(text, [](char c) { return is_printable(c); });
  const std::size_t last = text.size() - step;
  for (std::size_t at = 0; at < last; at += step) {
    if (!are_printable(text.data() + at)) return false;
  }
  return are_printable(text.data() + last);
}

std::string with_hex(const char* format, char byte) {
  char text[64];
  std::snprintf(text, sizeof text, format, static_cast<unsigned>(static_cast<unsigned char>(byte)));
  return text;
}

}  // namespace

bool write_as_prescribed(value_form form, std::string& value) {
  if (form == value_form::code) return join_groups(value);
  if (form != value_form::date) return false;
  const std::string before = value;
  return read_date(value) == date_flaw::none && value != before;
}

std::string text_fault(std::string_view value) {
  if (is_printable(value)) return {};
  while (!value.empty()) {
    if (is_printable(value[0])) {
      value.remove_prefix(1);
      continue;
    }
    const std::size_t length = utf8_character_length(value);
    if (length == 0) return with_hex("byte 0x%02X is not UTF-8", value[0]);
    // Of a control character in two bytes the second one is its number.
    if (is_control_character(value.substr(0, length))) {
      return with_hex("control character U+%04X", value[length - 1]);
    }
    if (value.starts_with("\xEF\xBF\xBE") || value.starts_with("\xEF\xBF\xBF")) {
      return "code point U+FFFE or U+FFFF";
    }
    value.remove_prefix(length);
  }
  return {};
}

std::string unescaped_fault(std::string_view value) {
  const auto is_markup = [](char c) { return c == '<' || c == '>' || c == '&'; };
  const auto* const found = std::ranges::find_if(value, is_markup);
  if (found == value.end()) return text_fault(value);
  return std::string("character '") + *found + "' not allowed";
}

std::string date_fault(std::string_view value) {
  std::string date(value);
  return text_of(read_date(date));
}

std::string purpose_fault(std::string_view value) {
  const bool fits = value.size() == 4 && std::all_of(value.begin(), value.end(), [](char c) {
                      return is_capital(c) || is_digit(c);
                    });
  return fits ? "" : "purpose not of four capital letters or digits";
}

}  // namespace tivex_program
