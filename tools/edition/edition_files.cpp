#include "edition_files.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "field_forms.h"
#include "text_table.h"

namespace tivex_edition {

namespace {

constexpr const char* text_wanted = "text without control characters, '|' and blanks at its ends";
constexpr const char* bic_wanted = "a BIC of 11 characters";

constexpr column_form german_columns[] = {
    {"bank_code", is_bank_code8, "8 digits"},
    {"valid_from", is_date_or_empty, "a date, yyyy-mm-dd"},
    {"deleted", is_flag, "0 or 1"},
    {"method", is_method, "two hexadecimal digits"},
    {"iban_rule", is_iban_rule, "rule * 100 + version, rules 0 to 57"},
    {"successor", is_bank_code8_or_empty, "8 digits"},
    {"bic", is_bic_or_empty, bic_wanted},
    {"name", is_record_text, text_wanted},
    {"postcode", is_record_text, text_wanted},
    {"city", is_record_text, text_wanted},
    {"country", is_germany, "DE"},
};

constexpr column_form austrian_columns[] = {
    {"bank_code", is_bank_code5, "5 digits"}, {"bic", is_bic_or_empty, bic_wanted},
    {"name", is_record_text, text_wanted},    {"postcode", is_record_text, text_wanted},
    {"city", is_record_text, text_wanted},    {"country", is_austria, "AT"},
};

constexpr column_form swiss_columns[] = {
    {"bank_code", is_bank_code5, "5 digits"},
    {"bic", is_bic_or_empty, bic_wanted},
    {"name", is_record_text, text_wanted},
    {"postcode", is_record_text, text_wanted},
    {"city", is_record_text, text_wanted},
    {"country", is_country_or_empty, "two capital letters"},
};

constexpr column_form bic_columns[] = {
    {"bic", is_bic, bic_wanted},
    {"flags", is_flags_byte, "0x and two hexadecimal digits"},
    {"name", is_record_text, text_wanted},
};

template <typename number>
number to_number(const std::string& text, int base = 10) {
  number value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value, base);
  return value;
}

german_row german_from(const row_fields& fields) {
  german_row row;
  row.bank_code = fields[0];
  row.valid_from = fields[1];
  row.deleted = fields[2] == "1";
  row.method = fields[3];
  row.iban_rule = to_number<std::uint16_t>(fields[4]);
  row.successor = fields[5];
  row.bic = fields[6];
  row.name = fields[7];
  row.postcode = fields[8];
  row.city = fields[9];
  row.country = fields[10];
  return row;
}

row_fields fields_of(const german_row& row) {
  return {row.bank_code,
          row.valid_from,
          row.deleted ? "1" : "0",
          row.method,
          std::to_string(row.iban_rule),
          row.successor,
          row.bic,
          row.name,
          row.postcode,
          row.city,
          row.country};
}

bank_row bank_from(const row_fields& fields) {
  return {0, fields[0], fields[1], fields[2], fields[3], fields[4], fields[5]};
}

row_fields fields_of(const bank_row& row) {
  return {row.bank_code, row.bic, row.name, row.postcode, row.city, row.country};
}

bic_row bic_from(const row_fields& fields) {
  return {0, fields[0], to_number<std::uint8_t>(fields[1].substr(2), 16), fields[2]};
}

row_fields fields_of(const bic_row& row) {
  constexpr const char* digits = "0123456789ABCDEF";
  return {row.bic, std::string("0x") + digits[row.flags >> 4] + digits[row.flags & 15], row.name};
}

template <typename row_type>
edition_table<row_type> read_rows(const std::filesystem::path& path,
                                  std::span<const column_form> columns,
                                  row_type (*from)(const row_fields&), fault_list& faults) {
  const text_table text = read_text_table(path, columns, faults);
  edition_table<row_type> table = {text.title, text.source, text.valid_from, {}};
  for (const text_row& row : text.rows) {
    table.rows.push_back(from(row.fields));
    table.rows.back().line = row.line;
  }
  return table;
}

template <typename row_type>
std::vector<row_fields> sorted(const std::vector<row_type>& rows) {
  std::vector<row_fields> fields;
  fields.reserve(rows.size());
  for (const row_type& row : rows) fields.push_back(fields_of(row));
  std::sort(fields.begin(), fields.end());
  return fields;
}

template <typename row_type>
void write_rows(const std::filesystem::path& path, std::span<const column_form> columns,
                const edition_table<row_type>& table, fault_list& faults) {
  text_table text = {table.title, table.source, table.valid_from, {}};
  for (row_fields& fields : sorted(table.rows)) text.rows.push_back({0, std::move(fields)});
  write_text_table(path, columns, text, faults);
}

}  // namespace

std::vector<row_fields> sorted_fields(const std::vector<german_row>& rows) { return sorted(rows); }
std::vector<row_fields> sorted_fields(const std::vector<bank_row>& rows) { return sorted(rows); }
std::vector<row_fields> sorted_fields(const std::vector<bic_row>& rows) { return sorted(rows); }

edition read_edition(const std::filesystem::path& folder, fault_list& faults) {
  return {read_rows(folder / german_file_name, german_columns, german_from, faults),
          read_rows(folder / austrian_file_name, austrian_columns, bank_from, faults),
          read_rows(folder / swiss_file_name, swiss_columns, bank_from, faults),
          read_rows(folder / bics_file_name, bic_columns, bic_from, faults)};
}

void write_edition(const std::filesystem::path& folder, const edition& facts, fault_list& faults) {
  write_rows(folder / german_file_name, german_columns, facts.german, faults);
  write_rows(folder / austrian_file_name, austrian_columns, facts.austrian, faults);
  write_rows(folder / swiss_file_name, swiss_columns, facts.swiss, faults);
  write_rows(folder / bics_file_name, bic_columns, facts.bics, faults);
}

}  // namespace tivex_edition
