#include <CLI/CLI.hpp>
#include <exception>
#include <string>

#include "commands/all_commands.h"
#include "commands/help.h"
#include "platform/exit_status.h"
#include "program.h"
#include "terminal/diagnostics.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

// The command that the arguments have come to.
const CLI::App& chosen_command(const CLI::App& program) {
  const auto commands = program.get_subcommands();
  return commands.empty() ? program : chosen_command(*commands.front());
}

int usage_error(const CLI::ParseError& error) {
  print_error(error.what());
  print_note("Run with --help for more information.");
  return exit_usage;
}

int run(int argument_count, char** arguments) {
  int exit_status = exit_success;
  CLI::App program("Payments in the Single Euro Payments Area", "tivex");
  add_commands(program, exit_status);
  try {
    program.parse(argument_count, arguments);
  } catch (const CLI::RequiredError& error) {
    // A misspelt command is not the one that is missing.
    for (const std::string& unknown : program.remaining(true)) {
      print_error("unknown command or option '" + unknown + "'" +
                  near_command(chosen_command(program), unknown));
    }
    return usage_error(error);
  } catch (const CLI::ParseError& error) {
    // Help and version arrive here too, as errors of status 0.
    if (error.get_exit_code() != 0) return usage_error(error);
    program.exit(error);
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
