#include "commands/iban_convert.h"

#include <tivex.h>

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <string_view>

#include "banks/conversion_table.h"
#include "banks/german_numbers.h"
#include "banks/iban_conversion.h"
#include "commands/asked_items.h"
#include "files/table_style.h"
#include "platform/exit_status.h"
#include "platform/output_file.h"
#include "terminal/diagnostics.h"
#include "terminal/json_object.h"
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
columns iban, bic, bank and status behind its own. With --json each row becomes
an object with "line", "bank_code", "account", "iban", "bic", "bank", "status"
and "converted"; accounts become the same without "line".)";

constexpr const char* bic_example = R"(Examples:
  tivex iban bic DE89370400440532013000

prints

  DE89370400440532013000: COBADEFFXXX

  tivex iban bic --json --input customers.csv --column iban

prints an object a line with "iban", "bic" and "fault".)";

struct conversion_query {
  std::string bank_code;
  asked_items asked;  // accounts, or one file
  std::string output = "-";
  std::string excel;
  bool quiet = false;
};

int convert_accounts(const conversion_query& query) {
  return answer_each(query.asked, [&](std::string_view account, std::string& line) {
    const iban_conversion conversion = convert_account(query.bank_code, std::string(account));
    if (query.asked.json) {
      json_object object;
      object.add_text("bank_code", query.bank_code);
      object.add_text("account", account);
      add_conversion(object, conversion);
      line += object.line();
      return conversion.made();
    }
    append_subject(line, account);
    if (!conversion.made()) {
      line += conversion.status;
      return false;
    }
    line.append(conversion.iban).append(1, ' ').append(conversion.bic);
    if (!conversion.bic.empty()) line += ' ';
    line.append(1, '(').append(conversion.status).append(1, ')');
    return true;
  });
}

int convert_file(const conversion_query& query) {
  const std::string& name = query.asked.arguments.front();
  if (is_file_to_read(query.output, name)) {
    print_error("--output: " + query.output + " is the file to read");
    return exit_usage;
  }
  const bool to_file = query.output != "-";
  // A CSV file or the file to write comes whole or not at all.
  const bool streams = query.asked.json && !to_file;
  std::string text;
  const auto take = [&](std::string_view row) {
    if (streams) return add_to_standard_output(row);
    text += row;
    return true;
  };
  input_file input(name);
  const table_style style = query.excel.empty() ? table_style{'\0'} : excel_styles.at(query.excel);
  const conversion_totals totals = convert_rows(
      input, query.asked.table(), query.asked.json ? conversion_form::json : conversion_form::csv,
      style, take, !query.quiet);
  if (streams && !flush_standard_output()) return exit_failure;
  if (!totals.error.empty()) {
    print_error(totals.error);
    return exit_failure;
  }
  // Made before: once the file is written nothing fails any more.
  const std::string summary =
      printable_line(labelled_line("converted", std::to_string(totals.converted))) +
      printable_line(labelled_line("refused", std::to_string(totals.refused)));
  const std::string fault =
      to_file ? replace_file(query.output, text) : write_standard_output(text);
  if (!fault.empty()) {
    print_error((to_file ? query.output : "standard output") + ": " + fault);
    return exit_failure;
  }
  if (!query.quiet) print_lines(summary);
  return totals.refused == 0 ? exit_success : exit_failure;
}

void check_file_options(const CLI::App& command, const conversion_query& query) {
  for (const char* const option : {"--input", "--column"}) {
    if (command.count(option) > 0) throw CLI::ValidationError(option, "is for --bank-code");
  }
  if (query.asked.arguments.empty()) throw CLI::RequiredError("ACCOUNT or FILE");
  if (query.asked.arguments.size() > 1) {
    throw CLI::ValidationError("FILE", "one file at a time, or --bank-code for accounts");
  }
}

int print_bics(const asked_items& asked) {
  return answer_each(asked, [&](std::string_view iban, std::string& line) {
    char bic[12] = "";
    const char* fault = nul_fault(iban);
    if (fault == nullptr) {
      const int result = tivex_iban_getBIC(iban.data(), bic);
      fault = result == 0    ? "there is a directory for AT, CH, DE and LI only"
              : result == -1 ? "wrong length for the country"
              : result == -3 ? "bank code not in the directory"
              : *bic == '\0' ? "the bank has no BIC"
                             : nullptr;
    }
    if (asked.json) {
      json_object object;
      object.add_text("iban", iban);
      object.add_text_or_null("bic", bic);
      object.add_text_or_null("fault", fault == nullptr ? "" : fault);
      line += object.line();
    } else {
      append_subject(line, iban);
      line += fault == nullptr ? bic : fault;
    }
    return fault == nullptr;
  });
}

}  // namespace

void add_iban_convert(CLI::App& ibans, int& exit_status) {
  CLI::App* const command =
      ibans.add_subcommand("convert", "Make IBANs of German bank codes and account numbers");
  const auto query = std::make_shared<conversion_query>();
  command->add_option("--bank-code", query->bank_code, "Bank code of the accounts, 8 digits")
      ->type_name("CODE")
      ->transform(CLI::Validator(german_bank_code_fault, ""));
  command
      ->add_option("-o,--output", query->output, "File to write (default: - for standard output)")
      ->type_name("FILE");
  command
      ->add_option("ACCOUNT or FILE", query->asked.arguments,
                   "Account numbers with --bank-code, else a CSV file")
      ->type_name("");
  command->add_flag("--quiet", query->quiet, "Tell errors only, not how many rows were converted");
  command
      ->add_option("--excel", query->excel,
                   "Write CSV that Excel opens with a double click, in German (de) or English (en)")
      ->type_name("LANGUAGE")
      ->check(CLI::IsMember(excel_styles).description(""));
  add_asking_options(*command, query->asked);
  command->footer(convert_example);
  command->callback([command, query, &exit_status] {
    const bool by_account = command->count("--bank-code") > 0;
    if (by_account && command->count("--output") > 0) {
      throw CLI::ValidationError("--output", "is for CSV files");
    }
    if (!query->excel.empty() && (by_account || query->asked.json)) {
      throw CLI::ValidationError("--excel", "is for CSV files");
    }
    if (by_account) {
      check_asked(*command, query->asked, "ACCOUNT or --input");
    } else {
      check_file_options(*command, *query);
    }
    exit_status = by_account ? convert_accounts(*query) : convert_file(*query);
  });
}

void add_iban_bic(CLI::App& ibans, int& exit_status) {
  CLI::App* const command = ibans.add_subcommand("bic", "Tell the BIC that belongs to an IBAN");
  const auto asked = std::make_shared<asked_items>();
  command->add_option("IBAN", asked->arguments, "IBANs of AT, CH, DE or LI; - for the input")
      ->type_name("");
  add_asking_options(*command, *asked);
  command->footer(bic_example);
  command->callback([&exit_status, command, asked] {
    check_asked(*command, *asked, "IBAN or --input");
    exit_status = print_bics(*asked);
  });
}

}  // namespace tivex_program
