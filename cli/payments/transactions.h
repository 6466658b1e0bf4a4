#pragma once

#include <string>

#include "files/input_file.h"
#include "files/table_form.h"
#include "payments/amount_column.h"
#include "payments/message_handle.h"
#include "payments/payment_review.h"
#include "payments/row_values.h"
#include "payments/schema_probe.h"
#include "payments/table_facts.h"
#include "payments/transaction_kind.h"
#include "terminal/fault_report.h"

namespace tivex_program {

// How the rows of a CSV file are read.
struct row_format {
  const transaction_kind& kind;
  table_wishes table;
  header_wishes names;
  decimal_sign sign;
  row_defaults defaults;
  bool shows_progress;
};

// Adds each row of the file to the message as one transaction and has review and probe look
// at it. The message is complete only when no fault was reported. Returns how it was read.
table_facts add_transactions(tivex_t* message, input_file& input, const row_format& format,
                             amount_column& amounts, schema_probe& probe, payment_review& review,
                             fault_report& faults);

// The decimal sign that the amounts of the file tell, all of them looked at.
decimal_evidence find_decimal_sign(input_file& input, const row_format& format,
                                   const std::string& rulebook);

}  // namespace tivex_program
