#include "statements/statement_lines.h"

namespace tivex_program {
namespace {

constexpr std::string_view line_end = "\r\n";

constexpr std::string_view known_line_ends[] = {"\r\n", "\r", "\n"};  // longest first

std::size_t line_end_length(std::string_view text) {
  for (const std::string_view known : known_line_ends) {
    if (text.starts_with(known)) return known.size();
  }
  return 0;
}

void append(wiped_bytes& bytes, std::string_view text) {
  bytes.insert(bytes.end(), text.begin(), text.end());
}

}  // namespace

wiped_bytes with_statement_lines(std::string_view text) {
  constexpr std::string_view marked_start = "\xEF\xBB\xBF:20:";
  constexpr std::string_view start = marked_start.substr(3);
  wiped_bytes lines;
  // A byte order mark would stand between the line end and the statement.
  if (text.starts_with(marked_start)) text.remove_prefix(marked_start.size() - start.size());
  if (text.starts_with(start)) append(lines, line_end);
  while (!text.empty()) {
    const std::size_t length = text.find_first_of("\r\n");
    append(lines, text.substr(0, length));
    append(lines, line_end);
    if (length == std::string_view::npos) break;
    text.remove_prefix(length);
    text.remove_prefix(line_end_length(text));
  }
  return lines;
}

}  // namespace tivex_program
