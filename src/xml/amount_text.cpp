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

std::int64_t cents_of(double value) { return to_int64(round_half_up(value * 100.0)); }

void format_cents(char* out, std::size_t size, std::int64_t cents) {
  const std::int64_t magnitude = cents < 0 ? -cents : cents;
  bounded_format(out, size, "%s%" PRId64 ".%02" PRId64, cents < 0 ? "-" : "", magnitude / 100,
                 magnitude % 100);
}

void format_amount(char* out, std::size_t size, double value) {
  format_cents(out, size, cents_of(value));
}

void format_count(char* out, std::size_t size, std::uint32_t count) {
  bounded_format(out, size, "%" PRIu32, count);
}

}  // namespace tivex
