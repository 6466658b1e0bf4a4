#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "warnings/calendar.h"
#include "warnings/date_sums.h"
#include "warnings/warning_rules.h"

namespace tivex_program {

struct date_warning {
  const warning_rule* rule;
  std::string text;
};

// What holds for all payments of one date, found once: files name few dates for many payments.
struct payment_date {
  std::optional<calendar_day> day;  // none when the text names no day
  std::string text;                 // in the prescribed form
  std::vector<date_warning> warnings;
  date_sum sum;
};

class payment_dates {
 public:
  explicit payment_dates(order_facts order) : order_(std::move(order)) {}

  // By its text in the prescribed form.
  payment_date& of(std::string_view text);

  date_sums sums() const;

 private:
  order_facts order_;
  std::unordered_map<std::string, payment_date> known_;
  // Where most dates of a file are found at once.
  std::array<payment_date*, 1024> latest_{};
};

}  // namespace tivex_program
