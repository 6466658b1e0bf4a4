#pragma once

#include <string_view>

#include "payments/admitted_characters.h"
#include "payments/row_fault.h"

namespace tivex_program {

// Says the library's reason why it refuses a value of the value as a reader sees it: with the
// character rather than its first byte, and with what was counted. Any other stays as it is.
void make_clear(row_fault& fault, std::string_view value, admitted_characters& characters);

}  // namespace tivex_program
