#include "files/utf8.h"

namespace tivex_program {
namespace {

// The well-formed sequences: range of the first byte, length, and range of the
// second byte, which rules out overlong forms and surrogates.
struct sequence {
  unsigned char first_low, first_high, length, second_low, second_high;
};
constexpr sequence sequences[] = {
    {0x00, 0x7F, 1, 0x00, 0x00}, {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

bool within(char c, unsigned char low, unsigned char high) {
  const auto byte = static_cast<unsigned char>(c);
  return low <= byte && byte <= high;
}

}  // namespace

std::size_t utf8_character_length(std::string_view text) {
  if (text.empty()) return 0;
  for (const sequence& s : sequences) {
    if (!within(text[0], s.first_low, s.first_high)) continue;
    if (text.size() < s.length) return 0;
    if (s.length > 1 && !within(text[1], s.second_low, s.second_high)) return 0;
    for (std::size_t i = 2; i < s.length; ++i) {
      if (!within(text[i], 0x80, 0xBF)) return 0;
    }
    return s.length;
  }
  return 0;
}

bool is_control_character(std::string_view character) {
  if (character.size() == 1) {
    return within(character[0], 0x00, 0x1F) || within(character[0], 0x7F, 0x7F);
  }
  return character.size() == 2 && character[0] == '\xC2' && within(character[1], 0x80, 0x9F);
}

}  // namespace tivex_program
