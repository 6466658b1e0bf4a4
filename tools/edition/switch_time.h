#pragma once

#include <cstdint>
#include <string>

namespace tivex_edition {

// Seconds since 1970-01-01 UTC at which a day (yyyy-mm-dd) begins in Germany, by
// Central European Time and its summer time.
std::int64_t start_of_day_in_germany(const std::string& date);

}  // namespace tivex_edition
