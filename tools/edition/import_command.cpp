#include "import_command.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <string>

#include "field_forms.h"
#include "publishers/import.h"

namespace tivex_edition {

namespace {

constexpr const char* example =
    R"(Each file replaces its table; tables without a file stay. With a fault nothing
is written. Of each table that is replaced a line tells how many rows it has,
how many came, went and changed, and how many of the file were skipped.

Example:
  tivex-edition import --register register.csv

prints a line such as

  bics.tsv: 4687 rows, 12 came, 9 went, 3 changed, none skipped)";

std::string date_fault(const std::string& text) {
  return is_date(text) ? "" : "'" + text + "' is not a date, yyyy-mm-dd";
}

std::string period_fault(const std::string& text) {
  const bool fits = is_date(text) || is_date(text + "-01") || is_date(text + "-01-01");
  return fits ? "" : "'" + text + "' is not yyyy, yyyy-mm or yyyy-mm-dd";
}

// Two options that make sense together only.
void add_dated_file(CLI::App& command, const std::string& name, std::string& file,
                    std::string& valid_from, const std::string& what,
                    std::string (*valid_from_fault)(const std::string&)) {
  CLI::Option* const file_option = command.add_option(name, file, what)->type_name("FILE");
  CLI::Option* const date_option =
      command.add_option(name + "-valid-from", valid_from, "From when it is valid")
          ->type_name("DATE")
          ->check(CLI::Validator(valid_from_fault, ""));
  file_option->needs(date_option);
  date_option->needs(file_option);
}

void check_together(const import_request& request) {
  if (request.german.empty() && request.providers.empty() && request.austrian.empty() &&
      request.swiss.empty()) {
    throw CLI::RequiredError("A file to import");
  }
  if (!request.german_later.empty() &&
      request.german_later_valid_from <= request.german_valid_from) {
    throw CLI::ValidationError("--german-later-valid-from", "must be after --german-valid-from");
  }
}

int run(const import_request& request) {
  fault_list faults;
  std::cout << import_tables(request, faults) << std::flush;
  for (const std::string& fault : faults.all()) std::cerr << fault << '\n';
  return faults.empty() && std::cout ? 0 : 1;
}

}  // namespace

void add_import(CLI::App& program, int& exit_status) {
  CLI::App* const command = program.add_subcommand(
      "import", "Replace tables of an edition by what publishers' files hold");
  const auto request = std::make_shared<import_request>();
  command->add_option("--folder", request->folder, "Folder of the edition's files")
      ->type_name("DIR")
      ->capture_default_str();
  add_dated_file(*command, "--german", request->german, request->german_valid_from,
                 "Bank code file of Deutsche Bundesbank, fixed width or CSV", date_fault);
  add_dated_file(*command, "--german-later", request->german_later,
                 request->german_later_valid_from, "The next one, for what it changes", date_fault);
  command->get_option("--german-later")->needs(command->get_option("--german"));
  command
      ->add_option("--register", request->providers,
                   "Register of reachable payment service providers of Deutsche Bundesbank, CSV")
      ->type_name("FILE");
  add_dated_file(*command, "--austrian", request->austrian, request->austrian_valid_from,
                 "SEPA directory of Oesterreichische Nationalbank, CSV", period_fault);
  command->add_option("--swiss", request->swiss, "Bank master of SIX Interbank Clearing, JSON")
      ->type_name("FILE");
  command->add_flag("--shrink", request->shrink,
                    "Replace also a table of which more than two rows in a hundred would go");
  command->footer(example);
  command->callback([&exit_status, request] {
    check_together(*request);
    exit_status = run(*request);
  });
}

}  // namespace tivex_edition
