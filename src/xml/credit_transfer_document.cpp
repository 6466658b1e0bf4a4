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
void write_execution_date(document_writer& out, const message& msg, const document_schema& schema,
                          const char* date) {
  if (msg.strict == 0 || !schema.date_or_time) return out.value("ReqdExctnDt", date);
  const element execution(out, "ReqdExctnDt");
  out.value("Dt", date);
}

void write_payment_header(document_writer& out, const message& msg, const document_form& form,
                          const payment_block<ct_transaction>& block, int number) {
  write_payment_start(out, msg, "TRF", number, block.totals);
  {
    const element type(out, "PmtTpInf");
    write_service_level(out);
  }
  write_execution_date(out, msg, form.schema, block.date);
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
  if (!tx.purpose) return;
  const element purpose(out, "Purp");
  out.value("Cd", tx.purpose.c_str());
}

void write_remittance(document_writer& out, const ct_transaction& tx) {
  const element remittance(out, "RmtInf", left_out_when_empty);
  out.optional_escaped("Ustrd", tx.remittance);
}

void write_transaction(document_writer& out, const document_schema& schema,
                       const ct_transaction& tx) {
  const element transfer(out, "CdtTrfTxInf");
  write_end_to_end_id(out, tx);
  {
    const element amount(out, "Amt");
    write_amount(out, tx.amount);
  }
  if (tx.bic) write_agent(out, "CdtrAgt", schema, tx.bic);
  write_creditor(out, schema, tx);
  write_account(out, "CdtrAcct", tx.iban);
  write_purpose(out, tx);
  write_remittance(out, tx);
}

}  // namespace

bool cti_toXML(message& msg, xml_buffer_t& out) {
  const std::time_t moment = platform::now();
  const document_schema* const schema = schema_of(rulebook);
  if (!ensure_message_id(msg, moment)) return msg.fail("cti_toXML: strdup() failed");
  if (schema == nullptr) return fail_without_schema(msg);

  payment_blocks<ct_transaction> blocks;
  if (!blocks.group(msg, [](const ct_transaction& /*tx*/) { return 0; })) return false;

  const document_form form = {.schema = *schema,
                              .version = schema->credit_transfer,
                              .initiation = "CstmrCdtTrfInitn",
                              .typical_transaction_bytes = 1200,
                              .moment = moment};
  if (msg.strict != 0 && !schema_accepts(msg, form, blocks)) return false;
  return write_initiation(msg, out, form, blocks, {write_payment_header, write_transaction});
}

}  // namespace tivex
