// From a CSV file to a payment document and what is told of it.
#pragma once

#include <string>
#include <vector>

#include "payments/payment_message.h"
#include "payments/payment_review.h"
#include "payments/transactions.h"
#include "terminal/fault_report.h"
#include "warnings/payment_notes.h"

namespace tivex_program {

struct payment_order {
  payment_header header;
  row_format format;
  std::string input;
  std::string output;
  fault_form form;  // of the faults and the summary
  fault_extent extent;
  bool has_summary;
  review_wishes review;
  std::vector<value_change> changes;  // of the header
};

// Selects the order's rulebook, and writes its header with the characters that it admits where
// the order asks for that. Returns what keeps it from being carried out whatever the
// file holds, with the option; empty when nothing does.
std::string prepare(payment_order& order);

// Writes the document of the file's transactions, and the report. False, and error lines, when
// it could not.
bool write_payments(const payment_order& order);

}  // namespace tivex_program
