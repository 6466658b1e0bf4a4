#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "files/amount_text.h"
#include "terminal/json_object.h"

namespace tivex_program {

// How a table was read, as a summary tells it.
struct table_facts {
  struct column_facts {
    std::string name;  // in the file, empty when it is not there
    std::string key;   // empty for a column that is passed over
    std::uint64_t changed;
    std::uint64_t filled;
  };

  std::uint64_t rows = 0;
  char separator = ',';
  std::string encoding;
  decimal_sign sign = decimal_sign::unknown;
  std::uint64_t decided_amounts = 0;  // by the sign of the others
  std::vector<column_facts> columns;
};

// The facts as lines for the user, and as members of an object.
std::string text_of(const table_facts& facts);
void add_to(json_object& object, const table_facts& facts);

}  // namespace tivex_program
