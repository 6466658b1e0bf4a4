// What the program does with a row beyond adding it: other characters, stand-ins for unknown
// banks, warnings, and its line of the report.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/csv_reader.h"
#include "payments/admitted_characters.h"
#include "payments/columns.h"
#include "payments/payment_message.h"
#include "payments/payment_report.h"
#include "payments/row_fault.h"
#include "payments/unknown_banks.h"
#include "warnings/calendar.h"
#include "warnings/line_memory.h"
#include "warnings/payment_dates.h"
#include "warnings/payment_notes.h"
#include "warnings/warning_rules.h"

namespace tivex_program {

// What the options ask for.
struct review_wishes {
  bool transliterates = false;
  bool accepts_unknown_banks = false;
  bool warnings_refuse = false;
  bool checks_only = false;
  std::string report;                 // the file, empty for none
  std::vector<std::string> left_out;  // names of warnings
  std::optional<calendar_day> today;  // that of the clock when not given
};

class payment_review {
 public:
  payment_review(const review_wishes& wishes, const payment_header& header, fault_extent extent);

  // Which columns the rows have; once, before them.
  void set_columns(const file_columns& columns);

  // Makes the row what the library is to see, as far as it could be read, and tells why it
  // cannot.
  void prepare(csv_row& row, std::vector<row_fault>& faults);

  // Takes a row that the library has taken.
  void take(const csv_row& row);

  // Tells what no row shows.
  void finish();

  // Puts the IBANs of unknown banks back into the document. False when that failed.
  bool complete(char* document) const {
    return stand_ins_.empty() || stand_ins_.put_back(document);
  }

  payment_notes& notes() { return notes_; }
  const payment_notes& notes() const { return notes_; }
  const report_rows& rows() const { return rows_; }
  date_sums sums() const { return dates_->sums(); }

 private:
  enum known_column : unsigned char {
    iban,
    name,
    amount,
    ref,
    bic,
    date,
    mref,
    mdate,
    cref,
    old_iban,
    count
  };

  void write_texts(csv_row& row, std::vector<row_fault>& faults);
  void accept_bank(csv_row& row, known_column which, std::vector<row_fault>& faults);
  std::string_view cell(const csv_row& row, known_column which) const;
  void warn(const char* rule, std::size_t line, std::string_view key, std::string text);
  bool is_left_out(std::string_view rule) const;
  void tell_header_date(const payment_date& day);
  auto warn_of_repetition() {
    return [this](const line_mark& later, const line_mark& first) {
      warn(repeated_payment, later.line, "",
           "the same IBAN, amount and text as on line " + std::to_string(first.line));
    };
  }
  auto warn_of_accounts() {
    return [this](const line_mark& later, const line_mark& first) {
      if (first.mark == later.mark) return;
      warn(mandate_accounts, later.line, "mref",
           "the same mandate as on line " + std::to_string(first.line) + " with another IBAN");
    };
  }
  void compare_with_others(const csv_row& row, std::string_view true_iban, std::int64_t cents);

  const review_wishes& wishes_;
  order_facts order_;
  std::optional<payment_dates> dates_;
  std::string header_date_;
  bool has_header_date_ = false;
  bool header_date_told_ = false;
  payment_notes notes_;
  admitted_characters characters_;
  unknown_banks stand_ins_;
  report_rows rows_;
  file_columns columns_;
  std::array<std::size_t, count> places_{};  // behind those of all cells when absent
  line_memory payments_;
  line_memory mandates_;
};

}  // namespace tivex_program
