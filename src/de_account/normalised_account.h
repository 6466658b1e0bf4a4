#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "platform/platform.h"

namespace tivex::check_digits {

// An account number padded with '0' on the left to its ten positions, which
// count from 1 at the left. Its characters are not checked: a method computes
// with whatever stands there.
class normalised_account {
 public:
  static constexpr std::size_t width = 10;

  // At most ten characters, of which those of the sub-account come last.
  explicit normalised_account(std::string_view account, std::string_view sub_account = "") {
    if (account.size() == width) {  // as in an IBAN: two instructions
      std::memcpy(text_, account.data(), width);
    } else {
      std::memset(text_, '0', width);
      const std::size_t account_end = width - sub_account.size();
      std::memcpy(text_ + account_end - account.size(), account.data(), account.size());
      std::memcpy(text_ + account_end, sub_account.data(), sub_account.size());
    }
    platform::touch(text_);
  }
  normalised_account(const normalised_account&) = delete;
  normalised_account& operator=(const normalised_account&) = delete;
  ~normalised_account() { platform::wipe(text_, sizeof text_); }

  // The character at a position.
  int c(int position) const { return static_cast<unsigned char>(text_[position - 1]); }
  // Its digit value; outside 0 to 9 for what is no digit.
  int d(int position) const { return c(position) - '0'; }

  // Whether the characters from a position on, of which there are enough, are these.
  bool has(std::string_view characters, int position = 1) const {
    return std::memcmp(text_ + position - 1, characters.data(), characters.size()) == 0;
  }

  // The number that the characters from a position on spell.
  std::uint64_t value(int first = 1) const {
    std::uint64_t number = 0;
    for (int position = first; position <= 10; ++position) {
      number = number * 10 + static_cast<std::uint64_t>(d(position));
    }
    return number;
  }

  // The characters from a position to another one.
  std::string_view text(std::size_t first = 1, std::size_t last = width) const {
    return {text_ + first - 1, last - first + 1};
  }

 private:
  char text_[width];
};

}  // namespace tivex::check_digits
