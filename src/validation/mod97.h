#pragma once

#include <cstddef>
#include <cstdint>

#include "validation/ascii.h"

namespace tivex {

inline constexpr int MOD97_BAD_CHARACTER = -1;

// A number that a text of digits and letters spells, each letter two digits, A and a as
// 10 up to Z and z as 35. Many digits are taken before the number is reduced modulo 97.
class mod97_number {
 public:
  // False for a character that is neither digit nor letter; it is left out.
  constexpr bool append(char c) {
    const char upper = to_upper(c);
    if (is_digit(c)) {
      append_digits(10, static_cast<unsigned char>(c - '0'));
    } else if (is_upper(upper)) {
      append_digits(100, static_cast<unsigned char>(upper - 'A' + 10));
    } else {
      return false;
    }
    return true;
  }

  // Puts another number behind this one; the power of ten has as many zeros as that has
  // digits.
  constexpr void append(const mod97_number& behind, std::uint64_t power_of_ten) {
    value_ = (value_ % 97) * power_of_ten + behind.value_ % 97;
  }

  constexpr int remainder() const { return static_cast<int>(value_ % 97); }

 private:
  constexpr void append_digits(std::uint64_t factor, std::uint64_t digits) {
    constexpr std::uint64_t large = UINT64_MAX / 100 - 1;
    if (value_ > large) value_ %= 97;
    value_ = value_ * factor + digits;
  }

  std::uint64_t value_ = 0;
};

// The remainder modulo 97 (ISO 7064 MOD 97-10) of the number that a text spells when
// its first four characters stand behind those from `start` on. Returns 0 to 96, or
// MOD97_BAD_CHARACTER when one of these characters is neither digit nor letter. The
// text has at least four characters and `start` lies within it.
int mod97_rearranged(const char* text, std::size_t start);

}  // namespace tivex
