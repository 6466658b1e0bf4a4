// A page that a person reads, prints and signs: who pays whom what and when.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "payments/document_summary.h"
#include "payments/payment_message.h"
#include "warnings/payment_notes.h"

namespace tivex_program {

struct report_row {
  std::string_view name;
  std::string_view iban;
  std::string_view text;
  std::string_view date;
  std::int64_t cents;
};

// The payments as rows of the page, made while they are read.
class report_rows {
 public:
  explicit report_rows(bool wanted) : wanted_(wanted) {}

  bool wanted() const { return wanted_; }
  void add(const report_row& row);

  const std::string& html() const { return html_; }

 private:
  bool wanted_;
  std::uint64_t number_ = 0;
  std::string html_;
};

// Where the page's facts come from.
struct report_facts {
  const payment_header& header;
  const document_summary& summary;
  const report_rows& rows;
  const payment_notes& notes;
  std::string input;
  std::string output;  // empty when no document is written to a file
};

std::string report_page(const report_facts& facts);

}  // namespace tivex_program
