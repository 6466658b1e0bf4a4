#include "statements/camt/dates_and_signs.h"

#include <algorithm>

#include "validation/ascii.h"

namespace tivex {

namespace {

constexpr std::string_view form = "0000-00-00";

int number_at(const char* digits, int count) {
  int number = 0;
  for (; count > 0; --count, ++digits) number = number * 10 + (*digits - '0');
  return number;
}

int days_of_month(int year, int month) {
  constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap_year = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  return month == 2 && leap_year ? 29 : days[month - 1];
}

// A date, with a time or a zone behind it.
bool has_form(std::string_view text) {
  if (text.size() < form.size()) return false;
  for (std::size_t place = 0; place < form.size(); ++place) {
    if (form[place] == '0' ? !is_digit(text[place]) : text[place] != form[place]) return false;
  }
  constexpr std::string_view followers = "TZ+-";
  return text.size() == form.size() || followers.find(text[form.size()]) != std::string_view::npos;
}

}  // namespace

std::tm read_date(const date_value& written) {
  std::tm date{};
  const char* const text = first_of(written.date, written.date_time);
  if (text == nullptr || !has_form(text)) return date;
  const int year = number_at(text, 4);
  const int month = number_at(text + 5, 2);
  const int day = number_at(text + 8, 2);
  if (month < 1 || month > 12 || day < 1 || day > days_of_month(year, month)) return date;
  date.tm_year = year - 1900;
  date.tm_mon = month - 1;
  date.tm_mday = day;
  return date;
}

}  // namespace tivex
