#include "commands/help.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/exit_status.h"
#include "terminal/diagnostics.h"
#include "terminal/nearest_name.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

constexpr const char* example = R"(Examples:
  tivex help statement
  tivex help iban check)";

int run(const CLI::App& program, const std::vector<std::string>& names) {
  const CLI::App* command = &program;
  std::string path = program.get_name();
  for (const std::string& name : names) {
    const auto found =
        command->get_subcommands([&](const CLI::App* each) { return each->get_name() == name; });
    if (found.empty()) {
      print_error("unknown command '" + name + "'" + near_command(*command, name));
      return exit_usage;
    }
    command = found.front();
    path += ' ' + name;
  }
  const std::string text =
      program.get_formatter()->make_help(command, path, CLI::AppFormatMode::Normal);
  std::fputs(text.c_str(), stdout);
  return flush_standard_output() ? exit_success : exit_failure;
}

}  // namespace

void add_help(CLI::App& program, int& exit_status) {
  CLI::App* const command = program.add_subcommand("help", "Show the help text of a command");
  const auto names = std::make_shared<std::vector<std::string>>();
  command->add_option("COMMAND", *names, "Names of the command; without them all are listed")
      ->type_name("");
  command->footer(example);
  command->callback([&program, &exit_status, names] { exit_status = run(program, *names); });
}

std::string near_command(const CLI::App& within, const std::string& name) {
  std::vector<std::string_view> names;
  for (const CLI::App* const command : within.get_subcommands({})) {
    names.emplace_back(command->get_name());
  }
  return near_name(name, names);
}

}  // namespace tivex_program
