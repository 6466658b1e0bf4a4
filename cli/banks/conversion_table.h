#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "files/input_file.h"
#include "files/table_form.h"
#include "files/table_style.h"

namespace tivex_program {

// CSV: the file itself with iban, bic, bank and status behind each row. JSON: an object
// for each row, a line each.
enum class conversion_form { csv, json };

struct conversion_totals {
  std::size_t converted = 0;
  std::size_t refused = 0;
  std::string error;  // why the file could not be converted to its end, empty when it was
};

// Takes a line, and false ends the conversion.
using line_taker = std::function<bool(std::string_view line)>;

// Makes the IBANs of a table's bank codes and accounts. Rows that cannot be converted stay, with
// the reason as their status. A style without a delimiter takes that of the table.
conversion_totals convert_rows(input_file& input, const table_wishes& wishes, conversion_form form,
                               table_style style, const line_taker& take, bool shows_progress);

}  // namespace tivex_program
