#include "xml/schema.h"

#include <array>

#include "core/rulebook.h"

namespace tivex {

namespace {

// In the order of the rulebooks' numbers.
constexpr std::array<document_schema, rulebook_table.size()> schemas = {{
    {"pain.001.002.03", "pain.008.002.02", true, "BIC", false},   // DE-2.6
    {"pain.001.003.03", "pain.008.003.02", true, "BIC", false},   // DE-2.7
    {"pain.001.001.03", "pain.008.001.02", false, "BIC", false},  // AT-6
    {"pain.001.001.03", "pain.008.001.02", false, "BIC", false},  // NL-6
    {"pain.001.003.03", "pain.008.003.02", true, "BIC", false},   // DE-2.8
    {"pain.001.003.03", "pain.008.003.02", true, "BIC", false},   // DE-2.9
    {"pain.001.001.03", "pain.008.001.02", true, "BIC", true},    // DE-3.0
    {"pain.001.001.03", "pain.008.001.02", true, "BIC", true},    // DE-3.1
    {"pain.001.001.03", "pain.008.001.02", true, "BIC", true},    // DE-3.5
    {"pain.001.001.09", "pain.008.001.08", true, "BICFI", true},  // DE-3.7
}};

}  // namespace

const document_schema* schema_of(std::int32_t number) {
  if (number < 0 || number >= static_cast<std::int32_t>(schemas.size())) return nullptr;
  return &schemas[static_cast<std::size_t>(number)];
}

}  // namespace tivex
