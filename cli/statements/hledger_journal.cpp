#include "statements/hledger_journal.h"

#include <algorithm>

#include "statements/hledger_texts.h"
#include "statements/one_line.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

// Where hledger's user sorts them out from.
constexpr const char* unknown_income = "income:unknown";
constexpr const char* unknown_expense = "expenses:unknown";
constexpr const char* start_of_assets = "equity:opening/closing balances";

// What a transaction bears as tags, under the names that JSON and CSV have.
struct tag {
  const char* name;
  const char* (*text)(const tivex_stmt_tx_t& entry);
};
using entry = tivex_stmt_tx_t;
template <auto member>
const char* text_of(const entry& of) {
  return of.*member;
}
constexpr tag tags[] = {
    {"customer_ref", text_of<&entry::customer_ref>},
    {"bank_ref", text_of<&entry::bank_ref>},
    {"booking_text", text_of<&entry::booking_text>},
    {"bank_code", text_of<&entry::bank_code>},
    {"account_no", text_of<&entry::account_no>},
    {"eref", text_of<&entry::eref>},
    {"kref", text_of<&entry::kref>},
    {"mref", text_of<&entry::mref>},
    {"cred", text_of<&entry::cred>},
    {"debt", text_of<&entry::debt>},
    {"purp", text_of<&entry::purp>},
    {"coam", text_of<&entry::coam>},
    {"oamt", text_of<&entry::oamt>},
    {"abwa", text_of<&entry::abwa>},
    {"abwe", text_of<&entry::abwe>},
    {"return_reason", text_of<&entry::return_reason>},
};

std::string plain(const statement_view& view, const char* text) {
  return text == nullptr ? std::string() : one_line(text, view.encoding);
}

std::string name_of(const statement_view& view, const entry& of) {
  return plain(view, of.full_name != nullptr ? of.full_name : of.name);
}

double effect(const entry& of) { return of.reversal != 0 ? -of.amount : of.amount; }

// Empty where the entry has none.
std::string date_text(const entry& of) {
  const std::optional<statement_date> date = entry_date(of);
  return date ? journal_date(*date) : std::string();
}

bool is_whole(const statement_view& view) {
  const tivex_stmt_t& statement = view.statement;
  if (!view.balance_fault.empty() || view.period.first || view.period.last) return false;
  bool whole = is_of_cents(statement.opening_balance) && is_of_cents(statement.closing_balance);
  for (const entry* each = statement.first_tx; each != nullptr; each = each->next) {
    whole = whole && is_of_cents(each->amount) && !date_text(*each).empty();
  }
  return whole;
}

struct dated_entries {
  std::string first;  // and last date
  std::string last;
  const entry* latest = nullptr;  // the last one of the last date
};

dated_entries order_of(const tivex_stmt_t& statement) {
  dated_entries order;
  for (const entry* each = statement.first_tx; each != nullptr; each = each->next) {
    const std::string date = date_text(*each);
    if (date.empty()) continue;
    if (order.first.empty() || date < order.first) order.first = date;
    if (date < order.last) continue;
    order.last = date;
    order.latest = each;
  }
  return order;
}

// Whether the statement has an entry before the date.
bool goes_back(const tivex_stmt_t* statement, const std::string& date) {
  return statement != nullptr && order_of(*statement).first < date;
}

std::string posting(const std::string& account, const std::string& amount = {}) {
  return "    " + account + (amount.empty() ? "" : "  ") + amount + '\n';
}

}  // namespace

std::string hledger_journal::print(const statement_view& view) {
  const std::string named = plain(view, view.statement.account);
  const std::string bank_account = named.empty() ? "-" : named;
  if (!bank_account_) bank_account_ = bank_account;
  if (*bank_account_ != bank_account) {
    return "account " + bank_account + ", but the journal is that of account " + *bank_account_;
  }
  const entry* const asserted = entry_to_assert(view);
  std::size_t undated = 0;
  for_each_entry(view, [&](const entry& each) {
    const std::string date = date_text(each);
    undated += date.empty();
    if (!date.empty()) print_entry(view, each, date, &each == asserted);
  });
  if (undated == 0) return {};
  return std::to_string(undated) + (undated == 1 ? " entry" : " entries") +
         " without a date left out";
}

// Returns the last entry, in hledger's order, when the closing balance holds behind it. A
// statement that does not go on from the one before gets its opening balance.
const tivex_stmt_tx_t* hledger_journal::entry_to_assert(const statement_view& view) {
  const tivex_stmt_t& statement = view.statement;
  const dated_entries dated = order_of(statement);
  if (dated.latest == nullptr) return nullptr;
  history& past = histories_[currency_of(statement)];
  const bool is_next = past.last <= dated.first;
  const bool in_order = is_next || dated.last < past.first;
  const bool whole = in_order && is_whole(view);
  const bool goes_on = past.balance == cents_of(statement.opening_balance) && is_next;
  if (whole && !goes_on) print_opening_balance(view, dated.first);
  past.balance.reset();
  if (whole && is_next) past.balance = cents_of(statement.closing_balance);
  past.first = past.first.empty() ? dated.first : std::min(past.first, dated.first);
  past.last = std::max(past.last, dated.last);
  return whole && !goes_back(statement.next, dated.last) ? dated.latest : nullptr;
}

// As what is there to be: months that are appended to one journal need it once.
void hledger_journal::print_opening_balance(const statement_view& view,
                                            const std::string& date) const {
  const std::string balance =
      journal_amount(view.statement.opening_balance, currency_of(view.statement));
  print_to_standard_output(date + " * opening balance\n" + posting(assets_, "= " + balance) +
                           posting(start_of_assets) + '\n');
}

void hledger_journal::print_entry(const statement_view& view, const tivex_stmt_tx_t& entry,
                                  const std::string& date, bool asserts) const {
  const std::string currency = currency_of(view.statement);
  std::string text = date;
  if (const auto value = date_of(entry.value_date); value && journal_date(*value) != date) {
    text += '=' + journal_date(*value);
  }
  text += " * " +
          journal_description(name_of(view, entry), one_line(remittance_of(entry), view.encoding));
  text.resize(text.find_last_not_of(' ') + 1);
  text += '\n';
  for (const tag& each : tags) {
    const std::string value = plain(view, each.text(entry));
    if (!value.empty() && value != "NONREF") {
      text += std::string("    ; ") + each.name + ": " + journal_tag_value(value) + '\n';
    }
  }
  std::string amount = journal_amount(effect(entry), currency);
  if (asserts) amount += " = " + journal_amount(view.statement.closing_balance, currency);
  text += posting(assets_, amount);
  // What a reversal gives back returns to where it came from.
  text += posting(entry.amount < 0 ? unknown_expense : unknown_income);
  print_to_standard_output(text + '\n');
}

}  // namespace tivex_program
