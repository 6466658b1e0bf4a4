#pragma once

#include <span>

#include "columns.h"

namespace tivex_program {

// What the program knows of the transactions of one type of message.
struct transaction_kind {
  int message_type;
  std::span<const column> columns;
};

}  // namespace tivex_program
