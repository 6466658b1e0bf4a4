#include "validation/iban.h"

#include <cstring>

#include "tivex.h"
#include "validation/ascii.h"
#include "validation/german_iban.h"
#include "validation/iban_countries.h"
#include "validation/mod97.h"
#include "validation/patterns.h"

namespace tivex {

namespace {

constexpr std::size_t country_count = iban_country_table.size();

constinit pattern_set<country_count> iban_patterns([] {
  std::array<const char*, country_count> patterns = {};
  for (std::size_t index = 0; index < country_count; ++index) {
    patterns[index] = iban_country_table[index].pattern;
  }
  return patterns;
}());

bool iban_patterns_ready() { return iban_patterns.ready(); }

// The row of the country that the first two characters name, in either case;
// country_count when there is none.
std::size_t find_country(const char* iban) {
  std::size_t index = 0;
  for (; index < country_count; ++index) {
    const char* const code = iban_country_table[index].code;
    if (to_upper(iban[0]) == code[0] && to_upper(iban[1]) == code[1]) break;
  }
  return index;
}

// Null for a valid IBAN.
const char* iban_fault(const char* iban) {
  if (iban == nullptr) return "Invalid IBAN (NULL)";
  if (!iban_patterns_ready() && !iban_compile_patterns()) {
    return "Error while initializing regular expressions";
  }
  const std::size_t country = find_country(iban);
  if (country == country_count) return "Invalid or unknown IBAN country code";
  if (std::strlen(iban) != iban_country_table[country].length) return "Wrong IBAN length";
  if (!iban_patterns.matches(country, iban)) return "Invalid IBAN format";
  const int remainder = iban_remainder(iban);
  if (remainder == IBAN_BAD_CHARACTER) return "Invalid character in IBAN";
  if (remainder != 1) return "Invalid IBAN checksum";
  // The patterns have no country in small letters.
  if (iban[0] == 'D' && iban[1] == 'E') return german_iban_fault(iban);
  return nullptr;
}

}  // namespace

bool iban_validate(const char* iban, const char** reason) {
  const char* const fault = iban_fault(iban);
  if (fault != nullptr && reason != nullptr) *reason = fault;
  return fault == nullptr;
}

int iban_remainder(const char* iban) { return mod97_rearranged(iban, 4); }

bool iban_compile_patterns() { return iban_patterns.compile(); }

void iban_release_patterns() { iban_patterns.release(); }

}  // namespace tivex

int tivex_iban_check(const char* iban) { return tivex::iban_validate(iban, nullptr) ? 1 : -1; }
