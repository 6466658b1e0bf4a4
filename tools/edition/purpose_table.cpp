#include "purpose_table.h"

#include <string>

#include "field_forms.h"
#include "text_table.h"

namespace tivex_edition {

namespace {

constexpr const char* facts_file = "at_004.tsv";

constexpr column_form purpose_columns[] = {{"code", is_purpose, "4 capital letters or digits"}};

// They are found by halves.
void check_order(const text_table& table, fault_list& faults) {
  const text_row* previous = nullptr;
  for (const text_row& row : table.rows) {
    if (previous != nullptr && previous->fields[0] >= row.fields[0]) {
      faults.add(facts_file, row.line, "does not stand behind " + previous->fields[0]);
    }
    previous = &row;
  }
}

}  // namespace

std::vector<source_file> generate_purpose_table(const std::filesystem::path& folder,
                                                fault_list& faults) {
  const text_table table = read_text_table(folder / facts_file, purpose_columns, faults);
  check_order(table, faults);
  if (!faults.empty()) return {};
  std::string text = std::string(generated_head) +
                     "#pragma once\n\n#include \"xml/purposes.h\"\n\nnamespace tivex {\n\n"
                     "inline constexpr purpose_code purposes_at_004[] = {\n";
  for (const text_row& row : table.rows) text += "{\"" + row.fields[0] + "\"},\n";
  return {{"purposes_at_004.h", text + "};\n\n}  // namespace tivex\n"}};
}

}  // namespace tivex_edition
