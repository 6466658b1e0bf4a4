#pragma once

#include "statements/record_blocks.h"
#include "tivex.h"

namespace tivex {

// A new entry behind the others of a statement, or null when memory is exhausted.
inline tivex_stmt_tx_t* append_entry(record_blocks& records, tivex_stmt_t& statement) {
  auto* const entry = records.make<tivex_stmt_tx_t>();
  if (entry == nullptr) return nullptr;
  (statement.last_tx == nullptr ? statement.first_tx : statement.last_tx->next) = entry;
  statement.last_tx = entry;
  return entry;
}

}  // namespace tivex
