// Reads the statements of a file line by line.
#pragma once

#include "statements/dialects/dialect_lines.h"
#include "statements/dialects/entry_texts.h"
#include "statements/dialects/structured_text.h"
#include "statements/dialects/word_text.h"
#include "statements/statement_parser.h"

namespace tivex {

class dialect_reader {
 public:
  dialect_reader(statement_parser& parser, char* text, char* end)
      : parser_(parser), lines_(text, end), structured_(texts_), words_(texts_) {}

  // False when memory is exhausted.
  bool read();

 private:
  bool read_line();
  bool read_tag();
  bool open_statement();
  // Puts together what was gathered for the entry; what follows does not belong to it.
  bool finish_entry();

  void read_reference();
  void read_account();
  void read_statement_number();
  bool read_entry();
  void read_information();
  void read_addition();

  statement_parser& parser_;
  dialect_lines lines_;
  tivex_stmt_t* statement_ = nullptr;  // the open one
  tivex_stmt_tx_t* entry_ = nullptr;   // the one that texts belong to
  bool any_tag_ = false;
  entry_texts texts_;
  structured_text structured_;
  word_text words_;
};

}  // namespace tivex
