// Comma-separated values with semicolons, as publishers write them.
#pragma once

#include <span>
#include <vector>

#include "field_forms.h"
#include "publishers/published_file.h"
#include "text_table.h"

namespace tivex_edition {

// The rows below the line with the columns' names, which comes first. Of each row
// the wanted columns, in the order in which they are wanted, trimmed; their
// forms play no part yet.
std::vector<text_row> read_csv_table(const published_file& file,
                                     std::span<const published_line> lines,
                                     std::span<const column_form> wanted);

}  // namespace tivex_edition
