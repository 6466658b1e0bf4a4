#include "commands/review_options.h"

#include <CLI/CLI.hpp>

#include "files/date_text.h"
#include "terminal/diagnostics.h"
#include "warnings/warning_rules.h"

namespace tivex_program {
namespace {

constexpr const char* accept_banks = "accept";

// Writes the day in the prescribed form, too.
std::string today_fault(std::string& text) { return text_of(read_date(text)); }

std::string warning_name_fault(const std::string& name) {
  if (is_warning_name(name)) return {};
  return "unknown warning '" + printable(name) + "' (known: " + warning_names() + ")";
}

std::string report_fault(const std::string& name) {
  return name == "-" ? "the report is written to a file" : "";
}

}  // namespace

void add_review_options(CLI::App& command, review_arguments& arguments) {
  review_wishes& wishes = arguments.wishes;
  command.add_flag("--transliterate", wishes.transliterates,
                   "Write characters that SEPA does not admit with those that it does, as the "
                   "European Payments Council's table has them, and tell each value");
  command
      .add_option("--unknown-banks", arguments.unknown_banks,
                  "German IBANs whose bank code is not in the directory: refuse, or accept with "
                  "a warning")
      ->type_name("WORD")
      ->check(CLI::IsMember({"refuse", accept_banks}).description(""))
      ->capture_default_str();
  command.add_flag("--check", wishes.checks_only, "Do all but write no document");
  command
      .add_option("--report", wishes.report,
                  "Page of HTML to write, to be read, printed and signed")
      ->type_name("FILE")
      ->check(CLI::Validator(report_fault, ""));
  command.add_flag("--strict-warnings", wishes.warnings_refuse,
                   "Write nothing when there are warnings");
  command
      .add_option("--without-warning", wishes.left_out, "Leave warnings out: " + warning_names())
      ->type_name("NAME")
      ->allow_extra_args(false)
      ->check(CLI::Validator(warning_name_fault, ""));
  command
      .add_option("--today", arguments.today,
                  "Day that is taken for today, by warnings and for payments without a date")
      ->type_name("DATE")
      ->transform(CLI::Validator(today_fault, ""));
}

review_wishes review_of(const review_arguments& arguments) {
  review_wishes wishes = arguments.wishes;
  wishes.accepts_unknown_banks = arguments.unknown_banks == accept_banks;
  if (!arguments.today.empty()) wishes.today = day_of(arguments.today);
  return wishes;
}

}  // namespace tivex_program
