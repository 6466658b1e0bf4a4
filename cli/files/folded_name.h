#pragma once

#include <string>
#include <string_view>

namespace tivex_program {

// The name of a column as it is compared: small letters without accents and digits, nothing
// else; "Empfänger", "EMPFAENGER" and "Empfanger" are the same.
std::string folded_name(std::string_view name);

}  // namespace tivex_program
