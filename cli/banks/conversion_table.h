#pragma once

#include <string>

#include "files/input_file.h"

namespace tivex_program {

// A CSV file with the IBANs of another one's bank codes and accounts.
struct conversion_table {
  std::string text;
  std::size_t converted = 0;
  std::size_t refused = 0;
  std::string error;  // why there is no table, empty when there is one
};

// Appends iban, bic, bank and status to each row; rows that cannot be converted stay,
// with the reason as their status.
conversion_table convert_rows(input_file& input, char delimiter);

}  // namespace tivex_program
