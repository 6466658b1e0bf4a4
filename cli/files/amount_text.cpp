#include "files/amount_text.h"

#include <algorithm>
#include <cstddef>

#include "files/written_blank.h"

namespace tivex_program {
namespace {

constexpr const char* no_amount = "not an amount";
constexpr const char* with_exponent = "an amount with an exponent";

constexpr std::string_view currencies[] = {"€", "EUR", "Eur", "eur"};
constexpr std::string_view apostrophes[] = {"'", "\u2019"};
// How the signs that group digits are written where an amount is looked at.
constexpr char blank_group = ' ';
constexpr char apostrophe_group = '\'';

constexpr std::size_t most_decimals = 2;

bool is_digit(char c) { return '0' <= c && c <= '9'; }

std::string_view without_currency(std::string_view text) {
  text = without_blanks_around(text);
  for (const std::string_view currency : currencies) {
    if (text.starts_with(currency)) {
      text.remove_prefix(currency.size());
      break;
    }
    if (text.ends_with(currency)) {
      text.remove_suffix(currency.size());
      break;
    }
  }
  return without_blanks_around(text);
}

// The amount with one byte for each of its signs.
std::string with_plain_signs(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    std::size_t length = blank_length(text);
    if (length > 0) {
      plain += blank_group;
    } else if (text.starts_with(apostrophes[1])) {
      length = apostrophes[1].size();
      plain += apostrophe_group;
    } else {
      length = 1;
      plain += text.front();
    }
    text.remove_prefix(length);
  }
  return plain;
}

// Takes the signs between groups of three out of digits. False when they are not such.
bool join_thousands(std::string_view text, char decimal, std::string& digits) {
  const auto* const sign = std::ranges::find_if_not(text, is_digit);
  if (sign == text.end()) {
    digits = text;
    return !text.empty();
  }
  const std::string_view signs = ".,' ";
  if (*sign == decimal || signs.find(*sign) == std::string_view::npos) return false;
  const auto first = static_cast<std::size_t>(sign - text.begin());
  if (first == 0 || first > 3 || text.front() == '0') return false;
  digits = text.substr(0, first);
  for (text.remove_prefix(first); !text.empty(); text.remove_prefix(4)) {
    const std::string_view group = text.substr(1, 3);
    if (text.front() != *sign || group.size() != 3 || !std::ranges::all_of(group, is_digit)) {
      return false;
    }
    digits += group;
  }
  return true;
}

amount_reading read_by(std::string_view text, char decimal) {
  const std::size_t place = std::min(text.rfind(decimal), text.size());
  amount_reading reading;
  if (place > 0 && !join_thousands(text.substr(0, place), decimal, reading.value)) return {};
  if (place == text.size()) return reading;
  std::string_view decimals = text.substr(place + 1);
  if (decimals.empty() || !std::ranges::all_of(decimals, is_digit)) return {};
  if (place == 0) reading.value = '0';
  if (decimals.size() > most_decimals) {
    reading.has_more_decimals = true;
    const std::size_t needed = decimals.find_last_not_of('0') + 1;
    reading.has_parts_of_a_cent = needed > most_decimals;
    decimals = decimals.substr(0, std::max(needed, most_decimals));
  }
  reading.value.append(1, '.').append(decimals);
  return reading;
}

bool has_exponent(std::string_view text) {
  const std::size_t place = text.find_first_of("eE");
  return place != std::string_view::npos && place > 0 &&
         text.find_first_not_of("0123456789.,+-eE") == std::string_view::npos;
}

}  // namespace

decimal_sign written_amount::decides() const {
  const bool point = !by_point.value.empty();
  const bool comma = !by_comma.value.empty();
  if (point == comma || by_point.has_more_decimals || by_comma.has_more_decimals) {
    return decimal_sign::unknown;
  }
  return point ? decimal_sign::point : decimal_sign::comma;
}

bool written_amount::is_clear() const {
  return !by_point.value.empty() && by_point.value == by_comma.value;
}

written_amount read_amount(std::string_view text) {
  const std::string plain = with_plain_signs(without_currency(text));
  std::string_view digits = plain;
  std::string minus;
  if (digits.starts_with('-') || digits.starts_with('+')) {
    if (digits.front() == '-') minus = "-";
    digits.remove_prefix(1);
  }
  written_amount amount;
  if (has_exponent(digits)) {
    amount.fault = with_exponent;
    return amount;
  }
  amount.by_point = read_by(digits, '.');
  amount.by_comma = read_by(digits, ',');
  for (amount_reading* reading : {&amount.by_point, &amount.by_comma}) {
    if (!reading->value.empty()) reading->value.insert(0, minus);
  }
  if (amount.by_point.value.empty() && amount.by_comma.value.empty()) amount.fault = no_amount;
  return amount;
}

bool is_prescribed_amount(std::string_view text, bool& has_point) {
  const auto* const point = std::ranges::find_if_not(text, is_digit);
  has_point = point != text.end();
  if (point == text.begin()) return false;
  if (!has_point) return true;
  const auto decimals = text.end() - point - 1;
  return *point == '.' && (decimals == 1 || decimals == 2) &&
         std::all_of(point + 1, text.end(), is_digit);
}

}  // namespace tivex_program
