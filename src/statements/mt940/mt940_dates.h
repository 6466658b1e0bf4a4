#pragma once

#include <cstddef>
#include <ctime>
#include <string_view>

namespace tivex {

inline constexpr std::size_t date_length = 6;

// Reads YYMMDD from where the text goes on: the year in two digits, the month from 1.
// False when one of the three cannot be read; those before it are.
bool scan_date(std::string_view text, std::tm& date);

// Turns what was read into the C library's form; years up to 79 belong to this
// century.
void complete_date(std::tm& date);

}  // namespace tivex
