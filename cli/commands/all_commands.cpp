#include "commands/all_commands.h"

#include <tivex.h>

#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "commands/account_check.h"
#include "commands/bank.h"
#include "commands/credit_transfer.h"
#include "commands/direct_debit.h"
#include "commands/help.h"
#include "commands/help_format.h"
#include "commands/iban_check.h"
#include "commands/iban_convert.h"
#include "commands/rulebooks.h"
#include "commands/statement.h"

namespace tivex_program {
namespace {

constexpr const char* footer = R"(Example:
  tivex credit-transfer --name "Beispiel GmbH" --iban DE89370400440532013000 \
      --bic COBADEFFXXX -o payroll.xml payroll.csv

tivex help COMMAND shows the command's options and an example.)";

constexpr const char* footer_of_ibans = R"(Example:
  tivex iban check DE89370400440532013000

tivex help iban COMMAND shows the command's options and an example.)";

}  // namespace

void add_commands(CLI::App& program, int& exit_status) {
  program.set_version_flag("--version", std::string("tivex ") + tivex_version_str + " (edition " +
                                            tivex_edition_str + ")");
  // A name that starts with a slash is a file's on every system.
  program.allow_windows_style_options(false);
  program.require_subcommand(1);
  // The commands take over the format.
  program.formatter(std::make_shared<help_format>());
  program.footer(footer);
  add_payment_command(program, credit_transfer, exit_status);
  add_payment_command(program, direct_debit, exit_status);
  add_rulebooks(program, exit_status);
  CLI::App* const ibans = program.add_subcommand("iban", "Work with IBANs");
  ibans->require_subcommand(1);
  ibans->footer(footer_of_ibans);
  add_iban_check(*ibans, exit_status);
  add_iban_convert(*ibans, exit_status);
  add_iban_bic(*ibans, exit_status);
  add_bank(program, exit_status);
  add_account_check(program, exit_status);
  add_statement(program, exit_status);
  add_help(program, exit_status);
}

}  // namespace tivex_program
