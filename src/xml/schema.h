// Which schema version each rulebook writes, how versions differ, and what each
// asks of the values in the strict mode.
#pragma once

#include <cstdint>
#include <string_view>

namespace tivex {

// What a schema may ask of a message's values; the last one is a rule of German banks.
enum schema_demand : std::uint32_t {
  DEMAND_NOTHING = 0,
  DEMAND_OWN_IBAN = 1,
  DEMAND_OWN_BIC = 2,
  DEMAND_NAMES = 4,                // of both parties
  DEMAND_OTHER_BIC = 8,            // of the other side's bank
  DEMAND_TOWN_AND_COUNTRY = 16,    // both, in a structured address
  DEMAND_MANDATE = 32,             // its reference and the date of its signature
  DEMAND_CREDITOR_FORM = 64,       // the EPC's form of creditor identifiers
  DEMAND_SEPA_AMOUNT = 128,        // at most 999999999.99
  DEMAND_SEPA_IDENTIFIER = 256,    // letters, digits, blank and + ? / | - : ( ) . , '
  DEMAND_UNBROKEN_MANDATE = 512,   // no blank in a mandate reference
  DEMAND_BASIC_IDENTIFIER = 1024,  // as for SEPA identifiers, but for |
  DEMAND_LISTED_PURPOSE = 2048,
  DEMAND_LINE_WITH_COUNTRY = 4096,     // an address line where a country is told
  DEMAND_LIMITED_FILE = 8192,          // 999,999 transactions, 999999999999.99 in all
  DEMAND_ADDRESS_OUTSIDE_EEA = 16384,  // of debtors whose IBAN is of a country there
};

// What becomes of the local instrument COR1 where it was set, be it under another
// rulebook.
enum class cor1_form {
  withdrawn,      // refused in any mode
  not_in_schema,  // written all the same, but for the strict mode
  written,
};

// Versions are named as their namespaces and files are.
struct document_schema {
  const char* credit_transfer;
  const char* direct_debit;
  bool has_location = false;     // whether the document names the schema's file
  std::string_view bic_element;  // within FinInstnId
  // Where a change of the debtor's account is marked, else on the agent.
  bool smnda_on_account = false;
  bool structured_address = false;  // in place of address lines
  bool hybrid_address = false;      // address lines behind the parts
  bool date_or_time = false;        // the execution date says which of the two it is
  bool bank_by_iban = false;        // a bank without BIC is written as not provided
  bool further_elements = false;    // of the further keys, and types of credit transfers
  bool always_strict = false;
  cor1_form cor1 = cor1_form::withdrawn;
  std::uint32_t demands;  // of schema_demand

  bool asks_for(std::uint32_t demand) const { return (demands & demand) != 0; }
};

// The schema of the rulebook with a number; null when there is none.
const document_schema* schema_of(std::int32_t number);

}  // namespace tivex
