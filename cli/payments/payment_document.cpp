#include "payments/payment_document.h"

#include "files/input_file.h"
#include "payments/document_room.h"
#include "payments/document_summary.h"
#include "payments/library_calls.h"
#include "payments/rulebooks.h"
#include "payments/schema_flaw.h"
#include "payments/schema_probe.h"
#include "platform/output_file.h"
#include "terminal/diagnostics.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

// What one reading of the file has come to.
struct payment_reading {
  fault_report faults;
  document_handle document;  // null when there are faults, or for the reason that follows
  std::string refusal;
};

payment_reading read(const payment_order& order, input_file& input, probing extent) {
  payment_reading reading{{input.name(), order.extent}, nullptr, {}};
  std::string none;
  const message_handle message = make_message(order.header, none);
  schema_probe probe(order.header, extent);
  add_transactions(message.get(), input, order.format, probe, reading.faults);
  if (!reading.faults.empty()) return reading;
  reading.document.reset(tivex_toXML(message.get()));
  if (!reading.document) reading.refusal = header_flaw(library_error(message.get()));
  return reading;
}

payment_reading read(const payment_order& order) {
  input_file input(order.input);
  // Looking for every row that the schema refuses takes as long as all else.
  if (order.header.strict && input.size().value_or(roomy_file) < roomy_file) {
    payment_reading reading = read(order, input, probing::first_fault);
    if (reading.document) return reading;
    input.start_again();
  }
  return read(order, input, probing::every_fault);
}

void print_refusal(const payment_order& order, const std::string& refusal) {
  if (order.form == fault_form::text) return print_error(refusal);
  print_fault(order.form, order.input, {0, "", refusal});
}

bool write(const payment_order& order, std::string_view document) {
  const bool to_file = order.output != "-";
  const std::string file = to_file ? order.output : "";
  const bool json = order.form == fault_form::json;
  // Made before: once the file is written nothing of this fails any more.
  std::string told;
  if (order.has_summary) {
    const document_summary summary =
        summarize(document, {order.header.rulebook, order.header.strict});
    told = json ? json_of(summary, file) : text_of(summary, file);
  }
  const std::string name = to_file ? file : "standard output";
  std::string fault = to_file ? replace_file(file, document) : write_standard_output(document);
  if (!fault.empty()) {
    print_fault(order.form, name, {0, "", fault});
    return false;
  }
  if (!json || !to_file) {
    print_lines(told);
    return true;
  }
  fault = write_standard_output(told);
  if (!fault.empty()) print_fault(order.form, "standard output", {0, "", fault});
  return fault.empty();
}

}  // namespace

std::string prepare(const payment_order& order) {
  const std::string unknown = select_rulebook(order.header.rulebook);
  if (!unknown.empty()) return "--rulebook: " + unknown;
  if (!order.header.strict && order.header.rulebook == newest_rulebook) {
    return "--lenient: " + order.header.rulebook + " documents are always strict";
  }
  std::string fault;
  make_message(order.header, fault);
  if (fault.empty()) fault = schema_probe(order.header, probing::first_fault).header_fault();
  if (fault.empty() && is_file_to_read(order.output, order.input)) {
    fault = "--output: " + order.output + " is the file to read";
  }
  return fault;
}

bool write_payments(const payment_order& order) {
  const payment_reading reading = read(order);
  if (!reading.faults.empty()) {
    reading.faults.print(order.form);
    return false;
  }
  if (!reading.document) {
    print_refusal(order, reading.refusal);
    return false;
  }
  return write(order, reading.document.get());
}

}  // namespace tivex_program
