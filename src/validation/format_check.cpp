#include "validation/format_check.h"

#include <array>
#include <cstring>

#include "validation/patterns.h"

namespace tivex {

namespace {

// ISO 9362: institution and country, a location (no 0 or 1 first, no O second),
// an optional branch.
constexpr text_pattern bic_pattern =
    translate_pattern("^[A-Z]{6}[A-Z2-9][A-NP-Z0-9]([A-Z0-9]{3})?$");

// By kind; a BIC is measured by its pattern.
constexpr std::array<std::size_t, 4> longest_text = {0, 70, 16, 35};

}  // namespace

bool format_check(unsigned kind, const char* text) {
  if (kind >= longest_text.size() || text == nullptr) return false;
  if (kind == FORMAT_BIC) return bic_pattern.matches(text);
  return *text != '\0' && std::strlen(text) <= longest_text[kind];
}

}  // namespace tivex
