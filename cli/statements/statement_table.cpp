#include "statements/statement_table.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "statements/one_line.h"
#include "terminal/colours.h"
#include "terminal/labelled_line.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

constexpr std::size_t date_width = 10;

// An amount as it is shown: what has gone is red.
std::string shown(const std::string& amount) {
  return amount.starts_with('-') ? coloured(amount, colour::red, 1) : amount;
}

std::string date_text(const std::optional<statement_date>& date) {
  return date ? to_text(*date) : "-";
}

// The characters of a text, as many columns in a terminal.
std::size_t width_of(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

std::string blanks_up_to(std::size_t width, std::string_view text) {
  const std::size_t used = width_of(text);
  std::string blanks;
  blanks.resize(used < width ? width - used : 0, ' ');
  return blanks;
}

std::string name_of(const statement_view& view, const tivex_stmt_tx_t& entry) {
  return one_line(entry.name, view.encoding);
}

std::string text_of(const statement_view& view, const tivex_stmt_tx_t& entry) {
  std::string text = one_line(remittance_of(entry), view.encoding);
  if (entry.return_reason == nullptr) return text;
  return text + (text.empty() ? "returned: " : ", returned: ") +
         one_line(entry.return_reason, view.encoding);
}

// What the columns of a statement need, and what its entries add up to.
struct table_frame {
  std::size_t amount_width = 0;
  std::size_t name_width = 0;
  entry_totals totals;
};

table_frame measure(const statement_view& view) {
  table_frame frame;
  for_each_entry(view, [&](const tivex_stmt_tx_t& entry) {
    const cents effect = effect_of(entry);
    frame.totals.add(effect);
    frame.amount_width = std::max(frame.amount_width, to_text(effect).size());
    frame.name_width = std::max(frame.name_width, width_of(name_of(view, entry)));
  });
  return frame;
}

std::string entry_line(const statement_view& view, const tivex_stmt_tx_t& entry,
                       const table_frame& frame) {
  const std::string date = date_text(entry_date(entry));
  const std::string amount = to_text(effect_of(entry));
  const std::string name = name_of(view, entry);
  std::string line = "  " + date + blanks_up_to(date_width, date) + "  " +
                     blanks_up_to(frame.amount_width, amount) + shown(amount) +
                     (entry.reversal != 0 ? " R  " : "    ");
  if (frame.name_width > 0) line += name + blanks_up_to(frame.name_width, name) + "  ";
  line += text_of(view, entry);
  line.resize(line.find_last_not_of(' ') + 1);
  return line;
}

void print_line(std::string_view label, const std::string& value) {
  print_to_standard_output(labelled_line(label, value) + '\n');
}

std::string or_dash(const std::string& text) { return text.empty() ? "-" : text; }

// A dash when the statement has no such balance.
std::string balance_text(double balance, const char* currency) {
  return *currency == '\0' ? "-" : shown(to_text(cents_of(balance)));
}

void print_head(const statement_view& view) {
  const tivex_stmt_t& statement = view.statement;
  print_line("file", one_line(view.file, text_encoding::utf8));
  print_line("account", statement.account == nullptr
                            ? "-"
                            : or_dash(one_line(statement.account, view.encoding)));
  print_line("statement", number_of(statement));
  print_line("period", date_text(date_of(statement.opening_date)) + " to " +
                           date_text(date_of(statement.closing_date)));
  print_line("currency", or_dash(one_line(currency_of(statement), view.encoding)));
  print_line("opening balance",
             balance_text(statement.opening_balance, statement.opening_currency));
}

std::size_t count_all(const tivex_stmt_t& statement) {
  std::size_t count = 0;
  for (const tivex_stmt_tx_t* entry = statement.first_tx; entry != nullptr; entry = entry->next) {
    ++count;
  }
  return count;
}

void print_foot(const statement_view& view, const entry_totals& totals) {
  const tivex_stmt_t& statement = view.statement;
  const std::size_t all = count_all(statement);
  const std::string count = std::to_string(totals.count);
  print_line("entries", totals.count == all ? count : count + " of " + std::to_string(all));
  print_line("credits", shown(to_text(totals.credits)));
  print_line("debits", shown(to_text(totals.debits)));
  print_line("closing balance",
             balance_text(statement.closing_balance, statement.closing_currency));
  print_line("balance check",
             view.balance_fault.empty()
                 ? "adds up"
                 : coloured(one_line(view.balance_fault, view.encoding), colour::bold_red, 1));
}

}  // namespace

void begin_statement_table(const table_style&) {}

void print_statement_table(const statement_view& view, bool first) {
  if (!first) print_to_standard_output("\n");
  const table_frame frame = measure(view);
  print_head(view);
  for_each_entry(view, [&](const tivex_stmt_tx_t& entry) {
    print_to_standard_output(entry_line(view, entry, frame) + '\n');
  });
  print_foot(view, frame.totals);
}

void end_statement_table() {}

}  // namespace tivex_program
