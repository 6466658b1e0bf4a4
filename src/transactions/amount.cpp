#include "transactions/amount.h"

#include <cerrno>
#include <cmath>

#include "transactions/decimal.h"

namespace tivex {

const char* amount_rule(const char* text, double& amount) {
  if (text == nullptr) return "Invalid amount";
  errno = 0;
  const char* end = nullptr;
  const double value = parse_decimal(text, &end);
  if (*end != '\0') return "Invalid amount";
  if (errno == ERANGE && (value == 0.0 || std::isinf(value))) return "Invalid amount";
  if (value == 0.0) return "Empty amount not allowed";
  if (value < 0.0 || std::isnan(value)) return "Negative or zero amount not allowed";
  const double cents = value * 100.0;
  if (std::isinf(cents)) return "Invalid amount";
  amount = round_half_up(cents) * 0.01;
  return nullptr;
}

}  // namespace tivex
