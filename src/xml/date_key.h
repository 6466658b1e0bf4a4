#pragma once

#include <compare>
#include <cstdint>
#include <cstring>

namespace tivex {

// A date text, "yyyy-mm-dd", as numbers that compare as its bytes do. Any ten
// bytes will do; a shorter text is taken as ending with NUL bytes.
class date_key {
 public:
  static constexpr std::size_t length = 10;

  date_key() = default;
  explicit date_key(const char* text) {
    for (std::size_t index = 0; index < length && *text != '\0'; ++index, ++text) {
      const std::uint64_t byte = static_cast<unsigned char>(*text);
      if (index < 8) {
        head_ |= byte << (8 * (7 - index));
      } else {
        tail_ |= byte << (8 * (9 - index));
      }
    }
  }

  auto operator<=>(const date_key&) const = default;

 private:
  std::uint64_t head_ = 0;  // bytes 1 to 8
  std::uint64_t tail_ = 0;  // bytes 9 and 10
};

}  // namespace tivex
