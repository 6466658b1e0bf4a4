#include "commands/iban_check.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "commands/each_argument.h"
#include "files/value_rules.h"
#include "payments/library_calls.h"
#include "platform/exit_status.h"
#include "terminal/diagnostics.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

constexpr const char* example = R"(Example:
  tivex iban check DE89370400440532013000 DE88370400440532013000

prints

  DE89370400440532013000: valid
  DE88370400440532013000: Invalid IBAN checksum)";

// Returns why the IBAN is invalid, empty when it is valid.
std::string iban_fault(tivex_t* scratch, const std::string& iban) {
  // The library would see a text with a NUL byte up to it only.
  std::string fault = text_fault(iban);
  if (!fault.empty() || tivex_setIBAN(scratch, iban.c_str()) == 1) return fault;
  const std::string reason = library_error(scratch);
  // What follows the reason repeats the IBAN.
  return reason.substr(0, reason.find(" ("));
}

// Checks IBANs one by one and prints what it finds.
class iban_checker {
 public:
  void check(const std::string& iban) {
    const std::string fault = iban_fault(scratch_.get(), iban);
    if (!fault.empty()) all_valid_ = false;
    std::printf("%s: %s\n", printable(iban).c_str(), fault.empty() ? "valid" : fault.c_str());
  }

  bool all_valid() const { return all_valid_; }

 private:
  message_handle scratch_ = new_message(TIVEX_CREDIT_TRANSFER);
  bool all_valid_ = true;
};

int run(const std::vector<std::string>& ibans) {
  iban_checker checker;
  const bool read =
      for_each_argument(ibans, [&checker](const std::string& iban) { checker.check(iban); });
  return flush_standard_output() && read && checker.all_valid() ? exit_success : exit_failure;
}

}  // namespace

void add_iban_check(CLI::App& ibans, int& exit_status) {
  CLI::App* const check = ibans.add_subcommand("check", "Tell for each IBAN whether it is valid");
  const auto arguments = std::make_shared<std::vector<std::string>>();
  check->add_option("IBAN", *arguments, "IBANs to check; - for the lines of standard input")
      ->type_name("")
      ->required();
  check->footer(example);
  check->callback([&exit_status, arguments] { exit_status = run(*arguments); });
}

}  // namespace tivex_program
