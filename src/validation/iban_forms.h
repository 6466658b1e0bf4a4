// What may stand at each place of a country's IBANs, from the published patterns.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "validation/iban_countries.h"
#include "validation/patterns.h"

namespace tivex {

enum character_kind : std::uint8_t { DIGIT = 1, CAPITAL = 2, OTHER_CHARACTER = 4 };

struct iban_form {
  static constexpr std::size_t most_places = 34;  // of any IBAN

  char code[2] = {};
  std::size_t length = 0;
  std::array<std::uint8_t, most_places> refused = {};  // kinds that a place does not admit
};

// Which kinds a class admits; does not compile for one that has a part of a kind.
consteval std::uint8_t refused_kinds(const character_class& characters) {
  character_class digits;
  digits.add('0', '9');
  character_class capitals;
  capitals.add('A', 'Z');
  character_class both = digits;
  both.add('A', 'Z');
  if (characters == digits) return CAPITAL | OTHER_CHARACTER;
  if (characters == capitals) return DIGIT | OTHER_CHARACTER;
  if (characters == both) return OTHER_CHARACTER;
  does_not_compile("a class that is not made of kinds");
  return OTHER_CHARACTER;
}

consteval iban_form form_of(const iban_country& country) {
  iban_form form;
  const text_pattern pattern = translate_pattern(country.pattern);
  form.length = pattern.length;
  if (pattern.length != country.length) does_not_compile("another length");
  if (pattern.optional_from != pattern.run_count) does_not_compile("a part that may be missing");
  std::size_t place = 0;
  for (std::size_t index = 0; index < pattern.run_count; ++index) {
    const character_run& run = pattern.runs[index];
    for (int left = run.count; left > 0; --left, ++place) {
      // The country's code stands first, letter by letter.
      if (place < 2) {
        character_class letter;
        letter.add(country.code[place], country.code[place]);
        if (!(run.characters == letter)) does_not_compile("another code");
        form.code[place] = country.code[place];
      } else {
        form.refused[place] = refused_kinds(run.characters);
      }
    }
  }
  return form;
}

// In the order of the countries' table.
inline constexpr auto iban_forms = []() consteval {
  std::array<iban_form, iban_country_table.size()> forms = {};
  for (std::size_t row = 0; row < forms.size(); ++row)
    forms[row] = form_of(iban_country_table[row]);
  return forms;
}
();

}  // namespace tivex
