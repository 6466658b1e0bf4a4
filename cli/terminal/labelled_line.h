#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tivex_program {

// A line of a summary: the label, and the value in a column of its own.
inline std::string labelled_line(std::string_view label, const std::string& value) {
  constexpr std::size_t label_width = 16;
  std::string text(label);
  text.resize(label_width, ' ');
  return text + value;
}

}  // namespace tivex_program
