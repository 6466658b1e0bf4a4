#include "validation/iban.h"

#include <array>
#include <cstring>

#include "tivex.h"
#include "validation/ascii.h"
#include "validation/german_iban.h"
#include "validation/iban_forms.h"

namespace tivex {

namespace {

constexpr std::size_t country_count = iban_forms.size();
constexpr std::size_t letter_count = 26;
constexpr std::uint8_t no_country = country_count;

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

constexpr auto kinds = [] {
  std::array<std::uint8_t, 256> table = {};
  table.fill(OTHER_CHARACTER);
  for (unsigned char c = '0'; c <= '9'; ++c) table[c] = DIGIT;
  for (unsigned char c = 'A'; c <= 'Z'; ++c) table[c] = CAPITAL;
  return table;
}();

const char* form_fault(const char* iban, const iban_form& form) {
  if (strnlen(iban, form.length + 1) != form.length) return "Wrong IBAN length";
  unsigned refused = 0;
  for (std::size_t place = 0; place < form.length; ++place) {
    refused |= kinds[static_cast<unsigned char>(iban[place])] & form.refused[place];
  }
  const bool has_code = iban[0] == form.code[0] && iban[1] == form.code[1];
  if (refused != 0 || !has_code) return "Invalid IBAN format";
  constexpr std::size_t head_length = 4;
  mod97_number number;
  number.append({iban + head_length, form.length - head_length});
  number.append({iban, head_length});
  return number.remainder() == 1 ? nullptr : "Invalid IBAN checksum";
}

// Null for a valid IBAN.
const char* iban_fault(const char* iban) {
  if (iban == nullptr) return "Invalid IBAN (NULL)";
  const std::size_t country = find_country(iban);
  if (country == no_country) return "Invalid or unknown IBAN country code";
  if (const char* const fault = form_fault(iban, iban_forms[country])) return fault;
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
