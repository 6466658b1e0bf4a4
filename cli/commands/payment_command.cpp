#include "commands/payment_command.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "files/delimiters.h"
#include "files/input_file.h"
#include "payments/document_room.h"
#include "payments/document_summary.h"
#include "payments/library_calls.h"
#include "payments/payment_message.h"
#include "payments/rulebooks.h"
#include "payments/schema_flaw.h"
#include "payments/schema_probe.h"
#include "payments/transactions.h"
#include "platform/exit_status.h"
#include "platform/output_file.h"
#include "terminal/diagnostics.h"
#include "terminal/fault_report.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

struct payment_arguments {
  std::string rulebook = default_rulebook;
  std::vector<std::string> header;  // the values of the command's options
  std::vector<const CLI::Option*> given;
  bool single_booking = false;
  bool lenient = false;
  std::string output = "-";
  std::string delimiter = ",";
  std::string input;
};

int usage_error(const std::string& text) {
  print_error(text);
  return exit_usage;
}

payment_header header_of(const payment_command& command, const payment_arguments& arguments) {
  payment_header header{
      command.transactions.message_type, {}, arguments.single_booking, !arguments.lenient};
  for (std::size_t i = 0; i < command.options.size(); ++i) {
    if (arguments.given[i]->count() == 0) continue;
    header.values.push_back({&command.options[i], arguments.header[i]});
  }
  return header;
}

// Returns the names of the columns as a paragraph of the help text.
std::string list_columns(std::span<const column> columns) {
  constexpr std::size_t line_length = 78;
  std::string text;
  std::string line = "Columns:";
  for (const column& c : columns) {
    const std::string name = std::string(" ") + c.key;
    if (line.size() + name.size() > line_length) text += std::exchange(line, " ") + "\n";
    line += name;
  }
  return text + line + "\n";
}

int write_document(const payment_arguments& arguments, std::string_view document) {
  const bool to_file = arguments.output != "-";
  const std::string name = to_file ? arguments.output : "standard output";
  // Made before: once the file is written nothing fails any more.
  const document_form form{arguments.rulebook, !arguments.lenient};
  std::string summary;
  for (const std::string& line : document_summary(document, form, name)) {
    summary += printable_line(line);
  }
  const std::string fault =
      to_file ? replace_file(arguments.output, document) : write_standard_output(document);
  if (!fault.empty()) {
    print_error(name + ": " + fault);
    return exit_failure;
  }
  print_lines(summary);
  return exit_success;
}

// Returns the document of a file that has no fault, and null for one that has any.
document_handle document_without_faults(const payment_header& header, input_file& input,
                                        const row_format& format) {
  std::string none;
  const message_handle message = make_message(header, none);
  schema_probe probe(header, probing::first_fault);
  fault_report faults(input.name());
  add_transactions(message.get(), input, format, probe, faults);
  return document_handle(faults.empty() ? tivex_toXML(message.get()) : nullptr);
}

int run(const payment_command& command, const payment_arguments& arguments) {
  const std::string unknown = select_rulebook(arguments.rulebook);
  if (!unknown.empty()) return usage_error("--rulebook: " + unknown);
  const payment_header header = header_of(command, arguments);
  std::string fault;
  message_handle message = make_message(header, fault);
  schema_probe probe(header, probing::every_fault);
  if (fault.empty()) fault = probe.header_fault();
  if (!fault.empty()) return usage_error(fault);

  if (is_file_to_read(arguments.output, arguments.input)) {
    return usage_error("--output: " + arguments.output + " is the file to read");
  }
  input_file input(arguments.input);
  fault_report faults(input.name());
  const row_format format{command.transactions, delimiters.at(arguments.delimiter),
                          arguments.rulebook};
  // Looking for every row that the schema refuses takes as long as all else.
  if (header.strict && input.size().value_or(roomy_file) < roomy_file) {
    if (const document_handle document = document_without_faults(header, input, format)) {
      return write_document(arguments, document.get());
    }
    input.start_again();
  }
  add_transactions(message.get(), input, format, probe, faults);
  if (!faults.empty()) {
    faults.print();
    return exit_failure;
  }
  const document_handle document(tivex_toXML(message.get()));
  if (!document) {
    print_error(header_flaw(library_error(message.get())));
    return exit_failure;
  }
  message.reset();
  return write_document(arguments, document.get());
}

}  // namespace

void add_payment_command(CLI::App& program, const payment_command& command, int& exit_status) {
  CLI::App* const parser = program.add_subcommand(command.name, command.description);
  const auto arguments = std::make_shared<payment_arguments>();
  // CLI11 keeps references to the values: they must not move.
  arguments->header.resize(command.options.size());

  parser->add_option("--rulebook", arguments->rulebook, std::string("Rulebook: ") + known_rulebooks)
      ->type_name("NAME")
      ->capture_default_str();
  for (std::size_t i = 0; i < command.options.size(); ++i) {
    const header_option& option = command.options[i];
    arguments->given.push_back(
        parser->add_option(option.flag, arguments->header[i], option.description)
            ->type_name(option.placeholder)
            ->required(option.required));
  }
  parser->add_flag("--single-booking", arguments->single_booking,
                   "Ask the bank to book the transactions singly");
  parser->add_flag("--lenient", arguments->lenient,
                   "Write the document even if its schema would not accept it");
  parser
      ->add_option("-o,--output", arguments->output,
                   "File to write (default: - for standard output)")
      ->type_name("FILE");
  parser->add_option("--delimiter", arguments->delimiter, "What separates the cells: , ; or tab")
      ->type_name("CHAR")
      ->check(CLI::IsMember(delimiters).description(""))
      ->capture_default_str();
  parser
      ->add_option("FILE", arguments->input,
                   "CSV file with one transaction a line; - for standard input")
      ->type_name("")
      ->required();
  parser->footer(list_columns(command.transactions.columns) + "\n" + command.example);
  parser->callback([&command, &exit_status, arguments] { exit_status = run(command, *arguments); });
}

}  // namespace tivex_program
