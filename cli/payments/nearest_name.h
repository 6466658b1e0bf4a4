#pragma once

#include <span>
#include <string_view>

namespace tivex_program {

// Returns the candidate that the fewest changes of single letters turn the name
// into, case aside; of several the first one. There must be a candidate.
std::string_view nearest_name(std::string_view name, std::span<const std::string_view> candidates);

}  // namespace tivex_program
