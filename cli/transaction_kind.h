#pragma once

#include <tivex.h>

#include <span>
#include <string_view>

#include "columns.h"

namespace tivex_program {

// A reason that the library refuses a transaction for although each of its
// values is right, and the key that it lacks.
struct missing_value {
  std::string_view reason;
  const char* key;
};

// What the program knows of the transactions of one type of message.
struct transaction_kind {
  int message_type;
  std::span<const column> columns;
  // A transaction that every rulebook takes; a value that follows replaces its own.
  std::span<const tivex_keyvalue_t> sound_values;
  std::span<const missing_value> missing_values;
};

}  // namespace tivex_program
