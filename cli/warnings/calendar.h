// Days as payments know them.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tivex_program {

using calendar_day = std::chrono::sys_days;

// The day that a text of the form yyyy-mm-dd names; none when the calendar has no such day.
std::optional<calendar_day> day_of(std::string_view text);

std::string text_of(calendar_day day);

// Today by the clock and the time zone of the machine.
calendar_day today();

// The same date a year later; of 29 February the 28th.
calendar_day year_after(calendar_day day);

// "a Saturday" or "a Sunday", null on other days.
const char* weekend_name(calendar_day day);

// What the day is on which TARGET rests, null where it does not for this reason. Weekends
// are told by the function above.
const char* target_holiday(calendar_day day);

}  // namespace tivex_program
