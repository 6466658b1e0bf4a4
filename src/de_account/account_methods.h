#pragma once

#include <array>

#include "de_account/method_notation.h"

namespace tivex::check_digits {

// By a method's code as one byte, "52" as 0x52. Null for a code without a method,
// and for the methods that need the bank code.
extern const std::array<account_method*, 256> account_methods;

}  // namespace tivex::check_digits
