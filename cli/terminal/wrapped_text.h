#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tivex_program {

inline constexpr std::size_t terminal_width = 80;

// Returns the text with line ends in place of blanks, so that its lines fit a terminal when
// they start at a column. Each but the first begins with as many blanks.
std::string wrapped(std::string_view text, std::size_t column);

}  // namespace tivex_program
