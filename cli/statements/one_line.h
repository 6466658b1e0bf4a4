#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "files/text_encoding.h"
#include "terminal/diagnostics.h"

namespace tivex_program {

// A text of a statement in UTF-8 as a part of a line: its line feeds become blanks,
// other control characters visible.
inline std::string one_line(std::string_view text, text_encoding encoding) {
  std::string line = to_utf8(text, encoding);
  std::replace(line.begin(), line.end(), '\n', ' ');
  return printable(line);
}

}  // namespace tivex_program
