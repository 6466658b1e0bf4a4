#include "files/column_reader.h"

#include <algorithm>

#include "files/column_names.h"

namespace tivex_program {

column_place find_column(const std::vector<std::string>& header, std::string_view name) {
  // One that is named as it stands is meant, whatever others are like it.
  const auto same = [&](const std::string& each) { return each == name; };
  const auto alike = [&](const std::string& each) {
    return !key_of_column(each, {&name, 1}).empty();
  };
  const bool exact = std::ranges::any_of(header, same);
  const auto count =
      exact ? std::ranges::count_if(header, same) : std::ranges::count_if(header, alike);
  if (count == 1) {
    const auto found =
        exact ? std::ranges::find_if(header, same) : std::ranges::find_if(header, alike);
    return {static_cast<std::size_t>(found - header.begin()), {}};
  }
  return {0, "the header does not name one column '" + std::string(name) +
                 "' (is another --delimiter needed?)"};
}

std::string row_fault(const csv_row& row, std::size_t header_size) {
  if (!row.fault.empty() || row.cells.size() == header_size) return row.fault;
  return std::to_string(row.cells.size()) + " cells, the header names " +
         std::to_string(header_size);
}

column_reader::column_reader(input_file& input, const table_wishes& wishes, std::string_view name)
    : reader_(input, wishes) {
  if (!reader_.next(row_)) {
    // What is wrong is no line's fault.
    row_.line = 0;
    column_.fault = input.error().empty() ? "no header" : "";
  } else if (column_.fault = row_.fault; column_.fault.empty()) {
    column_ = find_column(row_.cells, name);
    header_size_ = row_.cells.size();
  }
}

bool column_reader::next() { return column_.fault.empty() && reader_.next(row_); }

}  // namespace tivex_program
