#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace tivex_program {

struct date_sum {
  std::uint64_t payments = 0;
  std::int64_t cents = 0;
};

// What is paid on each date, by its prescribed form.
using date_sums = std::map<std::string, date_sum>;

}  // namespace tivex_program
