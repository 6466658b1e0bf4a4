#include "xml/credit_transfer_document.h"

#include "core/rulebook.h"
#include "platform/platform.h"
#include "transactions/credit_transfer.h"
#include "xml/document_frame.h"
#include "xml/document_stamp.h"
#include "xml/document_writer.h"
#include "xml/parties.h"
#include "xml/payment_blocks.h"
#include "xml/schema.h"

namespace tivex {

namespace {

// About as long as the elements of a transaction are.
constexpr std::uint64_t typical_transaction_bytes = 1200;

void write_payment_type(document_writer& out) {
  const element type(out, "PmtTpInf");
  const element service_level(out, "SvcLvl");
  out.fixed("Cd", "SEPA");
}

void write_payment_header(document_writer& out, const message& msg, const document_schema& schema,
                          const payment_block<ct_transaction>& block, int number) {
  write_payment_id(out, msg, number);
  out.fixed("PmtMtd", "TRF");
  write_batch_booking(out, msg);
  write_totals(out, block.count, block.sum);
  write_payment_type(out);
  out.value("ReqdExctnDt", block.date);
  write_party(out, "Dbtr", msg.name);
  write_account(out, "DbtrAcct", msg.iban);
  write_agent(out, "DbtrAgt", schema, msg.bic);
  out.fixed("ChrgBr", "SLEV");
}

void write_creditor(document_writer& out, const ct_transaction& tx) {
  const element creditor(out, "Cdtr");
  out.optional_escaped("Nm", tx.name);
  write_address(out, tx);
}

void write_purpose(document_writer& out, const ct_transaction& tx) {
  if (!tx.purpose) return;
  const element purpose(out, "Purp");
  out.value("Cd", tx.purpose.c_str());
}

void write_remittance(document_writer& out, const ct_transaction& tx) {
  const element remittance(out, "RmtInf");
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
  write_creditor(out, tx);
  write_account(out, "CdtrAcct", tx.iban);
  write_purpose(out, tx);
  write_remittance(out, tx);
}

void write_payment(document_writer& out, const message& msg, const document_schema& schema,
                   const payment_block<ct_transaction>& block, int number) {
  const element payment(out, "PmtInf");
  write_payment_header(out, msg, schema, block, number);
  for (const auto& [date, place, tx] : block.transactions) write_transaction(out, schema, *tx);
}

}  // namespace

bool cti_toXML(message& msg, xml_buffer_t& out) {
  const std::time_t moment = platform::now();
  if (!ensure_message_id(msg, moment)) return msg.fail("cti_toXML: strdup() failed");
  const document_schema* const schema = schema_of(rulebook);
  if (schema == nullptr) return msg.fail("unknown/unsupported SEPA rulebook selected");

  payment_blocks<ct_transaction> blocks;
  if (!blocks.group(msg)) return false;

  xml_buffer_expect(out, msg.tx_count * typical_transaction_bytes);
  document_writer writer(out);
  {
    const document_attributes attributes(*schema, schema->credit_transfer);
    const element document(writer, "Document", attributes.c_str());
    const element initiation(writer, "CstmrCdtTrfInitn");
    write_group_header(writer, msg, moment);
    for (int number = 1; const auto block = blocks.next(); ++number) {
      write_payment(writer, msg, *schema, *block, number);
    }
  }
  return writer.succeeded(msg);
}

}  // namespace tivex
