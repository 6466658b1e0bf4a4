#include "publishers/german_versions.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace tivex_edition {

namespace {

// The IBAN rules of a bank code, before the later date and from it on.
struct kept_rules {
  std::uint16_t before = 0;
  std::uint16_t later = 0;
};

// The last version's rule holds for both, but for a version that begins on the
// later date: importing the same lists again keeps its two rules apart.
std::map<std::string, kept_rules> rules_of(std::vector<german_row> replaced,
                                           const std::string& later_date) {
  std::sort(replaced.begin(), replaced.end(), [](const german_row& left, const german_row& right) {
    return left.valid_from < right.valid_from;
  });
  std::map<std::string, kept_rules> rules;
  for (const german_row& row : replaced) {
    kept_rules& kept = rules[row.bank_code];
    kept.later = row.iban_rule;
    const bool begins_later = !row.valid_from.empty() && row.valid_from == later_date;
    if (!begins_later) kept.before = row.iban_rule;
  }
  return rules;
}

bool same_facts(const german_row& left, const german_row& right) {
  const auto facts = [](const german_row& row) {
    return std::tie(row.bic, row.name, row.postcode, row.city, row.country, row.deleted, row.method,
                    row.iban_rule, row.successor);
  };
  return facts(left) == facts(right);
}

}  // namespace

std::vector<german_row> german_versions(std::vector<german_row> replaced,
                                        const std::vector<german_row>& listed,
                                        const std::vector<german_row>& listed_later,
                                        const std::string& later_date) {
  std::map<std::string, kept_rules> rules = rules_of(std::move(replaced), later_date);
  std::vector<german_row> rows;
  std::map<std::string, german_row> first_versions;
  for (german_row row : listed) {
    row.iban_rule = rules[row.bank_code].before;
    first_versions.emplace(row.bank_code, row);
    rows.push_back(row);
  }
  for (german_row row : listed_later) {
    row.iban_rule = rules[row.bank_code].later;
    const auto first = first_versions.find(row.bank_code);
    if (first != first_versions.end()) {
      if (same_facts(first->second, row)) continue;
      row.valid_from = later_date;
    }
    rows.push_back(row);
  }
  return rows;
}

}  // namespace tivex_edition
