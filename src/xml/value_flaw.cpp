#include "xml/value_flaw.h"

#include <cstring>

#include "core/bounded_format.h"
#include "transactions/date_text.h"
#include "validation/ascii.h"
#include "xml/xml_text.h"

namespace tivex {

namespace {

constexpr std::int64_t highest_cents = 99'999'999'999;

bool is_sepa_character(char c) {
  return is_digit(c) || is_upper(to_upper(c)) || std::strchr("+?/|-:().,'", c) != nullptr;
}

value_flaw ill_formed_at(const char* place) {
  return place != nullptr ? value_flaw{flaw::ill_formed, *place} : value_flaw{};
}

value_flaw identifier_text_flaw(const char* value, const document_schema& schema,
                                bool blank_admitted) {
  const value_flaw ill_formed = plain_text_flaw(value, schema);
  if (ill_formed || !schema.asks_for(DEMAND_SEPA_IDENTIFIER)) return ill_formed;
  for (; *value != '\0'; ++value) {
    const bool admitted = *value == ' ' ? blank_admitted : is_sepa_character(*value);
    if (!admitted) return {flaw::character, *value};
  }
  return {};
}

void describe_character(char* out, std::size_t size, char byte, const char* authority) {
  if (byte < ' ' || byte > '~') {
    bounded_format(out, size, "has byte 0x%02X (not allowed by %s)",
                   static_cast<unsigned char>(byte), authority);
  } else {
    bounded_format(out, size, "has character '%c' (not allowed by %s)", byte, authority);
  }
}

}  // namespace

value_flaw escaped_text_flaw(const char* value, const document_schema& /*schema*/) {
  return ill_formed_at(find_illegal_character(value));
}

value_flaw plain_text_flaw(const char* value, const document_schema& /*schema*/) {
  const char* const illegal = find_illegal_character(value);
  const char* const markup = find_markup(value);
  return ill_formed_at(illegal == nullptr || (markup != nullptr && markup < illegal) ? markup
                                                                                     : illegal);
}

value_flaw identifier_flaw(const char* value, const document_schema& schema) {
  return identifier_text_flaw(value, schema, true);
}

value_flaw mandate_reference_flaw(const char* value, const document_schema& schema) {
  return identifier_text_flaw(value, schema, !schema.asks_for(DEMAND_UNBROKEN_MANDATE));
}

// Country, check digits, creditor business code and national identifier.
value_flaw creditor_identifier_flaw(const char* value, const document_schema& schema) {
  if (!schema.asks_for(DEMAND_CREDITOR_FORM)) return plain_text_flaw(value, schema);
  constexpr std::size_t national_identifier = 7;
  const bool begins_well = is_upper(to_upper(value[0])) && is_upper(to_upper(value[1])) &&
                           is_digit(value[2]) && is_digit(value[3]);
  if (!begins_well || std::strlen(value) <= national_identifier) return {flaw::no_creditor_form};
  return identifier_text_flaw(value, schema, false);
}

value_flaw date_flaw(const char* value, const document_schema& /*schema*/) {
  return is_calendar_date(value) ? value_flaw{} : value_flaw{flaw::no_date};
}

value_flaw amount_flaw(std::int64_t cents, const document_schema& schema) {
  if (!schema.asks_for(DEMAND_SEPA_AMOUNT)) return sum_flaw(cents);
  return cents > highest_cents ? value_flaw{flaw::too_high} : value_flaw{};
}

// 64 bits hold 19 digits; a zero that ends the decimals is not counted.
value_flaw sum_flaw(std::int64_t cents) {
  constexpr std::int64_t least_of_19_digits = 1'000'000'000'000'000'000;
  const bool too_many = cents >= least_of_19_digits && cents % 10 != 0;
  return too_many ? value_flaw{flaw::too_many_digits} : value_flaw{};
}

void describe(char* out, std::size_t size, value_flaw found, const char* version) {
  switch (found.kind) {
    case flaw::none:
      return;
    case flaw::missing:
      return bounded_format(out, size, "missing (required by %s)", version);
    case flaw::lost:
      return bounded_format(out, size, "lost (out of memory)");
    case flaw::no_date:
      return bounded_format(out, size, "is not a calendar date (required by %s)", version);
    case flaw::character:
      return describe_character(out, size, found.byte, version);
    case flaw::ill_formed:
      // Of the only markup that is longer than a character this is the first one.
      if (found.byte == ']') return bounded_format(out, size, "has ']]>' (not allowed by XML)");
      return describe_character(out, size, found.byte, "XML");
    case flaw::no_creditor_form:
      return bounded_format(out, size,
                            "is not two letters, two digits, business code and national "
                            "identifier (required by %s)",
                            version);
    case flaw::too_high:
      return bounded_format(out, size, "above 999999999.99 (not allowed by %s)", version);
    case flaw::too_many_digits:
      return bounded_format(out, size, "of more than 18 digits (not allowed by %s)", version);
    case flaw::cor1:
      return bounded_format(out, size, "is COR1 (not allowed by %s)", version);
  }
}

}  // namespace tivex
