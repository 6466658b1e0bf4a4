#include "switch_time.h"

#include <chrono>

namespace tivex_edition {

std::int64_t start_of_day_in_germany(const std::string& date) {
  using namespace std::chrono;
  const year_month_day day{year(std::stoi(date.substr(0, 4))),
                           month(static_cast<unsigned>(std::stoi(date.substr(5, 2)))),
                           std::chrono::day(static_cast<unsigned>(std::stoi(date.substr(8, 2))))};
  // The clocks change at 01:00 UTC on the last Sundays of March and October.
  const sys_days summer_begins = day.year() / March / Sunday[last];
  const sys_days summer_ends = day.year() / October / Sunday[last];
  const bool summer = sys_days(day) > summer_begins && sys_days(day) <= summer_ends;
  const sys_seconds start = sys_days(day) - hours(summer ? 2 : 1);
  return start.time_since_epoch().count();
}

}  // namespace tivex_edition
