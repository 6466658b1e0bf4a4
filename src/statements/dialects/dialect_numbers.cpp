#include "statements/dialects/dialect_numbers.h"

#include <utility>

#include "statements/dialects/dialect_lines.h"
#include "statements/mt940/mt940_dates.h"
#include "statements/text_steps.h"
#include "transactions/decimal.h"

namespace tivex {

namespace {

bool set_date(std::tm& date, int year, int month, int day) {
  if (month < 1 || month > 12 || day < 1 || day > 31) return false;
  date.tm_year = year;
  date.tm_mon = month;
  date.tm_mday = day;
  complete_date(date);
  return true;
}

bool is_separator(char c) { return c == ',' || c == '.'; }

bool begins_with_digits(std::string_view text, std::size_t count) {
  return text.size() >= count && all_digits({text.data(), count});
}

}  // namespace

bool read_dialect_date(std::string_view text, std::tm& date) {
  if (!begins_with_digits(text, date_length)) return false;
  const char* const at = text.data();
  return set_date(date, two_digits(at), two_digits(at + 2), two_digits(at + 4));
}

bool read_dialect_entry_date(std::string_view text, const std::tm& value_date, std::tm& date) {
  constexpr std::size_t length = 4;
  if (!begins_with_digits(text, length)) return false;
  if (text.size() > length && is_digit(text[length])) return false;
  if (value_date.tm_mday == 0) return false;
  const int month = two_digits(text.data());
  int year = value_date.tm_year;
  if (value_date.tm_mon == 11 && month == 1) ++year;
  if (value_date.tm_mon == 0 && month == 12) --year;
  if (!set_date(date, year, month, two_digits(text.data() + 2))) return false;
  date.tm_year = year;
  return true;
}

bool number_begins(const char* at, const char* end) {
  while (at < end && is_blank(*at)) ++at;
  if (at < end && (*at == '+' || *at == '-')) ++at;
  return at < end && (is_digit(*at) || is_separator(*at));
}

bool read_dialect_amount(char*& at, char* end, double& amount) {
  if (!number_begins(at, end)) return false;
  while (is_blank(*at)) ++at;
  char* const number = at;
  char* separator = nullptr;
  int digits = 0;
  int separators = 0;
  // The first character may be a sign.
  if (!is_digit(*at) && !is_separator(*at)) ++at;
  for (; at < end && (is_digit(*at) || is_separator(*at)); ++at) {
    if (is_digit(*at)) {
      ++digits;
    } else {
      separator = at;
      ++separators;
    }
  }
  if (digits == 0 || separators > 1) return false;
  if (separator != nullptr) *separator = '.';
  // Letters behind the number could be taken for an exponent.
  const char behind = std::exchange(*at, '\0');
  amount = parse_decimal(number, nullptr);
  *at = behind;
  return true;
}

}  // namespace tivex
