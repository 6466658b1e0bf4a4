#pragma once

#include "edition.h"
#include "publishers/published_file.h"

namespace tivex_edition {

// The bank code file of Deutsche Bundesbank, in lines of fixed width or as CSV:
// the rows that lead a bank code. IBAN rules are not in it.
publication<german_row> read_bank_code_file(const published_file& file);

}  // namespace tivex_edition
