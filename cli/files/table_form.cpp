#include "files/table_form.h"

#include <algorithm>

#include "files/ascii_case.h"

namespace tivex_program {
namespace {

using namespace std::string_view_literals;

struct known_separator {
  char character;
  std::string_view name;
};
// Of two that are as frequent the first one is taken: German texts are full of commas.
constexpr known_separator known_separators[] = {
    {';', "semicolon"}, {'\t', "tab"}, {'|', "vertical bar"}, {',', "comma"}};

constexpr std::string_view separator_mark = "sep=";

bool is_line_end(char c) { return c == '\n' || c == '\r'; }

// The length of the blank lines at the start.
std::size_t blank_length(std::string_view text) {
  std::size_t start = 0;
  for (std::size_t at = 0; at < text.size() && " \t\r\n"sv.find(text[at]) != std::string_view::npos;
       ++at) {
    // A line may start with tabs that separate empty cells.
    if (is_line_end(text[at])) start = at + 1;
  }
  return start;
}

std::string_view first_line(std::string_view text) {
  return text.substr(0, std::min(text.find_first_of("\r\n"), text.size()));
}

// The separator that the line "sep=;" names; '\0' for another line.
char named_separator(std::string_view line) {
  if (line.size() >= 2 && line.front() == '"' && line.back() == '"') {
    line = line.substr(1, line.size() - 2);
  }
  const bool fits = line.size() == separator_mark.size() + 1 &&
                    same_but_for_case(line.substr(0, separator_mark.size()), separator_mark);
  return fits ? line.back() : '\0';
}

// Twice the number of the separators outside quotes, in which one before a blank counts half.
std::size_t weight(std::string_view line, char separator) {
  std::size_t found = 0;
  bool quoted = false;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] == '"') quoted = !quoted;
    if (quoted || line[at] != separator) continue;
    found += at + 1 < line.size() && line[at + 1] == ' ' ? 1 : 2;
  }
  return found;
}

char most_frequent(std::string_view line) {
  char best = ',';
  std::size_t best_weight = 0;
  for (const known_separator& each : known_separators) {
    const std::size_t its_weight = weight(line, each.character);
    if (its_weight <= best_weight) continue;
    best = each.character;
    best_weight = its_weight;
  }
  return best;
}

}  // namespace

bool has_table_start(std::string_view head) {
  for (int lines = 0; lines < 2; ++lines) {
    head.remove_prefix(blank_length(head));
    const std::string_view line = first_line(head);
    if (line.size() == head.size()) return false;
    if (named_separator(line) == '\0') return true;
    head.remove_prefix(line.size());
  }
  return true;
}

table_start look_at_start(std::string_view head) {
  const std::size_t blank = blank_length(head);
  const std::string_view line = first_line(head.substr(blank));
  const char named = named_separator(line);
  if (named != '\0') return {named, blank + line.size()};
  return {most_frequent(line), 0};
}

std::string_view name_of_separator(char separator) {
  for (const known_separator& each : known_separators) {
    if (each.character == separator) return each.name;
  }
  return "other";
}

std::string_view name_of_encoding(table_encoding encoding) {
  switch (encoding) {
    case table_encoding::utf16:
      return "UTF-16";
    case table_encoding::windows1252:
      return "Windows-1252";
    default:
      return "UTF-8";
  }
}

}  // namespace tivex_program
