// The look-up of a key in a table. Keys are compared ignoring the case of ASCII
// letters.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "validation/ascii.h"

namespace tivex {

// A key as a host writes it, with its length, and a number by its length, start, middle
// and end that tells the keys of a table apart.
class written_key {
 public:
  // The text ends with NUL, which counts as the middle of a single letter.
  constexpr explicit written_key(std::string_view text) : text_(text) {
    if (text_.empty()) return;
    const auto byte = [this](std::size_t place) {
      return static_cast<std::uint32_t>(static_cast<unsigned char>(c_str()[place]));
    };
    const std::size_t size = text_.size();
    number_ = static_cast<std::uint32_t>(size) << 24 | byte(0) << 16 | byte((size + 1) / 2) << 8 |
              byte(size - 1) | small_letters;
  }

  constexpr const char* c_str() const { return text_.data(); }
  constexpr std::uint32_t number() const { return number_; }

  // Most hosts write keys as the tables do.
  constexpr bool is(std::string_view key) const {
    return text_ == key || (text_.size() == key.size() && equal_ignoring_case(c_str(), key.data()));
  }

 private:
  static constexpr std::uint32_t small_letters = 0x202020;

  std::string_view text_;
  std::uint32_t number_ = 0;
};

// The rows of a table by their keys, of which no two are the same.
template <class row, std::size_t count>
class key_index {
 public:
  consteval explicit key_index(const std::array<row, count>& rows) : rows_(rows) {
    while (!fill()) ++factor_;
  }

  constexpr const std::array<row, count>& rows() const { return rows_; }

  // The row with a key; null when there is none.
  constexpr const row* find(const written_key& key) const {
    const std::size_t place = places_[slot_of(key)];
    return place < count && key.is(rows_[place].key) ? &rows_[place] : nullptr;
  }

 private:
  static constexpr int slot_bits = 6;
  static_assert(count < std::size_t{1} << slot_bits);

  constexpr std::size_t slot_of(const written_key& key) const {
    return key.number() * factor_ >> (32 - slot_bits);
  }

  // False when two keys get the same slot by the factor.
  constexpr bool fill() {
    places_.fill(count);
    for (std::size_t place = 0; place < count; ++place) {
      std::uint8_t& slot = places_[slot_of(written_key(rows_[place].key))];
      if (slot != count) return false;
      slot = static_cast<std::uint8_t>(place);
    }
    return true;
  }

  std::array<row, count> rows_;
  std::array<std::uint8_t, std::size_t{1} << slot_bits> places_ = {};
  std::uint32_t factor_ = 0x9E3779B1;
};

}  // namespace tivex
