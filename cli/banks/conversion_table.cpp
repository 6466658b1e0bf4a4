#include "banks/conversion_table.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "banks/iban_conversion.h"
#include "files/column_reader.h"
#include "files/csv_reader.h"
#include "files/grouped_code.h"
#include "files/text_encoding.h"
#include "terminal/json_object.h"
#include "terminal/progress_line.h"

namespace tivex_program {
namespace {

const std::vector<std::string> added_columns = {"iban", "bic", "bank", "status"};

struct conversion_columns {
  std::size_t bank_code = 0;
  std::size_t account = 0;
  std::size_t header_size = 0;
  std::string fault;  // why the header is no good, empty when it is
};

void append_row(std::string& text, const std::vector<std::string>& cells,
                const std::vector<std::string>& added, const conversion_columns& columns,
                const table_style& style) {
  bool first = true;
  const auto append = [&](const std::string& cell, cell_kind kind) {
    if (!first) text += style.delimiter;
    first = false;
    text += table_cell(cell, kind, style);
  };
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const bool is_code = i == columns.bank_code || i == columns.account;
    append(cells[i], is_code ? cell_kind::text : cell_kind::unknown);
  }
  for (const std::string& cell : added) append(cell, cell_kind::text);
  text += '\n';
}

conversion_columns find_columns(const csv_row& header) {
  conversion_columns columns;
  columns.header_size = header.cells.size();
  columns.fault = header.fault;
  for (const auto& [name, place] : {std::pair("bank_code", &conversion_columns::bank_code),
                                    std::pair("account", &conversion_columns::account)}) {
    if (!columns.fault.empty()) return columns;
    const column_place found = find_column(header.cells, name);
    columns.*place = found.place;
    columns.fault = found.fault;
  }
  return columns;
}

// Why no columns may be added to the header, empty when they may.
std::string addition_fault(const csv_row& header) {
  for (const std::string& added : added_columns) {
    if (std::ranges::count(header.cells, added) > 0) {
      return "column '" + added + "' would occur twice";
    }
  }
  return {};
}

iban_conversion convert_row(const csv_row& row, const conversion_columns& columns) {
  iban_conversion conversion;
  conversion.status = row_fault(row, columns.header_size);
  // Of a row that cannot be read its line is all that can be told.
  if (!row.fault.empty()) {
    conversion.status = "line " + std::to_string(row.line) + ": " + row.fault;
  }
  if (!conversion.status.empty()) return conversion;
  return convert_account(joined_groups(row.cells[columns.bank_code]),
                         joined_groups(row.cells[columns.account]));
}

void append_object(std::string& text, const csv_row& row, const conversion_columns& columns,
                   const iban_conversion& conversion) {
  json_object object;
  object.add_number("line", row.line);
  if (row_fault(row, columns.header_size).empty()) {
    object.add_text("bank_code", row.cells[columns.bank_code]);
    object.add_text("account", row.cells[columns.account]);
  } else {
    object.add_null("bank_code");
    object.add_null("account");
  }
  add_conversion(object, conversion);
  text += object.line();
  text += '\n';
}

}  // namespace

conversion_totals convert_rows(input_file& input, const table_wishes& wishes, conversion_form form,
                               table_style style, const line_taker& take, bool shows_progress) {
  conversion_totals totals;
  csv_reader reader(input, wishes);
  if (style.delimiter == '\0') style.delimiter = reader.separator();
  csv_row row;
  if (!reader.next(row)) {
    totals.error = input.name() + ": " + (input.error().empty() ? "no header" : input.error());
    return totals;
  }
  const bool as_csv = form == conversion_form::csv;
  const conversion_columns columns = find_columns(row);
  std::string fault = columns.fault;
  if (fault.empty() && as_csv) fault = addition_fault(row);
  if (!fault.empty()) {
    totals.error = input.name() + ':' + std::to_string(row.line) + ": " + fault;
    return totals;
  }
  std::string text;
  if (as_csv) {
    text = table_opening(style);
    append_row(text, row.cells, added_columns, columns, style);
  }
  progress_line progress(input.size(), shows_progress);
  while (take(text) && reader.next(row)) {
    iban_conversion conversion;
    if (std::ranges::all_of(row.cells, [](const std::string& cell) { return is_utf8(cell); })) {
      conversion = convert_row(row, columns);
    } else {
      conversion.status = "not in the encoding of the lines before";
      for (std::string& cell : row.cells) cell = to_utf8(cell, text_encoding::utf8);
    }
    ++(conversion.made() ? totals.converted : totals.refused);
    text.clear();
    if (as_csv) {
      row.cells.resize(std::max(row.cells.size(), columns.header_size));
      append_row(text, row.cells,
                 {conversion.iban, conversion.bic, conversion.bank, conversion.status}, columns,
                 style);
    } else {
      append_object(text, row, columns, conversion);
    }
    progress.show(totals.converted + totals.refused, input.bytes_read());
  }
  if (!input.error().empty()) totals.error = input.name() + ": " + input.error();
  return totals;
}

}  // namespace tivex_program
