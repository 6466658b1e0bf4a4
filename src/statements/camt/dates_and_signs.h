// What statements and entries say in the same way.
#pragma once

#include <ctime>
#include <string_view>

#include "statements/camt/values.h"

namespace tivex {

// The date, or that of a date with time; zeros when there is none.
std::tm read_date(const date_value& written);

inline bool is_set(const std::tm& date) { return date.tm_mday != 0; }

inline bool is_debit(const char* indicator) {
  return indicator != nullptr && std::string_view(indicator) == "DBIT";
}

// Not negative zero.
inline double with_sign(double amount, bool negative) { return negative ? 0.0 - amount : amount; }

// The currency, which stands in front of the number.
inline std::string_view currency_of(const money_value& money) {
  return {money.text, static_cast<std::size_t>(money.number - money.text)};
}

}  // namespace tivex
