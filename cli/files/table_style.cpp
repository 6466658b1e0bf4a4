#include "files/table_style.h"

#include <algorithm>

#include "files/csv_cell.h"
#include "files/utf8.h"

namespace tivex_program {
namespace {

bool is_digit(char c) { return '0' <= c && c <= '9'; }

char lower(char c) { return 'A' <= c && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool is_one_of(char c, std::string_view characters) {
  return characters.find(c) != std::string_view::npos;
}

// How dates begin that Excel makes of texts, in German and English.
constexpr std::string_view months[] = {"jan", "feb", "mar", "m\u00E4r", "apr", "mai", "may", "jun",
                                       "jul", "aug", "sep", "okt",      "oct", "nov", "dez", "dec"};

bool begins_with_month(std::string_view text) {
  return std::ranges::any_of(months, [text](std::string_view month) {
    return text.size() >= month.size() && std::equal(month.begin(), month.end(), text.begin(),
                                                     [](char a, char b) { return a == lower(b); });
  });
}

// Whether Excel could take the text for a number, a date, a time or a share.
bool looks_like_value(std::string_view text) {
  if (std::ranges::none_of(text, is_digit)) return false;
  const bool begins = is_digit(text[0]) || is_one_of(text[0], "+-., ");
  const auto is_of_value = [](char c) {
    return is_digit(c) || ('a' <= lower(c) && lower(c) <= 'z') || is_one_of(c, "+-., :/%\xC3\xA4");
  };
  return (begins || begins_with_month(text)) && std::ranges::all_of(text, is_of_value);
}

// A number that stays the same when Excel has read and shown it.
bool is_plain_number(std::string_view text) {
  constexpr std::size_t most_digits = 15;
  if (!text.empty() && is_one_of(text[0], "+-")) text.remove_prefix(1);
  const auto is_of_number = [](char c) { return is_digit(c) || is_one_of(c, ".,"); };
  return !text.empty() && is_digit(text[0]) && is_digit(text.back()) &&
         std::ranges::all_of(text, is_of_number) &&
         std::ranges::count_if(text, is_digit) <= static_cast<std::ptrdiff_t>(most_digits) &&
         (text[0] != '0' || text.size() == 1 || !is_digit(text[1]));
}

// A date as ISO 8601 writes it, which Excel reads in every language.
bool is_iso_date(std::string_view text) {
  constexpr std::string_view form = "dddd-dd-dd";
  return std::equal(text.begin(), text.end(), form.begin(), form.end(), [](char c, char expected) {
    return expected == 'd' ? is_digit(c) : c == expected;
  });
}

bool is_formula(std::string_view text) { return !text.empty() && is_one_of(text[0], "=+-@\t\r\n"); }

std::string excel_cell(const std::string& cell, cell_kind kind, const table_style& style) {
  if (kind == cell_kind::number) {
    std::string number = cell;
    std::ranges::replace(number, '.', style.decimal_sign);
    return number;
  }
  if (kind == cell_kind::unknown && (is_plain_number(cell) || is_iso_date(cell))) return cell;
  // The one form that a cell of digits stays a text in.
  if (looks_like_value(cell)) return "=\"" + cell + '"';
  return is_formula(cell) ? '\'' + cell : cell;
}

}  // namespace

std::string_view table_opening(const table_style& style) {
  return style.for_excel ? byte_order_mark : std::string_view();
}

std::string table_cell(const std::string& cell, cell_kind kind, const table_style& style) {
  if (!style.for_excel) return csv_cell(cell, style.delimiter);
  return csv_cell(excel_cell(cell, kind, style), style.delimiter);
}

}  // namespace tivex_program
