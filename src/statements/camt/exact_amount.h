// Amounts as documents write them, without rounding.
#pragma once

#include <cstdint>

namespace tivex {

// A decimal number of up to eighteen digits that count: digits / 10^places.
struct exact_amount {
  std::int64_t digits = 0;
  int places = 0;  // no trailing zeros among them
};

enum class amount_form { exact, longer, no_number };

// Reads a number with a sign or without, a point among its digits or none, and nothing else.
// A longer one has more digits than an exact amount can hold.
amount_form read_amount(const char* text, exact_amount& amount);

// The nearest double to an exact amount; the leading digits count of a longer one. 0 for what
// is no number or too large.
double amount_of(const char* text);

// A sum of exact amounts; it is lost when it becomes too large.
class amount_sum {
 public:
  void add(const exact_amount& amount, bool negative);
  bool is(const exact_amount& amount) const;

 private:
  std::int64_t whole_ = 0;
  std::int64_t fraction_ = 0;  // from 0 on, in the 18th place behind the point
  bool lost_ = false;
};

}  // namespace tivex
