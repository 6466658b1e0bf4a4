#include "payments/columns.h"

#include <algorithm>
#include <string_view>

#include "terminal/ascii_case.h"
#include "terminal/nearest_name.h"

namespace tivex_program {
namespace {

const column* find_column(std::span<const column> known, const std::string& name) {
  const auto same = [&](const column& c) { return same_but_for_case(c.key, name); };
  const auto found = std::find_if(known.begin(), known.end(), same);
  return found == known.end() ? nullptr : &*found;
}

bool is_known_to(const column& c, std::string_view rulebook) {
  return c.only_rulebooks.empty() ||
         std::ranges::find(c.only_rulebooks, rulebook) != c.only_rulebooks.end();
}

std::string rulebooks_of(const column& c) {
  std::string names;
  for (const std::string_view name : c.only_rulebooks) {
    names.append(names.empty() ? "" : " or ").append(name);
  }
  return names;
}

std::string unknown_column(const std::string& name, std::span<const column> known) {
  if (name.empty()) return "column without a name";
  if (name.find_first_of(",;\t") != std::string::npos) {
    return "unknown column '" + name + "' (is another --delimiter needed?)";
  }
  std::vector<std::string_view> keys;
  for (const column& c : known) keys.emplace_back(c.key);
  return "unknown column '" + name + "' (did you mean '" + std::string(nearest_name(name, keys)) +
         "'?)";
}

}  // namespace

std::vector<const column*> resolve_header(const csv_row& header, std::span<const column> known,
                                          const std::string& rulebook, fault_report& faults) {
  std::vector<const column*> columns;
  for (const std::string& name : header.cells) {
    const column* const found = find_column(known, name);
    if (found == nullptr) {
      faults.add(header.line, unknown_column(name, known));
    } else if (std::find(columns.begin(), columns.end(), found) != columns.end()) {
      faults.add(header.line, "column '" + name + "' occurs twice");
    } else if (!is_known_to(*found, rulebook)) {
      faults.add(header.line, "column '" + name + "' needs rulebook " + rulebooks_of(*found));
    }
    columns.push_back(found);
  }
  return columns;
}

void list_cells(const csv_row& row, const std::vector<const column*>& columns,
                std::vector<tivex_keyvalue_t>& list) {
  list.clear();
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!row.cells[i].empty()) list.push_back({columns[i]->key, row.cells[i].c_str()});
  }
  list.push_back({nullptr, nullptr});
}

}  // namespace tivex_program
