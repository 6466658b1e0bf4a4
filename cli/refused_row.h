#pragma once

#include <tivex.h>

#include <string>
#include <vector>

#include "transaction_kind.h"

namespace tivex_program {

struct row_fault {
  std::string key;  // empty when no single key is at fault
  std::string reason;
};

// Finds the key that the library refused in a list that it has just refused to
// add to the message.
row_fault explain(const tivex_t* message, const transaction_kind& kind,
                  const std::vector<tivex_keyvalue_t>& list);

}  // namespace tivex_program
