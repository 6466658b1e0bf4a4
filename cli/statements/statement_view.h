#pragma once

#include <tivex.h>

#include <optional>
#include <string>
#include <string_view>

#include "files/table_style.h"
#include "files/text_encoding.h"
#include "statements/statement_balance.h"
#include "statements/statement_date.h"

namespace tivex_program {

// A statement and how it is to be shown.
struct statement_view {
  const std::string& file;
  const tivex_stmt_t& statement;
  const statement_period& period;
  text_encoding encoding;
  const table_style& style;
  std::string balance_fault;  // empty when there is none
};

// The date by which entries are chosen.
inline std::optional<statement_date> entry_date(const tivex_stmt_tx_t& entry) {
  const std::optional<statement_date> booked = date_of(entry.booking_date);
  return booked ? booked : date_of(entry.value_date);
}

// Hands over each entry within the period, in the order of the statement.
template <typename function>
void for_each_entry(const statement_view& view, const function& take) {
  for (const tivex_stmt_tx_t* entry = view.statement.first_tx; entry != nullptr;
       entry = entry->next) {
    if (view.period.holds(entry_date(*entry))) take(*entry);
  }
}

// What the other side says, else what the bank does.
inline std::string_view remittance_of(const tivex_stmt_tx_t& entry) {
  for (const char* const text : {entry.svwz, entry.purpose, entry.booking_text}) {
    if (text != nullptr && *text != '\0') return text;
  }
  return {};
}

inline std::string currency_of(const tivex_stmt_t& statement) {
  return *statement.opening_currency != '\0' ? statement.opening_currency
                                             : statement.closing_currency;
}

// With the number of the part, when it has one.
inline std::string number_of(const tivex_stmt_t& statement) {
  const std::string number = std::to_string(statement.statement_no);
  return statement.sequence_no == 0 ? number : number + '/' + std::to_string(statement.sequence_no);
}

}  // namespace tivex_program
