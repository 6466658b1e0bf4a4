#include "publishers/provider_register.h"

#include "publishers/csv_table.h"
#include "publishers/field_texts.h"
#include "publishers/row_check.h"

namespace tivex_edition {

namespace {

enum field : std::size_t { bic, name, first_service };

constexpr const char* flag_wanted = "0 or 1";

// The services stand in the order of their bits.
constexpr column_form columns[] = {
    {"BIC", is_bic, bic_wanted},
    {"Name", is_record_text, text_wanted},
    {"SERVICE SCT", is_flag, flag_wanted},
    {"SERVICE COR", is_flag, flag_wanted},
    {"SERVICE COR1", is_flag, flag_wanted},
    {"SERVICE B2B", is_flag, flag_wanted},
    {"SERVICE SCC", is_flag, flag_wanted},
};
constexpr std::size_t services_with_bit = 4;

bic_row bic_from(const std::vector<std::string>& fields) {
  unsigned flags = 0;
  for (std::size_t service = 0; service < services_with_bit; ++service) {
    if (fields[first_service + service] == "1") flags |= 1U << service;
  }
  return {0, fields[bic], static_cast<std::uint8_t>(flags), fields[name]};
}

}  // namespace

publication<bic_row> read_provider_register(const published_file& file) {
  const std::vector<published_line> lines = lines_of(file.text());
  publication<bic_row> published = {date_in(lines.front().text), {}, 0};
  if (published.valid_from.empty()) {
    file.fault(lines.front().number, "the date of validity is missing");
  }
  row_check check(file, columns);
  for (text_row& row : read_csv_table(file, std::span(lines).subspan(1), columns)) {
    row.fields[bic] = full_bic(row.fields[bic]);
    if (check.passes(row)) published.rows.push_back(bic_from(row.fields));
  }
  return published;
}

}  // namespace tivex_edition
