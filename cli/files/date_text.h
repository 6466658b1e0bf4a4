#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tivex_program {

// What is wrong with a written date.
enum class date_flaw { none, form, calendar };

// The date that a text of the form 2026-12-01 writes, which the calendar may not have; none for
// a text of another form.
std::optional<std::chrono::year_month_day> prescribed_date(std::string_view text);

inline bool is_prescribed_date(std::string_view text) {
  const auto date = prescribed_date(text);
  return date && date->ok();
}

// Reads 2026-12-01, 01.12.2026, 1.12.26 and writes the date in the first form. A year of two
// digits is one from 2000 to 2069. A text that is no date stays as it is.
date_flaw read_date(std::string& text);

// What that says, empty for no flaw.
const char* text_of(date_flaw flaw);

}  // namespace tivex_program
