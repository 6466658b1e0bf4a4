#include <tivex.h>

#include <CLI/CLI.hpp>
#include <csignal>
#include <exception>
#include <string>

#include "account_check.h"
#include "bank.h"
#include "credit_transfer.h"
#include "diagnostics.h"
#include "direct_debit.h"
#include "exit_status.h"
#include "iban_check.h"
#include "iban_convert.h"
#include "standard_output.h"
#include "statement.h"

namespace tivex_program {
namespace {

int run(int argument_count, char** arguments) {
  int exit_status = exit_success;
  CLI::App program("Payments in the Single Euro Payments Area", "tivex");
  program.set_version_flag("--version", std::string("tivex ") + tivex_version_str + " (edition " +
                                            tivex_edition_str + ")");
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
}  // namespace tivex_program

int main(int argument_count, char** arguments) {
  // A write that fails is reported, and what it leaves behind is removed.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    return tivex_program::run(argument_count, arguments);
  } catch (const std::exception& error) {
    tivex_program::print_error(error.what());
    return tivex_program::exit_failure;
  }
}
