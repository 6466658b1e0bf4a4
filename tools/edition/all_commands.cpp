#include "all_commands.h"

#include <CLI/CLI.hpp>

#include "generate_command.h"
#include "import_command.h"

namespace tivex_edition {

void add_commands(CLI::App& program, int& exit_status) {
  program.require_subcommand(1);
  program.footer("tivex-edition COMMAND --help shows the command's options and an example.");
  add_generate(program, exit_status);
  add_import(program, exit_status);
}

}  // namespace tivex_edition
