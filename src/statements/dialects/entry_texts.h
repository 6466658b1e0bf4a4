// The texts of one entry: pieces are gathered first, for what one becomes may depend on
// those behind it, then laid out, mostly where they stand.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "statements/dialects/text_pieces.h"
#include "statements/record_blocks.h"
#include "tivex.h"
#include "validation/ascii.h"

namespace tivex {

// Also when it is empty.
inline bool is_blank_text(std::string_view text) {
  // Mostly the first character tells already.
  return text.empty() ||
         (is_space(text.front()) && std::all_of(text.begin(), text.end(), is_space));
}

// The target of a member of entries.
text_target target_of(char* tivex_stmt_tx_t::*member);

class entry_texts {
 public:
  // The texts that follow belong to this one.
  void begin(tivex_stmt_tx_t& entry);

  // A piece of a file's text, behind the others of its target. The byte behind it has to
  // be free, for the text may end there. The separator stands in front of it, be it the
  // first one; then one byte more has to be free. Those of the purpose are parted by line
  // feeds.
  void add(text_target target, char* from, const char* end, char separator = '\0') {
    const auto length = static_cast<std::size_t>(end - from);
    if (!is_blank_text({from, length})) stated_ |= bit_of(target);
    text_piece piece = {from, length, target, separator};
    if (is_fixed(target)) {
      fill_fixed(target, piece, 0);
      if (piece.target == text_target::nothing) return;
    }
    if (piece.target == text_target::purpose) piece.separator = '\n';
    note_place(piece.target);
    pieces_.add(piece);
  }
  // What has no member of its own, unless it is blank.
  void add_to_purpose(char* from, const char* end);
  // The same of joined lines, those at both ends left out that are empty.
  void add_lines_to_purpose(char* from, char* end);
  // Goes where no booking text is, or to the purpose's end.
  void set_second_line(char* from, char* end);

  // Who filled a target: numbers of the forms of tag 86. 0 when nobody has.
  std::uint8_t& owner(text_target target) { return owners_[static_cast<std::size_t>(target)]; }

  std::size_t count() const { return pieces_.count(); }
  // The last piece and this one of the same target change places, and this one gets a
  // separator.
  void move_last_to(std::size_t index, char separator) {
    pieces_.exchange_with_last(index, separator);
    out_of_order_ |= bit_of(last_);
  }

  // Fills the entry. False when memory is exhausted.
  bool lay_out(record_blocks& records);

 private:
  // Pieces of a target have others between them when another was met in between.
  void note_place(text_target target) {
    const std::uint32_t bit = bit_of(target);
    if ((met_ & bit) != 0 && last_ != target) out_of_order_ |= bit;
    met_ |= bit;
    last_ = target;
  }
  void place_second_line();
  void resolve_stand_ins();
  void fill_fixed(text_target target, text_piece& piece, std::size_t word_length);

  tivex_stmt_tx_t* entry_ = nullptr;
  text_pieces pieces_;
  std::uint32_t stated_ = 0;  // targets of which something is known that is not blank
  std::uint32_t met_ = 0;     // targets that have pieces
  text_target last_ = text_target::nothing;
  // Targets whose pieces do not stand one behind the other in the file.
  std::uint32_t out_of_order_ = 0;
  std::uint8_t owners_[all_targets] = {};
  char* second_line_ = nullptr;
  char* second_line_end_ = nullptr;
};

}  // namespace tivex
