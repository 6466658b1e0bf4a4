#include "xml/amount_text.h"

#include <cinttypes>
#include <limits>

#include "core/bounded_format.h"
#include "transactions/decimal.h"

namespace tivex {

namespace {

// Truncates; a number that 64 bits cannot hold becomes the largest in magnitude.
std::int64_t to_int64(double value) {
  constexpr double bound = 9223372036854775808.0;  // 2^63
  constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
  if (value >= bound) return largest;
  return value > -bound ? static_cast<std::int64_t>(value) : -largest;
}

}  // namespace

void format_amount(char* out, std::size_t size, double value) {
  const std::int64_t signed_cents = to_int64(round_half_up(value * 100.0));
  const std::int64_t cents = signed_cents < 0 ? -signed_cents : signed_cents;
  bounded_format(out, size, "%s%" PRId64 ".%02" PRId64, signed_cents < 0 ? "-" : "", cents / 100,
                 cents % 100);
}

void format_count(char* out, std::size_t size, std::uint32_t count) {
  bounded_format(out, size, "%" PRIu32, count);
}

}  // namespace tivex
