#pragma once

#include <string_view>

#include "files/wiped_bytes.h"

namespace tivex_program {

// The text with the line ends that the library wants: each is CR LF, one stands in front
// of a statement that opens the text, and one behind the last line. A text that has them
// already comes back the same.
wiped_bytes with_statement_lines(std::string_view text);

}  // namespace tivex_program
