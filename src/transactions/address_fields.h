#pragma once

#include <span>

#include "transactions/transaction.h"
#include "validation/format_check.h"

namespace tivex {

// A key whose value is stored as it stands when it has the form of a kind.
struct field_row {
  const char* key;
  format_kind kind;
  owned_text transaction::*destination;
};

// The parts of a structured postal address (ISO 20022).
extern const std::span<const field_row> structured_address_fields;

// The row with a key; null when there is none.
const field_row* find_field(std::span<const field_row> table, const char* key);

enum class field_outcome { unknown_key, stored, refused };

// Stores a copy of the value in the field that the key names, in place of the
// one held there. A value without the form of its kind is refused, with the
// reason in the message. A copy that cannot be allocated leaves the
// field unset.
field_outcome field_table_set(message& msg, transaction& target, const tivex_keyvalue_t& entry,
                              std::span<const field_row> table);

}  // namespace tivex
