#include "commands/statement.h"

#include <tivex.h>

#include <CLI/CLI.hpp>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/exit_status.h"
#include "statements/statement_csv.h"
#include "statements/statement_file.h"
#include "statements/statement_json.h"
#include "statements/statement_table.h"
#include "terminal/diagnostics.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

constexpr const char* example =
    R"(Entries stand under their booking date. R marks a reversal, which takes its
amount back; the table shows amounts by what they do to the balance, JSON and
CSV as the file has them.

Examples:
  tivex statement november.sta
  tivex statement --json november.sta
  tivex statement --format csv --from 2026-11-16 --to 2026-11-30 *.sta >out.csv)";

struct statement_format {
  void (*begin)();
  void (*print)(const statement_view& view, bool first);
  void (*end)();
  bool shows_balance_fault;
};

// As the option --format names them.
const std::map<std::string, statement_format> formats = {
    {"csv", {begin_statement_csv, print_statement_csv, end_statement_csv, false}},
    {"json", {begin_statement_json, print_statement_json, end_statement_json, false}},
    {"table", {begin_statement_table, print_statement_table, end_statement_table, true}}};

struct statement_query {
  std::vector<std::string> files;
  std::string format = "table";
  std::string from;
  std::string to;
  std::string encoding = "auto";
  bool strict = false;
  bool json = false;
  bool quiet = false;
  statement_period period;
};

// Prints the statements of many files and keeps in mind whether all went well.
class statement_printer {
 public:
  explicit statement_printer(const statement_query& query)
      : query_(query),
        format_(formats.at(query.format)),
        encoding_(text_encodings.at(query.encoding)) {}

  bool print_all() {
    format_.begin();
    for (const std::string& name : query_.files) print_file(name);
    format_.end();
    return good_;
  }

 private:
  void print_file(const std::string& name) {
    const statement_file file = read_statement_file(name, query_.strict);
    if (!file.note.empty() && !query_.quiet) print_note(name + ": " + file.note);
    if (!file.error.empty()) return fail(name + ": " + file.error);
    // In a file of UTF-8 a text that is none has been cut within a character.
    const text_encoding encoding =
        encoding_ == text_encoding::by_content && file.is_utf8 ? text_encoding::utf8 : encoding_;
    for (const tivex_stmt_t* statement = tivex_stmt_parser_getStatement(file.parser.get());
         statement != nullptr; statement = statement->next) {
      print_statement({name, *statement, query_.period, encoding, balance_fault(*statement)});
    }
  }

  void print_statement(const statement_view& view) {
    format_.print(view, first_);
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

}  // namespace

void add_statement(CLI::App& program, int& exit_status) {
  CLI::App* const command =
      program.add_subcommand("statement", "Print bank statements of SWIFT MT940 files");
  const auto query = std::make_shared<statement_query>();
  CLI::Option* const format =
      command->add_option("--format", query->format, "What to print: table, json or csv")
          ->type_name("NAME")
          ->check(CLI::IsMember(formats).description(""))
          ->capture_default_str();
  command->add_flag("--json", query->json, "The same as --format json");
  add_date_option(*command, "--from", query->from, "First date of entries, YYYY-MM-DD");
  add_date_option(*command, "--to", query->to, "Last date of entries");
  command
      ->add_option("--encoding", query->encoding,
                   "How to read texts: utf-8, latin1, windows-1252, or auto: as UTF-8, and as "
                   "latin1 what is none")
      ->type_name("NAME")
      ->check(CLI::IsMember(text_encodings).description(""))
      ->capture_default_str();
  command->add_flag("--strict", query->strict, "Do not put line ends right");
  command->add_flag("--quiet", query->quiet, "Print no notes on standard error, errors only");
  command->add_option("FILE", query->files, "MT940 files; - for standard input")
      ->type_name("")
      ->required();
  command->footer(example);
  command->callback([&exit_status, query, format] {
    choose_json(*query, *format);
    query->period = period_of(*query);
    exit_status = run(*query);
  });
}

}  // namespace tivex_program
