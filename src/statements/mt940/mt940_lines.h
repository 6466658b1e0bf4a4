// The lines of a statement: a tag, and what it says.
#pragma once

#include "statements/mt940/mt940_text.h"
#include "statements/record_blocks.h"
#include "statements/text_steps.h"
#include "tivex.h"

namespace tivex {

// What a line means for the road through the text.
enum class line_outcome { next_line, statement_ends, no_memory };

// Where parsing stands.
struct mt940_progress {
  mt940_progress(char* text, char* text_end, record_blocks& made)
      : end(text_end),
        line(text),
        records(made),
        next_n('N', text_end),
        next_comma(',', text_end),
        last_tag(text, text_end) {}

  char* end;                 // of the text
  char* line;                // its first character
  char* line_end = nullptr;  // its CR; null when no line end follows
  record_blocks& records;
  tivex_stmt_t* statement = nullptr;
  tivex_stmt_tx_t* entry = nullptr;  // the last one, be it of an earlier statement
  next_character next_n;
  next_character next_comma;
  last_tag_start last_tag;

  // The line's end, or the text's.
  char* line_limit() const { return line_end == nullptr ? end : line_end; }
  // The line goes on so many characters behind its start, at most to the text's end.
  char* at(std::size_t offset) const { return step(line, end, offset); }
};

using line_reader = line_outcome(mt940_progress& progress);

line_reader read_account;           // tag 25
line_reader read_statement_number;  // tag 28
line_reader read_opening_balance;   // tag 60
line_reader read_closing_balance;   // tag 62
line_reader read_entry;             // tag 61
// Tag 86, whose field may take several lines: sets the line end to that of the last.
line_reader read_information;

}  // namespace tivex
