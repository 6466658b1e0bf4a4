#include "publishers/row_check.h"

namespace tivex_edition {

void row_check::fault(int place, const std::string& what) const {
  if (place_ == row_place::line) {
    file_.fault(place, what);
  } else {
    file_.fault("entry " + std::to_string(place) + ": " + what);
  }
}

bool row_check::passes(const text_row& row) {
  bool fits = true;
  for (std::size_t index = 0; index < columns_.size(); ++index) {
    const column_form& column = columns_[index];
    if (column.fits(row.fields[index])) continue;
    fits = false;
    fault(row.line,
          std::string(column.name) + ": '" + row.fields[index] + "' is not " + column.wanted);
  }
  const auto [first, is_new] = places_.emplace(row.fields[0], row.line);
  if (fits && !is_new) {
    fault(row.line, std::string(columns_[0].name) + ": '" + first->first + "' stands in " +
                        (place_ == row_place::line ? "line " : "entry ") +
                        std::to_string(first->second) + " already");
  }
  return fits && is_new;
}

}  // namespace tivex_edition
