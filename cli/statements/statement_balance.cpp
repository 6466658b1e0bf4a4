#include "statements/statement_balance.h"

#include <cmath>
#include <limits>
#include <string_view>

namespace tivex_program {
namespace {

constexpr cents largest = cents{1} << 53;

// Stops at the largest number instead of running over.
cents sum(cents left, cents right) {
  cents result = 0;
  if (!__builtin_add_overflow(left, right, &result)) return result;
  return left < 0 ? std::numeric_limits<cents>::min() : std::numeric_limits<cents>::max();
}

}  // namespace

cents cents_of(double amount) {
  const double value = amount * 100;
  if (std::abs(value) < static_cast<double>(largest)) return std::llround(value);
  return value < 0 ? -largest : largest;
}

std::string to_text(cents amount) {
  const auto bits = static_cast<std::uint64_t>(amount);
  const std::uint64_t magnitude = amount < 0 ? 0 - bits : bits;
  const std::string decimals = std::to_string(magnitude % 100);
  std::string text = amount < 0 ? "-" : "";
  text += std::to_string(magnitude / 100);
  return text + (decimals.size() == 1 ? ".0" : ".") + decimals;
}

cents effect_of(const tivex_stmt_tx_t& entry) {
  const cents amount = cents_of(entry.amount);
  return entry.reversal != 0 ? -amount : amount;
}

void entry_totals::add(cents effect) {
  cents& total = effect < 0 ? debits : credits;
  total = sum(total, effect);
  ++count;
}

std::string balance_fault(const tivex_stmt_t& statement) {
  const std::string_view opening = statement.opening_currency;
  const std::string_view closing = statement.closing_currency;
  if (opening.empty()) return "no opening balance";
  if (closing.empty()) return "no closing balance";
  if (opening != closing) {
    return "opening balance in " + std::string(opening) + ", closing balance in " +
           std::string(closing);
  }
  cents made = cents_of(statement.opening_balance);
  for (const tivex_stmt_tx_t* entry = statement.first_tx; entry != nullptr; entry = entry->next) {
    made = sum(made, effect_of(*entry));
  }
  const cents stated = cents_of(statement.closing_balance);
  if (made == stated) return {};
  return "opening balance and entries make " + to_text(made) + ", the closing balance is " +
         to_text(stated);
}

}  // namespace tivex_program
