#include "transactions/date_text.h"

#include <chrono>
#include <cstring>

#include "core/number_scanner.h"
#include "validation/ascii.h"

namespace tivex {

bool has_date_length(const char* text) { return text != nullptr && std::strlen(text) == 10; }

bool scan_date(const char* text) {
  number_scanner scanner(text);
  int part = 0;
  return scanner.read_signed(4, part) && scanner.skip('-') && scanner.read_signed(2, part) &&
         scanner.skip('-') && scanner.read_signed(2, part);
}

bool is_calendar_date(const char* text) {
  constexpr char form[] = "dddd-dd-dd";
  unsigned parts[3] = {};
  unsigned* part = parts;
  for (std::size_t index = 0; index + 1 < sizeof form; ++index) {
    if (form[index] == '-') {
      if (text[index] != '-') return false;
      ++part;
    } else {
      if (!is_digit(text[index])) return false;
      *part = *part * 10 + static_cast<unsigned>(text[index] - '0');
    }
  }
  const std::chrono::year_month_day date(std::chrono::year(static_cast<int>(parts[0])),
                                         std::chrono::month(parts[1]), std::chrono::day(parts[2]));
  return text[sizeof form - 1] == '\0' && parts[0] > 0 && date.ok();
}

}  // namespace tivex
