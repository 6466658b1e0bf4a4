#include "transactions.h"

#include <cstdint>
#include <vector>

#include "csv_reader.h"
#include "progress_line.h"
#include "refused_row.h"

namespace tivex_program {
namespace {

// Reports the first cell that the program itself refuses.
bool cells_are_sound(const csv_row& row, const std::vector<const column*>& columns,
                     fault_report& faults) {
  if (row.cells.size() != columns.size()) {
    faults.add(row.line, std::to_string(row.cells.size()) + " cells, the header names " +
                             std::to_string(columns.size()));
    return false;
  }
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (row.cells[i].empty()) continue;
    const std::string fault = columns[i]->rule(row.cells[i]);
    if (fault.empty()) continue;
    faults.add(row.line, columns[i]->key, fault);
    return false;
  }
  return true;
}

// An empty cell leaves its key out.
void list_cells(const csv_row& row, const std::vector<const column*>& columns,
                std::vector<tivex_keyvalue_t>& list) {
  list.clear();
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!row.cells[i].empty()) list.push_back({columns[i]->key, row.cells[i].c_str()});
  }
  list.push_back({nullptr, nullptr});
}

}  // namespace

void add_transactions(tivex_t* message, input_file& input, const row_format& format,
                      fault_report& faults) {
  csv_reader reader(input, format.delimiter);
  csv_row row;
  if (!reader.next(row)) {
    return faults.add(input.error().empty() ? "no header" : input.error());
  }
  if (!row.fault.empty()) return faults.add(row.line, row.fault);
  const auto columns = resolve_header(row, format.kind.columns, format.rulebook, faults);
  if (!faults.empty()) return;

  progress_line progress(input.size());
  std::vector<tivex_keyvalue_t> list;
  std::uint64_t rows = 0;
  while (reader.next(row)) {
    progress.show(++rows, input.bytes_read());
    if (!row.fault.empty()) {
      faults.add(row.line, row.fault);
      continue;
    }
    if (!cells_are_sound(row, columns, faults)) continue;
    list_cells(row, columns, list);
    if (tivex_add(message, list.data()) == 1) continue;
    const row_fault fault =
        faults.full() ? row_fault{} : explain(message, format.kind.message_type, list);
    faults.add(row.line, fault.key, fault.reason);
  }
  if (!input.error().empty()) {
    faults.add(input.error());
  } else if (rows == 0) {
    faults.add("no transactions");
  }
}

}  // namespace tivex_program
