#include "statements/dialects/entry_texts.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <string_view>

#include "statements/dialects/dialect_lines.h"
#include "statements/text_steps.h"
#include "statements/utf8.h"

namespace tivex {

namespace {

constexpr char* tivex_stmt_tx_t::*members[pointed_targets] = {
    &tivex_stmt_tx_t::booking_text,  &tivex_stmt_tx_t::primanota, &tivex_stmt_tx_t::purpose,
    &tivex_stmt_tx_t::eref,          &tivex_stmt_tx_t::kref,      &tivex_stmt_tx_t::mref,
    &tivex_stmt_tx_t::cred,          &tivex_stmt_tx_t::debt,      &tivex_stmt_tx_t::purp,
    &tivex_stmt_tx_t::coam,          &tivex_stmt_tx_t::oamt,      &tivex_stmt_tx_t::svwz,
    &tivex_stmt_tx_t::abwa,          &tivex_stmt_tx_t::abwe,      &tivex_stmt_tx_t::full_name,
    &tivex_stmt_tx_t::return_reason,
};

// What gives way when the target is stated otherwise, and the word that introduces it in
// the purpose then.
struct stand_in_row {
  text_target stand_in;
  text_target target;
  std::size_t word_length;
};

// In the order of the targets.
constexpr stand_in_row stand_ins[] = {
    {text_target::second_account, text_target::account_no, 0},
    {text_target::word_account, text_target::account_no, 4},
    {text_target::word_bank, text_target::bank_code, 3},
    {text_target::word_name, text_target::full_name, 4},
    {text_target::word_reference, text_target::svwz, 7},
};

// At both ends of joined lines.
void drop_empty_lines(char*& from, char*& end) {
  while (from < end && *from == '\n') ++from;
  while (from < end && end[-1] == '\n') --end;
}

const stand_in_row& stand_in_of(text_target target) {
  constexpr auto first = static_cast<std::size_t>(text_target::second_account);
  return stand_ins[static_cast<std::size_t>(target) - first];
}

void send_to_purpose(text_piece& piece, std::size_t word_length) {
  if (word_length > 0) {
    // The slash between word and value becomes a blank.
    *--piece.text = ' ';
    piece.text -= word_length;
    piece.length += word_length + 1;
  }
  piece.target =
      is_blank_text({piece.text, piece.length}) ? text_target::nothing : text_target::purpose;
  piece.separator = '\n';
}

// Lays pieces of the targets that entries point to.
class layout {
 public:
  layout(text_pieces& pieces, std::uint32_t scattered) : pieces_(pieces), scattered_(scattered) {}

  // Texts whose pieces stand apart from each other move to room of their own.
  bool lay_scattered(record_blocks& records) {
    std::size_t sizes[pointed_targets] = {};
    for (const text_piece& piece : pieces_) {
      if (is_scattered(piece)) sizes[index_of(piece)] += 1 + piece.length;
    }
    for (const text_piece& piece : pieces_) {
      if (!is_scattered(piece)) continue;
      char* room = nullptr;
      if (!is_laid(piece)) {
        room = records.make_text(sizes[index_of(piece)] + 1);
        if (room == nullptr) return false;
      }
      lay(piece, room);
    }
    return true;
  }

  // The others stay where they are. Their pieces move together: what stands between them
  // is marks of the form, which nothing points to, and leaves room for the separators.
  void lay_in_place() {
    for (const text_piece& piece : pieces_) {
      if (piece.target == text_target::nothing || is_scattered(piece)) continue;
      lay(piece, piece.text - (has_separator(piece, true) ? 1 : 0));
    }
  }

  void fill(tivex_stmt_tx_t& entry) {
    for (std::uint32_t left = laid_; left != 0; left &= left - 1) {
      const auto index = static_cast<std::size_t>(std::countr_zero(left));
      *texts_[index].end = '\0';
      entry.*members[index] = texts_[index].start;
    }
  }

 private:
  struct laid_text {
    char* start;
    char* end;  // behind what has been laid
  };

  static std::size_t index_of(const text_piece& piece) {
    return static_cast<std::size_t>(piece.target);
  }
  static bool has_separator(const text_piece& piece, bool is_first) {
    return piece.separator != '\0' && !(is_first && piece.target == text_target::purpose);
  }
  bool is_scattered(const text_piece& piece) const {
    return (scattered_ & bit_of(piece.target)) != 0;
  }
  bool is_laid(const text_piece& piece) const { return (laid_ & bit_of(piece.target)) != 0; }

