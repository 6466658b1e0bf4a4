#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>

#include "generate_command.h"
#include "import_command.h"

int main(int argument_count, char** arguments) {
  int exit_status = 0;
  try {
    CLI::App program("Makes an edition of the directory that the library carries", "tivex-edition");
    program.require_subcommand(1);
    tivex_edition::add_generate(program, exit_status);
    tivex_edition::add_import(program, exit_status);
    try {
      program.parse(argument_count, arguments);
    } catch (const CLI::ParseError& error) {
      return program.exit(error) == 0 ? 0 : 2;
    }
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    exit_status = 1;
  }
  return exit_status;
}
