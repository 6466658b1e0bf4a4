#include "xml/direct_debit_document.h"

#include <array>

#include "core/rulebook.h"
#include "platform/platform.h"
#include "transactions/direct_debit.h"
#include "xml/document_frame.h"
#include "xml/document_stamp.h"
#include "xml/parties.h"
#include "xml/schema_check.h"

namespace tivex {

namespace {

// A slot within a date for each sequence type, in the order of their numbers.
constexpr std::array<const char*, 4> sequence_texts = {"FRST", "RCUR", "OOFF", "FNAL"};

std::int32_t slot_of(const dd_transaction& tx) { return tx.sequence_type - SEQUENCE_FRST; }

// By the numbers of tivex_setDDType.
constexpr std::array<const char*, 3> local_instruments = {"CORE", "COR1", "B2B"};

// Null when the message's local instrument is none, or none any more. There may be no
// schema: that is told after this.
const char* local_instrument_of(const message& msg, const document_schema* schema) {
  const std::int32_t number = msg.local_instrument;
  if (number < 0 || number >= static_cast<std::int32_t>(local_instruments.size())) return nullptr;
  const bool withdrawn = schema != nullptr && schema->cor1 == cor1_form::withdrawn;
  if (number == TIVEX_DD_COR1 && withdrawn) return nullptr;
  return local_instruments[static_cast<std::size_t>(number)];
}

bool has_header(message& msg, const document_schema* schema) {
  const bool bank_by_iban = schema != nullptr && schema->bank_by_iban;
  if (!msg.iban) return msg.fail("Missing creditor IBAN");
  if (!msg.bic && !bank_by_iban) return msg.fail("Missing creditor BIC");
  if (!msg.name) return msg.fail("Missing creditor name");
  if (!msg.creditor_id) return msg.fail("Missing creditor identifier");
  if (msg.tx_count == 0) return msg.fail("No transactions available");
  return true;
}

void write_payment_type(document_writer& out, const message& msg, const document_form& form,
                        const char* sequence) {
  const element type(out, "PmtTpInf");
  write_service_level(out);
  write_code(out, "LclInstrm", form.local_instrument);
  out.value("SeqTp", sequence);
  write_category_purpose(out, msg, form.schema);
}

void write_creditor_scheme(document_writer& out, const owned_text& creditor_id) {
  const element scheme(out, "CdtrSchmeId");
  const element id(out, "Id");
  const element private_id(out, "PrvtId");
  const element other(out, "Othr");
  out.value("Id", creditor_id.c_str());
  const element scheme_name(out, "SchmeNm");
  out.fixed("Prtry", "SEPA");
}

void write_payment_header(document_writer& out, const message& msg, const document_form& form,
                          const payment_block<dd_transaction>& block, int number) {
  write_payment_start(out, msg, "DD", number, block.totals);
  write_payment_type(out, msg, form, sequence_texts[static_cast<std::size_t>(block.slot)]);
  out.value("ReqdColltnDt", block.date);
  write_party(out, "Cdtr", msg.name);
  write_account(out, "CdtrAcct", msg.iban);
  write_agent(out, "CdtrAgt", form.schema, msg.bic);
  out.fixed("ChrgBr", "SLEV");
  write_creditor_scheme(out, msg.creditor_id);
}

// The debtor has moved to an account that the bank knows: the marker stands where
// the former account, or under older schemas the former bank, would.
void write_smnda(document_writer& out, const document_schema& schema) {
  const element former(out, schema.smnda_on_account ? "OrgnlDbtrAcct" : "OrgnlDbtrAgt");
  const element id(out, schema.smnda_on_account ? "Id" : "FinInstnId");
  const element other(out, "Othr");
  out.fixed("Id", "SMNDA");
}

void write_amendment(document_writer& out, const document_schema& schema,
                     const dd_transaction& tx) {
  const bool new_account = tx.smnda != 0;
  if (!tx.old_mandate_id && !tx.old_iban && !new_account) return;
  out.fixed("AmdmntInd", "true");
  const element details(out, "AmdmntInfDtls");
  out.optional_value("OrgnlMndtId", tx.old_mandate_id);
  if (new_account) {
    write_smnda(out, schema);
  } else if (tx.old_iban) {
    write_account(out, "OrgnlDbtrAcct", tx.old_iban);
  }
}

void write_mandate(document_writer& out, const document_schema& schema, const dd_transaction& tx) {
  const element debit(out, "DrctDbtTx", left_out_when_empty);
  const element mandate(out, "MndtRltdInf", left_out_when_empty);
  out.optional_value("MndtId", tx.mandate_id);
  out.optional_value("DtOfSgntr", tx.mandate_date);
  write_amendment(out, schema, tx);
}

void write_debtor_agent(document_writer& out, const document_schema& schema,
                        const dd_transaction& tx) {
  if (tx.bic) return write_agent(out, "DbtrAgt", schema, tx.bic);
  const element agent(out, "DbtrAgt");
  const element institution(out, "FinInstnId");
  write_no_bic(out);
}

void write_debtor(document_writer& out, const document_schema& schema, const dd_transaction& tx) {
  const element debtor(out, "Dbtr");
  out.escaped("Nm", tx.name.c_str());
  write_address(out, schema, tx);
}

void write_remittance(document_writer& out, const document_schema& schema,
                      const dd_transaction& tx) {
  const bool referenced = has_creditor_reference(schema, tx);
  if (!referenced && !tx.remittance) return;
  const element remittance(out, "RmtInf", left_out_when_empty);
  if (referenced) return write_creditor_reference(out, tx.creditor_reference);
  out.escaped("Ustrd", tx.remittance.c_str());
}

void write_transaction(document_writer& out, const document_schema& schema,
                       const dd_transaction& tx) {
  const element debit(out, "DrctDbtTxInf");
  write_payment_ids(out, schema, tx);
  write_amount(out, tx.amount);
  write_mandate(out, schema, tx);
  write_ultimate_party(out, "UltmtCdtr", schema, tx.ultimate_creditor);
  write_debtor_agent(out, schema, tx);
  write_debtor(out, schema, tx);
  write_account(out, "DbtrAcct", tx.iban);
  write_ultimate_party(out, "UltmtDbtr", schema, tx.ultimate_debtor);
  write_remittance(out, schema, tx);
}

}  // namespace

bool ddi_toXML(message& msg, xml_buffer_t& out) {
  const std::time_t moment = platform::now();
  const document_schema* const schema = schema_of(rulebook);
  if (!has_header(msg, schema)) return false;
  const char* const local_instrument = local_instrument_of(msg, schema);
  if (local_instrument == nullptr) {
    return msg.fail("Unknown/unsupported LocalInstrumentCode (setDDType)");
  }
  if (!ensure_message_id(msg, moment)) return msg.fail("ddi_toXML: strdup() failed");
  if (schema == nullptr) return fail_without_schema(msg);

  payment_blocks<dd_transaction> blocks;
  if (!blocks.group(msg, slot_of)) return false;

  const document_form form = {.schema = *schema,
                              .version = schema->direct_debit,
                              .initiation = "CstmrDrctDbtInitn",
                              .typical_transaction_bytes = 1500,
                              .moment = moment,
                              .strict = is_strict(msg, *schema),
                              .local_instrument = local_instrument};
  if (form.strict && !schema_accepts(msg, form, blocks)) return false;
  return write_initiation(msg, out, form, blocks, {write_payment_header, write_transaction});
}

}  // namespace tivex
