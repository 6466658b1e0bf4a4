#include "xml/credit_transfer_document.h"

#include "core/rulebook.h"
#include "platform/platform.h"
#include "transactions/credit_transfer.h"
#include "xml/document_frame.h"
#include "xml/document_stamp.h"
#include "xml/parties.h"
#include "xml/schema_check.h"

namespace tivex {

namespace {

// Where the date could have been a time as well, the prescribed form does not say
// which it is; the schema asks for that.
void write_execution_date(document_writer& out, const document_schema& schema, const char* date) {
  if (!out.strict() || !schema.date_or_time) return out.value("ReqdExctnDt", date);
  const element execution(out, "ReqdExctnDt");
  out.value("Dt", date);
}

void write_payment_header(document_writer& out, const message& msg, const document_form& form,
                          const payment_block<ct_transaction>& block, int number) {
  write_payment_start(out, msg, "TRF", number, block.totals);
  {
    const element type(out, "PmtTpInf");
    write_service_level(out);
    if (form.local_instrument != nullptr) write_code(out, "LclInstrm", form.local_instrument);
    write_category_purpose(out, msg, form.schema);
  }
  write_execution_date(out, form.schema, block.date);
  write_party(out, "Dbtr", msg.name);
  write_account(out, "DbtrAcct", msg.iban);
  write_agent(out, "DbtrAgt", form.schema, msg.bic);
  out.fixed("ChrgBr", "SLEV");
}

void write_creditor(document_writer& out, const document_schema& schema, const ct_transaction& tx) {
  const element creditor(out, "Cdtr", left_out_when_empty);
  out.optional_escaped("Nm", tx.name);
  write_address(out, schema, tx);
}

void write_purpose(document_writer& out, const ct_transaction& tx) {
  if (tx.purpose) write_code(out, "Purp", tx.purpose.c_str());
}

void write_remittance(document_writer& out, const document_schema& schema,
                      const ct_transaction& tx) {
  const element remittance(out, "RmtInf", left_out_when_empty);
  if (has_creditor_reference(schema, tx)) {
    return write_creditor_reference(out, tx.creditor_reference);
  }
  out.optional_escaped("Ustrd", tx.remittance);
}

void write_transaction(document_writer& out, const document_schema& schema,
                       const ct_transaction& tx) {
  const element transfer(out, "CdtTrfTxInf");
  write_payment_ids(out, schema, tx);
  {
    const element amount(out, "Amt");
    write_amount(out, tx.amount);
  }
  write_ultimate_party(out, "UltmtDbtr", schema, tx.ultimate_debtor);
  if (tx.bic) write_agent(out, "CdtrAgt", schema, tx.bic);
  write_creditor(out, schema, tx);
  write_account(out, "CdtrAcct", tx.iban);
  write_ultimate_party(out, "UltmtCdtr", schema, tx.ultimate_creditor);
  write_purpose(out, tx);
  write_remittance(out, schema, tx);
}

}  // namespace

bool cti_toXML(message& msg, xml_buffer_t& out) {
  const std::time_t moment = platform::now();
  const document_schema* const schema = schema_of(rulebook);
  if (!ensure_message_id(msg, moment)) return msg.fail("cti_toXML: strdup() failed");
  if (schema == nullptr) return fail_without_schema(msg);
  const bool instant = msg.transfer_type == TIVEX_CT_INSTANT;
  if (instant && !admits_instant_payments(msg)) return false;

  payment_blocks<ct_transaction> blocks;
  if (!blocks.group(msg, [](const ct_transaction& /*tx*/) { return 0; })) return false;

  const document_form form = {.schema = *schema,
                              .version = schema->credit_transfer,
                              .initiation = "CstmrCdtTrfInitn",
                              .typical_transaction_bytes = 1200,
                              .moment = moment,
                              .strict = is_strict(msg, *schema),
                              .local_instrument = instant ? "INST" : nullptr};
  if (form.strict && !schema_accepts(msg, form, blocks)) return false;
  return write_initiation(msg, out, form, blocks, {write_payment_header, write_transaction});
}

}  // namespace tivex
