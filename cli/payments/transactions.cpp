#include "payments/transactions.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

#include "files/csv_reader.h"
#include "payments/document_room.h"
#include "payments/library_calls.h"
#include "payments/refused_row.h"
#include "terminal/progress_line.h"

namespace tivex_program {
namespace {

using columns_of_file = std::vector<const column*>;

// The first cell that the program itself refuses.
std::optional<row_fault> unsound_cell(const csv_row& row, const columns_of_file& columns) {
  if (!row.fault.empty()) return row_fault{"", row.fault};
  if (row.cells.size() != columns.size()) {
    return row_fault{"", std::to_string(row.cells.size()) + " cells, the header names " +
                             std::to_string(columns.size())};
  }
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (row.cells[i].empty()) continue;
    const std::string fault = columns[i]->rule(row.cells[i]);
    if (!fault.empty()) return row_fault{columns[i]->key, fault};
  }
  return std::nullopt;
}

}  // namespace

void add_transactions(tivex_t* message, input_file& input, const row_format& format,
                      schema_probe& probe, fault_report& faults) {
  csv_reader reader(input, format.delimiter);
  csv_row row;
  if (!reader.next(row)) {
    return faults.add(input.error().empty() ? "no header" : input.error());
  }
  if (!row.fault.empty()) return faults.add(row.line, row.fault);
  const auto columns = resolve_header(row, format.kind.columns, probe.rulebook(), faults);
  if (!faults.empty()) return;

  progress_line progress(input.size(), format.shows_progress);
  std::vector<tivex_keyvalue_t> list;
  std::uint64_t rows = 0;
  std::uint64_t taken = 0;
  while (!probe.is_done(faults) && reader.next(row)) {
    progress.show(++rows, input.bytes_read());
    std::optional<row_fault> fault = unsound_cell(row, columns);
    if (!fault) {
      list_cells(row, columns, list);
      if (add_transaction(message, list.data())) {
        probe.add(row, columns, faults);
        // Otherwise it would show only when all is read and nearly all is written.
        if (std::max(++taken * format.kind.least_bytes, probe.bytes()) < longest_document) continue;
        return faults.add("too many transactions for one document (at most 4 GiB)");
      }
      fault = faults.full() ? row_fault{} : explain(message, format.kind.message_type, list);
    }
    probe.finish(columns, faults);
    faults.add(row.line, fault->key, fault->reason);
  }
  probe.finish(columns, faults);
  if (!input.error().empty()) {
    faults.add(input.error());
  } else if (rows == 0) {
    faults.add("no transactions");
  }
}

}  // namespace tivex_program
