#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tivex {

inline constexpr int MOD97_BAD_CHARACTER = -1;

// A number that digits and letters spell, and the power of ten that makes room for it
// behind another one; 0 where a character is neither digit nor letter.
struct spelling {
  std::uint64_t number = 0;
  std::uint64_t power = 1;

  // This number with another one behind it.
  constexpr spelling operator+(const spelling& behind) const {
    return {number * behind.power + behind.number, power * behind.power};
  }
};

// A letter is two digits, A and a 10 up to Z and z 35.
inline constexpr auto spellings = [] {
  struct narrow {
    std::uint8_t number;
    std::uint8_t power;
  };
  std::array<narrow, 256> table = {};
  for (unsigned char c = '0'; c <= '9'; ++c) table[c] = {static_cast<std::uint8_t>(c - '0'), 10};
  for (unsigned char letter = 0; letter < 26; ++letter) {
    table[std::size_t{'A'} + letter] = {static_cast<std::uint8_t>(letter + 10), 100};
    table[std::size_t{'a'} + letter] = table[std::size_t{'A'} + letter];
  }
  return table;
}();

constexpr spelling spelling_of(char c) {
  const auto& row = spellings[static_cast<unsigned char>(c)];
  return {row.number, row.power};
}

// The number that a text spells, modulo 97. Eight characters are at most sixteen digits,
// for which 64 bits have room behind a remainder; they are put together two by two, so
// that the processor need not wait for one before it begins the next.
class mod97_number {
 public:
  // Puts a text's number behind this one.
  constexpr void append(std::string_view text) {
    constexpr std::size_t step = 8;
    for (; text.size() >= step; text.remove_prefix(step)) push(eight(text.data()));
    spelling rest;
    for (const char c : text) rest = rest + spelling_of(c);
    push(rest);
  }

  // Whether all characters were digits and letters.
  constexpr bool is_number() const { return is_number_; }
  // 0 to 96.
  constexpr int remainder() const { return static_cast<int>(value_); }

 private:
  static constexpr spelling two(const char* text) {
    return spelling_of(text[0]) + spelling_of(text[1]);
  }
  static constexpr spelling eight(const char* text) {
    return (two(text) + two(text + 2)) + (two(text + 4) + two(text + 6));
  }

  constexpr void push(const spelling& behind) {
    is_number_ &= behind.power != 0;
    value_ = (value_ * behind.power + behind.number) % 97;
  }

  std::uint64_t value_ = 0;
  bool is_number_ = true;
};

// The remainder modulo 97 (ISO 7064 MOD 97-10) of the number that a text spells when
// its first four characters stand behind those from `start` on. Returns 0 to 96, or
// MOD97_BAD_CHARACTER when one of these characters is neither digit nor letter. The
// text has at least four characters and `start` lies within it.
int mod97_rearranged(const char* text, std::size_t start);

}  // namespace tivex
