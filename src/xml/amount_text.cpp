#include "xml/amount_text.h"

#include <algorithm>
#include <cstring>
#include <limits>

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

// A number of 64 bits, put together from its end.
class backwards_text {
 public:
  void add(char c) { *--first_ = c; }

  // At least so many digits.
  void add_digits(std::uint64_t number, int least) {
    for (; number != 0 || least > 0; number /= 10, --least) {
      add(static_cast<char>('0' + number % 10));
    }
  }

  std::string_view copy_to(char* out, std::size_t size) const {
    const auto length = static_cast<std::size_t>(text_ + sizeof text_ - first_);
    const std::size_t room = std::min(length, size - 1);
    std::memcpy(out, first_, room);
    out[room] = '\0';
    return {out, room};
  }

 private:
  char text_[24];
  char* first_ = text_ + sizeof text_;
};

}  // namespace

std::int64_t cents_of(double value) { return to_int64(round_half_up(value * 100.0)); }

std::string_view format_cents(char* out, std::size_t size, std::int64_t cents) {
  const auto magnitude = static_cast<std::uint64_t>(cents < 0 ? -cents : cents);
  backwards_text text;
  text.add_digits(magnitude % 100, 2);
  text.add('.');
  text.add_digits(magnitude / 100, 1);
  if (cents < 0) text.add('-');
  return text.copy_to(out, size);
}

std::string_view format_amount(char* out, std::size_t size, double value) {
  return format_cents(out, size, cents_of(value));
}

std::string_view format_count(char* out, std::size_t size, std::uint32_t count) {
  backwards_text text;
  text.add_digits(count, 1);
  return text.copy_to(out, size);
}

}  // namespace tivex
