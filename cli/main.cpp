#include <CLI/CLI.hpp>
#include <exception>
#include <string>

#include "commands/all_commands.h"
#include "platform/exit_status.h"
#include "program.h"
#include "terminal/diagnostics.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

int run(int argument_count, char** arguments) {
  int exit_status = exit_success;
  CLI::App program("Payments in the Single Euro Payments Area", "tivex");
  add_commands(program, exit_status);
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
