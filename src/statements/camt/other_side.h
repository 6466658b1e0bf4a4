#pragma once

#include "statements/camt/values.h"
#include "tivex.h"

namespace tivex {

// Who stands on which side of a transaction.
struct sides {
  const side_value& expected;  // the other side as the direction of the payment tells
  const side_value& opposite;
};

// Writes name, account and bank of the side that is not the statement's owner.
void fill_other_side(tivex_stmt_tx_t& record, const sides& sides, const char* own_account);

}  // namespace tivex
