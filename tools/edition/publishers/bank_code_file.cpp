#include "publishers/bank_code_file.h"

#include <iterator>

#include "publishers/csv_table.h"
#include "publishers/field_texts.h"
#include "publishers/row_check.h"
#include "utf8.h"

namespace tivex_edition {

namespace {

bool is_mark(std::string_view text) { return text == "1" || text == "2"; }
bool is_change_mark(std::string_view text) {
  return text.size() == 1 && std::string_view("ADUM").find(text) != std::string_view::npos;
}

enum field : std::size_t {
  bank_code,
  mark,
  name,
  postcode,
  city,
  bic,
  method,
  change_mark,
  deletion,
  successor,
};

// The names are those of the CSV.
constexpr column_form columns[] = {
    {"Bankleitzahl", is_bank_code8, "8 digits"},
    {"Merkmal", is_mark, "1 or 2"},
    {"Bezeichnung", is_record_text, text_wanted},
    {"PLZ", is_record_text, text_wanted},
    {"Ort", is_record_text, text_wanted},
    {"BIC", is_bic_or_empty, bic_wanted},
    {"Prüfzifferberechnungsmethode", is_method, "two hexadecimal digits"},
    {"Änderungskennzeichen", is_change_mark, "A, D, U or M"},
    {"Bankleitzahllöschung", is_flag, "0 or 1"},
    {"Nachfolge-Bankleitzahl", is_bank_code8_or_empty, "8 digits"},
};

struct field_position {
  std::size_t first;  // from 0, in characters
  std::size_t length;
};

// Where the columns stand in a line of fixed width.
constexpr field_position positions[] = {
    {0, 8}, {8, 1}, {9, 58}, {67, 5}, {72, 35}, {139, 11}, {150, 2}, {158, 1}, {159, 1}, {160, 8},
};
static_assert(std::size(positions) == std::size(columns));
constexpr std::size_t line_length = 168;

constexpr const char* leads_bank_code = "1";
constexpr const char* no_successor = "00000000";

// The offsets of the line's characters, and of its end.
std::vector<std::size_t> character_offsets(std::string_view line) {
  std::vector<std::size_t> offsets = {0};
  while (offsets.back() < line.size()) {
    offsets.push_back(offsets.back() + utf8_length(line.substr(offsets.back())));
  }
  return offsets;
}

std::vector<text_row> read_fixed_width(const published_file& file,
                                       std::span<const published_line> lines) {
  std::vector<text_row> rows;
  for (const published_line& line : lines) {
    const std::vector<std::size_t> offsets = character_offsets(line.text);
    const std::size_t length = offsets.size() - 1;
    if (length != line_length) {
      file.fault(line.number,
                 std::to_string(length) + " characters instead of " + std::to_string(line_length));
      continue;
    }
    rows.push_back({line.number, {}});
    for (const field_position& position : positions) {
      const std::size_t first = offsets[position.first];
      const std::size_t end = offsets[position.first + position.length];
      rows.back().fields.emplace_back(trimmed(line.text.substr(first, end - first)));
    }
  }
  return rows;
}

german_row german_from(const std::vector<std::string>& fields) {
  german_row row;
  row.bank_code = fields[bank_code];
  row.bic = fields[bic];
  row.name = fields[name];
  row.postcode = fields[postcode];
  row.city = fields[city];
  row.country = "DE";
  row.deleted = fields[deletion] == "1" || fields[change_mark] == "D";
  row.method = fields[method];
  if (fields[successor] != no_successor) row.successor = fields[successor];
  return row;
}

}  // namespace

publication<german_row> read_bank_code_file(const published_file& file) {
  const std::vector<published_line> lines = lines_of(file.text());
  const bool is_csv = lines.front().text.find(';') != std::string_view::npos;
  publication<german_row> published;
  row_check check(file, columns);
  for (text_row& row :
       is_csv ? read_csv_table(file, lines, columns) : read_fixed_width(file, lines)) {
    const std::string& row_mark = row.fields[mark];
    if (is_mark(row_mark) && row_mark != leads_bank_code) {
      ++published.skipped;
      continue;
    }
    row.fields[bic] = full_bic(row.fields[bic]);
    if (check.passes(row)) published.rows.push_back(german_from(row.fields));
  }
  return published;
}

}  // namespace tivex_edition
