#include "validation/iban.h"

#include <array>
#include <cstring>
#include <utility>

#include "tivex.h"
#include "validation/ascii.h"
#include "validation/german_iban.h"
#include "validation/iban_countries.h"
#include "validation/patterns.h"

namespace tivex {

namespace {

constexpr std::size_t country_count = iban_country_table.size();
constexpr std::size_t letter_count = 26;
constexpr std::uint8_t no_country = country_count;

// The table's patterns, in its order.
constexpr auto iban_patterns = []() consteval {
  std::array<text_pattern, country_count> patterns = {};
  for (std::size_t row = 0; row < country_count; ++row) {
    patterns[row] = translate_pattern(iban_country_table[row].pattern);
  }
  return patterns;
}
();

// A walk along a pattern checks the length, too, and the head of an IBAN, two letters
// and two digits, spells six digits.
static_assert([] {
  for (std::size_t row = 0; row < country_count; ++row) {
    const text_pattern& pattern = iban_patterns[row];
    const std::string_view code = iban_country_table[row].code;
    if (pattern.length != iban_country_table[row].length) return false;
    if (pattern.optional_from != pattern.run_count) return false;
    for (std::size_t place = 0; place < 2; ++place) {
      if (pattern.runs[place].count != 1 || !pattern.runs[place].characters.has(code[place])) {
        return false;
      }
    }
    if (pattern.runs[2].count < 2 || pattern.runs[2].characters.has('A')) return false;
  }
  return true;
}());

constexpr std::size_t place_of_code(char first, char second) {
  return static_cast<std::size_t>(first - 'A') * letter_count +
         static_cast<std::size_t>(second - 'A');
}

// Rows by the two letters of the country.
constexpr auto rows_by_code = [] {
  std::array<std::uint8_t, letter_count* letter_count> rows = {};
  rows.fill(no_country);
  for (std::size_t row = country_count; row-- > 0;) {
    const char* const code = iban_country_table[row].code;
    rows[place_of_code(code[0], code[1])] = static_cast<std::uint8_t>(row);
  }
  return rows;
}();

// The row of the country that the first two characters name, in either case;
// no_country when there is none.
std::size_t find_country(const char* iban) {
  const char first = to_upper(iban[0]);
  if (!is_upper(first)) return no_country;
  const char second = to_upper(iban[1]);
  if (!is_upper(second)) return no_country;
  return rows_by_code[place_of_code(first, second)];
}

// Walks once over the text: its characters, its length and its checksum.
const char* form_fault(const char* iban, std::size_t country) {
  constexpr std::size_t head_length = 4;
  constexpr std::uint64_t power_of_head = 1'000'000;
  const text_pattern& pattern = iban_patterns[country];
  mod97_number head;
  mod97_number number;
  const char* at = iban;
  bool fits = true;
  for (std::size_t index = 0; fits && index < pattern.run_count; ++index) {
    const character_run& run = pattern.runs[index];
    for (int left = run.count; fits && left > 0; --left, ++at) {
      if (at == iban + head_length) head = std::exchange(number, {});
      fits = run.characters.has(*at) && number.append(*at);
    }
  }
  if (!fits || *at != '\0') {
    const bool right_length = std::strlen(iban) == iban_country_table[country].length;
    return right_length ? "Invalid IBAN format" : "Wrong IBAN length";
  }
  number.append(head, power_of_head);
  return number.remainder() == 1 ? nullptr : "Invalid IBAN checksum";
}

// Null for a valid IBAN.
const char* iban_fault(const char* iban) {
  if (iban == nullptr) return "Invalid IBAN (NULL)";
  const std::size_t country = find_country(iban);
  if (country == no_country) return "Invalid or unknown IBAN country code";
  if (const char* const fault = form_fault(iban, country)) return fault;
  // The patterns have no country in small letters.
  return iban[0] == 'D' && iban[1] == 'E' ? german_iban_fault(iban) : nullptr;
}

}  // namespace

bool iban_validate(const char* iban, const char** reason) {
  const char* const fault = iban_fault(iban);
  if (fault != nullptr && reason != nullptr) *reason = fault;
  return fault == nullptr;
}

int iban_remainder(const char* iban) { return mod97_rearranged(iban, 4); }

}  // namespace tivex

int tivex_iban_check(const char* iban) { return tivex::iban_validate(iban, nullptr) ? 1 : -1; }
