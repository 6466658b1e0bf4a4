#include "utf8.h"

#include <cstdint>

namespace tivex_edition {

std::size_t utf8_length(std::string_view text) {
  const auto byte = [&](std::size_t index) -> std::uint32_t {
    return static_cast<unsigned char>(text[index]);
  };
  struct form {
    std::uint32_t first, last;  // of the lead bytes
    std::size_t length;
    std::uint32_t smallest;  // character that needs this length
  };
  constexpr form forms[] = {
      {0x00, 0x7F, 1, 0}, {0xC0, 0xDF, 2, 0x80}, {0xE0, 0xEF, 3, 0x800}, {0xF0, 0xF7, 4, 0x10000}};
  for (const form& sequence : forms) {
    if (byte(0) < sequence.first || byte(0) > sequence.last) continue;
    if (text.size() < sequence.length) return 0;
    std::uint32_t character = byte(0) - sequence.first;
    for (std::size_t index = 1; index < sequence.length; ++index) {
      if ((byte(index) & 0xC0) != 0x80) return 0;
      character = character << 6 | (byte(index) & 0x3F);
    }
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    const bool fits = character >= sequence.smallest && character <= 0x10FFFF && !surrogate;
    return fits ? sequence.length : 0;
  }
  return 0;
}

}  // namespace tivex_edition
