#pragma once

#include <ctime>

#include "tivex.h"

namespace tivex {

// The first line of tag 61.
class dialect_entry {
 public:
  // Reads dates and mark.
  dialect_entry(char* value, char* end);

  // Whether the entry is not booked yet.
  bool is_expected() const { return first_ == 'E'; }
  // Fills the members that can be read, and ends the line with NUL.
  void fill(tivex_stmt_tx_t& entry);

 private:
  char* at_;  // where amount, type and references follow
  char* end_;
  std::tm value_date_ = {};
  std::tm booking_date_ = {};
  char first_ = '\0';  // in front of the mark: R or E
  bool is_debit_ = false;
  bool has_amount_ = false;
};

}  // namespace tivex
