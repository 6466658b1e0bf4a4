// A text file of the edition: a commented header, a line with the columns'
// names, and rows of fields between tabs.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "faults.h"
#include "field_forms.h"

namespace tivex_edition {

struct text_row {
  int line = 0;
  std::vector<std::string> fields;
};

struct text_table {
  std::string title;
  std::string source;
  std::string valid_from;
  std::vector<text_row> rows;
};

// Reads a file. Every line that does not fit is named, by the file's name
// without its folder, and left out.
text_table read_text_table(const std::filesystem::path& path, std::span<const column_form> columns,
                           fault_list& faults);

// Writes the file that is read back as this table; the rows' line numbers play
// no part.
void write_text_table(const std::filesystem::path& path, std::span<const column_form> columns,
                      const text_table& table, fault_list& faults);

}  // namespace tivex_edition
