#include "xml/schema.h"

#include <array>

#include "core/rulebook.h"

namespace tivex {

namespace {

constexpr std::uint32_t iso_demands = DEMAND_OWN_IBAN;

// German banks check subsets of the ISO schemas, which the German banking industry
// prescribes.
constexpr std::uint32_t german_demands = iso_demands | DEMAND_OWN_BIC | DEMAND_NAMES |
                                         DEMAND_MANDATE | DEMAND_CREDITOR_FORM |
                                         DEMAND_SEPA_AMOUNT | DEMAND_SEPA_IDENTIFIER;

constexpr document_schema german_2012 = {
    .credit_transfer = "pain.001.002.03",
    .direct_debit = "pain.008.002.02",
    .has_location = true,
    .bic_element = "BIC",
    .cor1 = cor1_form::not_in_schema,
    .demands = german_demands | DEMAND_OTHER_BIC | DEMAND_UNBROKEN_MANDATE,
};

constexpr document_schema german_2013 = {
    .credit_transfer = "pain.001.003.03",
    .direct_debit = "pain.008.003.02",
    .has_location = true,
    .bic_element = "BIC",
    .cor1 = cor1_form::written,
    .demands = german_demands | DEMAND_UNBROKEN_MANDATE,
};

constexpr document_schema iso_2009 = {
    .credit_transfer = "pain.001.001.03",
    .direct_debit = "pain.008.001.02",
    .bic_element = "BIC",
    .cor1 = cor1_form::written,
    .demands = iso_demands,
};

// Austrian banks check a subset of the ISO schemas as well.
constexpr document_schema austrian_2017 = [] {
  document_schema schema = iso_2009;
  schema.demands |= DEMAND_NAMES | DEMAND_MANDATE | DEMAND_SEPA_AMOUNT | DEMAND_BASIC_IDENTIFIER |
                    DEMAND_LISTED_PURPOSE | DEMAND_LINE_WITH_COUNTRY | DEMAND_LIMITED_FILE;
  return schema;
}();

constexpr document_schema german_2016 = {
    .credit_transfer = "pain.001.001.03",
    .direct_debit = "pain.008.001.02",
    .has_location = true,
    .bic_element = "BIC",
    .smnda_on_account = true,
    .demands = german_demands,
};

constexpr document_schema german_2017 = [] {
  document_schema schema = german_2016;
  schema.demands |= DEMAND_ADDRESS_OUTSIDE_EEA;
  return schema;
}();

constexpr document_schema german_2024 = {
    .credit_transfer = "pain.001.001.09",
    .direct_debit = "pain.008.001.08",
    .has_location = true,
    .bic_element = "BICFI",
    .smnda_on_account = true,
    .structured_address = true,
    .date_or_time = true,
    .demands = german_demands | DEMAND_TOWN_AND_COUNTRY | DEMAND_ADDRESS_OUTSIDE_EEA,
};

constexpr document_schema german_2026 = [] {
  document_schema schema = german_2024;
  schema.hybrid_address = true;
  schema.bank_by_iban = true;
  schema.further_elements = true;
  schema.always_strict = true;
  schema.demands &= ~DEMAND_OWN_BIC;
  return schema;
}();

// In the order of the rulebooks' numbers.
constexpr std::array<const document_schema*, rulebook_table.size()> schemas = {
    &german_2012,    // DE-2.6
    &german_2013,    // DE-2.7
    &austrian_2017,  // AT-6
    &iso_2009,       // NL-6
    &german_2013,    // DE-2.8
    &german_2013,    // DE-2.9
    &german_2016,    // DE-3.0
    &german_2017,    // DE-3.1
    &german_2017,    // DE-3.5
    &german_2024,    // DE-3.7
    &german_2026,    // DE-26.11
};

// What the rulebook's keys give is what is written.
static_assert([] {
  for (std::size_t number = 0; number < schemas.size(); ++number) {
    const document_schema& schema = *schemas[number];
    const rulebook_rules& rules = rulebook_table[number];
    if (schema.structured_address != rules.structured_address ||
        schema.hybrid_address != rules.hybrid_address ||
        schema.bank_by_iban != rules.bank_by_iban ||
        schema.further_elements != rules.further_keys) {
      return false;
    }
  }
  return true;
}());

}  // namespace

const document_schema* schema_of(std::int32_t number) {
  if (number < 0 || number >= static_cast<std::int32_t>(schemas.size())) return nullptr;
  return schemas[static_cast<std::size_t>(number)];
}

}  // namespace tivex
