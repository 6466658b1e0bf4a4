#pragma once

#include <cstdint>
#include <span>

#include "payments/columns.h"

namespace tivex_program {

// What the program knows of the transactions of one type of message.
struct transaction_kind {
  int message_type;
  std::span<const column> columns;
  std::uint64_t least_bytes;  // of a document that each takes
};

}  // namespace tivex_program
