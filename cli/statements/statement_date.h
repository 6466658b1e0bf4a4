#pragma once

#include <compare>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>

namespace tivex_program {

struct statement_date {
  int year;
  int month;  // from 1
  int day;

  auto operator<=>(const statement_date&) const = default;
};

// Nothing where the record holds no date. The 30th of February is one: banks count
// interest by months of 30 days.
std::optional<statement_date> date_of(const std::tm& record);

// Reads a day of the calendar, YYYY-MM-DD.
std::optional<statement_date> parse_date(std::string_view text);

// Writes it in the same form.
std::string to_text(const statement_date& date);

// The days from the first to the last, both included; either may be open.
struct statement_period {
  std::optional<statement_date> first;
  std::optional<statement_date> last;

  // What has no date lies in the open period only.
  bool holds(const std::optional<statement_date>& date) const;
};

}  // namespace tivex_program
