#include "commands/iban_check.h"

#include <tivex.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include "banks/given_up_bank.h"
#include "commands/asked_items.h"
#include "files/value_rules.h"
#include "payments/library_calls.h"
#include "terminal/json_object.h"

namespace tivex_program {
namespace {

constexpr const char* example = R"(Examples:
  tivex iban check DE89370400440532013000 DE88370400440532013000

prints

  DE89370400440532013000: valid
  DE88370400440532013000: Invalid IBAN checksum

  tivex iban check --json --input customers.csv --column iban

prints an object a line with "iban", "valid", "fault", "deleted" (whether its bank
code is marked for deletion) and "successor" (the IBAN in its place).)";

// Tells why IBANs are invalid.
class iban_checker {
 public:
  // Returns the reason, empty for a valid IBAN.
  std::string fault_of(std::string_view iban) {
    const bool whole = nul_fault(iban) == nullptr;
    if (whole && tivex_iban_check(iban.data()) == 1) return {};
    std::string fault = text_fault(iban);
    if (!fault.empty() || tivex_setIBAN(scratch_.get(), iban.data()) == 1) return fault;
    fault = library_error(scratch_.get());
    // What follows the reason repeats the IBAN.
    fault.resize(std::min(fault.find(" ("), fault.size()));
    return fault;
  }

 private:
  message_handle scratch_ = new_message(TIVEX_CREDIT_TRANSFER);
};

int run(const asked_items& asked) {
  iban_checker checker;
  return answer_each(asked, [&](std::string_view iban, std::string& line) {
    const std::string fault = checker.fault_of(iban);
    const std::string_view bank_code = fault.empty() ? german_bank_code(iban) : std::string_view();
    const given_up_bank bank = bank_code.empty() ? given_up_bank() : given_up_bank_of(bank_code);
    const std::string successor = bank.successor.empty() ? std::string() : successor_iban(iban);
    if (asked.json) {
      json_object object;
      object.add_text("iban", iban);
      object.add_flag("valid", fault.empty());
      object.add_text_or_null("fault", fault);
      object.add_flag("deleted", bank.deleted);
      object.add_text_or_null("successor", successor);
      line += object.line();
    } else {
      append_subject(line, iban);
      line += fault.empty() ? "valid" : fault;
      if (!bank.successor.empty()) {
        line += " (its bank code has passed to " + bank.successor +
                (successor.empty() ? ")" : ": now " + successor + ")");
      } else if (bank.deleted) {
        line += " (its bank code is marked for deletion)";
      }
    }
    return fault.empty();
  });
}

}  // namespace

void add_iban_check(CLI::App& ibans, int& exit_status) {
  CLI::App* const check = ibans.add_subcommand("check", "Tell for each IBAN whether it is valid");
  const auto asked = std::make_shared<asked_items>();
  check->add_option("IBAN", asked->arguments, "IBANs to check; - for the input")->type_name("");
  add_asking_options(*check, *asked);
  check->footer(example);
  check->callback([&exit_status, check, asked] {
    check_asked(*check, *asked, "IBAN or --input");
    exit_status = run(*asked);
  });
}

}  // namespace tivex_program
