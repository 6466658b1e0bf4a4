#include "value_rules.h"

#include <algorithm>
#include <cstdio>

#include "utf8.h"

namespace tivex_program {
namespace {

bool is_digit(char c) { return '0' <= c && c <= '9'; }
bool is_capital(char c) { return 'A' <= c && c <= 'Z'; }

// Most texts are plain ones. All bytes are looked at: so the compiler takes many at once.
bool is_plain(std::string_view value) {
  bool plain = true;
  for (const char c : value) plain &= ' ' <= c && c <= '~';
  return plain;
}

std::string with_hex(const char* format, char byte) {
  char text[64];
  std::snprintf(text, sizeof text, format, static_cast<unsigned>(static_cast<unsigned char>(byte)));
  return text;
}

}  // namespace

std::string text_fault(std::string_view value) {
  if (is_plain(value)) return {};
  while (!value.empty()) {
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
  const std::size_t found = value.find_first_of("<>&");
  if (found == std::string_view::npos) return text_fault(value);
  return std::string("character '") + value[found] + "' not allowed";
}

std::string date_fault(std::string_view value) {
  constexpr std::string_view form = "dddd-dd-dd";
  const bool fits = std::equal(
      value.begin(), value.end(), form.begin(), form.end(),
      [](char c, char expected) { return expected == 'd' ? is_digit(c) : c == expected; });
  return fits ? "" : "date not of the form yyyy-mm-dd";
}

std::string purpose_fault(std::string_view value) {
  const bool fits = value.size() == 4 && std::all_of(value.begin(), value.end(), [](char c) {
                      return is_capital(c) || is_digit(c);
                    });
  return fits ? "" : "purpose not of four capital letters or digits";
}

}  // namespace tivex_program
