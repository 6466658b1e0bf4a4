#include "commands/statement.h"

#include <tivex.h>

#include <CLI/CLI.hpp>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/exit_status.h"
#include "statements/hledger_journal.h"
#include "statements/hledger_texts.h"
#include "statements/statement_csv.h"
#include "statements/statement_file.h"
#include "statements/statement_json.h"
#include "statements/statement_table.h"
#include "terminal/diagnostics.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

constexpr const char* example =
    R"(Read are camt.052, camt.053 and camt.054 of version 02 and later, MT940 and
MT942 as banks write them, and ZIP archives of such files; what a file is, its
content tells.

Entries stand under their booking date. R marks a reversal, which takes its
amount back; the table shows amounts by what they do to the balance, JSON and
CSV as the file has them, and behind all else as "booked" by what they do.

Examples:
  tivex statement november.xml
  tivex statement --json november.zip
  tivex statement --format csv --from 2026-11-16 --to 2026-11-30 *.sta >out.csv
  tivex statement --format hledger --account assets:bank may.xml >>my.journal)";

struct statement_format {
  void (*begin)(const table_style& style);
  void (*print)(const statement_view& view, bool first);
  void (*end)();
  bool shows_balance_fault;
};

// As the option --format names them.
const std::map<std::string, statement_format> formats = {
    {"csv", {begin_statement_csv, print_statement_csv, end_statement_csv, false}},
    {"hledger", {nullptr, nullptr, nullptr, false}},  // a journal of its own
    {"json", {begin_statement_json, print_statement_json, end_statement_json, false}},
    {"table", {begin_statement_table, print_statement_table, end_statement_table, true}}};

constexpr const char* journal_format = "hledger";

struct statement_query {
  std::vector<std::string> files;
  std::string format = "table";
  std::string account;
  std::string from;
  std::string to;
  std::string encoding = "auto";
  std::string excel;
  table_style style;
  bool strict = false;
  bool json = false;
  bool quiet = false;
  statement_period period;
};

std::string pending_note(unsigned count) {
  if (count == 0) return {};
  return std::to_string(count) + (count == 1 ? " entry is" : " entries are") +
         " not booked yet and left out";
}

// Prints the statements of many files and keeps in mind whether all went well.
class statement_printer {
 public:
  explicit statement_printer(const statement_query& query)
      : query_(query),
        format_(formats.at(query.format)),
        encoding_(text_encodings.at(query.encoding)) {
    if (query.format == journal_format) journal_.emplace(query.account);
  }

  bool print_all() {
    if (!journal_) format_.begin(query_.style);
    for (const std::string& name : query_.files) {
      read_statement_files(name, query_.strict,
                           [this](const statement_file& file) { print_file(file); });
    }
    if (!journal_) format_.end();
    return good_;
  }

 private:
  void print_file(const statement_file& file) {
    note(file, file.note);
    if (!file.error.empty()) return fail(file.name + ": " + file.error);
    note(file, pending_note(tivex_stmt_parser_getPending(file.parser.get())));
    for (const tivex_stmt_t* statement = tivex_stmt_parser_getStatement(file.parser.get());
         statement != nullptr; statement = statement->next) {
      print_statement({file.name, *statement, query_.period, encoding_of(file), query_.style,
                       balance_fault(*statement)});
    }
  }

  void note(const statement_file& file, const std::string& text) const {
    if (!text.empty() && !query_.quiet) print_note(file.name + ": " + text);
  }

  text_encoding encoding_of(const statement_file& file) const {
    if (file.is_xml) return text_encoding::utf8;
    // In a file of UTF-8 a text that is none has been cut within a character.
    return encoding_ == text_encoding::by_content && file.is_utf8 ? text_encoding::utf8 : encoding_;
  }

  void print_statement(const statement_view& view) {
    if (!journal_) {
      format_.print(view, first_);
    } else if (const std::string fault = journal_->print(view); !fault.empty()) {
      fail(view.file + ": statement " + number_of(view.statement) + ": " + fault);
    }
    first_ = false;
    if (view.balance_fault.empty()) return;
    good_ = false;
    if (format_.shows_balance_fault) return;
    print_error(view.file + ": statement " + number_of(view.statement) + ": " + view.balance_fault);
  }

  void fail(const std::string& text) {
    print_error(text);
    good_ = false;
  }

