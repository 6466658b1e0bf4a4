#include "statements/statement_csv.h"

#include <string>

#include "files/csv_cell.h"
#include "statements/one_line.h"
#include "statements/statement_fields.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

constexpr char delimiter = ',';
constexpr const char* repeated_columns = "file,account,statement_no,currency";

// Makes the text of a cell of what a field holds.
struct cell_maker {
  text_encoding encoding;

  std::string operator()(std::monostate) const { return {}; }
  std::string operator()(bool flag) const { return flag ? "1" : "0"; }
  std::string operator()(std::int64_t number) const { return std::to_string(number); }
  std::string operator()(const statement_date& date) const { return to_text(date); }
  std::string operator()(std::string_view text) const { return one_line(text, encoding); }
  std::string operator()(double amount) const { return to_text(cents_of(amount)); }
};

void append(std::string& row, const std::string& cell) {
  if (!row.empty()) row += delimiter;
  row += csv_cell(cell, delimiter);
}

// The cells that the statement's entries share.
std::string repeated_cells(const statement_view& view) {
  const tivex_stmt_t& statement = view.statement;
  std::string row;
  append(row, one_line(view.file, text_encoding::utf8));
  append(row, statement.account == nullptr ? "" : one_line(statement.account, view.encoding));
  append(row, std::to_string(statement.statement_no));
  append(row, one_line(currency_of(statement), view.encoding));
  return row;
}

}  // namespace

void begin_statement_csv() {
  std::string header = repeated_columns;
  for (const auto& field : entry_fields) append(header, field.name);
  print_to_standard_output(header + '\n');
}

void print_statement_csv(const statement_view& view, bool) {
  const std::string start = repeated_cells(view);
  for_each_entry(view, [&](const tivex_stmt_tx_t& entry) {
    std::string row = start;
    for (const auto& field : entry_fields) {
      append(row, std::visit(cell_maker{view.encoding}, field.value(entry)));
    }
    print_to_standard_output(row + '\n');
  });
}

void end_statement_csv() {}

}  // namespace tivex_program
