#pragma once

#include <cstddef>

#include "tivex.h"

namespace tivex {

// The purpose of an entry, put together from the subfields of one tag 86.
class purpose_text {
 public:
  explicit purpose_text(tivex_stmt_tx_t& entry) : entry_(entry) {}

  // A subfield either begins with a keyword or goes on with what came before it: then
  // it is moved to the end of that text.
  void add(char* content, char* end);

 private:
  using text_field = char* tivex_stmt_tx_t::*;

  bool begin_keyword(char* content, char* end);
  void begin(text_field field, char* text, char* end);
  bool joins_without_blank() const;

  tivex_stmt_tx_t& entry_;
  text_field target_ = nullptr;  // the text that goes on
  char* target_end_ = nullptr;
  std::size_t last_piece_ = 0;  // length of what was moved last
};

}  // namespace tivex
