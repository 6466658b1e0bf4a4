#include "statements/hledger_texts.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "files/utf8.h"

namespace tivex_program {
namespace {

constexpr int least_decimals = 2;
constexpr int most_decimals = 5;

std::string replaced(std::string text, std::string_view characters, std::string_view by) {
  for (char& c : text) {
    const std::size_t at = characters.find(c);
    if (at != std::string_view::npos) c = by[at];
  }
  return text;
}

std::string with_decimals(double amount, int decimals) {
  const int length = std::snprintf(nullptr, 0, "%.*f", decimals, amount);
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  std::snprintf(text.data(), text.size(), "%.*f", decimals, amount);
  text.pop_back();
  return text;
}

bool has_decimals(double amount, int decimals) {
  return std::strtod(with_decimals(amount, decimals).c_str(), nullptr) == amount;
}

bool is_letter(char c) { return ('A' <= c && c <= 'Z') || ('a' <= c && c <= 'z'); }

// What is more than letters stands between quotes.
std::string commodity(const std::string& currency) {
  if (std::ranges::all_of(currency, is_letter)) return currency;
  return '"' + replaced(currency, "\";", "',") + '"';
}

}  // namespace

std::string journal_description(const std::string& name, const std::string& text) {
  const std::string plain_name = replaced(name, ";|", ",/");
  const std::string plain_text = replaced(text, ";|", ",/");
  const bool both = !name.empty() && !text.empty();
  std::string description = plain_name + (both ? " | " : "") + plain_text;
  // A parenthesis would begin a transaction's code.
  const std::size_t first = description.find_first_not_of(' ');
  if (first != std::string::npos && description[first] == '(') description[first] = '[';
  return description;
}

std::string journal_tag_value(std::string text) { return replaced(std::move(text), ",", ";"); }

std::string journal_date(const statement_date& date) {
  using namespace std::chrono;
  const year_month_day_last last(year(date.year),
                                 month_day_last(month(static_cast<unsigned>(date.month))));
  const int last_day = static_cast<int>(static_cast<unsigned>(last.day()));
  return to_text(statement_date{date.year, date.month, std::min(date.day, last_day)});
}

std::string journal_amount(double amount, const std::string& currency) {
  int decimals = least_decimals;
  while (decimals < most_decimals && !has_decimals(amount, decimals)) ++decimals;
  // What no decimals tell exactly is told to the cent.
  if (!has_decimals(amount, decimals)) decimals = least_decimals;
  const std::string number = with_decimals(amount, decimals);
  return currency.empty() ? number : number + ' ' + commodity(currency);
}

bool is_of_cents(double amount) { return has_decimals(amount, least_decimals); }

std::string account_name_fault(std::string_view name) {
  if (name.empty()) return "is empty";
  if (name.starts_with(' ') || name.ends_with(' ')) return "begins or ends with a blank";
  if (name.find("  ") != std::string_view::npos) return "has two blanks in a row";
  if (std::string_view("([*!;=").find(name.front()) != std::string_view::npos) {
    return "begins with a character that hledger reads otherwise";
  }
  while (!name.empty()) {
    const std::size_t length = utf8_character_length(name);
    if (length == 0) return "is not UTF-8";
    if (is_control_character(name.substr(0, length)) || name.front() == ';') {
      return "has a character that hledger reads otherwise";
    }
    name.remove_prefix(length);
  }
  return {};
}

}  // namespace tivex_program
