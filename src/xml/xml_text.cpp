#include "xml/xml_text.h"

#include <cstdint>
#include <cstring>

namespace tivex {

namespace {

// A character as UTF-8 encodes it; NUL, which no document admits, when it is not
// encoded so.
struct character {
  std::uint32_t code = 0;
  int bytes = 0;
};

// Lead bytes by the number of bytes that they announce: a lead byte less its mask
// begins the code, and codes below `first` have a shorter form.
struct lead_byte {
  unsigned char mask;
  unsigned char value;
  int bytes;
  std::uint32_t first;
};

constexpr lead_byte lead_bytes[] = {
    {0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};

character decode(const char* text) {
  const auto byte_at = [text](int index) { return static_cast<unsigned char>(text[index]); };
  for (const lead_byte& lead : lead_bytes) {
    if ((byte_at(0) & lead.mask) != lead.value) continue;
    auto code = static_cast<std::uint32_t>(byte_at(0) & ~lead.mask);
    for (int index = 1; index < lead.bytes; ++index) {
      // Also stops at the end of the text.
      if ((byte_at(index) & 0xC0) != 0x80) return {};
      code = code << 6 | (byte_at(index) & 0x3FU);
    }
    return code >= lead.first ? character{code, lead.bytes} : character{};
  }
  return {};
}

// The production Char of XML 1.0.
bool is_xml_character(std::uint32_t code) {
  return code == '\t' || code == '\n' || code == '\r' || (code >= 0x20 && code <= 0xD7FF) ||
         (code >= 0xE000 && code <= 0xFFFD) || (code >= 0x10000 && code <= 0x10FFFF);
}

}  // namespace

const char* find_illegal_character(const char* text) {
  while (*text != '\0') {
    const character next = decode(text);
    if (!is_xml_character(next.code)) return text;
    text += next.bytes;
  }
  return nullptr;
}

const char* find_markup(const char* text) {
  for (; *text != '\0'; ++text) {
    if (*text == '<' || *text == '&' || std::strncmp(text, "]]>", 3) == 0) return text;
  }
  return nullptr;
}

}  // namespace tivex