  // Behind the others of its target, or as the first one where it is to start.
  void lay(const text_piece& piece, char* start) {
    laid_text& text = texts_[index_of(piece)];
    const bool is_first = !is_laid(piece);
    if (is_first) text = {start, start};
    laid_ |= bit_of(piece.target);
    if (has_separator(piece, is_first)) *text.end++ = piece.separator;
    if (text.end != piece.text) std::memmove(text.end, piece.text, piece.length);
    text.end += piece.length;
  }

  text_pieces& pieces_;
  std::uint32_t scattered_;
  std::uint32_t laid_ = 0;
  laid_text texts_[pointed_targets];  // those that are laid
};

}  // namespace

text_target target_of(char* tivex_stmt_tx_t::*member) {
  const auto* const found = std::find(std::begin(members), std::end(members), member);
  return static_cast<text_target>(found - std::begin(members));
}

void entry_texts::begin(tivex_stmt_tx_t& entry) {
  entry_ = &entry;
  pieces_.clear();
  stated_ = met_ = out_of_order_ = 0;
  last_ = text_target::nothing;
  std::fill(std::begin(owners_), std::end(owners_), std::uint8_t{0});
  second_line_ = second_line_end_ = nullptr;
}

void entry_texts::add_to_purpose(char* from, const char* end) {
  if (!is_blank_text(between(from, end))) add(text_target::purpose, from, end);
}

void entry_texts::add_lines_to_purpose(char* from, char* end) {
  drop_empty_lines(from, end);
  add_to_purpose(from, end);
}

void entry_texts::set_second_line(char* from, char* end) {
  if (is_blank_text(between(from, end))) return;
  drop_empty_lines(from, end);
  second_line_ = from;
  second_line_end_ = end;
}

// It stands in front of all others, but comes behind them.
void entry_texts::place_second_line() {
  if (second_line_ == nullptr) return;
  const bool free = (stated_ & bit_of(text_target::booking_text)) == 0;
  const auto target = free ? text_target::booking_text : text_target::purpose;
  out_of_order_ |= met_ & bit_of(target);
  add(target, second_line_, second_line_end_);
}

// Of what does not fit the rest goes to the purpose; what comes behind another text, whole.
void entry_texts::fill_fixed(text_target target, text_piece& piece, std::size_t word_length) {
  const bool is_bank = target == text_target::bank_code;
  char* const field = is_bank ? entry_->bank_code : entry_->account_no;
  const std::size_t size = is_bank ? sizeof entry_->bank_code : sizeof entry_->account_no;
  const std::string_view text(piece.text, piece.length);
  const std::size_t used = is_blank_text(field) ? 0 : std::strlen(field);
  if (used == 0) {
    const std::size_t length = whole_characters(text, size - 1);
    std::memcpy(field, text.data(), length);
    field[length] = '\0';
    piece.text += length;
    piece.length -= length;
    send_to_purpose(piece, 0);
  } else if (used + 1 + text.size() < size) {
    field[used] = ' ';
    std::memcpy(field + used + 1, text.data(), text.size());
    field[used + 1 + text.size()] = '\0';
    piece.target = text_target::nothing;
  } else {
    send_to_purpose(piece, word_length);
  }
}

// Now that all is known, what gives way to another text does so.
void entry_texts::resolve_stand_ins() {
  // The order of the pieces of a name that were exchanged stays.
  out_of_order_ &= bit_of(text_target::full_name);
  met_ = 0;
  last_ = text_target::nothing;
  for (text_piece& piece : pieces_) {
    if (is_stand_in(piece.target)) {
      const stand_in_row& row = stand_in_of(piece.target);
      if ((stated_ & bit_of(row.target)) != 0) {
        send_to_purpose(piece, row.word_length);
      } else if (is_fixed(row.target)) {
        fill_fixed(row.target, piece, row.word_length);
      } else {
        piece.target = row.target;
      }
    }
    if (piece.target != text_target::nothing) note_place(piece.target);
  }
}

bool entry_texts::lay_out(record_blocks& records) {
  constexpr std::uint32_t stand_in_bits =
      bit_of(text_target::nothing) - bit_of(text_target::second_account);
  if (!pieces_.exhausted() && (met_ & stand_in_bits) != 0) resolve_stand_ins();
  place_second_line();
  if (pieces_.exhausted()) return false;
  if (pieces_.count() == 0) return true;
  layout laid(pieces_, out_of_order_);
  // First, for they are read where others move.
  if (out_of_order_ != 0 && !laid.lay_scattered(records)) return false;
  laid.lay_in_place();
  laid.fill(*entry_);
  if (entry_->full_name != nullptr) {
    const std::string_view name = entry_->full_name;
    copy_text(entry_->name, {name.data(), whole_characters(name, sizeof entry_->name - 1)});
  }
  return true;
}

}  // namespace tivex
