#pragma once

#include <cstdint>
#include <limits>

#include "xml/amount_text.h"

namespace tivex {

// How many transactions there are and what they add up to. The prescribed sum is
// made of binary fractions, and with very many or very large amounts it can be a
// cent off what the document's amounts add up to; the other sum is exact.
struct payment_totals {
  std::uint32_t count = 0;
  double sum = 0.0;        // euro
  std::int64_t cents = 0;  // the largest number where 64 bits cannot hold them

  void add(double amount) {
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    const std::int64_t added = cents_of(amount);
    ++count;
    sum += amount;
    cents = cents > largest - added ? largest : cents + added;
  }
};

}  // namespace tivex
