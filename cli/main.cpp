#include <tivex.h>

#include <CLI/CLI.hpp>
#include <exception>
#include <string>

#include "commands/account_check.h"
#include "commands/bank.h"
#include "commands/credit_transfer.h"
#include "commands/direct_debit.h"
#include "commands/iban_check.h"
#include "commands/iban_convert.h"
#include "commands/statement.h"
#include "platform/exit_status.h"
#include "program.h"
#include "terminal/diagnostics.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

int run(int argument_count, char** arguments) {
  int exit_status = exit_success;
  CLI::App program("Payments in the Single Euro Payments Area", "tivex");
  program.set_version_flag("--version", std::string("tivex ") + tivex_version_str + " (edition " +
                                            tivex_edition_str + ")");
  // A name that starts with a slash is a file's on every system.
  program.allow_windows_style_options(false);
  program.require_subcommand(1);
  program.footer("tivex COMMAND --help shows the command's options and an example.");
  add_payment_command(program, credit_transfer, exit_status);
  add_payment_command(program, direct_debit, exit_status);
  CLI::App* const ibans = program.add_subcommand("iban", "Work with IBANs");
  ibans->require_subcommand(1);
  ibans->footer("tivex iban COMMAND --help shows the command's options and an example.");
  add_iban_check(*ibans, exit_status);
  add_iban_convert(*ibans, exit_status);
  add_iban_bic(*ibans, exit_status);
  add_bank(program, exit_status);
  add_account_check(program, exit_status);
  add_statement(program, exit_status);
  try {
    program.parse(argument_count, arguments);
  } catch (const CLI::RequiredError& error) {
    // A misspelt command is not the one that is missing.
    for (const std::string& unknown : program.remaining(true)) {
      print_error("unknown command or option '" + unknown + "'");
    }
    program.exit(error);
    return exit_usage;
  } catch (const CLI::ParseError& error) {
    // Help and version arrive here too, as errors of status 0.
    if (program.exit(error) != 0) return exit_usage;
    return flush_standard_output() ? exit_success : exit_failure;
  }
  return exit_status;
}

}  // namespace

int run_program(int argument_count, char** arguments) {
  try {
    return run(argument_count, arguments);
  } catch (const std::exception& error) {
    print_error(error.what());
    return exit_failure;
  }
}

}  // namespace tivex_program
