#pragma once

#include <string_view>

namespace tivex_program {

// What a user can do about a reason for which a row is refused; empty when the reason says it.
std::string_view advice_for(std::string_view reason);

}  // namespace tivex_program
