#include "payments/row_values.h"

#include <algorithm>

#include "files/date_text.h"
#include "files/grouped_code.h"

namespace tivex_program {
namespace {

// Returns the place of the column, which is added when the file has none.
std::size_t wanted_column(file_columns& columns, std::span<const column> known, const char* key) {
  const std::size_t place = place_of(columns, key);
  const column* const wanted = find_key(known, key);
  if (place == columns.size() && wanted != nullptr) columns.push_back({wanted, key});
  return place;
}

}  // namespace

row_values::row_values(file_columns& columns, std::span<const column> known,
                       const row_defaults& defaults, amount_column& amounts)
    : columns_(columns), in_file_(columns.size()), defaults_(defaults), amounts_(amounts) {
  iban_ = place_of(columns, "iban");
  if (defaults.fills_bic) wanted_column(columns, known, "bic");
  if (!defaults.sequence_type.empty()) wanted_column(columns, known, "seq");
  bic_ = place_of(columns, "bic");
  sequence_type_ = place_of(columns, "seq");
  changed_.resize(columns.size());
  filled_.resize(columns.size());
}

void row_values::read(csv_row& row, std::vector<row_fault>& faults) {
  row.changed.clear();
  if (!row.fault.empty()) return faults.push_back({.reason = row.fault});
  const std::size_t given = row.cells.size();
  // Spreadsheets end rows with separators.
  while (row.cells.size() > in_file_ && row.cells.back().empty()) row.cells.pop_back();
  if (row.cells.size() != in_file_) {
    return faults.push_back(
        {.reason = std::to_string(given) + " cells, the header names " + std::to_string(in_file_),
         .advice = given > in_file_ ? "put a text with a separator between quotes"
                                    : "fill in what is missing, or its separators"});
  }
  for (std::size_t place = 0; place < in_file_; ++place) {
    if (!row.cells[place].empty()) read_cell_of(row, place, faults);
  }
  fill(row);
}

void row_values::read_cell_of(csv_row& row, std::size_t place, std::vector<row_fault>& faults) {
  std::string& cell = row.cells[place];
  const file_column& read_as = columns_[place];
  if (read_as.known == nullptr) {
    if (read_as.name.empty()) {
      faults.push_back({.reason = "value in a column without a name",
                        .detail = cell,
                        .advice = "name the column, or take the value out"});
    }
    return;
  }
  const column& known = *read_as.known;
  // Most codes and dates need neither a look at their characters nor another form.
  if (known.form == value_form::code && is_joined(cell)) return;
  if (known.form == value_form::date && is_prescribed_date(cell)) return;
  std::string reason = known.rule(cell);
  if (!reason.empty()) {
    return faults.push_back({.key = known.key, .reason = std::move(reason)});
  }
  if (known.form == value_form::text) return;
  if (known.form == value_form::amount && amounts_.takes_as_it_is(cell)) return;
  const std::string before = cell;
  if (known.form == value_form::amount) {
    const read_cell read = amounts_.read(cell, row.line);
    if (*read.fault != '\0') {
      faults.push_back(
          {.key = known.key, .reason = read.fault, .detail = read.detail, .advice = read.advice});
    }
  } else {
    write_as_prescribed(known.form, cell);
  }
  if (cell == before) return;
  ++changed_[place];
  row.changed.push_back({place, before});
}

void row_values::fill(csv_row& row) {
  row.cells.resize(columns_.size());
  if (!defaults_.sequence_type.empty() && sequence_type_ < columns_.size() &&
      row.cells[sequence_type_].empty()) {
    row.cells[sequence_type_] = defaults_.sequence_type;
    ++filled_[sequence_type_];
  }
  if (!defaults_.fills_bic || bic_ >= columns_.size() || !row.cells[bic_].empty()) return;
  char bic[12] = "";
  if (iban_ < columns_.size() && tivex_iban_getBIC(row.cells[iban_].c_str(), bic) == 1 &&
      *bic != '\0') {
    row.cells[bic_] = bic;
    ++filled_[bic_];
  }
}

}  // namespace tivex_program
