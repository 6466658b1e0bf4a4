// The records of an entry.
#pragma once

#include "statements/camt/bank_code.h"
#include "statements/camt/values.h"
#include "statements/statement_parser.h"

namespace tivex {

// A transaction of an entry that has several, in their order.
struct kept_transaction {
  alignas(double) transaction_value value;
  kept_transaction* next;
};

// Makes the records of one entry. Its texts are cut where they stand.
class entry_records {
 public:
  entry_records(statement_parser& parser, tivex_stmt_t& statement, const char* own_account,
                const entry_value& entry)
      : parser_(parser),
        statement_(statement),
        own_account_(own_account),
        entry_(entry),
        entry_code_(read_bank_code(entry.code.proprietary)) {}

  // The record of an entry with its one transaction, or with none (null). False when memory
  // is exhausted.
  bool append(const transaction_value* transaction);

  // Whether the amounts of several transactions make up the entry's.
  bool add_up(const kept_transaction* transactions) const;
  // A record for each of them.
  bool append_each(const kept_transaction* transactions);

 private:
  // What one record is made of.
  struct part {
    const transaction_value& transaction;
    const money_value& amount;
    bool is_debit;
  };

  tivex_stmt_tx_t* append_part(const part& of);
  void fill_dates(tivex_stmt_tx_t& record) const;
  void fill_amounts(tivex_stmt_tx_t& record, const part& of) const;
  void fill_code(tivex_stmt_tx_t& record, const transaction_value& transaction) const;
  void fill_references(tivex_stmt_tx_t& record, const transaction_value& transaction) const;
  bool fill_joined_texts(tivex_stmt_tx_t& record, const transaction_value& transaction);

  statement_parser& parser_;
  tivex_stmt_t& statement_;
  const char* own_account_;
  const entry_value& entry_;
  bank_transaction_code entry_code_;
};

// The amount that a transaction states; its text is null when it states none.
const money_value& own_amount(const transaction_value& transaction);

}  // namespace tivex
