#include "generate_command.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>

#include "edition_files.h"
#include "table_sources.h"
#include "whole_file.h"

namespace tivex_edition {

namespace {

struct generate_options {
  std::string facts = "data/edition";
  std::string tables = "src/directory/data";
};

int run(const generate_options& options) {
  fault_list faults;
  const edition facts = read_edition(options.facts, faults);
  for (const source_file& file : generate_tables(facts, faults)) {
    write_whole_file(std::filesystem::path(options.tables) / file.name, file.content, faults);
  }
  for (const std::string& fault : faults.all()) std::cerr << fault << '\n';
  return faults.empty() ? 0 : 1;
}

}  // namespace

void add_generate(CLI::App& program, int& exit_status) {
  const auto options = std::make_shared<generate_options>();
  CLI::App* const command =
      program.add_subcommand("generate", "Write the library's tables from the edition's files");
  command->add_option("--facts", options->facts, "Folder of the edition's files")
      ->capture_default_str();
  command->add_option("--tables", options->tables, "Folder that the tables are written to")
      ->capture_default_str();
  command->callback([options, &exit_status] { exit_status = run(*options); });
}

}  // namespace tivex_edition
