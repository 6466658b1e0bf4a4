#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "files/csv_reader.h"
#include "payments/amount_column.h"
#include "payments/columns.h"
#include "payments/refused_row.h"

namespace tivex_program {

// What stands in place of cells that are empty or missing.
struct row_defaults {
  std::string sequence_type;  // empty for none
  bool fills_bic = false;     // from the directory
};

// Writes the cells of a file's rows in the forms that the library reads.
class row_values {
 public:
  // Columns for what is filled are added to those of the file.
  row_values(file_columns& columns, std::span<const column> known, const row_defaults& defaults,
             amount_column& amounts);

  // Tells what is wrong with the cells.
  void read(csv_row& row, std::vector<row_fault>& faults);

  // How many columns the file has, without those that are filled only.
  std::size_t in_file() const { return in_file_; }

  // How many cells were changed, and how many filled, by their columns.
  const std::vector<std::uint64_t>& changed() const { return changed_; }
  const std::vector<std::uint64_t>& filled() const { return filled_; }

 private:
  void read_cell_of(csv_row& row, std::size_t place, std::vector<row_fault>& faults);
  void fill(csv_row& row);

  file_columns& columns_;
  std::size_t in_file_;  // columns
  row_defaults defaults_;
  amount_column& amounts_;
  std::size_t iban_;
  std::size_t bic_;
  std::size_t sequence_type_;
  std::vector<std::uint64_t> changed_;
  std::vector<std::uint64_t> filled_;
};

}  // namespace tivex_program
