#include "rule_tables.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <span>
#include <string>

#include "field_forms.h"
#include "text_table.h"

namespace tivex_edition {

namespace {

constexpr column_form account = {"account", is_account, "10 digits"};
constexpr column_form bank_code = {"bank_code", is_bank_code8, "8 digits"};
constexpr column_form iban = {"iban", is_german_iban, "a German IBAN with right check digits"};

constexpr column_form map_columns[] = {
    {"rule", is_number, "a rule's number"}, account, {"replacement", is_account, "10 digits"}};
constexpr column_form range_columns[] = {{"prefix", is_prefix, "3 digits"},
                                         {"former_bank_code", is_bank_code8, "8 digits"},
                                         {"low", is_account, "10 digits"},
                                         {"high", is_account, "10 digits"},
                                         bank_code};
constexpr column_form bank_code_columns[] = {bank_code};
constexpr column_form account_columns[] = {account};
constexpr column_form rule_05_columns[] = {
    bank_code, account, {"replacement", is_account, "10 digits"}};
constexpr column_form pair_columns[] = {bank_code,
                                        account,
                                        {"new_bank_code", is_bank_code8, "8 digits"},
                                        {"new_account", is_account, "10 digits"}};
constexpr column_form iban_columns[] = {account, iban};
constexpr column_form replaced_iban_columns[] = {
    account, {"new_account", is_account, "10 digits"}, iban};

// A file of rows, and the array that it becomes.
struct rule_file {
  const char* name;
  std::span<const column_form> columns;
  std::size_t key_columns;  // the first ones, which no two rows share
  const char* header;
  const char* row_type;
  const char* array;  // a _ at its end is followed by the first column's value
};

constexpr rule_file rule_files[] = {
    {"account_maps.tsv", map_columns, 2, "account_maps.h", "account_replacement", "account_map_"},
    {"rule_30_accounts.tsv", account_columns, 1, "account_maps.h", "account_row", "accounts_30"},
    {"account_ranges.tsv", range_columns, 2, "account_ranges.h", "account_range",
     "account_range_table"},
    {"rule_05_bank_codes.tsv", bank_code_columns, 1, "rule_05_tables.h", "bank_code_row",
     "bank_codes_05"},
    {"rule_05_accounts.tsv", rule_05_columns, 2, "rule_05_tables.h", "bank_account_replacement",
     "accounts_05"},
    {"rule_52.tsv", pair_columns, 2, "pair_maps.h", "pair_replacement", "pair_map_52"},
    {"rule_53.tsv", pair_columns, 2, "pair_maps.h", "pair_replacement", "pair_map_53"},
    {"rule_54_ibans.tsv", iban_columns, 1, "account_ibans.h", "account_iban", "account_ibans_54"},
    {"rule_56.tsv", replaced_iban_columns, 1, "account_ibans.h", "account_replacement_iban",
     "account_ibans_56"},
};

void check_keys(const rule_file& file, const text_table& table, fault_list& faults) {
  std::map<std::vector<std::string>, int> seen;
  for (const text_row& row : table.rows) {
    const std::vector<std::string> key(row.fields.begin(),
                                       row.fields.begin() + static_cast<long>(file.key_columns));
    const auto [first, is_new] = seen.emplace(key, row.line);
    if (is_new) continue;
    faults.add(file.name, row.line,
               "the same key stands in line " + std::to_string(first->second) + " already");
  }
}

// A range holds the accounts that begin with its prefix.
void check_ranges(const rule_file& file, const text_table& table, fault_list& faults) {
  for (const text_row& row : table.rows) {
    const std::string& prefix = row.fields[0];
    if (row.fields[2] != prefix + "0000000" || row.fields[3] != prefix + "9999999") {
      faults.add(file.name, row.line,
                 "low and high are not the accounts that begin with " + prefix);
    }
  }
}

// Numbers without zeros in front, which C++ would read as octal; texts in quotes.
std::string element(const column_form& column, const std::string& field) {
  const std::string_view name = column.name;
  if (name == "prefix" || name == "low" || name == "high") return field;
  return '"' + field + '"';
}

std::string arrays_of(const rule_file& file, const text_table& table) {
  const bool by_first_column = std::string_view(file.array).ends_with('_');
  std::string text;
  std::string open_array;
  for (const text_row& row : table.rows) {
    const std::string name = file.array + (by_first_column ? row.fields[0] : "");
    if (name != open_array) {
      text += (open_array.empty() ? "\n" : "};\n\n") + std::string("inline constexpr ") +
              file.row_type + ' ' + name + "[] = {\n";
      open_array = name;
    }
    std::string elements;
    for (std::size_t index = by_first_column ? 1 : 0; index < row.fields.size(); ++index) {
      elements += (elements.empty() ? "" : ", ") + element(file.columns[index], row.fields[index]);
    }
    text += '{' + elements + "},\n";
  }
  return text + "};\n";
}

}  // namespace

std::vector<source_file> generate_rule_tables(const std::filesystem::path& folder,
                                              fault_list& faults) {
  std::map<std::string, std::string> headers;
  for (const rule_file& file : rule_files) {
    const text_table table = read_text_table(folder / file.name, file.columns, faults);
    check_keys(file, table, faults);
    if (file.columns.data() == range_columns) check_ranges(file, table, faults);
    headers[file.header] += arrays_of(file, table);
  }
  if (!faults.empty()) return {};
  std::vector<source_file> files;
  files.reserve(headers.size());
  for (const auto& [name, arrays] : headers) {
    files.push_back({name, std::string(generated_head) +
                               "#pragma once\n\n#include \"de_iban/table_rows.h\"\n\n"
                               "namespace tivex::iban_rules {\n" +
                               arrays + "\n}  // namespace tivex::iban_rules\n"});
  }
  return files;
}

}  // namespace tivex_edition
