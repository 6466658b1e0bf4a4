#include "statements/camt/exact_amount.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "transactions/decimal.h"
#include "validation/ascii.h"

namespace tivex {

namespace {

constexpr int most_digits = 18;

constexpr std::array<std::int64_t, most_digits + 1> powers_of_ten = [] {
  std::array<std::int64_t, most_digits + 1> powers{};
  std::int64_t power = 1;
  for (std::int64_t& each : powers) {
    each = power;
    if (&each != &powers.back()) power *= 10;
  }
  return powers;
}();

std::int64_t power_of_ten(int exponent) {
  return powers_of_ten[static_cast<std::size_t>(exponent)];
}

// The quotient is computed bit by bit, with one more bit than a double holds and a last one
// that tells whether anything is left: then converting it rounds as the exact number would.
double nearest_quotient(std::uint64_t dividend, std::uint64_t divisor) {
  constexpr std::uint64_t enough_bits = std::uint64_t{1} << 55;
  std::uint64_t quotient = dividend / divisor;
  std::uint64_t left = dividend % divisor;
  int shift = 0;
  for (; quotient < enough_bits; --shift) {
    left *= 2;
    const std::uint64_t bit = left >= divisor ? 1 : 0;
    left -= bit * divisor;
    quotient = quotient * 2 + bit;
  }
  if (left != 0) quotient |= 1U;
  return std::ldexp(static_cast<double>(quotient), shift);
}

double to_double(const exact_amount& amount) {
  constexpr std::int64_t exact_doubles = std::int64_t{1} << 53;
  const std::int64_t digits = amount.digits < 0 ? -amount.digits : amount.digits;
  const std::int64_t power = power_of_ten(amount.places);
  // One rounding, for powers of ten up to the 22nd are doubles.
  const double value =
      digits <= exact_doubles
          ? static_cast<double>(digits) / static_cast<double>(power)
          : nearest_quotient(static_cast<std::uint64_t>(digits), static_cast<std::uint64_t>(power));
  return amount.digits < 0 ? -value : value;
}

}  // namespace

amount_form read_amount(const char* text, exact_amount& amount) {
  if (text == nullptr) return amount_form::no_number;
  const bool negative = *text == '-';
  if (*text == '-' || *text == '+') ++text;
  bool has_digits = false;
  bool has_point = false;
  int counted = 0;
  std::int64_t places = 0;
  std::int64_t zeros = 0;  // behind the point, which count when another digit follows
  bool too_long = false;
  for (;; ++text) {
    if (*text == '.' && !has_point) {
      has_point = true;
      continue;
    }
    if (!is_digit(*text)) break;
    has_digits = true;
    const int digit = *text - '0';
    if (has_point && digit == 0) {
      ++zeros;
      continue;
    }
    const std::int64_t added = zeros + 1;
    zeros = 0;
    if (has_point) places += added;
    if (amount.digits == 0 && digit == 0) continue;
    const std::int64_t length = amount.digits == 0 ? 1 : counted + added;
    if (length > most_digits || places > most_digits) {
      too_long = true;
    } else if (!too_long) {
      amount.digits = amount.digits * power_of_ten(static_cast<int>(added)) + digit;
      counted = static_cast<int>(length);
    }
  }
  if (!has_digits || *text != '\0') return amount_form::no_number;
  if (too_long) return amount_form::longer;
  amount.places = static_cast<int>(places);
  if (negative) amount.digits = -amount.digits;
  return amount_form::exact;
}

double amount_of(const char* text) {
  exact_amount amount;
  switch (read_amount(text, amount)) {
    case amount_form::exact:
      return to_double(amount);
    case amount_form::longer: {
      const double value = parse_decimal(text, nullptr);
      return std::isfinite(value) ? value : 0;
    }
    case amount_form::no_number:
      break;
  }
  return 0;
}

void amount_sum::add(const exact_amount& amount, bool negative) {
  const std::int64_t digits = negative ? -amount.digits : amount.digits;
  const std::int64_t power = power_of_ten(amount.places);
  std::int64_t whole = digits / power;
  fraction_ += digits % power * power_of_ten(most_digits - amount.places);
  const std::int64_t one = power_of_ten(most_digits);
  if (fraction_ < 0 || fraction_ >= one) {
    whole += fraction_ < 0 ? -1 : 1;
    fraction_ += fraction_ < 0 ? one : -one;
  }
  lost_ = __builtin_add_overflow(whole_, whole, &whole_) || lost_;
}

bool amount_sum::is(const exact_amount& amount) const {
  amount_sum other;
  other.add(amount, false);
  return !lost_ && whole_ == other.whole_ && fraction_ == other.fraction_;
}

}  // namespace tivex
