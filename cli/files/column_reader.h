#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "files/csv_reader.h"

namespace tivex_program {

// Where the one column of this name stands, or one of its aliases; nothing in the place and
// a reason when the header does not name it once.
struct column_place {
  std::size_t place = 0;
  std::string fault;
};
column_place find_column(const std::vector<std::string>& header, std::string_view name);

// Why the row cannot be read by the header, empty when it can.
std::string row_fault(const csv_row& row, std::size_t header_size);

// Reads the cells of one column of a CSV file.
class column_reader {
 public:
  column_reader(input_file& input, const table_wishes& wishes, std::string_view name);

  // Reads the next row. False at the end and when the file or its header is no good.
  bool next();
  std::size_t line() const { return row_.line; }
  // Of the latest row: its cell, or why it cannot be read.
  std::string_view cell() const { return row_.cells[column_.place]; }
  std::string fault() const { return row_fault(row_, header_size_); }
  // Why there is no such column, empty when there is.
  const std::string& header_fault() const { return column_.fault; }

 private:
  csv_reader reader_;
  csv_row row_;
  column_place column_;
  std::size_t header_size_ = 0;
};

}  // namespace tivex_program
