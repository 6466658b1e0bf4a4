// The elements that name payments, accounts, banks and parties.
#pragma once

#include <string_view>

#include "transactions/transaction.h"
#include "xml/document_writer.h"
#include "xml/schema.h"

namespace tivex {

// The identification that the other side receives; NOTPROVIDED when there is none.
[[gnu::always_inline]] inline void write_end_to_end_id(document_writer& out,
                                                       const transaction& tx) {
  const element id(out, "PmtId");
  out.value("EndToEndId", tx.end_to_end_id ? tx.end_to_end_id.c_str() : "NOTPROVIDED");
}

[[gnu::always_inline]] inline void write_account(document_writer& out,
                                                 std::string_view element_name,
                                                 const owned_text& iban) {
  const element account(out, element_name);
  const element id(out, "Id");
  out.optional_value("IBAN", iban);
}

// A bank by its BIC; without one its element stays empty.
[[gnu::always_inline]] inline void write_agent(document_writer& out, std::string_view element_name,
                                               const document_schema& schema,
                                               const owned_text& bic) {
  const element agent(out, element_name);
  const element institution(out, "FinInstnId");
  out.optional_value(schema.bic_element, bic);
}

// A party of which nothing but the name is told, if that.
[[gnu::always_inline]] inline void write_party(document_writer& out, std::string_view element_name,
                                               const owned_text& name) {
  const element party(out, element_name);
  out.optional_escaped("Nm", name);
}

// The postal address of the other side, when there is one to write: country,
// town or an address line.
void write_address(document_writer& out, const document_schema& schema, const transaction& tx);

}  // namespace tivex
