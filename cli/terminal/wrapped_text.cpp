#include "terminal/wrapped_text.h"

#include <algorithm>

namespace tivex_program {

std::string wrapped(std::string_view text, std::size_t column) {
  std::string lines;
  std::size_t used = column;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    if (used > column && used + 1 + word.size() > terminal_width) {
      lines.append(1, '\n').append(column, ' ');
      used = column;
    } else if (used > column) {
      lines += ' ';
      ++used;
    }
    lines += word;
    used += word.size();
    text.remove_prefix(std::min(word.size() + 1, text.size()));
  }
  return lines;
}

}  // namespace tivex_program
