#include "commands/rulebooks.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "payments/rulebooks.h"
#include "platform/exit_status.h"
#include "terminal/json_object.h"
#include "terminal/standard_output.h"
#include "terminal/wrapped_text.h"

namespace tivex_program {
namespace {

constexpr const char* example = R"(Example:
  tivex rulebooks

prints, among others,

  DE-26.11  pain.001.001.09  pain.008.001.08  German subset  (default of ...)
            rows without bic, German letters, blanks in mref, ...)";

constexpr std::size_t name_width = 10;

// Who uses the rulebook when none is asked for; empty for nobody.
std::string default_of(std::string_view rulebook) {
  return rulebook == default_rulebook     ? "payment commands"
         : rulebook == default_of_library ? "library"
                                          : "";
}

std::string text_of(const rulebook_facts& facts) {
  std::string text = facts.name;
  text.resize(name_width, ' ');
  text += facts.credit_transfer + "  " + facts.direct_debit;
  const std::string subset = subset_of(facts.name);
  if (!subset.empty()) text += "  " + subset;
  const std::string user = default_of(facts.name);
  if (!user.empty()) text += "  (default of the " + user + ')';
  std::string admitted;
  for (const std::string& each : facts.admitted) admitted += (admitted.empty() ? "" : ", ") + each;
  return text + '\n' + std::string(name_width, ' ') + wrapped(admitted, name_width) + '\n';
}

std::string json_of(const rulebook_facts& facts) {
  json_object object;
  object.add_text("rulebook", facts.name);
  object.add_text("credit_transfer", facts.credit_transfer);
  object.add_text("direct_debit", facts.direct_debit);
  object.add_text_or_null("subset", subset_of(facts.name));
  object.add_texts("admitted", facts.admitted);
  object.add_text_or_null("default_of", default_of(facts.name));
  return object.line() + '\n';
}

}  // namespace

void add_rulebooks(CLI::App& program, int& exit_status) {
  CLI::App* const command = program.add_subcommand(
      "rulebooks", "List the rulebooks with their schemas and what each admits");
  const auto json = std::make_shared<bool>(false);
  command->add_flag("--json", *json, "Print a JSON object a line");
  command->footer(example);
  command->callback([&exit_status, json] {
    for (const rulebook_facts& facts : all_rulebooks()) {
      print_to_standard_output(*json ? json_of(facts) : text_of(facts));
    }
    exit_status = flush_standard_output() ? exit_success : exit_failure;
  });
}

}  // namespace tivex_program