  const statement_query& query_;
  const statement_format& format_;
  text_encoding encoding_;
  std::optional<hledger_journal> journal_;
  bool first_ = true;
  bool good_ = true;
};

int run(const statement_query& query) {
  const bool good = statement_printer(query).print_all();
  return flush_standard_output() && good ? exit_success : exit_failure;
}

std::string statement_date_fault(const std::string& text) {
  return parse_date(text) ? "" : "'" + printable(text) + "' is no day of the form YYYY-MM-DD";
}

void add_date_option(CLI::App& command, const char* name, std::string& date,
                     const char* description) {
  command.add_option(name, date, description)
      ->type_name("DATE")
      ->check(CLI::Validator(statement_date_fault, ""));
}

// Which dates bound the entries; those that are given have been found good.
statement_period period_of(const statement_query& query) {
  const statement_period period{parse_date(query.from), parse_date(query.to)};
  if (period.first && period.last && *period.last < *period.first) {
    throw CLI::ValidationError("--from", "is after --to");
  }
  return period;
}

// A format that is given besides --json has to be the same.
void choose_json(statement_query& query, const CLI::Option& format) {
  if (!query.json) return;
  if (format.count() > 0 && query.format != "json") {
    throw CLI::ValidationError("--json", "contradicts --format " + query.format);
  }
  query.format = "json";
}

// What is opened in Excel is CSV, also when no format is named.
void choose_style(statement_query& query, const CLI::Option& format) {
  if (query.excel.empty()) return;
  if ((format.count() > 0 || query.json) && query.format != "csv") {
    throw CLI::ValidationError("--excel", "is for --format csv");
  }
  query.format = "csv";
  query.style = excel_styles.at(query.excel);
}

// An account of the journal is named where there is one, and nowhere else.
void check_account(const statement_query& query, const CLI::Option& account) {
  const bool journal = query.format == journal_format;
  if (journal && account.count() == 0) {
    throw CLI::ValidationError("--format hledger", "needs --account");
  }
  if (!journal && account.count() > 0) {
    throw CLI::ValidationError("--account", "is for --format hledger only");
  }
}

std::string journal_account_fault(const std::string& name) {
  const std::string fault = account_name_fault(name);
  return fault.empty() ? "" : "'" + printable(name) + "' " + fault;
}

}  // namespace

void add_statement(CLI::App& program, int& exit_status) {
  CLI::App* const command =
      program.add_subcommand("statement", "Print bank statements: CAMT and MT940 files");
  const auto query = std::make_shared<statement_query>();
  CLI::Option* const format =
      command
          ->add_option("--format", query->format,
                       "What to print: table, json, csv, or the journal of hledger")
          ->type_name("NAME")
          ->check(CLI::IsMember(formats).description(""))
          ->capture_default_str();
  command->add_flag("--json", query->json, "The same as --format json");
  CLI::Option* const account =
      command
          ->add_option("--account", query->account,
                       "For hledger: the account that the statements are of, such as assets:bank")
          ->type_name("NAME")
          ->check(CLI::Validator(journal_account_fault, ""));
  command
      ->add_option("--excel", query->excel,
                   "Print CSV that Excel opens with a double click, in German (de) or English (en)")
      ->type_name("LANGUAGE")
      ->check(CLI::IsMember(excel_styles).description(""));
  add_date_option(*command, "--from", query->from, "First date of entries, YYYY-MM-DD");
  add_date_option(*command, "--to", query->to, "Last date of entries");
  command
      ->add_option("--encoding", query->encoding,
                   "How to read texts of MT940: utf-8, latin1, windows-1252, or auto: as UTF-8, "
                   "and as latin1 what is none")
      ->type_name("NAME")
      ->check(CLI::IsMember(text_encodings).description(""))
      ->capture_default_str();
  command->add_flag("--strict", query->strict, "Read MT940 in its prescribed form only");
  command->add_flag("--quiet", query->quiet, "Print no notes on standard error, errors only");
  command
      ->add_option("FILE", query->files,
                   "Statement files and ZIP archives of them; - for standard input")
      ->type_name("")
      ->required();
  command->footer(example);
  command->callback([&exit_status, query, format, account] {
    choose_json(*query, *format);
    choose_style(*query, *format);
    check_account(*query, *account);
    query->period = period_of(*query);
    exit_status = run(*query);
  });
}

}  // namespace tivex_program
