#include "statements/mt940/purpose_text.h"

#include <cstring>

#include "statements/mt940/purpose_keywords.h"
#include "statements/text_steps.h"

namespace tivex {

void purpose_text::begin(text_field field, char* text, char* end) {
  entry_.*field = text;
  *end = '\0';
  target_ = field;
  target_end_ = end;
}

bool purpose_text::begin_keyword(char* content, char* end) {
  const keyword_row* const row = find_keyword(content, end);
  if (row == nullptr) return false;
  begin(row->field, content + keyword_length, end);
  if (row->is_amount) point_for_comma(content + keyword_length, end);
  return true;
}

// Lines of 27 characters, and 22 behind a keyword, are full: words run on.
bool purpose_text::joins_without_blank() const {
  constexpr std::size_t full_line = 27;
  constexpr std::ptrdiff_t full_line_behind_keyword = 22;
  return last_piece_ >= full_line || target_end_ - entry_.*target_ == full_line_behind_keyword;
}

void purpose_text::add(char* content, char* end) {
  if (begin_keyword(content, end)) return;
  if (target_ == nullptr) return begin(&tivex_stmt_tx_t::purpose, content, end);
  // The mark of the subfield leaves room for one character more.
  if (target_ == &tivex_stmt_tx_t::purpose) {
    *target_end_++ = '\n';
  } else if (!joins_without_blank()) {
    *target_end_++ = ' ';
  }
  last_piece_ = static_cast<std::size_t>(end - content);
  std::memmove(target_end_, content, last_piece_);
  target_end_ += last_piece_;
  *target_end_ = '\0';
}

}  // namespace tivex
