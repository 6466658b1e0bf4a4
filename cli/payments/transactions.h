#pragma once

#include <string>

#include "files/input_file.h"
#include "payments/message_handle.h"
#include "payments/schema_probe.h"
#include "payments/transaction_kind.h"
#include "terminal/fault_report.h"

namespace tivex_program {

// How the rows of a CSV file are read.
struct row_format {
  const transaction_kind& kind;
  char delimiter;
  bool shows_progress;
};

// Adds each row of the file to the message as one transaction and has the probe look
// at it. The message is complete only when no fault was reported.
void add_transactions(tivex_t* message, input_file& input, const row_format& format,
                      schema_probe& probe, fault_report& faults);

}  // namespace tivex_program
