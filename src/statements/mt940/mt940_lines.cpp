#include "statements/mt940/mt940_lines.h"

#include <algorithm>
#include <cstddef>

#include "core/number_scanner.h"
#include "statements/mt940/mt940_dates.h"
#include "transactions/decimal.h"

namespace tivex {

namespace {

constexpr std::size_t balance_tag_length = 5;  // ":60F:"
constexpr char debit_mark = 'D';

// The places of the statement that one of its balances fills.
struct balance_fields {
  std::tm& date;
  char (&currency)[4];
  double& amount;
};

line_outcome read_balance(const mt940_progress& progress, const balance_fields& balance) {
  constexpr std::size_t currency_length = 3;
  constexpr std::size_t longest_amount = 15;
  char* const mark = progress.at(balance_tag_length);
  char* const date_start = step(mark, progress.end, 1);
  char* const currency = step(date_start, progress.end, date_length);
  char* const amount = step(currency, progress.end, currency_length);
  if (!scan_date(between(date_start, progress.end), balance.date)) {
    return line_outcome::statement_ends;
  }
  complete_date(balance.date);
  // Of a text that ends here nothing new is read.
  if (currency < progress.end) copy_text(balance.currency, between(currency, amount));
  if (amount - currency < static_cast<std::ptrdiff_t>(currency_length)) {
    return line_outcome::statement_ends;
  }
  char* const amount_end = step(amount, progress.end, longest_amount);
  if (amount < progress.line_limit()) {
    point_for_comma(amount, std::min(amount_end, progress.line_limit()));
  }
  balance.amount = parse_decimal(amount, nullptr);
  if (*mark == debit_mark) balance.amount = -balance.amount;
  return line_outcome::next_line;
}

}  // namespace

line_outcome read_account(mt940_progress& progress) {
  constexpr std::size_t tag_length = 4;
  if (progress.line_end == nullptr) return line_outcome::statement_ends;
  progress.statement->account = progress.at(tag_length);
  *progress.line_end = '\0';
  return line_outcome::next_line;
}

line_outcome read_statement_number(mt940_progress& progress) {
  const std::string_view line = between(progress.line, progress.line_limit());
  const std::size_t number_at = line.find(':', 1) + 1;
  tivex_stmt_t& statement = *progress.statement;
  number_scanner scanner(between(progress.at(number_at), progress.end));
  if (!scanner.read_unsigned(statement.statement_no)) return line_outcome::statement_ends;
  // Only the slash has to stand in the tag's line; the numbers may stand further on.
  if (line.find('/', number_at) == std::string_view::npos) {
    statement.sequence_no = 0;
    return line_outcome::next_line;
  }
  const bool both = scanner.skip('/') && scanner.read_unsigned(statement.sequence_no);
  return both ? line_outcome::next_line : line_outcome::statement_ends;
}

line_outcome read_opening_balance(mt940_progress& progress) {
  tivex_stmt_t& statement = *progress.statement;
  return read_balance(
      progress, {statement.opening_date, statement.opening_currency, statement.opening_balance});
}

line_outcome read_closing_balance(mt940_progress& progress) {
  tivex_stmt_t& statement = *progress.statement;
  return read_balance(
      progress, {statement.closing_date, statement.closing_currency, statement.closing_balance});
}

}  // namespace tivex
