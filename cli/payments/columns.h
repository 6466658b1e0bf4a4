#pragma once

#include <tivex.h>

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "files/csv_reader.h"
#include "files/value_rules.h"
#include "terminal/fault_report.h"

namespace tivex_program {

// A column that a CSV file may have: one key of tivex_add.
struct column {
  const char* key;
  value_rule rule = text_fault;
  // Set where the library ignores the key under all other rulebooks.
  std::span<const std::string_view> only_rulebooks = {};
  value_form form = value_form::text;
};

// A column of one file.
struct file_column {
  const column* known = nullptr;  // null for one that is passed over
  std::string name;               // in the file
};
using file_columns = std::vector<file_column>;

// What the user says of the names in a header.
struct header_wishes {
  std::map<std::string, std::string> names;  // by their keys
  bool ignores_unknown = false;
};

// Returns the columns that the header names, in its order; each name that is wrong is
// reported.
file_columns resolve_header(const csv_row& header, std::span<const column> known,
                            const std::string& rulebook, const header_wishes& wishes,
                            fault_report& faults);

// Where the column with the key stands; the number of columns when there is none.
std::size_t place_of(const file_columns& columns, std::string_view key);

// The row of the table with the key; null when there is none.
const column* find_key(std::span<const column> known, std::string_view key);

// Lists the cells of a row for tivex_add. An empty cell leaves its key out; the
// texts stay those of the row.
void list_cells(const csv_row& row, const file_columns& columns,
                std::vector<tivex_keyvalue_t>& list);

}  // namespace tivex_program
