#include "statements/dialects/dialect_balance.h"

#include "statements/dialects/dialect_lines.h"
#include "statements/dialects/dialect_numbers.h"
#include "statements/text_steps.h"

namespace tivex {

void read_dialect_balance(char* at, char* end, const balance_members& balance) {
  constexpr std::size_t currency_length = 3;
  while (at < end && is_blank(*at)) ++at;
  double sign = 1.0;
  if (at < end && !is_digit(*at)) sign = *at++ == 'D' ? -1.0 : 1.0;
  read_dialect_date(between(at, end), balance.date);
  while (at < end && (is_digit(*at) || is_blank(*at))) ++at;
  char* const amount = step(at, end, currency_length);
  const std::string_view currency = between(at, amount);
  if (currency.size() == currency_length &&
      std::all_of(currency.begin(), currency.end(), is_upper)) {
    copy_text(balance.currency, currency);
    at = amount;
  }
  if (read_dialect_amount(at, end, balance.amount)) balance.amount *= sign;
}

}  // namespace tivex
