#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tivex_program {

// Returns the candidate that the fewest changes of single letters turn the name
// into, case aside; of several the first one. There must be a candidate.
std::string_view nearest_name(std::string_view name, std::span<const std::string_view> candidates);

// Returns " (did you mean 'NAME'?)" where at most a third of the nearest candidate's letters
// have to change, else an empty text.
std::string near_name(std::string_view name, std::span<const std::string_view> candidates);

}  // namespace tivex_program
