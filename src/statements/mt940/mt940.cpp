#include "statements/mt940/mt940.h"

#include <cstring>

#include "statements/mt940/mt940_lines.h"

namespace tivex {

namespace {

constexpr std::size_t common_tag_length = 4;

struct tagged_line {
  char tag[common_tag_length + 2];  // one character more, or none
  line_reader* read;

  // A text is followed by NUL.
  bool begins(const char* line) const {
    if (std::memcmp(line, tag, common_tag_length) != 0) return false;
    return tag[common_tag_length] == '\0' || line[common_tag_length] == tag[common_tag_length];
  }
};

// The most frequent ones stand in front.
constexpr tagged_line tagged_lines[] = {
    {":61:", read_entry},
    {":86:", read_information},
    {":25:", read_account},
    {":28C:", read_statement_number},
    {":28:", read_statement_number},
    {":60F:", read_opening_balance},
    {":60M:", read_opening_balance},
    {":62F:", read_closing_balance},
    {":62M:", read_closing_balance},
};

constexpr std::size_t line_end_length = 2;  // CR LF

line_outcome read_line(mt940_progress& progress) {
  if (*progress.line == '-') return line_outcome::statement_ends;
  if (progress.end - progress.line < static_cast<std::ptrdiff_t>(common_tag_length)) {
    return line_outcome::next_line;
  }
  for (const tagged_line& row : tagged_lines) {
    if (row.begins(progress.line)) return row.read(progress);
  }
  return line_outcome::next_line;
}

// Reads lines until one ends the statement.
line_outcome read_lines(mt940_progress& progress) {
  for (;;) {
    progress.line_end = find_line_end(progress.line, progress.end);
    const line_outcome outcome = read_line(progress);
    if (outcome != line_outcome::next_line) return outcome;
    if (progress.line_end == nullptr) return line_outcome::statement_ends;
    progress.line = progress.line_end + line_end_length;
  }
}

void append(statement_parser& parser, tivex_stmt_t* statement) {
  (parser.last == nullptr ? parser.first : parser.last->next) = statement;
  parser.last = statement;
}

// Reads one statement after the other. False when memory is exhausted.
bool read_statements(statement_parser& parser, mt940_progress& progress) {
  constexpr std::string_view start = ":20:";
  for (;;) {
    char* found = find_line_end(progress.line, progress.end);
    while (found != nullptr && !starts_with(found + line_end_length, progress.end, start)) {
      found = find_line_end(found + line_end_length, progress.end);
    }
    if (found == nullptr) return true;
    auto* const statement = parser.records.make<tivex_stmt_t>();
    if (statement == nullptr) return false;
    statement->reference = found + line_end_length + start.size();
    char* const reference_end = find_line_end(statement->reference, progress.end);
    if (reference_end == nullptr) return true;
    *reference_end = '\0';
    progress.line = reference_end + line_end_length;
    progress.statement = statement;
    append(parser, statement);
    if (read_lines(progress) == line_outcome::no_memory) return false;
  }
}

}  // namespace

int mt940_parse(statement_parser& parser, char* text) {
  if (parser.mt940 == nullptr) return parser.fail("%s", "MT940 parser not initialized");
  if (text == nullptr || *text == '\0') return 0;
  mt940_progress progress(text, text + std::strlen(text), parser.records);
  if (read_statements(parser, progress)) return 1;
  parser.drop_statements();
  return 0;
}

}  // namespace tivex
