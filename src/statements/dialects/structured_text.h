#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "statements/dialects/entry_texts.h"
#include "statements/mt940/purpose_keywords.h"
#include "tivex.h"

namespace tivex {

// Who filled a target of an entry's texts; words of the other form follow.
inline constexpr std::uint8_t owned_by_subfield = 1;

// Tag 86 in numbered subfields, each behind a mark and two digits, in any order.
class structured_text {
 public:
  explicit structured_text(entry_texts& texts) : texts_(texts) {}

  // Knows of no subfield of an entry yet.
  void begin_entry() { known_ = {}; }
  // Reads a field whose lines are joined. It begins with the mark or, behind blanks, with
  // three digits and the mark.
  void read(tivex_stmt_tx_t& entry, char* field, char* end);

 private:
  // Of the entry, which may have several tags 86.
  struct known_of_entry {
    std::uint64_t seen[2] = {};  // a bit for each number of a subfield
    bool has_code = false;
    std::string_view name;
    bool has_name_rest = false;
    std::size_t name_rest = 0;  // which piece
  };
  enum class encoding : std::uint8_t { unknown, byte_each, utf8 };
  // Of the field.
  struct field_state {
    std::string_view whole;
    text_target target = text_target::nothing;  // the text that goes on
    encoding encoded = encoding::unknown;
    bool goes_on = false;  // behind its first piece
    std::string_view first_piece;
    std::size_t target_characters = 0;  // once it goes on
    std::size_t last_piece = 0;         // characters of the one that went on
  };

  bool take_number(int number);
  void read_code(tivex_stmt_tx_t& entry, char* digits);
  void read_subfield(tivex_stmt_tx_t& entry, int number, char* content, char* end);
  void read_text_key(tivex_stmt_tx_t& entry, char* content, char* end);
  void read_name(char* content, char* end);
  char name_separator();
  void read_name_rest(char* content, char* end);
  void read_purpose(char* content, char* end);
  bool is_full_line();
  void read_keyword(const keyword_row& row, char* content, char* end);
  std::size_t characters(std::string_view text);

  entry_texts& texts_;
  known_of_entry known_;
  field_state field_;
};

}  // namespace tivex
