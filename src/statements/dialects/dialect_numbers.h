// Dates and amounts of one line. What cannot be read stays as it was.
#pragma once

#include <ctime>
#include <string_view>

namespace tivex {

// YYMMDD, when the text begins with one.
bool read_dialect_date(std::string_view text, std::tm& date);

// MMDD, when the text begins with one and no digit follows. The year is that of the value
// date, or its neighbour when the year turns between the two.
bool read_dialect_entry_date(std::string_view text, const std::tm& value_date, std::tm& date);

// Whether a number begins here, behind blanks.
bool number_begins(const char* at, const char* end);

// A decimal number, blanks in front, and steps behind it. Returns whether it could be read.
bool read_dialect_amount(char*& at, char* end, double& amount);

}  // namespace tivex
