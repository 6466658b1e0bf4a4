#include "payments/columns.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "files/column_names.h"
#include "files/folded_name.h"
#include "terminal/nearest_name.h"

namespace tivex_program {
namespace {

// What `iban convert` adds to a table beside what is read of it, and what it makes them of:
// in its output they are passed over.
constexpr std::string_view conversion_columns[] = {"bank", "status", "bank_code", "account"};
constexpr std::string_view marks_of_conversion[] = {"iban", "bic", "bank", "status"};

constexpr const char* naming_advice =
    "name it with --map KEY=COLUMN, or leave it out with --ignore-unknown";

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

std::vector<std::string_view> keys_of(std::span<const column> known) {
  std::vector<std::string_view> keys;
  for (const column& c : known) keys.emplace_back(c.key);
  return keys;
}

// Tells of the key or the name for one that is near.
std::string near_column(std::string_view name, const std::vector<std::string_view>& keys) {
  std::vector<std::string_view> names = keys;
  for (const column_alias& alias : column_aliases()) {
    if (std::ranges::find(keys, alias.key) != keys.end()) names.push_back(alias.name);
  }
  return near_name(name, names);
}

bool has_column(const csv_row& header, std::string_view name) {
  return std::ranges::find(header.cells, name) != header.cells.end();
}

bool is_of_conversion(const csv_row& header, const std::string& name) {
  const bool marked = std::ranges::all_of(
      marks_of_conversion, [&](std::string_view mark) { return has_column(header, mark); });
  return marked && !key_of_column(name, conversion_columns).empty();
}

// The key that the user has given to the column; empty for none.
std::string wished_key(const std::string& name, const header_wishes& wishes) {
  for (const auto& [key, column_name] : wishes.names) {
    if (folded_name(column_name) == folded_name(name)) return key;
  }
  return {};
}

void check_wishes(const csv_row& header, std::span<const column> known, const header_wishes& wishes,
                  fault_report& faults) {
  for (const auto& [key, name] : wishes.names) {
    if (find_key(known, key) == nullptr) {
      faults.add("--map: unknown key '" + key + "'" + near_column(key, keys_of(known)));
    }
    const std::string folded = folded_name(name);
    const bool found = std::ranges::any_of(
        header.cells, [&folded](const std::string& cell) { return folded_name(cell) == folded; });
    if (!found) faults.add(header.line, "--map: no column '" + name + "'");
  }
}

// That a column is read as the same as one before it.
std::string same_key(const file_column& other, const std::string& name) {
  if (other.name == name) return "column '" + name + "' occurs twice";
  std::string text = "columns '";
  text.append(other.name).append("' and '").append(name).append("' are both read as ");
  return text.append(other.known->key);
}

}  // namespace

const column* find_key(std::span<const column> known, std::string_view key) {
  const auto found = std::ranges::find_if(known, [&](const column& c) { return c.key == key; });
  return found == known.end() ? nullptr : &*found;
}

file_columns resolve_header(const csv_row& header, std::span<const column> known,
                            const std::string& rulebook, const header_wishes& wishes,
                            fault_report& faults) {
  const std::vector<std::string_view> keys = keys_of(known);
  check_wishes(header, known, wishes, faults);
  file_columns columns;
  for (const std::string& name : header.cells) {
    const std::string wished = wished_key(name, wishes);
    const std::string key = wished.empty() ? std::string(key_of_column(name, keys)) : wished;
    // What the user reads of another column is not read of this one.
    const bool given_away = wished.empty() && wishes.names.contains(key);
    const column* const found = given_away ? nullptr : find_key(known, key);
    const bool passed_over = found == nullptr && (name.empty() || wishes.ignores_unknown ||
                                                  is_of_conversion(header, name));
    // Of a key that is wrong all is told already.
    if (found == nullptr && !passed_over && wished.empty()) {
      const std::string near = given_away ? std::string() : near_column(name, keys);
      std::string text = "unknown column '";
      text.append(name).append("'").append(near);
      file_fault fault{header.line, "", std::move(text)};
      fault.advice = naming_advice;
      faults.add(fault);
    } else if (found != nullptr && place_of(columns, found->key) < columns.size()) {
      faults.add(header.line, same_key(columns[place_of(columns, found->key)], name));
    } else if (found != nullptr && !is_known_to(*found, rulebook)) {
      faults.add(header.line, "column '" + name + "' needs rulebook " + rulebooks_of(*found));
    }
    columns.push_back({found, name});
  }
  for (const char* const needed : {"iban", "amount"}) {
    if (!faults.empty() || place_of(columns, needed) < columns.size()) continue;
    file_fault fault{header.line, needed, "no column with it"};
    fault.advice = std::string("name it with --map ") + needed + "=COLUMN";
    faults.add(fault);
  }
  return columns;
}

std::size_t place_of(const file_columns& columns, std::string_view key) {
  const auto found = std::ranges::find_if(
      columns, [&](const file_column& c) { return c.known != nullptr && c.known->key == key; });
  return static_cast<std::size_t>(found - columns.begin());
}

void list_cells(const csv_row& row, const file_columns& columns,
                std::vector<tivex_keyvalue_t>& list) {
  list.clear();
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].known == nullptr || row.cells[i].empty()) continue;
    list.push_back({columns[i].known->key, row.cells[i].c_str()});
  }
  list.push_back({nullptr, nullptr});
}

}  // namespace tivex_program
