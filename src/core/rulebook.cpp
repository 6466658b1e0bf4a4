#include "core/rulebook.h"

#include <string_view>
#include <tuple>

#include "platform/platform.h"
#include "tivex.h"

namespace tivex {

namespace {

constexpr rulebook_rules no_rules = {};

}  // namespace

constinit std::atomic<std::int32_t> rulebook = RULEBOOK_NONE;

const rulebook_rules& current_rules() {
  const std::int32_t number = rulebook;
  if (number < 0 || number >= static_cast<std::int32_t>(rulebook_table.size())) return no_rules;
  return rulebook_table[static_cast<std::size_t>(number)];
}

void select_default_rulebook() {
  if (rulebook != RULEBOOK_NONE) return;
  const platform::calendar_time today = platform::local_calendar(platform::now());
  const bool from_17_april_2024 =
      std::tie(today.year, today.month, today.day) >= std::tuple(2024, 4, 17);
  rulebook = from_17_april_2024 ? RULEBOOK_DE_3_7 : RULEBOOK_DE_3_5;
}

}  // namespace tivex

int tivex_init(int option, const char* value) {
  if (option != TIVEX_OPTION_RULEBOOK || value == nullptr) return 0;
  for (std::size_t number = 0; number < tivex::rulebook_table.size(); ++number) {
    if (std::string_view(value) == tivex::rulebook_table[number].name) {
      tivex::rulebook = static_cast<std::int32_t>(number);
      return 1;
    }
  }
  return 0;
}
