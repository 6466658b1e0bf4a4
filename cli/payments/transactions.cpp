#include "payments/transactions.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "files/csv_reader.h"
#include "payments/document_room.h"
#include "payments/library_calls.h"
#include "payments/refused_row.h"
#include "terminal/progress_line.h"

namespace tivex_program {
namespace {

table_facts facts_of(const csv_reader& reader, const file_columns& columns,
                     const row_values& values, const amount_column& amounts) {
  table_facts facts;
  facts.separator = reader.separator();
  facts.encoding = name_of_encoding(reader.text().encoding());
  if (reader.text().has_mark()) facts.encoding += " with byte order mark";
  facts.sign = amounts.sign();
  facts.decided_amounts = amounts.decided();
  for (std::size_t i = 0; i < columns.size(); ++i) {
    facts.columns.push_back({i < values.in_file() ? columns[i].name : "",
                             columns[i].known == nullptr ? "" : columns[i].known->key,
                             values.changed()[i], values.filled()[i]});
  }
  return facts;
}

}  // namespace

table_facts add_transactions(tivex_t* message, input_file& input, const row_format& format,
                             amount_column& amounts, schema_probe& probe, payment_review& review,
                             fault_report& faults) {
  csv_reader reader(input, format.table);
  csv_row row;
  if (!reader.next(row)) {
    faults.add(input.error().empty() ? "no header" : input.error());
    return {};
  }
  file_columns columns;
  if (row.fault.empty()) {
    columns = resolve_header(row, format.kind.columns, probe.rulebook(), format.names, faults);
  } else {
    tell_row(row, columns, {{.reason = row.fault}}, faults);
  }
  if (!faults.empty()) return {};

  row_values values(columns, format.kind.columns, format.defaults, amounts);
  review.set_columns(columns);
  progress_line progress(input.size(), format.shows_progress);
  std::vector<tivex_keyvalue_t> list;
  std::vector<row_fault> flaws;
  std::uint64_t rows = 0;
  std::uint64_t taken = 0;
  while (!probe.is_done(faults) && reader.next(row)) {
    progress.show(++rows, input.bytes_read());
    flaws.clear();
    values.read(row, flaws);
    review.prepare(row, flaws);
    if (flaws.empty()) {
      list_cells(row, columns, list);
      if (add_transaction(message, list.data())) {
        review.take(row);
        probe.add(row, columns, faults);
        // Otherwise it would show only when all is read and nearly all is written.
        if (std::max(++taken * format.kind.least_bytes, probe.bytes()) < longest_document) continue;
        faults.add("too many transactions for one document (at most 4 GiB)");
        return {};
      }
    }
    probe.finish(columns, faults);
    probe.refuse(row, columns, flaws, faults);
  }
  probe.finish(columns, faults);
  if (!input.error().empty()) {
    faults.add(input.error());
  } else if (rows == 0) {
    faults.add("no transactions");
  }
  table_facts facts = facts_of(reader, columns, values, amounts);
  facts.rows = rows;
  return facts;
}

decimal_evidence find_decimal_sign(input_file& input, const row_format& format,
                                   const std::string& rulebook) {
  csv_reader reader(input, format.table);
  csv_row row;
  fault_report faults(input.name(), fault_extent::first);
  if (!reader.next(row) || !row.fault.empty()) return {};
  const file_columns columns =
      resolve_header(row, format.kind.columns, rulebook, format.names, faults);
  const std::size_t place = place_of(columns, "amount");
  while (reader.next(row)) {
    if (row.cells.size() <= place) continue;
    const decimal_sign sign = read_amount(row.cells[place]).decides();
    if (sign != decimal_sign::unknown) return {sign, row.line};
  }
  return {};
}

}  // namespace tivex_program
