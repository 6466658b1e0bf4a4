#include "statements/append_entry.h"
#include "statements/mt940/mt940_dates.h"
#include "statements/mt940/mt940_lines.h"
#include "transactions/decimal.h"
#include "validation/ascii.h"

namespace tivex {

namespace {

constexpr std::size_t tag_length = 4;  // ":61:"

// Reads MMDD. The year is that of the value date, or its neighbour when the year
// turns between the two dates. Nothing when there are no four digits.
bool read_entry_date(std::string_view characters, int value_year, int value_month, std::tm& date) {
  constexpr std::size_t length = 4;
  if (characters.size() < length || !all_digits(characters)) return false;
  date.tm_mon = two_digits(characters.data());
  date.tm_mday = two_digits(characters.data() + 2);
  date.tm_year = value_year;
  if (value_month == 12 && date.tm_mon == 1) ++date.tm_year;
  if (value_month == 1 && date.tm_mon == 12) --date.tm_year;
  complete_date(date);
  return true;
}

// Steps over the next character if it is one of these.
template <class condition>
bool take(char*& at, const char* end, const condition& wanted) {
  const bool taken = at < end && wanted(*at);
  if (taken) ++at;
  return taken;
}

bool is_letter(char c) { return is_upper(to_upper(c)); }

// Where the references begin: behind the transaction type.
void read_references(mt940_progress& progress, char* from) {
  tivex_stmt_tx_t& entry = *progress.entry;
  entry.customer_ref = from;
  char* const limit = progress.line_limit();
  if (progress.line_end != nullptr) *progress.line_end = '\0';
  // The type may have been found in a later line.
  if (from > limit) return;
  const std::size_t slashes = between(from, limit).find("//");
  if (slashes == std::string_view::npos) return;
  from[slashes] = '\0';
  entry.bank_ref = from + slashes + 2;
}

}  // namespace

line_outcome read_entry(mt940_progress& progress) {
  tivex_stmt_tx_t* const entry = append_entry(progress.records, *progress.statement);
  if (entry == nullptr) return line_outcome::no_memory;
  entry->full_name = entry->name;
  progress.entry = entry;

  char* at = progress.at(tag_length);
  if (!scan_date(between(at, progress.end), entry->value_date)) return line_outcome::statement_ends;
  const int value_year = entry->value_date.tm_year;
  const int value_month = entry->value_date.tm_mon;
  complete_date(entry->value_date);
  // Wherever the scan ended.
  at = step(at, progress.end, date_length);
  char* const entry_date_end = step(at, progress.end, 4);
  if (read_entry_date(between(at, entry_date_end), value_year, value_month, entry->booking_date)) {
    at = entry_date_end;
  }

  entry->reversal = take(at, progress.end, [](char c) { return c == 'R'; }) ? 1 : 0;
  double sign = 1.0;
  take(at, progress.end, [&sign](char mark) {
    if (mark == 'D') sign = -1.0;
    return true;
  });
  take(at, progress.end, is_letter);  // of the currency

  char* const type = progress.next_n.find(at);
  if (type == progress.end) return line_outcome::statement_ends;
  char* const comma = progress.next_comma.find(at);
  if (comma < type) *comma = '.';
  entry->amount = parse_decimal(at, nullptr) * sign;

  constexpr std::size_t type_length = 3;
  char* const type_end = step(type + 1, progress.end, type_length);
  copy_text(entry->type_code, between(type + 1, type_end));
  read_references(progress, type_end);
  return line_outcome::next_line;
}

}  // namespace tivex
