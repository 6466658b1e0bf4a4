#include "warnings/calendar.h"

#include <cstdio>
#include <ctime>

#include "files/date_text.h"

namespace tivex_program {
namespace {

using std::chrono::days;
using std::chrono::month;
using std::chrono::year;
using std::chrono::year_month_day;

// Easter Sunday of the Gregorian calendar, by the computation of Meeus, Jones and Butcher.
calendar_day easter(int year_number) {
  const int golden = year_number % 19;
  const int century = year_number / 100;
  const int of_century = year_number % 100;
  const int correction = (century + 8) / 25;
  const int epact =
      (19 * golden + century - century / 4 - (century - correction + 1) / 3 + 15) % 30;
  const int to_sunday =
      (32 + 2 * (century % 4) + 2 * (of_century / 4) - epact - of_century % 4) % 7;
  const int late = (golden + 11 * epact + 22 * to_sunday) / 451;
  const int place = epact + to_sunday - 7 * late + 114;
  return year_month_day(year(year_number), month(static_cast<unsigned>(place / 31)),
                        std::chrono::day(static_cast<unsigned>(place % 31 + 1)));
}

struct fixed_holiday {
  unsigned month;
  unsigned day;
  const char* name;
};
constexpr fixed_holiday fixed_holidays[] = {{1, 1, "New Year's Day"},
                                            {5, 1, "Labour Day"},
                                            {12, 25, "Christmas Day"},
                                            {12, 26, "the day after Christmas"}};

struct moving_holiday {
  int after_easter;
  const char* name;
};
constexpr moving_holiday moving_holidays[] = {{-2, "Good Friday"}, {1, "Easter Monday"}};

}  // namespace

std::optional<calendar_day> day_of(std::string_view text) {
  const auto date = prescribed_date(text);
  return date && date->ok() ? std::optional(calendar_day(*date)) : std::nullopt;
}

std::string text_of(calendar_day day) {
  const year_month_day date(day);
  char text[32];
  std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
  return text;
}

calendar_day today() {
  const std::time_t now = std::time(nullptr);
  const std::tm* const local = std::localtime(&now);
  if (local == nullptr) return std::chrono::floor<days>(std::chrono::system_clock::now());
  return year_month_day(year(local->tm_year + 1900),
                        month(static_cast<unsigned>(local->tm_mon + 1)),
                        std::chrono::day(static_cast<unsigned>(local->tm_mday)));
}

calendar_day year_after(calendar_day day) {
  year_month_day date(day);
  date += std::chrono::years(1);
  return date.ok() ? calendar_day(date)
                   : calendar_day(date.year() / date.month() / std::chrono::last);
}

const char* weekend_name(calendar_day day) {
  const std::chrono::weekday weekday(day);
  if (weekday == std::chrono::Saturday) return "a Saturday";
  return weekday == std::chrono::Sunday ? "a Sunday" : nullptr;
}

const char* target_holiday(calendar_day day) {
  const year_month_day date(day);
  for (const fixed_holiday& holiday : fixed_holidays) {
    if (date.month() == month(holiday.month) && date.day() == std::chrono::day(holiday.day)) {
      return holiday.name;
    }
  }
  const calendar_day sunday = easter(static_cast<int>(date.year()));
  for (const moving_holiday& holiday : moving_holidays) {
    if (day == sunday + days(holiday.after_easter)) return holiday.name;
  }
  return nullptr;
}

}  // namespace tivex_program
