#include "files/table_text.h"

#include <algorithm>
#include <cstring>

#include "files/text_encoding.h"
#include "files/utf8.h"

namespace tivex_program {
namespace {

constexpr std::size_t raw_size = std::size_t{1} << 15;
constexpr std::size_t longest_character = 4;

struct encoding_mark {
  std::string_view bytes;
  table_encoding encoding;
  bool high_byte_first;
};
constexpr encoding_mark marks[] = {{byte_order_mark, table_encoding::utf8, false},
                                   {"\xFF\xFE", table_encoding::utf16, false},
                                   {"\xFE\xFF", table_encoding::utf16, true}};

bool is_ascii(char c) { return static_cast<unsigned char>(c) < 0x80; }

// The place of the first character that is not ASCII, or the size.
std::size_t ascii_length(std::string_view text) {
  constexpr std::size_t step = 64;
  std::size_t at = 0;
  // The compiler makes one comparison of many bytes of this.
  for (; at + step <= text.size(); at += step) {
    unsigned char all = 0;
    for (std::size_t i = 0; i < step; ++i) all |= static_cast<unsigned char>(text[at + i]);
    if (all >= 0x80) break;
  }
  while (at < text.size() && is_ascii(text[at])) ++at;
  return at;
}

bool is_high_surrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool is_low_surrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

}  // namespace

std::size_t table_text::read(char* buffer, std::size_t size) {
  if (!started_) return start(buffer, size);
  if (encoding_ == table_encoding::utf16 || encoding_ == table_encoding::windows1252) {
    return take_converted(buffer, size);
  }
  const std::size_t kept = kept_.size();
  std::memcpy(buffer, kept_.data(), kept);
  kept_.clear();
  const std::size_t count = kept + input_.read(buffer + kept, size - kept);
  return encoding_ == table_encoding::utf8 ? count : decide(buffer, count, size);
}

std::size_t table_text::start(char* buffer, std::size_t size) {
  started_ = true;
  std::size_t count = 0;
  // A pipe may bring a mark in several parts.
  while (count < byte_order_mark.size()) {
    const std::size_t more = input_.read(buffer + count, size - count);
    if (more == 0) break;
    count += more;
  }
  const std::string_view head(buffer, count);
  for (const encoding_mark& mark : marks) {
    const bool fits = encoding_ == table_encoding::by_content || encoding_ == mark.encoding;
    if (!fits || !head.starts_with(mark.bytes)) continue;
    encoding_ = mark.encoding;
    high_byte_first_ = mark.high_byte_first;
    has_mark_ = true;
    count -= mark.bytes.size();
    std::memmove(buffer, buffer + mark.bytes.size(), count);
    break;
  }
  if (encoding_ == table_encoding::utf8) return count > 0 ? count : input_.read(buffer, size);
  if (encoding_ == table_encoding::by_content) return decide(buffer, count, size);
  convert({buffer, count});
  return take_converted(buffer, size);
}

// Looks whether the bytes tell the encoding.
std::size_t table_text::decide(char* buffer, std::size_t count, std::size_t size) {
  const std::size_t place = ascii_length({buffer, count});
  if (place == count) return count;
  while (count < place + longest_character &&
         utf8_character_length({buffer + place, count - place}) == 0) {
    if (count == size) {
      kept_.assign(buffer + place, count - place);
      return place;
    }
    const std::size_t more = input_.read(buffer + count, size - count);
    if (more == 0) break;
    count += more;
  }
  if (utf8_character_length({buffer + place, count - place}) > 0) {
    encoding_ = table_encoding::utf8;
    return count;
  }
  encoding_ = table_encoding::windows1252;
  convert({buffer, count});
  return take_converted(buffer, size);
}

std::size_t table_text::take_converted(char* buffer, std::size_t size) {
  while (handed_out_ == converted_.size()) {
    converted_.clear();
    handed_out_ = 0;
    raw_.resize(raw_size);
    const std::size_t count = input_.read(raw_.data(), raw_.size());
    convert({raw_.data(), count});
    if (count == 0) break;
  }
  const std::size_t count = std::min(size, converted_.size() - handed_out_);
  std::memcpy(buffer, converted_.data() + handed_out_, count);
  handed_out_ += count;
  return count;
}

// No bytes are the end.
void table_text::convert(std::string_view bytes) {
  if (encoding_ == table_encoding::utf16) return convert_utf16(bytes);
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const char32_t character = windows1252_character(byte);
    append_utf8(converted_, character == 0xFFFD ? byte : character);
  }
}

void table_text::convert_utf16(std::string_view bytes) {
  const auto append_half = [this] {
    if (high_surrogate_ != 0) append_utf8(converted_, high_surrogate_);
    high_surrogate_ = 0;
  };
  if (bytes.empty()) {
    append_half();
    // Half of a character is none.
    if (!kept_.empty()) converted_ += '\xFF';
    kept_.clear();
  }
  for (const char c : bytes) {
    kept_ += c;
    if (kept_.size() < 2) continue;
    const char32_t first = static_cast<unsigned char>(kept_[high_byte_first_ ? 1 : 0]);
    const char32_t second = static_cast<unsigned char>(kept_[high_byte_first_ ? 0 : 1]);
    const char32_t unit = first | second << 8;
    kept_.clear();
    if (is_low_surrogate(unit) && high_surrogate_ != 0) {
      append_utf8(converted_, 0x10000 + ((high_surrogate_ - 0xD800) << 10) + (unit - 0xDC00));
      high_surrogate_ = 0;
      continue;
    }
    append_half();
    if (is_high_surrogate(unit)) {
      high_surrogate_ = unit;
    } else {
      append_utf8(converted_, unit);
    }
  }
}

}  // namespace tivex_program
