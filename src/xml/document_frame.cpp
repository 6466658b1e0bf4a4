#include "xml/document_frame.h"

#include "core/bounded_format.h"
#include "xml/amount_text.h"
#include "xml/document_stamp.h"
#include "xml/parties.h"
#include "xml/value_flaw.h"

namespace tivex {

namespace {

// The number of transactions and the sum of their amounts.
void write_totals(document_writer& out, const payment_totals& totals) {
  number_text text;
  out.value("NbOfTxs", format_count(text, sizeof text, totals.count));
  out.value("CtrlSum", format_cents(text, sizeof text, stated_cents(out.strict(), totals)));
}

void write_payment_id(document_writer& out, const message& msg, int number) {
  char id[64];
  bounded_format(id, sizeof id, "%s-P%i", msg.message_id.c_str(), number);
  out.value("PmtInfId", id);
}

}  // namespace

std::int64_t stated_cents(bool strict, const payment_totals& totals) {
  return strict && !sum_flaw(totals.cents) ? totals.cents : cents_of(totals.sum);
}

bool fail_without_schema(message& msg) {
  return msg.fail("unknown/unsupported SEPA rulebook selected");
}

document_attributes::document_attributes(const document_form& form) {
  constexpr const char* names =
      " xmlns=\"urn:iso:std:iso:20022:tech:xsd:%s\""
      " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";
  constexpr const char* names_and_location =
      " xmlns=\"urn:iso:std:iso:20022:tech:xsd:%s\""
      " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
      " xsi:schemaLocation=\"urn:iso:std:iso:20022:tech:xsd:%s %s.xsd\"";
  const char* const version = form.version;
  if (form.schema.has_location) {
    bounded_format(text_, sizeof text_, names_and_location, version, version, version);
  } else {
    bounded_format(text_, sizeof text_, names, version);
  }
}

void write_group_header(document_writer& out, const message& msg, const payment_totals& totals,
                        std::time_t moment) {
  creation_text created;
  format_creation_time(created, moment);

  const element header(out, "GrpHdr");
  out.value("MsgId", msg.message_id.c_str());
  out.value("CreDtTm", created);
  write_totals(out, totals);
  write_party(out, "InitgPty", msg.name);
}

void write_payment_start(document_writer& out, const message& msg, std::string_view method,
                         int number, const payment_totals& totals) {
  write_payment_id(out, msg, number);
  out.fixed("PmtMtd", method);
  out.fixed("BtchBookg", msg.batch_booking == 1 ? "true" : "false");
  write_totals(out, totals);
}

void write_service_level(document_writer& out) {
  const element service_level(out, "SvcLvl");
  out.fixed("Cd", "SEPA");
}

void write_category_purpose(document_writer& out, const message& msg,
                            const document_schema& schema) {
  if (schema.further_elements && *msg.category_purpose != '\0') {
    write_code(out, "CtgyPurp", msg.category_purpose);
  }
}

void write_amount(document_writer& out, double amount) {
  number_text text;
  out.value("InstdAmt", format_amount(text, sizeof text, amount), " Ccy=\"EUR\"");
}

}  // namespace tivex
