#include "banks/conversion_table.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "banks/iban_conversion.h"
#include "files/csv_cell.h"
#include "files/csv_reader.h"
#include "terminal/progress_line.h"

namespace tivex_program {
namespace {

const std::vector<std::string> added_columns = {"iban", "bic", "bank", "status"};

void append_row(std::string& text, const std::vector<std::string>& cells,
                const std::vector<std::string>& added, char delimiter) {
  bool first = true;
  for (const std::vector<std::string>* part : {&cells, &added}) {
    for (const std::string& cell : *part) {
      if (!first) text += delimiter;
      first = false;
      text += csv_cell(cell, delimiter);
    }
  }
  text += '\n';
}

// Where a column stands; the number of columns when it is missing.
std::size_t find(const std::vector<std::string>& header, const std::string& name) {
  return static_cast<std::size_t>(std::find(header.begin(), header.end(), name) - header.begin());
}

std::string header_fault(const csv_row& header) {
  if (!header.fault.empty()) return header.fault;
  for (const char* const wanted : {"bank_code", "account"}) {
    if (std::count(header.cells.begin(), header.cells.end(), wanted) == 1) continue;
    return "the header does not name one column '" + std::string(wanted) +
           "' (is another --delimiter needed?)";
  }
  for (const std::string& added : added_columns) {
    if (find(header.cells, added) < header.cells.size()) {
      return "column '" + added + "' would occur twice";
    }
  }
  return {};
}

iban_conversion convert_row(const csv_row& row, const std::vector<std::string>& header) {
  iban_conversion conversion;
  if (!row.fault.empty()) {
    // Of a row that cannot be read its line is all that can be told.
    conversion.status = "line " + std::to_string(row.line) + ": " + row.fault;
  } else if (row.cells.size() != header.size()) {
    conversion.status = std::to_string(row.cells.size()) + " cells, the header names " +
                        std::to_string(header.size());
  } else {
    return convert_account(row.cells[find(header, "bank_code")],
                           row.cells[find(header, "account")]);
  }
  return conversion;
}

}  // namespace

conversion_table convert_rows(input_file& input, char delimiter) {
  conversion_table table;
  csv_reader reader(input, delimiter);
  csv_row row;
  if (!reader.next(row)) {
    table.error = input.name() + ": " + (input.error().empty() ? "no header" : input.error());
    return table;
  }
  const std::string fault = header_fault(row);
  if (!fault.empty()) {
    table.error = input.name() + ':' + std::to_string(row.line) + ": " + fault;
    return table;
  }
  const std::vector<std::string> header = row.cells;
  append_row(table.text, header, added_columns, delimiter);
  progress_line progress(input.size());
  while (reader.next(row)) {
    const iban_conversion conversion = convert_row(row, header);
    ++(conversion.made() ? table.converted : table.refused);
    row.cells.resize(std::max(row.cells.size(), header.size()));
    append_row(table.text, row.cells,
               {conversion.iban, conversion.bic, conversion.bank, conversion.status}, delimiter);
    progress.show(table.converted + table.refused, input.bytes_read());
  }
  if (!input.error().empty()) table.error = input.name() + ": " + input.error();
  return table;
}

}  // namespace tivex_program
