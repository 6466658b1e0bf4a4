#pragma once

namespace tivex {

// Whether a text has the length of a date, "yyyy-mm-dd"; null has not.
bool has_date_length(const char* text);

// Whether a text of that length reads as three numbers with hyphens between
// them, as the C library's scanner reads "%04u-%02u-%02u". The calendar is not
// asked.
bool scan_date(const char* text);

// Whether a text is a day of the Gregorian calendar, "yyyy-mm-dd" from the year 1
// on.
bool is_calendar_date(const char* text);

}  // namespace tivex
