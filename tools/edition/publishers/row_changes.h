#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "edition_files.h"

namespace tivex_edition {

// What an import makes of a table's rows.
struct row_changes {
  std::size_t before = 0;
  std::size_t came = 0;
  std::size_t went = 0;
  std::size_t changed = 0;

  // No publisher drops that many rows from one list to the next.
  bool suspicious() const { return went * 100 > before * 2; }
};

// Compares rows of the same key; of a bank code with several versions the first
// with the first, the second with the second. Both lists are sorted.
row_changes changes_between(const std::vector<row_fields>& before,
                            const std::vector<row_fields>& after);

}  // namespace tivex_edition
