#include "statements/dialects/information_form.h"

#include <cstddef>
#include <string_view>

#include "statements/dialects/dialect_lines.h"
#include "statements/dialects/word_text.h"
#include "validation/ascii.h"

namespace tivex {

namespace {

// Steps over this many digits, with line ends in front of any.
bool skip_digits(const char*& at, int count) {
  for (; count > 0; --count) {
    while (is_line_end(*at)) ++at;
    if (!is_digit(*at)) return false;
    ++at;
  }
  return true;
}

// A mark and two digits.
bool subfield_begins(const char* at) {
  constexpr std::string_view marks = "?<>~|^";
  while (is_line_end(*at)) ++at;
  if (*at == '\0' || marks.find(*at) == std::string_view::npos) return false;
  return skip_digits(++at, 2);
}

}  // namespace

information_form form_of_information(const char* field) {
  if (subfield_begins(field)) return information_form::structured;
  if (begins_with_word(field)) return information_form::words;
  while (is_blank(*field) || is_line_end(*field)) ++field;
  constexpr int code_length = 3;
  const bool is_structured = skip_digits(field, code_length) && subfield_begins(field);
  return is_structured ? information_form::structured : information_form::plain;
}

}  // namespace tivex
