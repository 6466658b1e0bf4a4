#include "commands/table_options.h"

#include <CLI/CLI.hpp>

#include "files/table_form.h"

namespace tivex_program {

void add_table_options(CLI::App& command, std::string& delimiter, std::string& encoding) {
  command
      .add_option("--delimiter", delimiter,
                  "What separates the cells: , ; | tab or auto (found by looking)")
      ->type_name("CHAR")
      ->check(CLI::IsMember(table_separators).description(""))
      ->capture_default_str();
  command
      .add_option("--encoding", encoding,
                  "Encoding of the file: utf-8, utf-16, windows-1252 or auto (found by looking)")
      ->type_name("NAME")
      ->check(CLI::IsMember(table_encodings).description(""))
      ->capture_default_str();
}

}  // namespace tivex_program
