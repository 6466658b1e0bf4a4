#include "statements/dialects/dialect_entry.h"

#include <cstring>

#include "statements/dialects/dialect_lines.h"
#include "statements/dialects/dialect_numbers.h"
#include "statements/mt940/mt940_dates.h"
#include "statements/text_steps.h"

namespace tivex {

namespace {

bool is_letter(char c) { return is_upper(to_upper(c)); }

// Behind a mark: C or D, which R or E may precede. Null when there is none.
char* skip_mark(char* at, const char* end) {
  if (at < end && (*at == 'R' || *at == 'E')) ++at;
  return at < end && (*at == 'C' || *at == 'D') ? at + 1 : nullptr;
}

// Behind letters of the currency, where an amount follows; the same place where none does.
char* skip_currency(char* from, const char* end) {
  constexpr int most_letters = 3;
  char* at = from;
  for (int letters = 0; letters < most_letters && at < end && is_letter(*at); ++letters) ++at;
  return number_begins(at, end) ? at : from;
}

// The first mark with an amount, which has to begin in front of the first comma; the same
// place when there is none.
char* find_mark_with_amount(char* from, char* end) {
  auto* const comma =
      static_cast<char*>(std::memchr(from, ',', static_cast<std::size_t>(end - from)));
  const char* const limit = comma == nullptr ? end : comma;
  for (char* at = from; at < limit; ++at) {
    char* const behind = skip_mark(at, end);
    if (behind != nullptr && number_begins(skip_currency(behind, end), end)) return at;
  }
  return from;
}

}  // namespace

dialect_entry::dialect_entry(char* value, char* end) : at_(value), end_(end) {
  constexpr std::size_t entry_date_length = 4;
  if (end_ - at_ >= static_cast<std::ptrdiff_t>(date_length) && all_digits({at_, date_length})) {
    read_dialect_date({at_, date_length}, value_date_);
    at_ += date_length;
    if (read_dialect_entry_date(between(at_, end_), value_date_, booking_date_)) {
      at_ += entry_date_length;
    }
  }
  // What stands in front of the mark is a date of a wrong form.
  at_ = find_mark_with_amount(at_, end_);
  char* const behind = skip_mark(at_, end_);
  // Without a mark digits may belong to a date that was cut.
  has_amount_ = behind != nullptr || between(at_, end_).find(',') != std::string_view::npos;
  if (behind == nullptr) return;
  if (behind - at_ == 2) first_ = *at_;
  is_debit_ = behind[-1] == 'D';
  at_ = behind;
}

void dialect_entry::fill(tivex_stmt_tx_t& entry) {
  constexpr std::size_t type_length = 3;
  entry.value_date = value_date_;
  entry.booking_date = booking_date_;
  entry.reversal = first_ == 'R' ? 1 : 0;
  at_ = skip_currency(at_, end_);
  if (has_amount_ && read_dialect_amount(at_, end_, entry.amount) && is_debit_) {
    entry.amount = -entry.amount;
  }
  while (at_ < end_ && is_blank(*at_)) ++at_;
  if (at_ < end_ && is_letter(*at_)) {
    char* const type = at_ + 1;
    at_ = step(type, end_, type_length);
    copy_text(entry.type_code, between(type, at_));
  }
  entry.customer_ref = at_;
  const std::size_t slashes = between(at_, end_).find("//");
  *end_ = '\0';
  if (slashes == std::string_view::npos) return;
  at_[slashes] = '\0';
  entry.bank_ref = at_ + slashes + 2;
}

}  // namespace tivex
