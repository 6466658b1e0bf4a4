#pragma once

#include <tivex.h>

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
};

// Returns the columns that the header names, in its order; each name that is
// wrong is reported.
std::vector<const column*> resolve_header(const csv_row& header, std::span<const column> known,
                                          const std::string& rulebook, fault_report& faults);

// Lists the cells of a row for tivex_add. An empty cell leaves its key out; the
// texts stay those of the row.
void list_cells(const csv_row& row, const std::vector<const column*>& columns,
                std::vector<tivex_keyvalue_t>& list);

}  // namespace tivex_program
