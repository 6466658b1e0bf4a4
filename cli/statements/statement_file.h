#pragma once

#include <string>

#include "files/text_encoding.h"
#include "statements/parser_handle.h"

namespace tivex_program {

struct statement_file {
  statement_parser_handle parser;
  std::string error;     // why there are no statements, empty when there are some
  std::string note;      // what of the file is not looked at, empty when all is
  bool is_utf8 = false;  // from its start to its end
};

// Reads the statements of a file; "-" is standard input. Unless it is to be taken
// strictly, its line ends are put right where the library would lose statements.
statement_file read_statement_file(const std::string& name, bool strict);

}  // namespace tivex_program
