#include "publishers/austrian_directory.h"

#include <algorithm>

#include "publishers/csv_table.h"
#include "publishers/field_texts.h"
#include "publishers/row_check.h"

namespace tivex_edition {

namespace {

bool is_any(std::string_view) { return true; }

enum field : std::size_t { bank_code, bic, name, postcode, city, kind };

constexpr column_form columns[] = {
    {"Bankleitzahl", is_bank_code5, "a number of 5 digits at most"},
    {"SWIFT-Code", is_bic_or_empty, bic_wanted},
    {"Bankenname", is_record_text, text_wanted},
    {"PLZ", is_record_text, text_wanted},
    {"Ort", is_record_text, text_wanted},
    {"Kennzeichen", is_any, ""},
};

constexpr int preface_lines = 5;
constexpr const char* head_office = "Hauptanstalt";

std::vector<published_line> without_preface(std::vector<published_line> lines) {
  const auto is_preface = [](const published_line& line) { return line.number <= preface_lines; };
  lines.erase(lines.begin(), std::find_if_not(lines.begin(), lines.end(), is_preface));
  return lines;
}

}  // namespace

publication<bank_row> read_austrian_directory(const published_file& file) {
  const std::vector<published_line> lines = without_preface(lines_of(file.text()));
  publication<bank_row> published;
  row_check check(file, columns);
  for (text_row& row : read_csv_table(file, lines, columns)) {
    std::vector<std::string>& fields = row.fields;
    if (!fields[kind].empty() && fields[kind] != head_office) {
      ++published.skipped;
      continue;
    }
    fields[bank_code] = full_bank_code(fields[bank_code]);
    fields[bic] = full_bic(fields[bic]);
    if (!check.passes(row)) continue;
    published.rows.push_back(
        {0, fields[bank_code], fields[bic], fields[name], fields[postcode], fields[city], "AT"});
  }
  return published;
}

}  // namespace tivex_edition
