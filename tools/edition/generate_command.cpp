#include "generate_command.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "edition_files.h"
#include "purpose_table.h"
#include "rule_tables.h"
#include "table_sources.h"
#include "whole_file.h"

namespace tivex_edition {

namespace {

constexpr const char* example =
    R"(The facts are checked first, and every fault is named with its file and line.
The same facts give the same bytes on every machine.

Example:
  tivex-edition generate --facts data --source src)";

struct generate_options {
  std::string facts = "data";
  std::string source = "src";
};

void write_files(const std::filesystem::path& folder, const std::vector<source_file>& files,
                 fault_list& faults) {
  if (!files.empty()) std::filesystem::create_directories(folder);
  for (const source_file& file : files) {
    write_whole_file(folder / file.name, file.content, faults);
  }
}

int run(const generate_options& options) {
  fault_list faults;
  const std::filesystem::path facts = options.facts;
  const std::filesystem::path source = options.source;
  write_files(source / "directory/data",
              generate_tables(read_edition(facts / "edition", faults), faults), faults);
  write_files(source / "de_iban/data", generate_rule_tables(facts / "iban_rules", faults), faults);
  write_files(source / "xml/data", generate_purpose_table(facts / "purposes", faults), faults);
  for (const std::string& fault : faults.all()) std::cerr << fault << '\n';
  return faults.empty() ? 0 : 1;
}

}  // namespace

void add_generate(CLI::App& program, int& exit_status) {
  const auto options = std::make_shared<generate_options>();
  CLI::App* const command =
      program.add_subcommand("generate", "Write the library's tables from the edition's files");
  command->add_option("--facts", options->facts, "Folder of edition, iban_rules and purposes")
      ->type_name("DIR")
      ->capture_default_str();
  command->add_option("--source", options->source, "Folder of the library's source")
      ->type_name("DIR")
      ->capture_default_str();
  command->footer(example);
  command->callback([options, &exit_status] { exit_status = run(*options); });
}

}  // namespace tivex_edition
