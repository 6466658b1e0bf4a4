#include "publishers/field_texts.h"

#include "field_forms.h"

namespace tivex_edition {

namespace {

constexpr std::string_view blanks = " \t";
constexpr std::size_t bank_code_length = 5;

constexpr std::string_view date_forms[] = {"dd.mm.yyyy", "yyyy-mm-dd", "yyyymmdd"};

bool is_digit_at(std::string_view text, std::size_t index) {
  return index < text.size() && is_digits(text.substr(index, 1), 1);
}

// The characters of the text that stand where the form has the letter.
std::string part(std::string_view text, std::string_view form, char letter) {
  const std::size_t start = form.find(letter);
  return std::string(text.substr(start, form.rfind(letter) + 1 - start));
}

// The date at the front of the text when it has the form, otherwise empty.
std::string date_of_form(std::string_view text, std::string_view form) {
  // More digits than the form has are another number.
  if (text.size() < form.size() || is_digit_at(text, form.size())) return {};
  for (std::size_t index = 0; index < form.size(); ++index) {
    const bool is_separator = form[index] == '.' || form[index] == '-';
    if (is_separator && text[index] != form[index]) return {};
  }
  const std::string date =
      part(text, form, 'y') + '-' + part(text, form, 'm') + '-' + part(text, form, 'd');
  return is_date(date) ? date : std::string();
}

}  // namespace

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

std::string full_bank_code(std::string_view text) {
  const bool is_short = !text.empty() && text.size() < bank_code_length;
  const std::size_t missing =
      is_short && is_digits(text, text.size()) ? bank_code_length - text.size() : 0;
  return std::string(missing, '0').append(text);
}

std::string full_bic(std::string_view text) {
  std::string bic;
  for (const char c : text) bic += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  return bic.size() == 8 ? bic + "XXX" : bic;
}

std::string date_in(std::string_view text) {
  for (std::size_t index = 0; index < text.size(); ++index) {
    if (index > 0 && is_digit_at(text, index - 1)) continue;
    for (const std::string_view form : date_forms) {
      std::string date = date_of_form(text.substr(index), form);
      if (!date.empty()) return date;
    }
  }
  return {};
}

}  // namespace tivex_edition
