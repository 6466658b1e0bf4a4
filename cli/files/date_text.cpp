#include "files/date_text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <string_view>

namespace tivex_program {
namespace {

// A number of so many digits at the start of the text, which is left behind it.
struct taken_number {
  int value = 0;
  std::size_t digits = 0;
};

taken_number take_number(std::string_view& text, std::size_t most) {
  taken_number number;
  while (number.digits < most && number.digits < text.size() && '0' <= text[number.digits] &&
         text[number.digits] <= '9') {
    ++number.digits;
  }
  std::from_chars(text.data(), text.data() + number.digits, number.value);
  text.remove_prefix(number.digits);
  return number;
}

bool take(std::string_view& text, char wanted) {
  if (!text.starts_with(wanted)) return false;
  text.remove_prefix(1);
  return true;
}

std::chrono::year_month_day date_of(int year, int month, int day) {
  return {std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
          std::chrono::day(static_cast<unsigned>(day))};
}

bool is_digit(char c) { return '0' <= c && c <= '9'; }

bool has_prescribed_form(std::string_view text) {
  return text.size() == 10 && text[4] == '-' && text[7] == '-';
}

constexpr int century = 2000;
constexpr int latest_of_two_digits = 69;

}  // namespace

std::optional<std::chrono::year_month_day> prescribed_date(std::string_view text) {
  if (!has_prescribed_form(text)) return std::nullopt;
  bool digits = true;
  const auto number = [&](std::size_t start, std::size_t end) {
    int value = 0;
    for (std::size_t at = start; at < end; ++at) {
      digits &= is_digit(text[at]);
      value = value * 10 + (text[at] - '0');
    }
    return value;
  };
  const int year = number(0, 4);
  const int month = number(5, 7);
  const int day = number(8, 10);
  if (!digits) return std::nullopt;
  return date_of(year, month, day);
}

date_flaw read_date(std::string& text) {
  if (const auto date = prescribed_date(text)) {
    return date->ok() ? date_flaw::none : date_flaw::calendar;
  }
  std::string_view rest = text;
  const taken_number day = take_number(rest, 2);
  const bool first = take(rest, '.');
  const taken_number month = take_number(rest, 2);
  const bool second = take(rest, '.');
  taken_number year = take_number(rest, 4);
  if (day.digits == 0 || month.digits == 0 || !first || !second || !rest.empty()) {
    return date_flaw::form;
  }
  if (year.digits == 2 && year.value <= latest_of_two_digits) {
    year = {century + year.value, 4};
  }
  if (year.digits != 4) return date_flaw::form;
  if (!date_of(year.value, month.value, day.value).ok()) return date_flaw::calendar;
  char written[16];
  std::snprintf(written, sizeof written, "%04d-%02d-%02d", year.value, month.value, day.value);
  text = written;
  return date_flaw::none;
}

const char* text_of(date_flaw flaw) {
  return flaw == date_flaw::form       ? "not a date such as 2026-12-01 or 01.12.2026"
         : flaw == date_flaw::calendar ? "no day of the calendar"
                                       : "";
}

}  // namespace tivex_program
