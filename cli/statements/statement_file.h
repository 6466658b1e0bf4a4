#pragma once

#include <string>

#include "files/text_encoding.h"
#include "statements/parser_handle.h"

namespace tivex_program {

struct statement_file {
  statement_parser_handle parser;
  std::string error;     // why there are no statements, empty when there are some
  bool is_utf8 = false;  // from its start to its end
};

// Reads the statements of a file; "-" is standard input. Unless it is to be taken
// strictly, its line ends are put right where the library would lose statements. What
// is done to the file, or ends it early, is told on standard error.
statement_file read_statement_file(const std::string& name, bool strict);

}  // namespace tivex_program
