#include "transactions/address_fields.h"

namespace tivex {

bool field_table_set(message& msg, transaction& target, const tivex_keyvalue_t& entry,
                     const field_row& row) {
  if (!format_check(row.kind, entry.value)) {
    return msg.fail_with("Invalid format for '%.255s'", entry.key);
  }
  msg.keep_copy(target.*row.destination, entry.value);
  return true;
}

}  // namespace tivex
