#include "warnings/payment_dates.h"

#include <utility>

namespace tivex_program {
namespace {

std::size_t place_of(std::string_view date) {
  std::size_t place = 0;
  for (const char c : date) place = place * 5 + static_cast<unsigned char>(c);
  return place;
}

}  // namespace

payment_date& payment_dates::of(std::string_view text) {
  payment_date*& latest = latest_[place_of(text) % latest_.size()];
  if (latest != nullptr && latest->text == text) return *latest;
  const auto [found, added] = known_.try_emplace(std::string(text));
  latest = &found->second;
  if (!added) return *latest;
  latest->text = text;
  latest->day = day_of(text);
  if (!latest->day) return *latest;
  const payment_facts facts{{}, {}, latest->day, {}};
  for (const warning_rule& rule : date_rules) {
    std::string warning = rule.text(facts, order_);
    if (!warning.empty()) latest->warnings.push_back({&rule, std::move(warning)});
  }
  return *latest;
}

date_sums payment_dates::sums() const {
  date_sums sums;
  for (const auto& [text, date] : known_) {
    if (date.sum.payments > 0) sums[text] = date.sum;
  }
  return sums;
}

}  // namespace tivex_program
