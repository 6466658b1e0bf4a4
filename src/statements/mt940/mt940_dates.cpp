#include "statements/mt940/mt940_dates.h"

#include "core/number_scanner.h"
#include "statements/text_steps.h"

namespace tivex {

bool scan_date(std::string_view text, std::tm& date) {
  constexpr std::size_t width = 2;
  if (text.size() >= date_length && all_digits({text.data(), date_length})) {
    date.tm_year = two_digits(text.data());
    date.tm_mon = two_digits(text.data() + width);
    date.tm_mday = two_digits(text.data() + 2 * width);
    return true;
  }
  number_scanner scanner(text);
  return scanner.read_signed(width, date.tm_year) && scanner.read_signed(width, date.tm_mon) &&
         scanner.read_signed(width, date.tm_mday);
}

void complete_date(std::tm& date) {
  if (date.tm_year <= 79) date.tm_year += 100;
  --date.tm_mon;
}

}  // namespace tivex
