#include "terminal/nearest_name.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

#include "files/ascii_case.h"

namespace tivex_program {
namespace {

// The Levenshtein distance.
std::size_t distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (const char letter : a) {
    std::size_t diagonal = row[0]++;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t replaced = diagonal + (lower(letter) == lower(b[j]) ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

}  // namespace

std::string_view nearest_name(std::string_view name, std::span<const std::string_view> candidates) {
  return *std::min_element(candidates.begin(), candidates.end(),
                           [&](std::string_view a, std::string_view b) {
                             return distance(name, a) < distance(name, b);
                           });
}

std::string near_name(std::string_view name, std::span<const std::string_view> candidates) {
  if (candidates.empty()) return {};
  const std::string_view nearest = nearest_name(name, candidates);
  if (distance(name, nearest) * 3 > nearest.size()) return {};
  return " (did you mean '" + std::string(nearest) + "'?)";
}

}  // namespace tivex_program
