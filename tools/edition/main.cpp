#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>

#include "all_commands.h"

int main(int argument_count, char** arguments) {
  int exit_status = 0;
  try {
    CLI::App program(tivex_edition::program_description, tivex_edition::program_name);
    tivex_edition::add_commands(program, exit_status);
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
