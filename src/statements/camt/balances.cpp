#include "statements/camt/balances.h"

#include <string_view>

#include "statements/camt/dates_and_signs.h"
#include "statements/camt/exact_amount.h"
#include "statements/utf8.h"

namespace tivex {

namespace {

// What a balance may be; the higher rank wins. The first of a rank opens a statement, the
// last closes it.
struct balance_row {
  std::string_view code;
  int opening_rank;
  int closing_rank;
};

constexpr int interim_rank = 1;
constexpr balance_row balance_rows[] = {
    {"OPBD", 3, 0}, {"PRCD", 2, 0}, {"ITBD", interim_rank, interim_rank}, {"CLBD", 0, 2}};

void copy_balance(const balance_value& balance, std::tm& date, double& amount,
                  char (&currency)[4]) {
  date = read_date(balance.date);
  amount = with_sign(amount_of(balance.amount.number), is_debit(balance.indicator));
  copy_utf8_characters(currency, currency_of(balance.amount));
}

}  // namespace

void balance_choice::add(const balance_value& balance, tivex_stmt_t& statement) {
  if (balance.code == nullptr) return;
  for (const balance_row& row : balance_rows) {
    if (row.code != balance.code) continue;
    if (row.closing_rank == interim_rank) ++interim_;
    if (row.closing_rank != 0 && row.closing_rank >= closing_rank_) {
      closing_rank_ = row.closing_rank;
      copy_balance(balance, statement.closing_date, statement.closing_balance,
                   statement.closing_currency);
    }
    if (row.opening_rank > opening_rank_) {
      opening_rank_ = row.opening_rank;
      copy_balance(balance, statement.opening_date, statement.opening_balance,
                   statement.opening_currency);
    }
  }
}

// A single interim balance closes a statement, it does not open one.
void balance_choice::end_statement(tivex_stmt_t& statement) const {
  if (opening_rank_ != interim_rank || interim_ > 1) return;
  statement.opening_date = {};
  statement.opening_balance = 0;
  statement.opening_currency[0] = '\0';
}

}  // namespace tivex
