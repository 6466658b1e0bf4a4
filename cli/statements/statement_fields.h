#pragma once

#include <tivex.h>

#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "statements/statement_date.h"

namespace tivex_program {

// What a field of a record holds; nothing when the file did not.
using field_value =
    std::variant<std::monostate, bool, std::int64_t, double, statement_date, std::string_view>;

template <typename record>
struct record_field {
  const char* name;
  field_value (*value)(const record& of);
};

// The fields of the records under their names, in their order.
extern const std::span<const record_field<tivex_stmt_t>> statement_fields;
extern const std::span<const record_field<tivex_stmt_tx_t>> entry_fields;

}  // namespace tivex_program
