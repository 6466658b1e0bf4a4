#include "terminal/diagnostics.h"

#include <algorithm>
#include <cstdio>

#include "files/utf8.h"
#include "terminal/colours.h"

namespace tivex_program {
namespace {

void append_hex(std::string& text, std::string_view bytes) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text.append("\\x").append(1, digits[byte >> 4]).append(1, digits[byte & 0x0F]);
  }
}

}  // namespace

std::string printable(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const std::size_t length = utf8_character_length(text);
    const std::string_view character = text.substr(0, length == 0 ? 1 : length);
    if (length == 0 || is_control_character(character)) {
      append_hex(result, character);
    } else {
      result.append(character);
    }
    text.remove_prefix(character.size());
  }
  return result;
}

std::string printable_line(std::string_view text) { return printable(text) + '\n'; }

void print_error(std::string_view text) {
  const std::string line = printable_line(text);
  const std::size_t place = std::min(line.find(": "), line.size() - 1);
  print_lines(coloured(line.substr(0, place), colour::bold_red, 2) + line.substr(place));
}

void print_note(std::string_view text) { print_lines(printable_line(text)); }

void print_lines(std::string_view lines) { std::fwrite(lines.data(), 1, lines.size(), stderr); }

}  // namespace tivex_program
