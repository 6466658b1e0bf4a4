#pragma once

#include <tivex.h>

#include <string>
#include <vector>

namespace tivex_program {

struct row_fault {
  std::string key;  // empty when no single key is at fault
  std::string reason;
};

// Finds the key that the library refused in a list that it has just refused to
// add to the message, which is of the type named.
row_fault explain(const tivex_t* message, int message_type,
                  const std::vector<tivex_keyvalue_t>& list);

}  // namespace tivex_program
