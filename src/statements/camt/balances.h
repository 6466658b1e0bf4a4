#pragma once

#include <cstddef>

#include "statements/camt/values.h"
#include "tivex.h"

namespace tivex {

// Takes the opening and the closing balance of a statement from all that it states.
class balance_choice {
 public:
  void begin_statement() { *this = {}; }
  void add(const balance_value& balance, tivex_stmt_t& statement);
  void end_statement(tivex_stmt_t& statement) const;

 private:
  int opening_rank_ = 0;
  int closing_rank_ = 0;
  std::size_t interim_ = 0;
};

}  // namespace tivex
