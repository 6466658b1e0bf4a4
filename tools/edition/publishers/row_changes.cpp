#include "publishers/row_changes.h"

#include <map>
#include <utility>

namespace tivex_edition {

namespace {

// The rows by key and number of the version.
using numbered_rows = std::map<std::pair<std::string, int>, const row_fields*>;

numbered_rows numbered(const std::vector<row_fields>& rows) {
  numbered_rows by_key;
  int version = 0;
  const row_fields* previous = nullptr;
  for (const row_fields& row : rows) {
    version = previous != nullptr && previous->front() == row.front() ? version + 1 : 0;
    by_key[{row.front(), version}] = &row;
    previous = &row;
  }
  return by_key;
}

}  // namespace

row_changes changes_between(const std::vector<row_fields>& before,
                            const std::vector<row_fields>& after) {
  const numbered_rows replaced = numbered(before);
  row_changes changes{before.size(), after.size(), before.size(), 0};
  for (const auto& [key, row] : numbered(after)) {
    const auto found = replaced.find(key);
    if (found == replaced.end()) continue;
    --changes.came;
    --changes.went;
    if (*found->second != *row) ++changes.changed;
  }
  return changes;
}

}  // namespace tivex_edition
