#pragma once

#include <string>
#include <string_view>

namespace tivex_program {

enum class colour { red, bold_red };

// Returns the text in the colour for a terminal on standard output (1) or standard error (2),
// and as it is for anything else, for a terminal without colours and when NO_COLOR is set.
std::string coloured(std::string_view text, colour shade, int stream);

}  // namespace tivex_program
