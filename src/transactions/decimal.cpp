#include "transactions/decimal.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstdint>

#include "validation/ascii.h"

namespace tivex {

namespace {

// 10 to the power of 2^index.
constexpr std::array<double, 9> powers_of_ten = {1e1,  1e2,  1e4,   1e8,  1e16,
                                                 1e32, 1e64, 1e128, 1e256};
constexpr std::int64_t largest_exponent = 511;
constexpr int counted_digits = 18;
constexpr std::int64_t second_integer_limit = 1'000'000'000;  // nine digits

struct mantissa {
  double value = 0.0;
  std::int64_t shift = 0;  // of the decimal point, by powers of ten
  bool has_digits = false;
};

// Reads digits with at most one point among them and steps over them.
mantissa read_mantissa(const char*& text) {
  const char* point = nullptr;
  std::int64_t digits = 0;
  std::int64_t integer = 0;  // the counted ones
  for (; is_digit(*text) || (*text == '.' && point == nullptr); ++text) {
    if (*text == '.') {
      point = text;
    } else if (++digits <= counted_digits) {
      integer = integer * 10 + (*text - '0');
    }
  }
  const std::int64_t behind_point = point != nullptr ? text - point - 1 : 0;
  const std::int64_t counted = std::min<std::int64_t>(digits, counted_digits);

  const std::int64_t first = integer / second_integer_limit;
  const std::int64_t second = integer % second_integer_limit;
  mantissa result;
  result.value = static_cast<double>(first) * 1e9 + static_cast<double>(second);
  result.shift = digits - counted - behind_point;
  result.has_digits = digits > 0;
  return result;
}

// Reads an exponent, when there is one, and steps over it. Far beyond the
// largest exponent all are the same.
std::int64_t read_exponent(const char*& text) {
  if (*text != 'e' && *text != 'E') return 0;
  ++text;
  const bool negative = *text == '-';
  if (*text == '-' || *text == '+') ++text;
  constexpr std::int64_t saturated = std::int64_t{1} << 62;
  std::int64_t exponent = 0;
  for (; is_digit(*text); ++text) {
    exponent = exponent > saturated / 16 ? saturated : exponent * 10 + (*text - '0');
  }
  return negative ? -exponent : exponent;
}

double scale(double value, std::int64_t exponent) {
  std::int64_t magnitude = exponent < 0 ? -exponent : exponent;
  if (magnitude > largest_exponent) {
    magnitude = largest_exponent;
    errno = ERANGE;
  }
  double power = 1.0;
  for (std::size_t bit = 0; magnitude != 0; magnitude >>= 1, ++bit) {
    if ((magnitude & 1) != 0) power *= powers_of_ten[bit];
  }
  return exponent < 0 ? value / power : value * power;
}

}  // namespace

double parse_decimal(const char* text, const char** end) {
  const char* next = text;
  while (is_space(*next)) ++next;
  const bool negative = *next == '-';
  if (*next == '-' || *next == '+') ++next;

  const mantissa digits = read_mantissa(next);
  double value = 0.0;
  if (digits.has_digits) {
    const std::int64_t exponent = read_exponent(next);
    value = scale(digits.value, exponent + digits.shift);
  } else {
    next = text;
  }
  if (end != nullptr) *end = next;
  return negative ? -value : value;
}

double round_half_up(double x) {
  constexpr double first_of_whole_numbers = 4503599627370496.0;  // 2^52
  if (!(std::abs(x) < first_of_whole_numbers)) return x;
  const auto towards_zero = static_cast<double>(static_cast<std::int64_t>(x));
  const double below = towards_zero > x ? towards_zero - 1 : towards_zero;
  return x - below >= 0.5 ? below + 1 : below;
}

}  // namespace tivex
