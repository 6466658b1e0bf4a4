#include "commands/payment_command.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "commands/review_options.h"
#include "commands/table_options.h"
#include "files/table_form.h"
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
  review_arguments review;
  std::string output = "-";
  std::string delimiter = "auto";
  std::string encoding = "auto";
  std::string decimal;
  std::string sequence_type = "RCUR";
  std::vector<std::string> names;
  bool ignores_unknown = false;
  std::string input;
};

payment_header header_of(const payment_command& command, const payment_arguments& arguments) {
  payment_header header{command.transactions.message_type,
                        arguments.rulebook,
                        {},
                        arguments.single_booking,
                        !arguments.lenient};
  for (std::size_t i = 0; i < command.options.size(); ++i) {
    const header_option& option = command.options[i];
    std::string value = arguments.header[i];
    if (arguments.given[i]->count() == 0) {
      // The day that is taken for today is also that of payments without another one.
      if (option.form != value_form::date || arguments.review.today.empty()) continue;
      value = arguments.review.today;
      header.has_own_date = false;
    }
    write_as_prescribed(option.form, value);
    header.values.push_back({&option, value});
  }
  return header;
}

bool has_sequence_type(const payment_command& command) {
  return find_key(command.transactions.columns, "seq") != nullptr;
}

row_format format_of(const payment_command& command, const payment_arguments& arguments) {
  header_wishes names{{}, arguments.ignores_unknown};
  for (const std::string& name : arguments.names) {
    const std::size_t sign = name.find('=');
    const std::string key = name.substr(0, sign);
    if (!names.names.emplace(key, name.substr(sign + 1)).second) {
      throw CLI::ValidationError("--map", "'" + key + "' is given twice");
    }
  }
  return {command.transactions,
          {table_separators.at(arguments.delimiter), table_encodings.at(arguments.encoding)},
          names,
          arguments.decimal.empty() ? decimal_sign::unknown
                                    : static_cast<decimal_sign>(arguments.decimal.front()),
          {has_sequence_type(command) ? arguments.sequence_type : "", false},
          !arguments.quiet};
}

std::string name_fault(const std::string& text) {
  const std::size_t sign = text.find('=');
  const bool fits = sign != std::string::npos && sign > 0 && sign + 1 < text.size();
  return fits ? "" : "'" + text + "' is not of the form KEY=COLUMN";
}

// Returns the names of the columns as a paragraph of the help text.
std::string list_columns(std::span<const column> columns) {
  std::string text = "Columns (or what people call them in German and English):";
  for (const column& c : columns) text.append(" ").append(c.key);
  return wrapped(text, 0) + '\n';
}

int run(const payment_command& command, const payment_arguments& arguments) {
  payment_order order{header_of(command, arguments),
                      format_of(command, arguments),
                      arguments.input,
                      arguments.output,
                      arguments.json ? fault_form::json : fault_form::text,
                      arguments.all_faults ? fault_extent::all : fault_extent::first,
                      !arguments.quiet,
                      review_of(arguments.review),
                      {}};
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
  if (has_sequence_type(command)) {
    parser
        ->add_option("--seq", arguments->sequence_type,
                     "Sequence type of lines without one: FRST, RCUR, OOFF or FNAL")
        ->type_name("TYPE")
        ->check(CLI::IsMember({"FRST", "RCUR", "OOFF", "FNAL"}).description(""))
        ->capture_default_str();
  }
  add_table_options(*parser, arguments->delimiter, arguments->encoding);
  parser
      ->add_option("--decimal", arguments->decimal,
                   "Decimal sign of all amounts: , or . (default: found by looking)")
      ->type_name("SIGN")
      ->check(CLI::IsMember({",", "."}).description(""));
  parser
      ->add_option("--map", arguments->names,
                   "Read the column COLUMN as KEY: KEY=COLUMN; may be given more than once")
      ->type_name("KEY=COLUMN")
      ->check(CLI::Validator(name_fault, ""))
      ->allow_extra_args(false);
  parser->add_flag("--ignore-unknown", arguments->ignores_unknown,
                   "Pass over columns with unknown names");
  parser->add_flag("--json", arguments->json,
                   "Tell summary and faults as JSON, one object a line; the summary goes to "
                   "standard output when the document does not");
  parser->add_flag("--quiet", arguments->quiet, "Print no summary and no progress, faults only");
  parser->add_flag("--all-faults", arguments->all_faults,
                   "Tell every fault, not the first 20 and the number of the others");
  add_review_options(*parser, arguments->review);
  parser
      ->add_option("FILE", arguments->input,
                   "CSV file with one transaction a line; - for standard input")
      ->type_name("")
      ->required();
  parser->footer(list_columns(command.transactions.columns) + "\n" + command.example);
  parser->callback([&command, &exit_status, arguments] { exit_status = run(command, *arguments); });
}

}  // namespace tivex_program
