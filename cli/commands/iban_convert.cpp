#include "commands/iban_convert.h"

#include <tivex.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "banks/conversion_table.h"
#include "banks/german_numbers.h"
#include "banks/iban_conversion.h"
#include "commands/each_argument.h"
#include "files/delimiters.h"
#include "platform/exit_status.h"
#include "platform/output_file.h"
#include "terminal/diagnostics.h"
#include "terminal/labelled_line.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

constexpr const char* convert_example = R"(Examples:
  tivex iban convert --bank-code 37040044 532013000

prints

  532013000: DE89370400440532013000 COBADEFFXXX (converted)

  tivex iban convert -o ibans.csv customers.csv

reads the columns bank_code and account and writes each row again with the
columns iban, bic, bank and status behind its own.)";

constexpr const char* bic_example = R"(Example:
  tivex iban bic DE89370400440532013000

prints

  DE89370400440532013000: COBADEFFXXX)";

struct conversion_query {
  std::string bank_code;
  std::vector<std::string> arguments;  // accounts, or one file
  std::string output = "-";
  std::string delimiter = ",";
};

int convert_accounts(const conversion_query& query) {
  bool all_made = true;
  const bool read = for_each_argument(query.arguments, [&](const std::string& account) {
    const iban_conversion conversion = convert_account(query.bank_code, account);
    const std::string bic = conversion.bic.empty() ? "" : conversion.bic + ' ';
    const std::string text = conversion.made()
                                 ? conversion.iban + ' ' + bic + '(' + conversion.status + ')'
                                 : conversion.status;
    all_made = all_made && conversion.made();
    std::printf("%s: %s\n", printable(account).c_str(), text.c_str());
  });
  return flush_standard_output() && read && all_made ? exit_success : exit_failure;
}

int convert_file(const conversion_query& query) {
  const std::string& name = query.arguments.front();
  if (is_file_to_read(query.output, name)) {
    print_error("--output: " + query.output + " is the file to read");
    return exit_usage;
  }
  input_file input(name);
  const conversion_table table = convert_rows(input, delimiters.at(query.delimiter));
  if (!table.error.empty()) {
    print_error(table.error);
    return exit_failure;
  }
  const bool to_file = query.output != "-";
  // Made before: once the file is written nothing fails any more.
  const std::string summary =
      printable_line(labelled_line("converted", std::to_string(table.converted))) +
      printable_line(labelled_line("refused", std::to_string(table.refused)));
  const std::string fault =
      to_file ? replace_file(query.output, table.text) : write_standard_output(table.text);
  if (!fault.empty()) {
    print_error((to_file ? query.output : "standard output") + ": " + fault);
    return exit_failure;
  }
  print_lines(summary);
  return table.refused == 0 ? exit_success : exit_failure;
}

int print_bics(const std::vector<std::string>& ibans) {
  bool all_found = true;
  const bool read = for_each_argument(ibans, [&](const std::string& iban) {
    char bic[12] = "";
    const int result = tivex_iban_getBIC(iban.c_str(), bic);
    const char* const text = result == 0    ? "there is a directory for AT, CH, DE and LI only"
                             : result == -1 ? "wrong length for the country"
                             : result == -3 ? "bank code not in the directory"
                             : *bic == '\0' ? "the bank has no BIC"
                                            : bic;
    all_found = all_found && *bic != '\0';
    std::printf("%s: %s\n", printable(iban).c_str(), text);
  });
  return flush_standard_output() && read && all_found ? exit_success : exit_failure;
}

}  // namespace

void add_iban_convert(CLI::App& ibans, int& exit_status) {
  CLI::App* const command =
      ibans.add_subcommand("convert", "Make IBANs of German bank codes and account numbers");
  const auto query = std::make_shared<conversion_query>();
  command->add_option("--bank-code", query->bank_code, "Bank code of the accounts, 8 digits")
      ->type_name("CODE")
      ->check(CLI::Validator(german_bank_code_fault, ""));
  command
      ->add_option("-o,--output", query->output,
                   "File to write instead of standard output, for a CSV file")
      ->type_name("FILE");
  command->add_option("--delimiter", query->delimiter, "What separates the cells: , ; or tab")
      ->type_name("CHAR")
      ->check(CLI::IsMember(delimiters).description(""))
      ->capture_default_str();
  command
      ->add_option("ACCOUNT or FILE", query->arguments,
                   "With --bank-code account numbers, otherwise a CSV file; - for standard input")
      ->type_name("")
      ->required();
  command->footer(convert_example);
  command->callback([command, query, &exit_status] {
    const bool by_account = command->count("--bank-code") > 0;
    if (by_account && command->count("--output") > 0) {
      throw CLI::ValidationError("--output", "is for CSV files");
    }
    if (!by_account && query->arguments.size() > 1) {
      throw CLI::ValidationError("FILE", "one file at a time, or --bank-code for accounts");
    }
    exit_status = by_account ? convert_accounts(*query) : convert_file(*query);
  });
}

void add_iban_bic(CLI::App& ibans, int& exit_status) {
  CLI::App* const command = ibans.add_subcommand("bic", "Tell the BIC that belongs to an IBAN");
  const auto arguments = std::make_shared<std::vector<std::string>>();
  command->add_option("IBAN", *arguments, "IBANs of AT, CH, DE or LI; - for standard input")
      ->type_name("")
      ->required();
  command->footer(bic_example);
  command->callback([&exit_status, arguments] { exit_status = print_bics(*arguments); });
}

}  // namespace tivex_program
