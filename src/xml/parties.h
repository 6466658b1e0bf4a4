// The elements that name payments, accounts, banks and parties.
#pragma once

#include <string_view>

#include "transactions/transaction.h"
#include "xml/document_writer.h"
#include "xml/schema.h"

namespace tivex {

// The identification for the own bank, and the one that the other side receives;
// NOTPROVIDED when there is none.
template <class record>
[[gnu::always_inline]] inline void write_payment_ids(document_writer& out,
                                                     const document_schema& schema,
                                                     const record& tx) {
  const element id(out, "PmtId");
  if (schema.further_elements) out.optional_value("InstrId", tx.instruction_id);
  out.value("EndToEndId", tx.end_to_end_id ? tx.end_to_end_id.c_str() : "NOTPROVIDED");
}

[[gnu::always_inline]] inline void write_account(document_writer& out,
                                                 std::string_view element_name,
                                                 const owned_text& iban) {
  const element account(out, element_name);
  const element id(out, "Id");
  out.optional_value("IBAN", iban);
}

// In place of a bank's BIC, which the IBAN tells.
inline void write_no_bic(document_writer& out) {
  const element other(out, "Othr");
  out.fixed("Id", "NOTPROVIDED");
}

// A bank by its BIC; without one its element stays empty where the schema has it so.
[[gnu::always_inline]] inline void write_agent(document_writer& out, std::string_view element_name,
                                               const document_schema& schema,
                                               const owned_text& bic) {
  const element agent(out, element_name);
  const element institution(out, "FinInstnId");
  if (!bic && schema.bank_by_iban) return write_no_bic(out);
  out.optional_value(schema.bic_element, bic);
}

// A party of which nothing but the name is told, if that.
[[gnu::always_inline]] inline void write_party(document_writer& out, std::string_view element_name,
                                               const owned_text& name) {
  const element party(out, element_name);
  out.optional_escaped("Nm", name);
}

// Someone on whose behalf a payment is made, if there is one.
inline void write_ultimate_party(document_writer& out, std::string_view element_name,
                                 const document_schema& schema, const owned_text& name) {
  if (schema.further_elements && name) write_party(out, element_name, name);
}

// Whether a creditor reference stands in place of the remittance information.
template <class record>
bool has_creditor_reference(const document_schema& schema, const record& tx) {
  return schema.further_elements && tx.creditor_reference;
}
void write_creditor_reference(document_writer& out, const owned_text& reference);

// The postal address of the other side, when there is one to write: country,
// town or an address line.
void write_address(document_writer& out, const document_schema& schema, const transaction& tx);

}  // namespace tivex
