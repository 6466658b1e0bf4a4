// Pieces of a file's text, and which text of an entry each belongs to.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tivex {

enum class text_target : std::uint8_t {
  booking_text,
  primanota,
  purpose,
  eref,
  kref,
  mref,
  cred,
  debt,
  purp,
  coam,
  oamt,
  svwz,
  abwa,
  abwe,
  full_name,
  return_reason,
  // Members of fixed size.
  bank_code,
  account_no,
  // What gives way to another text for the same member: that may still come.
  second_account,
  word_account,
  word_bank,
  word_name,
  word_reference,
  nothing,
};

// Targets that entries point to.
inline constexpr std::size_t pointed_targets = static_cast<std::size_t>(text_target::bank_code);
inline constexpr std::size_t all_targets = static_cast<std::size_t>(text_target::nothing) + 1;

constexpr std::uint32_t bit_of(text_target target) {
  return std::uint32_t{1} << static_cast<unsigned>(target);
}

constexpr bool is_fixed(text_target target) {
  return target == text_target::bank_code || target == text_target::account_no;
}

constexpr bool is_stand_in(text_target target) {
  return target >= text_target::second_account && target < text_target::nothing;
}

struct text_piece {
  char* text;
  std::size_t length;
  text_target target;
  char separator;  // in front of it; NUL for none
  // Bytes that nobody sets would be copied with what stood in their place before.
  char unused[sizeof(char*) - 2] = {};
};

// The pieces of one entry after the other; memory is taken where one has many.
class text_pieces {
 public:
  text_pieces() = default;
  text_pieces(const text_pieces&) = delete;
  text_pieces& operator=(const text_pieces&) = delete;
  ~text_pieces();

  // Nothing happens when memory is exhausted, from then on.
  void add(const text_piece& piece) {
    if (count_ < capacity_ || grow()) pieces_[count_++] = piece;
  }
  void clear() { count_ = 0; }
  // Exchanges one with the last, which gets the separator.
  void exchange_with_last(std::size_t index, char separator);
  std::size_t count() const { return count_; }
  bool exhausted() const { return exhausted_; }

  text_piece* begin() { return pieces_; }
  text_piece* end() { return pieces_ + count_; }

 private:
  bool grow();

  static constexpr std::size_t ordinary = 64;
  text_piece first_[ordinary];
  text_piece* pieces_ = first_;
  std::size_t capacity_ = ordinary;
  std::size_t count_ = 0;
  bool exhausted_ = false;
};

}  // namespace tivex
