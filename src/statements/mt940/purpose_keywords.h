#pragma once

#include <cstddef>

#include "tivex.h"

namespace tivex {

inline constexpr std::size_t keyword_length = 5;

// A word that introduces a part of the purpose, and the member of an entry that takes it.
struct keyword_row {
  char* tivex_stmt_tx_t::*field;
  char keyword[keyword_length + 1];
  bool is_amount = false;  // its decimal comma becomes a point
};

// The row of these five characters; null when there is none.
const keyword_row* keyword_of(const char* characters);

// The keyword at the start of a subfield; null when there is none.
inline const keyword_row* find_keyword(const char* content, const char* end) {
  if (end - content < static_cast<std::ptrdiff_t>(keyword_length)) return nullptr;
  return content[keyword_length - 1] == '+' ? keyword_of(content) : nullptr;
}

}  // namespace tivex
