#include "transactions/date_text.h"

#include <cstdio>
#include <cstring>

namespace tivex {

bool has_date_length(const char* text) { return text != nullptr && std::strlen(text) == 10; }

bool scan_date(const char* text) {
  unsigned year = 0;
  unsigned month = 0;
  unsigned day = 0;
  return std::sscanf(text, "%04u-%02u-%02u", &year, &month, &day) == 3;
}

}  // namespace tivex
