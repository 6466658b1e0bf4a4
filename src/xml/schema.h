// Which schema version each rulebook writes, and how versions differ.
#pragma once

#include <cstdint>
#include <string_view>

namespace tivex {

// Versions are named as their namespaces and files are.
struct document_schema {
  const char* credit_transfer;
  const char* direct_debit;
  bool has_location;             // whether the document names the schema's file
  std::string_view bic_element;  // within FinInstnId
  bool smnda_on_account;  // where a change of the debtor's account is marked, else on the agent
};

// The schema of the rulebook with a number; null when there is none.
const document_schema* schema_of(std::int32_t number);

}  // namespace tivex
