#include "statements/statement_csv.h"

#include <string>

#include "statements/one_line.h"
#include "statements/statement_fields.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

constexpr const char* repeated_columns[] = {"file", "account", "statement_no", "currency"};

struct cell {
  std::string text;
  cell_kind kind;
};

// Makes a cell of what a field holds.
struct cell_maker {
  text_encoding encoding;

  cell operator()(std::monostate) const { return {"", cell_kind::text}; }
  cell operator()(bool flag) const { return {flag ? "1" : "0", cell_kind::number}; }
  cell operator()(std::int64_t number) const { return {std::to_string(number), cell_kind::number}; }
  // Hyphens keep dates apart from numbers in every language.
  cell operator()(const statement_date& date) const { return {to_text(date), cell_kind::number}; }
  cell operator()(std::string_view text) const {
    return {one_line(text, encoding), cell_kind::text};
  }
  cell operator()(double amount) const { return {to_text(cents_of(amount)), cell_kind::number}; }
};

void append(std::string& row, const cell& added, const table_style& style) {
  if (!row.empty()) row += style.delimiter;
  row += table_cell(added.text, added.kind, style);
}

// The cells that the statement's entries share.
std::string repeated_cells(const statement_view& view) {
  const tivex_stmt_t& statement = view.statement;
  const char* const account = statement.account == nullptr ? "" : statement.account;
  std::string row;
  for (const cell& each :
       {cell{one_line(view.file, text_encoding::utf8), cell_kind::text},
        cell{one_line(account, view.encoding), cell_kind::text},
        cell{std::to_string(statement.statement_no), cell_kind::number},
        cell{one_line(currency_of(statement), view.encoding), cell_kind::text}}) {
    append(row, each, view.style);
  }
  return row;
}

}  // namespace

void begin_statement_csv(const table_style& style) {
  std::string header;
  for (const char* const name : repeated_columns) append(header, {name, cell_kind::text}, style);
  for (const auto& field : entry_fields) append(header, {field.name, cell_kind::text}, style);
  print_to_standard_output(std::string(table_opening(style)) + header + '\n');
}

void print_statement_csv(const statement_view& view, bool) {
  const std::string start = repeated_cells(view);
  for_each_entry(view, [&](const tivex_stmt_tx_t& entry) {
    std::string row = start;
    for (const auto& field : entry_fields) {
      append(row, std::visit(cell_maker{view.encoding}, field.value(entry)), view.style);
    }
    print_to_standard_output(row + '\n');
  });
}

void end_statement_csv() {}

}  // namespace tivex_program
