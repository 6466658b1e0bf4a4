#pragma once

#include <cstddef>

#include "validation/ascii.h"

namespace tivex {

// A BIC as a host gave it, turned to upper case; at most 11 characters.
class bic_text {
 public:
  // False, and the text empty, when the BIC is null or too long.
  bool set(const char* bic) {
    std::size_t length = 0;
    for (; bic != nullptr && bic[length] != '\0' && length < longest; ++length) {
      text_[length] = to_upper(bic[length]);
    }
    const bool fits = bic != nullptr && bic[length] == '\0';
    text_[fits ? length : 0] = '\0';
    return fits;
  }

  const char* c_str() const { return text_; }

 private:
  static constexpr std::size_t longest = 11;
  char text_[longest + 1] = {};
};

}  // namespace tivex
