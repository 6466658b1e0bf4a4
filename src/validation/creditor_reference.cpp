#include "validation/creditor_reference.h"

#include <algorithm>

#include "validation/ascii.h"
#include "validation/mod97.h"

namespace tivex {

namespace {

constexpr std::size_t head = 4;  // "RF" and the check digits
constexpr std::size_t longest = 25;

// Both parts of a reference that is longer than its head.
std::string_view head_of(std::string_view reference) { return {reference.data(), head}; }
std::string_view rest_of(std::string_view reference) {
  reference.remove_prefix(head);
  return reference;
}

bool has_form(std::string_view reference) {
  if (reference.size() <= head || reference.size() > longest) return false;
  const std::string_view check_digits(reference.data() + 2, 2);
  return reference[0] == 'R' && reference[1] == 'F' &&
         std::ranges::all_of(check_digits, is_digit) && check_digits >= "02" &&
         check_digits <= "98" &&
         std::ranges::all_of(rest_of(reference), [](char c) { return is_upper(c) || is_digit(c); });
}

}  // namespace

const char* creditor_reference_fault(std::string_view reference) {
  if (!has_form(reference)) return "Invalid creditor reference";
  mod97_number number;
  number.append(rest_of(reference));
  number.append(head_of(reference));
  return number.remainder() == 1 ? nullptr : "Invalid creditor reference checksum";
}

}  // namespace tivex
