#include "commands/payment_command.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "files/delimiters.h"
#include "payments/payment_document.h"
#include "payments/rulebooks.h"
#include "platform/exit_status.h"
#include "terminal/diagnostics.h"
#include "terminal/wrapped_text.h"

namespace tivex_program {
namespace {

struct payment_arguments {
  std::string rulebook = default_rulebook;
  std::vector<std::string> header;  // the values of the command's options
  std::vector<const CLI::Option*> given;
  bool single_booking = false;
  bool lenient = false;
  bool json = false;
  bool quiet = false;
  bool all_faults = false;
  std::string output = "-";
  std::string delimiter = ",";
  std::string input;
};

payment_header header_of(const payment_command& command, const payment_arguments& arguments) {
  payment_header header{command.transactions.message_type,
                        arguments.rulebook,
                        {},
                        arguments.single_booking,
                        !arguments.lenient};
  for (std::size_t i = 0; i < command.options.size(); ++i) {
    if (arguments.given[i]->count() == 0) continue;
    header.values.push_back({&command.options[i], arguments.header[i]});
  }
  return header;
}

// Returns the names of the columns as a paragraph of the help text.
std::string list_columns(std::span<const column> columns) {
  std::string text = "Columns:";
  for (const column& c : columns) text.append(" ").append(c.key);
  return wrapped(text, 0) + '\n';
}

int run(const payment_command& command, const payment_arguments& arguments) {
  const payment_order order{
      header_of(command, arguments),
      {command.transactions, delimiters.at(arguments.delimiter), !arguments.quiet},
      arguments.input,
      arguments.output,
      arguments.json ? fault_form::json : fault_form::text,
      arguments.all_faults ? fault_extent::all : fault_extent::first,
      !arguments.quiet};
  const std::string fault = prepare(order);
  if (!fault.empty()) {
    print_error(fault);
    return exit_usage;
  }
  return write_payments(order) ? exit_success : exit_failure;
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
        option.is_flag() ? parser->add_flag(option.flag, option.description)
                         : parser->add_option(option.flag, arguments->header[i], option.description)
                               ->type_name(option.placeholder)
                               ->required(option.required));
  }
  parser->add_flag("--single-booking", arguments->single_booking,
                   "Ask the bank to book the transactions singly");
  parser->add_flag("--lenient", arguments->lenient,
                   "Write the document even if its schema would not accept it; not with DE-26.11");
  parser
      ->add_option("-o,--output", arguments->output,
                   "File to write (default: - for standard output)")
      ->type_name("FILE");
  parser->add_option("--delimiter", arguments->delimiter, "What separates the cells: , ; or tab")
      ->type_name("CHAR")
      ->check(CLI::IsMember(delimiters).description(""))
      ->capture_default_str();
  parser->add_flag("--json", arguments->json,
                   "Tell summary and faults as JSON, one object a line; the summary goes to "
                   "standard output when the document does not");
  parser->add_flag("--quiet", arguments->quiet, "Print no summary and no progress, faults only");
  parser->add_flag("--all-faults", arguments->all_faults,
                   "Tell every fault, not the first 20 and the number of the others");
  parser
      ->add_option("FILE", arguments->input,
                   "CSV file with one transaction a line; - for standard input")
      ->type_name("")
      ->required();
  parser->footer(list_columns(command.transactions.columns) + "\n" + command.example);
  parser->callback([&command, &exit_status, arguments] { exit_status = run(command, *arguments); });
}

}  // namespace tivex_program
