#include "statements/purpose_text.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "statements/mt940_text.h"

namespace tivex {

namespace {

constexpr std::size_t keyword_length = 5;

struct keyword_row {
  char* tivex_stmt_tx_t::*field;
  char keyword[keyword_length + 1];
  bool is_amount = false;  // its decimal comma becomes a point
};

// The most frequent ones stand in front.
constexpr keyword_row keywords[] = {
    {&tivex_stmt_tx_t::eref, "EREF+"},       {&tivex_stmt_tx_t::svwz, "SVWZ+"},
    {&tivex_stmt_tx_t::mref, "MREF+"},       {&tivex_stmt_tx_t::cred, "CRED+"},
    {&tivex_stmt_tx_t::kref, "KREF+"},       {&tivex_stmt_tx_t::abwa, "ABWA+"},
    {&tivex_stmt_tx_t::abwe, "ABWE+"},       {&tivex_stmt_tx_t::purp, "PURP+"},
    {&tivex_stmt_tx_t::coam, "COAM+", true}, {&tivex_stmt_tx_t::oamt, "OAMT+", true},
    {&tivex_stmt_tx_t::debt, "DEBT+"},
};

}  // namespace

void purpose_text::begin(text_field field, char* text, char* end) {
  entry_.*field = text;
  *end = '\0';
  target_ = field;
  target_end_ = end;
}

bool purpose_text::begin_keyword(char* content, char* end) {
  if (end - content < static_cast<std::ptrdiff_t>(keyword_length)) return false;
  if (content[keyword_length - 1] != '+') return false;
  const auto* const row = std::find_if(
      std::begin(keywords), std::end(keywords), [content](const keyword_row& candidate) {
        return std::memcmp(content, candidate.keyword, keyword_length) == 0;
      });
  if (row == std::end(keywords)) return false;
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
