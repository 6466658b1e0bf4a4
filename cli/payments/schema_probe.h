#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "files/csv_reader.h"
#include "payments/admitted_characters.h"
#include "payments/columns.h"
#include "payments/payment_message.h"
#include "payments/refused_row.h"
#include "terminal/fault_report.h"

namespace tivex_program {

// How far the rows are looked at.
enum class probing {
  // Up to the first fault, and not for what the schema refuses: a document of all tells.
  first_fault,
  every_fault,
};

// Finds each row that the schema refuses, or that would lose its address; the library names the
// first one of a message only. Messages that are not strict are not looked at. Rows are tried in
// batches: one document tells whether all of a batch are accepted, and only when they are not is
// one written for each.
class schema_probe {
 public:
  // The header must have been set once without a fault.
  schema_probe(payment_header header, probing extent);

  // What is refused of the header, with the option; empty when nothing.
  std::string header_fault() const;

  // Takes a row that the message has taken. Faults are reported in the order of
  // the lines, at the latest by `finish`.
  void add(csv_row& row, const file_columns& columns, fault_report& faults);
  void finish(const file_columns& columns, fault_report& faults);

  // Reports what is wrong with a row that was refused for the faults, or for what the library
  // says; up to the first fault one of them.
  void refuse(const csv_row& row, const file_columns& columns, std::vector<row_fault> faults,
              fault_report& report);

  // Whether a fault among those reported so far ends the reading.
  bool is_done(const fault_report& faults) const {
    return extent_ == probing::first_fault && !faults.empty();
  }

  // What the transactions looked at so far take in documents, without faults.
  std::uint64_t bytes() const { return bytes_; }

  const std::string& rulebook() const { return header_.rulebook; }

 private:
  // The library's text when a message of these rows is refused, else empty.
  std::string refusal(std::span<const csv_row> rows, const file_columns& columns);

  payment_header header_;
  admitted_characters characters_;
  probing extent_;
  std::vector<csv_row> batch_;
  std::uint64_t bytes_ = 0;
};

}  // namespace tivex_program
