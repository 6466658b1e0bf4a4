#pragma once

#include <string>
#include <string_view>

#include "payments/admitted_characters.h"

namespace tivex_program {

enum class rewriting { kept, changed, nothing_left };

// Writes a value with the characters admitted for its key. One of which nothing would be left
// stays.
rewriting write_with_admitted(std::string& value, std::string_view key,
                              admitted_characters& characters);

inline constexpr const char* nothing_is_left = "nothing is left of it in characters of SEPA";

}  // namespace tivex_program
