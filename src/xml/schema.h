// Which schema version each rulebook writes, and how versions differ.
#pragma once

#include <cstdint>

namespace tivex {

struct document_schema {
  const char* credit_transfer;  // the version's name, also of its namespace and file
  bool has_location;            // whether the document names the schema's file
  const char* bic_element;      // within FinInstnId
};

// The schema of the rulebook with a number; null when there is none.
const document_schema* schema_of(std::int32_t number);

}  // namespace tivex
