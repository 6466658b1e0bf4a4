#pragma once

#include <vector>

#include "files/csv_reader.h"
#include "payments/columns.h"
#include "payments/payment_message.h"
#include "payments/row_fault.h"
#include "terminal/fault_report.h"

namespace tivex_program {

// Finds what else is wrong with a row, whose cells with the faults so far are taken for good:
// what the library refuses of each cell, what is missing, and with a strict header what the
// schema refuses.
void find_all_faults(const payment_header& header, const csv_row& row, const file_columns& columns,
                     std::vector<row_fault>& faults);

// Tells the faults of a row in the order of its columns, with their names and values in the
// file and what to do.
void tell_row(const csv_row& row, const file_columns& columns, std::vector<row_fault> faults,
              fault_report& report);

}  // namespace tivex_program
