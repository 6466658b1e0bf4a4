#pragma once

#include <tivex.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace tivex_program {

// Amounts are added up in cents: whole numbers have no rounding errors.
using cents = std::int64_t;

// The nearest number of cents. Amounts that a double no longer holds to the cent count
// as the largest of those that it does.
cents cents_of(double amount);

// With two decimals and a point.
std::string to_text(cents amount);

// What an entry does to the balance: a reversal takes its amount back.
cents effect_of(const tivex_stmt_tx_t& entry);

struct entry_totals {
  std::size_t count = 0;
  cents credits = 0;
  cents debits = 0;  // negative

  void add(cents effect);
};

// Returns why the closing balance does not follow from the opening balance and the
// entries, empty when it does.
std::string balance_fault(const tivex_stmt_t& statement);

}  // namespace tivex_program
