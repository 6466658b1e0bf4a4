#include "publishers/published_file.h"

#include <algorithm>

#include "publishers/field_texts.h"
#include "utf8.h"

namespace tivex_edition {

namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

bool is_utf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = utf8_length(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

std::string from_latin1(std::string_view text) {
  std::string converted;
  for (const char c : text) {
    const auto character = static_cast<unsigned char>(c);
    if (character < 0x80) {
      converted += c;
    } else {
      converted += static_cast<char>(0xC0 | character >> 6);
      converted += static_cast<char>(0x80 | (character & 0x3F));
    }
  }
  return converted;
}

}  // namespace

std::string as_utf8(std::string_view content) {
  if (!is_utf8(content)) return from_latin1(content);
  if (content.starts_with(byte_order_mark)) content.remove_prefix(byte_order_mark.size());
  return std::string(content);
}

std::vector<published_line> lines_of(std::string_view text) {
  std::vector<published_line> lines;
  for (int number = 1; !text.empty(); ++number) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (!trimmed(line).empty()) lines.push_back({number, line});
  }
  return lines;
}

}  // namespace tivex_edition
