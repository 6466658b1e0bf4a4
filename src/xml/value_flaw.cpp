#include "xml/value_flaw.h"

#include <cstring>
#include <string_view>

#include "core/bounded_format.h"
#include "transactions/date_text.h"
#include "validation/ascii.h"
#include "xml/purposes.h"
#include "xml/xml_text.h"

namespace tivex {

namespace {

constexpr std::int64_t highest_cents = 99'999'999'999;
constexpr std::int64_t highest_sum = 99'999'999'999'999;
constexpr std::uint32_t highest_count = 999'999;

bool is_sepa_character(char c, const document_schema& schema) {
  if (c == '|') return !schema.asks_for(DEMAND_BASIC_IDENTIFIER);
  return is_digit(c) || is_upper(to_upper(c)) || std::strchr("+?/-:().,'", c) != nullptr;
}

bool is_blank(const char* text) {
  if (*text != ' ') return false;
  while (*text == ' ') ++text;
  return *text == '\0';
}

value_flaw ill_formed_at(const char* place) {
  return place != nullptr ? value_flaw{flaw::ill_formed, *place} : value_flaw{};
}

value_flaw identifier_text_flaw(const char* value, const document_schema& schema,
                                bool blank_admitted) {
  const value_flaw ill_formed = plain_text_flaw(value, schema);
  if (ill_formed) return ill_formed;
  const bool any = !schema.asks_for(DEMAND_SEPA_IDENTIFIER | DEMAND_BASIC_IDENTIFIER);
  for (const char* at = value; !any && *at != '\0'; ++at) {
    const bool admitted = *at == ' ' ? blank_admitted : is_sepa_character(*at, schema);
    if (!admitted) return {flaw::character, *at};
  }
  return sepa_identifier_flaw(value);
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

value_flaw escaped_text_flaw(const char* value, const document_schema& schema) {
  const value_flaw ill_formed = ill_formed_at(find_illegal_character(value));
  return ill_formed ? ill_formed : blank_text_flaw(value, schema);
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
  if (!schema.asks_for(DEMAND_CREDITOR_FORM)) return identifier_flaw(value, schema);
  constexpr std::size_t national_identifier = 7;
  const bool begins_well = is_upper(to_upper(value[0])) && is_upper(to_upper(value[1])) &&
                           is_digit(value[2]) && is_digit(value[3]);
  if (!begins_well || std::strlen(value) <= national_identifier) return {flaw::no_creditor_form};
  return identifier_text_flaw(value, schema, false);
}

value_flaw date_flaw(const char* value, const document_schema& /*schema*/) {
  return is_calendar_date(value) ? value_flaw{} : value_flaw{flaw::no_date};
}

value_flaw purpose_flaw(const char* value, const document_schema& schema) {
  const value_flaw ill_formed = plain_text_flaw(value, schema);
  if (ill_formed || !schema.asks_for(DEMAND_LISTED_PURPOSE)) return ill_formed;
  return is_listed_purpose(value) ? value_flaw{} : value_flaw{flaw::unlisted};
}

value_flaw blank_text_flaw(const char* value, const document_schema& /*schema*/) {
  return is_blank(value) ? value_flaw{flaw::blanks_only} : value_flaw{};
}

value_flaw sepa_identifier_flaw(const char* value) {
  if (is_blank(value)) return {flaw::blanks_only};
  const char* const slash = std::strchr(value, '/');
  if (slash == nullptr) return {};
  if (slash == value) return {flaw::slash_at_start};
  const std::string_view rest = slash;
  if (rest.ends_with('/')) return {flaw::slash_at_end};
  return rest.find("//") != std::string_view::npos ? value_flaw{flaw::double_slash} : value_flaw{};
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

value_flaw stated_sum_flaw(std::int64_t cents, const document_schema& schema) {
  if (!schema.asks_for(DEMAND_LIMITED_FILE)) return sum_flaw(cents);
  return cents > highest_sum ? value_flaw{flaw::sum_too_high} : value_flaw{};
}

value_flaw count_flaw(std::uint32_t count, const document_schema& schema) {
  if (count == 0) return {flaw::missing};
  const bool too_many = schema.asks_for(DEMAND_LIMITED_FILE) && count > highest_count;
  return too_many ? value_flaw{flaw::too_many} : value_flaw{};
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
    case flaw::sum_too_high:
      return bounded_format(out, size, "above 999999999999.99 (not allowed by %s)", version);
    case flaw::too_many:
      return bounded_format(out, size, "above 999999 (not allowed by %s)", version);
    case flaw::unlisted:
      return bounded_format(out, size, "is not in the list of purposes (not allowed by %s.%s)",
                            version, purpose_list);
    case flaw::not_given:
      return bounded_format(out, size, "missing (not allowed by SEPA)");
    case flaw::slash_at_start:
      return bounded_format(out, size, "has '/' at its start (not allowed by SEPA)");
    case flaw::slash_at_end:
      return bounded_format(out, size, "has '/' at its end (not allowed by SEPA)");
    case flaw::double_slash:
      return bounded_format(out, size, "has '//' (not allowed by SEPA)");
    case flaw::blanks_only:
      return bounded_format(out, size, "has blanks only (not allowed by SEPA)");
    case flaw::cor1:
      return bounded_format(out, size, "is COR1 (not allowed by %s)", version);
  }
}

}  // namespace tivex
