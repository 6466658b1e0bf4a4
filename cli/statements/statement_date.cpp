#include "statements/statement_date.h"

#include <chrono>
#include <cstdio>

#include "files/value_rules.h"

namespace tivex_program {
namespace {

bool within(int value, int low, int high) { return low <= value && value <= high; }

bool is_in_calendar(const statement_date& date) {
  return std::chrono::year_month_day(std::chrono::year(date.year),
                                     std::chrono::month(static_cast<unsigned>(date.month)),
                                     std::chrono::day(static_cast<unsigned>(date.day)))
      .ok();
}

int number(std::string_view digits) {
  int value = 0;
  for (const char c : digits) value = value * 10 + (c - '0');
  return value;
}

}  // namespace

std::optional<statement_date> date_of(const std::tm& record) {
  const statement_date date{record.tm_year + 1900, record.tm_mon + 1, record.tm_mday};
  const bool present =
      within(date.year, 0, 9999) && within(date.month, 1, 12) && within(date.day, 1, 31);
  return present ? std::optional(date) : std::nullopt;
}

std::optional<statement_date> parse_date(std::string_view text) {
  if (!date_fault(text).empty()) return std::nullopt;
  const statement_date date{number(text.substr(0, 4)), number(text.substr(5, 2)),
                            number(text.substr(8, 2))};
  return is_in_calendar(date) ? std::optional(date) : std::nullopt;
}

std::string to_text(const statement_date& date) {
  char text[40];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.year, date.month, date.day);
  return text;
}

bool statement_period::holds(const std::optional<statement_date>& date) const {
  if (!date) return !first && !last;
  return (!first || *first <= *date) && (!last || *date <= *last);
}

}  // namespace tivex_program
