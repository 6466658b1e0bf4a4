#pragma once

#include <map>
#include <span>
#include <string>

#include "field_forms.h"
#include "publishers/published_file.h"
#include "text_table.h"

namespace tivex_edition {

inline constexpr const char* bic_wanted = "a BIC of 8 or 11 characters";
inline constexpr const char* text_wanted =
    "text without control characters, '|' and blanks at its ends";

// Where a row stands: formats without lines count their entries.
enum class row_place { line, entry };

// Holds the rows of one file against the forms of their fields. The first field
// is the row's key.
class row_check {
 public:
  row_check(const published_file& file, std::span<const column_form> columns,
            row_place place = row_place::line)
      : file_(file), columns_(columns), place_(place) {}

  // False when the row's key or a field is faulty; the fault is then named.
  bool passes(const text_row& row);

  void fault(int place, const std::string& what) const;

 private:
  const published_file& file_;
  std::span<const column_form> columns_;
  row_place place_;
  std::map<std::string, int> places_;  // of the keys so far
};

}  // namespace tivex_edition
