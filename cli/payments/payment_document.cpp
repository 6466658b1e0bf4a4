#include "payments/payment_document.h"

#include "files/input_file.h"
#include "payments/admitted_text.h"
#include "payments/document_room.h"
#include "payments/document_summary.h"
#include "payments/library_calls.h"
#include "payments/payment_report.h"
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
  // Goes last: to free anything behind millions of small blocks takes the allocator long.
  message_handle message;
  fault_report faults;
  payment_review review;
  table_facts table;
  document_handle document;  // null when there are faults, or for the reason that follows
  std::string refusal;
};

payment_reading read(const payment_order& order, input_file& input, amount_column& amounts,
                     probing extent) {
  std::string none;
  payment_reading reading{make_message(order.header, none),
                          {input.name(), order.extent},
                          {order.review, order.header, order.extent},
                          {},
                          nullptr,
                          {}};
  tivex_t* const message = reading.message.get();
  for (const value_change& change : order.changes) reading.review.notes().change(change);
  schema_probe probe(order.header, extent);
  row_format format = order.format;
  format.defaults.fills_bic = rows_want_bic();
  reading.table =
      add_transactions(message, input, format, amounts, probe, reading.review, reading.faults);
  reading.review.finish();
  if (!reading.faults.empty()) return reading;
  reading.document.reset(tivex_toXML(message));
  if (!reading.document) {
    reading.refusal = header_flaw(library_error(message));
  } else if (!reading.review.complete(reading.document.get())) {
    reading.document.reset();
    reading.refusal = "the IBANs of unknown banks could not be written";
  }
  return reading;
}

payment_reading read(const payment_order& order) {
  input_file input(order.input);
  decimal_evidence evidence;
  // Looking for every row that the schema refuses takes as long as all else.
  probing extent = order.header.strict && input.size().value_or(roomy_file) < roomy_file
                       ? probing::first_fault
                       : probing::every_fault;
  for (;;) {
    amount_column amounts(order.format.sign, evidence);
    payment_reading reading = read(order, input, amounts, extent);
    if (reading.document) return reading;
    // An amount may be decided by others behind it.
    bool decided = false;
    if (amounts.left_open() && input.size() && evidence.sign == decimal_sign::unknown) {
      input.start_again();
      evidence = find_decimal_sign(input, order.format, order.header.rulebook);
      decided = evidence.sign != decimal_sign::unknown;
    }
    if (extent == probing::every_fault && !decided) return reading;
    if (!decided) extent = probing::every_fault;
    input.start_again();
  }
}

void print_refusal(const payment_order& order, const std::string& refusal) {
  if (order.form == fault_form::text) return print_error(refusal);
  print_fault(order.form, order.input, {0, "", refusal});
}

// Writes the text of the header with admitted characters. Returns why that cannot be.
std::string write_header(payment_order& order) {
  if (!order.review.transliterates) return {};
  admitted_characters characters(order.header.message_type, order.header.strict);
  for (auto& [option, text] : order.header.values) {
    if (option->flag != own_name_key) continue;
    const std::string before = text;
    const rewriting done = write_with_admitted(text, own_name_key, characters);
    if (done == rewriting::nothing_left) return std::string(option->flag) + ": " + nothing_is_left;
    if (done == rewriting::changed) order.changes.push_back({0, "", option->flag, before, text});
  }
  return {};
}

// Has another IBAN stand for the message's own when its bank is not known and may be.
void accept_own_bank(payment_order& order) {
  if (!order.review.accepts_unknown_banks) return;
  for (auto& [option, text] : order.header.values) {
    if (std::string_view(option->flag) != "--iban" || !unknown_banks::is_unknown(text)) continue;
    order.header.true_iban = std::exchange(text, unknown_banks::own_stand_in());
  }
}

// Comes before the document: a document without its report might be handed in unseen.
bool write_report(const payment_order& order, const payment_review& review,
                  const document_summary& summary) {
  if (order.review.report.empty()) return true;
  const bool to_file = order.output != "-" && !order.review.checks_only;
  const std::string page = report_page({order.header, summary, review.rows(), review.notes(),
                                        order.input, to_file ? order.output : std::string()});
  const std::string fault = replace_file(order.review.report, page);
  if (!fault.empty()) print_fault(order.form, order.review.report, {0, "", fault});
  return fault.empty();
}

// Tells what the document would be.
bool tell_check(const payment_order& order, const std::string& told) {
  if (order.form == fault_form::text) {
    print_lines(told);
    return true;
  }
  const std::string fault = write_standard_output(told);
  if (!fault.empty()) print_fault(order.form, "standard output", {0, "", fault});
  return fault.empty();
}

bool write(const payment_order& order, const payment_reading& reading) {
  const std::string_view document = reading.document.get();
  const bool to_file = order.output != "-";
  const std::string file = to_file ? order.output : "";
  const bool json = order.form == fault_form::json;
  // Made before: once the file is written nothing of this fails any more.
  document_summary summary;
  if (order.has_summary || !order.review.report.empty()) {
    summary = summarize(document, {order.header.rulebook, order.header.strict});
  }
  summary.warnings = reading.review.notes().warnings();
  summary.transliterated = reading.review.notes().changes();
  summary.sums = reading.review.sums();
  summary.is_written = !order.review.checks_only;
  std::string told;
  if (order.has_summary) {
    told = json ? json_of(reading.table, summary, file)
                : text_of(reading.table) + text_of(summary, file);
  }
  if (!write_report(order, reading.review, summary)) return false;
  if (order.review.checks_only) return tell_check(order, told);
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

// Changes that were asked for and warnings are for who wants more than faults; those that
// refuse a file are told in any case.
void print_notes(const payment_order& order, const payment_reading& reading) {
  if (order.has_summary || order.review.warnings_refuse) {
    reading.review.notes().print(order.form, order.input);
  }
}

}  // namespace

std::string prepare(payment_order& order) {
  const std::string unknown = select_rulebook(order.header.rulebook);
  if (!unknown.empty()) return "--rulebook: " + unknown;
  if (!order.header.strict && order.header.rulebook == newest_rulebook) {
    return "--lenient: " + order.header.rulebook + " documents are always strict";
  }
  accept_own_bank(order);
  std::string fault = write_header(order);
  if (fault.empty()) make_message(order.header, fault);
  if (fault.empty()) fault = schema_probe(order.header, probing::first_fault).header_fault();
  if (fault.empty() && is_file_to_read(order.output, order.input)) {
    fault = "--output: " + order.output + " is the file to read";
  }
  const std::string& report = order.review.report;
  if (fault.empty() && !report.empty() && report == order.output) {
    fault = "--report: " + report + " is the file of --output";
  }
  if (fault.empty() && !report.empty() && is_file_to_read(report, order.input)) {
    fault = "--report: " + report + " is the file to read";
  }
  return fault;
}

bool write_payments(const payment_order& order) {
  const payment_reading reading = read(order);
  if (!reading.faults.empty()) {
    reading.faults.print(order.form);
    print_notes(order, reading);
    return false;
  }
  if (!reading.document) {
    print_refusal(order, reading.refusal);
    return false;
  }
  print_notes(order, reading);
  if (order.review.warnings_refuse && reading.review.notes().warnings() > 0) {
    const std::size_t count = reading.review.notes().warnings();
    print_refusal(order, "nothing written: " + std::to_string(count) +
                             (count == 1 ? " warning" : " warnings") + " (--strict-warnings)");
    return false;
  }
  return write(order, reading);
}

}  // namespace tivex_program
