#pragma once

#include <map>
#include <optional>
#include <string>

#include "statements/statement_view.h"

namespace tivex_program {

// Writes the statements of one bank account as a journal of hledger, a transaction for each
// entry. Where they are whole, the balances that they state are asserted.
class hledger_journal {
 public:
  explicit hledger_journal(std::string assets) : assets_(std::move(assets)) {}

  // Returns what could not be written, empty when all was.
  std::string print(const statement_view& view);

 private:
  // What the journal has of a currency so far.
  struct history {
    std::string first;  // and last date of entries
    std::string last;
    std::optional<cents> balance;  // where the latest statement was whole
  };

  const tivex_stmt_tx_t* entry_to_assert(const statement_view& view);
  void print_opening_balance(const statement_view& view, const std::string& date) const;
  void print_entry(const statement_view& view, const tivex_stmt_tx_t& entry,
                   const std::string& date, bool asserts) const;

  std::string assets_;
  std::optional<std::string> bank_account_;
  std::map<std::string, history> histories_;
};

}  // namespace tivex_program
