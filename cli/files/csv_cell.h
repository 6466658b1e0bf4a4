#pragma once

#include <string>

namespace tivex_program {

// A cell as it stands in a CSV row: in quotes where it could be read otherwise.
inline std::string csv_cell(const std::string& cell, char delimiter) {
  const bool plain = cell.find_first_of(std::string("\"\r\n") + delimiter) == std::string::npos &&
                     !cell.starts_with(' ') && !cell.ends_with(' ');
  if (plain) return cell;
  std::string text = "\"";
  for (const char c : cell) text.append(c == '"' ? 2 : 1, c);
  return text + '"';
}

}  // namespace tivex_program
