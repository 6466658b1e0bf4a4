#include "edition_checks.h"

#include <map>
#include <set>
#include <string>

#include "field_forms.h"

namespace tivex_edition {

namespace {

template <typename row_type>
void check_unique(const char* file, const std::vector<row_type>& rows,
                  std::string (*key_of)(const row_type&), fault_list& faults) {
  std::map<std::string, int> seen;
  for (const row_type& row : rows) {
    const auto [first, is_new] = seen.emplace(key_of(row), row.line);
    if (is_new) continue;
    faults.add(
        file, row.line,
        "'" + first->first + "' stands in line " + std::to_string(first->second) + " already");
  }
}

std::string bank_key(const bank_row& row) { return row.bank_code; }
std::string bic_key(const bic_row& row) { return row.bic; }
std::string german_key(const german_row& row) {
  return row.bank_code + (row.valid_from.empty() ? "" : " from " + row.valid_from);
}

// All changes of one edition happen on one date, after that of the whole list,
// and each changes a bank code that exists.
void check_versions(const edition_table<german_row>& german, fault_list& faults) {
  std::set<std::string> first_versions;
  const german_row* first_change = nullptr;
  for (const german_row& row : german.rows) {
    if (row.valid_from.empty()) first_versions.insert(row.bank_code);
  }
  for (const german_row& row : german.rows) {
    if (row.valid_from.empty()) continue;
    if (first_change == nullptr) first_change = &row;
    if (row.valid_from != first_change->valid_from) {
      faults.add(german_file_name, row.line,
                 "changes on " + row.valid_from + ", line " + std::to_string(first_change->line) +
                     " on " + first_change->valid_from);
    } else if (row.valid_from <= german.valid_from) {
      faults.add(german_file_name, row.line,
                 "changes on " + row.valid_from + ", not after " + german.valid_from);
    }
    if (!first_versions.contains(row.bank_code)) {
      faults.add(german_file_name, row.line, "'" + row.bank_code + "' has no first version");
    }
  }
}

// Follows the successors as they are in force before the change (false) or from
// it on (true).
void check_successors(const std::vector<german_row>& rows, bool changed, fault_list& faults) {
  std::map<std::string, const german_row*> in_force;
  for (const german_row& row : rows) {
    if (row.valid_from.empty()) in_force.emplace(row.bank_code, &row);
  }
  for (const german_row& row : rows) {
    if (changed && !row.valid_from.empty()) in_force[row.bank_code] = &row;
  }
  for (const auto& [bank_code, row] : in_force) {
    // What holds before the change is reported with the first versions.
    if (changed && row->valid_from.empty()) continue;
    if (row->successor.empty()) continue;
    if (!in_force.contains(row->successor)) {
      faults.add(german_file_name, row->line,
                 "successor '" + row->successor + "' of '" + bank_code + "' is no bank code");
      continue;
    }
    std::set<std::string> passed = {bank_code};
    const german_row* next = row;
    while (!next->successor.empty() && in_force.contains(next->successor)) {
      if (!passed.insert(next->successor).second) {
        faults.add(german_file_name, row->line,
                   "the successors of '" + bank_code + "' lead in a circle");
        break;
      }
      next = in_force[next->successor];
    }
  }
}

}  // namespace

void check_edition(const edition& facts, fault_list& faults) {
  if (!is_date(facts.german.valid_from)) {
    faults.add(german_file_name,
               "the date of validity '" + facts.german.valid_from + "' is not a date, yyyy-mm-dd");
  }
  check_unique(german_file_name, facts.german.rows, german_key, faults);
  check_unique(austrian_file_name, facts.austrian.rows, bank_key, faults);
  check_unique(swiss_file_name, facts.swiss.rows, bank_key, faults);
  check_unique(bics_file_name, facts.bics.rows, bic_key, faults);
  check_versions(facts.german, faults);
  check_successors(facts.german.rows, false, faults);
  check_successors(facts.german.rows, true, faults);
}

}  // namespace tivex_edition
