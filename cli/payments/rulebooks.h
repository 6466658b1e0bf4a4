#pragma once

#include <string>

namespace tivex_program {

inline constexpr const char* default_rulebook = "DE-3.7";
// The rulebook whose addresses are structured.
inline constexpr const char* structured_rulebook = "DE-3.7";

// For texts only: the library decides which names it takes.
inline constexpr const char* known_rulebooks =
    "DE-2.6, DE-2.7, DE-2.8, DE-2.9, DE-3.0, DE-3.1, DE-3.5, DE-3.7, AT-6, NL-6";

// Selects the rulebook for the whole process. Returns the reason why not, which
// lists the known names, or an empty text.
std::string select_rulebook(const std::string& name);

}  // namespace tivex_program
