#pragma once

#include <functional>
#include <string>

#include "statements/parser_handle.h"

namespace tivex_program {

struct statement_file {
  std::string name;  // that of a file in an archive follows a "/"
  statement_parser_handle parser;
  std::string error;     // why there are no statements, empty when there are some
  std::string note;      // what of the file is not looked at, empty when all is
  bool is_xml = false;   // the library gives its texts in UTF-8
  bool is_utf8 = false;  // from its start to its end
};

// Reads the statements of a file, or of each file in a ZIP archive, and hands them over one
// after another; "-" is standard input. Strictly means the prescribed MT940 only.
void read_statement_files(const std::string& name, bool strict,
                          const std::function<void(const statement_file&)>& take);

}  // namespace tivex_program
