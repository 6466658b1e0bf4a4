#include "field_forms.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <string>

#include "utf8.h"

namespace tivex_edition {

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }
bool is_capital(char c) { return c >= 'A' && c <= 'Z'; }
bool is_hexadecimal(char c) { return is_digit(c) || (c >= 'A' && c <= 'F'); }

bool all_of(std::string_view text, bool (*holds)(char)) {
  return std::all_of(text.begin(), text.end(), holds);
}

unsigned number(std::string_view digits) {
  unsigned value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

// C0 and C1: the latter is what Windows-1252 turns into when it is read as Latin-1.
bool is_control(std::string_view character) {
  const auto byte = static_cast<unsigned char>(character[0]);
  if (character.size() == 1) return byte < 0x20 || byte == 0x7F;
  return byte == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
}

}  // namespace

bool is_digits(std::string_view text, std::size_t count) {
  return text.size() == count && all_of(text, is_digit);
}

bool is_bank_code5(std::string_view text) { return is_digits(text, 5); }
bool is_bank_code8(std::string_view text) { return is_digits(text, 8); }
bool is_bank_code8_or_empty(std::string_view text) { return text.empty() || is_bank_code8(text); }

bool is_bic(std::string_view text) {
  return text.size() == 11 && all_of(text, [](char c) { return is_digit(c) || is_capital(c); });
}
bool is_bic_or_empty(std::string_view text) { return text.empty() || is_bic(text); }

bool is_date(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return false;
  const std::string_view year = text.substr(0, 4);
  const std::string_view month = text.substr(5, 2);
  const std::string_view day = text.substr(8, 2);
  if (!is_digits(year, 4) || !is_digits(month, 2) || !is_digits(day, 2)) return false;
  return std::chrono::year_month_day{std::chrono::year(static_cast<int>(number(year))),
                                     std::chrono::month(number(month)),
                                     std::chrono::day(number(day))}
      .ok();
}
bool is_date_or_empty(std::string_view text) { return text.empty() || is_date(text); }

bool is_flag(std::string_view text) { return text == "0" || text == "1"; }

bool is_flags_byte(std::string_view text) {
  return text.size() == 4 && text.starts_with("0x") && all_of(text.substr(2), is_hexadecimal);
}

bool is_method(std::string_view text) { return text.size() == 2 && all_of(text, is_hexadecimal); }

bool is_iban_rule(std::string_view text) {
  constexpr unsigned last_rule = 57;
  return is_number(text) && text.size() <= 4 && number(text) / 100 <= last_rule;
}

bool is_country_or_empty(std::string_view text) {
  return text.empty() || (text.size() == 2 && all_of(text, is_capital));
}
bool is_austria(std::string_view text) { return text == "AT"; }
bool is_germany(std::string_view text) { return text == "DE"; }

bool is_number(std::string_view text) {
  return !text.empty() && all_of(text, is_digit) && (text.size() == 1 || text[0] != '0');
}

bool is_account(std::string_view text) { return is_digits(text, 10); }
bool is_prefix(std::string_view text) { return is_digits(text, 3) && text[0] != '0'; }

bool is_purpose(std::string_view text) {
  return text.size() == 4 && all_of(text, [](char c) { return is_digit(c) || is_capital(c); });
}

bool is_german_iban(std::string_view text) {
  constexpr std::size_t length = 22;
  if (text.size() != length || !text.starts_with("DE") || !all_of(text.substr(2), is_digit)) {
    return false;
  }
  // ISO 13616: country and check digits behind the rest, letters as 10 to 35.
  int remainder = 0;
  for (const char c : std::string(text.substr(4)) + "1314" + std::string(text.substr(2, 2))) {
    remainder = (remainder * 10 + (c - '0')) % 97;
  }
  return remainder == 1;
}

bool is_record_text(std::string_view text) {
  if (text.starts_with(' ') || text.ends_with(' ')) return false;
  while (!text.empty()) {
    const std::size_t length = utf8_length(text);
    if (length == 0 || text[0] == '|' || is_control(text.substr(0, length))) return false;
    text.remove_prefix(length);
  }
  return true;
}

}  // namespace tivex_edition
