#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>

namespace tivex {

// What tells a payment block from the others and orders them: a date text,
// "yyyy-mm-dd", by its bytes, and a slot within the date. Any ten bytes will do for a
// date; a shorter text is taken as ending with NUL bytes.
class block_key {
 public:
  static constexpr std::size_t date_length = 10;
  static constexpr std::size_t bytes = date_length + 1;

  block_key() = default;
  // At most 256 slots, from 0.
  block_key(const char* date, std::int32_t slot) : tail_(static_cast<std::uint8_t>(slot)) {
    for (std::size_t index = 0; index < date_length && *date != '\0'; ++index, ++date) {
      const std::uint64_t byte = static_cast<unsigned char>(*date);
      if (index < 8) {
        head_ |= byte << (8 * (7 - index));
      } else {
        tail_ |= byte << (8 * (10 - index));
      }
    }
  }

  std::int32_t slot() const { return static_cast<std::uint8_t>(tail_); }

  // The byte at a place, counted from the one that matters least.
  std::size_t byte(std::size_t place) const {
    constexpr std::size_t tail_bytes = bytes - sizeof head_;
    const std::uint64_t part =
        place < tail_bytes ? tail_ >> (8 * place) : head_ >> (8 * (place - tail_bytes));
    return static_cast<std::uint8_t>(part);
  }

  // Notes in which bits two keys differ.
  void note_difference(const block_key& left, const block_key& right) {
    head_ |= left.head_ ^ right.head_;
    tail_ |= left.tail_ ^ right.tail_;
  }

  auto operator<=>(const block_key&) const = default;

 private:
  std::uint64_t head_ = 0;  // bytes 1 to 8 of the date
  std::uint64_t tail_ = 0;  // bytes 9 and 10, and the slot
};

}  // namespace tivex
