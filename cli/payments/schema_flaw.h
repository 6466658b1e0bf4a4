// The library's texts on what a schema does not accept of a message.
#pragma once

#include <string>
#include <string_view>

#include "payments/refused_row.h"

namespace tivex_program {

// A text on the header with the option that sets the value in place of the value's
// name; any other text as it is.
std::string header_flaw(std::string_view error);

// The key and the reason in a text on a transaction; no key in any other.
row_fault transaction_flaw(std::string_view error);

}  // namespace tivex_program
