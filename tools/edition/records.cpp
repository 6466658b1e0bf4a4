#include "records.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <map>

#include "directory/record_layout.h"

namespace tivex_edition {

namespace {

// A lookup writes the country behind the text of a BIC record.
constexpr std::size_t country_text_size = 3;

std::string join(std::initializer_list<std::string> fields) {
  std::string text;
  for (const std::string& field : fields) {
    if (&field != fields.begin()) text += tivex::field_separator;
    text += field;
  }
  return text;
}

void check_text(const char* file, int line, std::size_t size, fault_list& faults) {
  if (size <= tivex::record_text_size) return;
  faults.add(file, line,
             "the record's text takes " + std::to_string(size) + " bytes, more than " +
                 std::to_string(tivex::record_text_size));
}

directory_record bic_record(const bic_row& row, fault_list& faults) {
  const std::string bytes = row.bic + static_cast<char>(row.flags) + row.name + '\0';
  check_text(bics_file_name, row.line, bytes.size() + country_text_size, faults);
  return {row.bic, bytes};
}

directory_record bank_record(const char* file, const char* country, const bank_row& row,
                             fault_list& faults) {
  const std::string key = tivex::national_mark + std::string(country) + row.bank_code;
  const std::string text = join({row.bic, row.name, row.postcode, row.city, row.country}) + '\0';
  check_text(file, row.line, text.size(), faults);
  return {key, key + text};
}

std::string german_block(const german_row& row) {
  unsigned char method = 0;
  std::from_chars(row.method.data(), row.method.data() + row.method.size(), method, 16);
  const unsigned char block[tivex::german_block_length] = {
      row.deleted, method, static_cast<unsigned char>(row.iban_rule >> 8),
      static_cast<unsigned char>(row.iban_rule & 0xFF)};
  return {reinterpret_cast<const char*>(block), sizeof block};
}

std::string german_fields(const german_row& row) {
  return join({row.successor, row.bic, row.name, row.postcode, row.city, row.country});
}

// The second version stands behind the first one's last field.
directory_record german_record(const german_row& first, const german_row* second,
                               fault_list& faults) {
  const std::string key = tivex::national_mark + std::string("DE") + first.bank_code;
  std::string text = german_fields(first);
  if (second != nullptr) {
    text += tivex::field_separator + german_block(*second) + german_fields(*second);
    check_text(german_file_name, second->line, german_fields(*second).size() + 1, faults);
  }
  text += '\0';
  // A lookup of the first version copies up to the first NUL, wherever that is.
  check_text(german_file_name, first.line, std::strlen(text.c_str()) + 1, faults);
  return {key, key + german_block(first) + text, second != nullptr};
}

std::vector<directory_record> german_records(const std::vector<german_row>& rows,
                                             fault_list& faults) {
  std::map<std::string, const german_row*> second_versions;
  for (const german_row& row : rows) {
    if (!row.valid_from.empty()) second_versions[row.bank_code] = &row;
  }
  std::vector<directory_record> records;
  for (const german_row& row : rows) {
    if (!row.valid_from.empty()) continue;
    const auto second = second_versions.find(row.bank_code);
    records.push_back(
        german_record(row, second == second_versions.end() ? nullptr : second->second, faults));
  }
  return records;
}

}  // namespace

std::vector<directory_record> lay_out_records(const edition& facts, fault_list& faults) {
  std::vector<directory_record> records = german_records(facts.german.rows, faults);
  for (const bank_row& row : facts.austrian.rows) {
    records.push_back(bank_record(austrian_file_name, "AT", row, faults));
  }
  for (const bank_row& row : facts.swiss.rows) {
    records.push_back(bank_record(swiss_file_name, "CH", row, faults));
  }
  for (const bic_row& row : facts.bics.rows) records.push_back(bic_record(row, faults));
  std::sort(records.begin(), records.end(),
            [](const directory_record& left, const directory_record& right) {
              return left.key < right.key;
            });
  return records;
}

}  // namespace tivex_edition
