#include "commands/account_check.h"

#include <tivex.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "banks/german_numbers.h"
#include "commands/each_argument.h"
#include "platform/exit_status.h"
#include "terminal/diagnostics.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

constexpr const char* example = R"(Example:
  tivex account check --bank-code 37040044 532013000 532031000

checks by the method of the bank's record in the directory and prints

  532013000: valid
  532031000: invalid)";

struct account_query {
  std::string method;     // two characters, or empty
  std::string bank_code;  // or empty
  std::vector<std::string> accounts;
};

std::string method_fault(const std::string& text) {
  const bool fits =
      text.size() == 2 && text.find_first_not_of("0123456789ABCDEFabcdef") == std::string::npos;
  return fits ? "" : "'" + printable(text) + "' is not a method such as 00 or B6";
}

bool needs_bank_code(int method) {
  return method == 0x52 || method == 0x53 || method == 0xB6 || method == 0xC0;
}

// The method that was asked for, or else the bank's; nothing for an unknown bank.
std::optional<int> method_of(const account_query& query) {
  if (!query.method.empty()) return std::stoi(query.method, nullptr, 16);
  const int method = tivex_bankid_getMethod(query.bank_code.c_str());
  return method < 0 ? std::nullopt : std::optional(method);
}

int result_of(const std::string& account, const std::string& bank_code, int method) {
  return bank_code.empty() ? tivex_account_check(account.c_str(), method)
                           : tivex_account_check2(account.c_str(), bank_code.c_str(), method);
}

int run(const account_query& query) {
  const std::optional<int> method = method_of(query);
  if (!method) {
    print_error("bank code " + query.bank_code + ": not in the directory");
    return exit_failure;
  }
  bool none_invalid = true;
  const bool read = for_each_argument(query.accounts, [&](const std::string& account) {
    const char* verdict = account_wanted;
    int result = TIVEX_ACCOUNT_INVALID;
    if (is_german_account(account)) {
      result = result_of(account, query.bank_code, *method);
      verdict = result == TIVEX_ACCOUNT_INVALID       ? "invalid"
                : result == TIVEX_ACCOUNT_NOT_CHECKED ? "not checked"
                                                      : "valid";
    }
    none_invalid = none_invalid && result != TIVEX_ACCOUNT_INVALID;
    std::printf("%s: %s\n", printable(account).c_str(), verdict);
  });
  return flush_standard_output() && read && none_invalid ? exit_success : exit_failure;
}

void check_options(const account_query& query) {
  if (query.method.empty() && query.bank_code.empty()) {
    throw CLI::RequiredError("--method or --bank-code");
  }
  if (query.bank_code.empty() && needs_bank_code(*method_of(query))) {
    throw CLI::ValidationError("--method", "method " + query.method + " needs --bank-code");
  }
}

}  // namespace

void add_account_check(CLI::App& program, int& exit_status) {
  CLI::App* const account = program.add_subcommand("account", "Work with German account numbers");
  account->require_subcommand(1);
  account->footer(example);
  CLI::App* const check = account->add_subcommand(
      "check", "Tell for each account number whether its check digit is right");
  const auto query = std::make_shared<account_query>();
  check->add_option("--method", query->method, "Check-digit method; without it that of the bank")
      ->type_name("CODE")
      ->check(CLI::Validator(method_fault, ""));
  check->add_option("--bank-code", query->bank_code, "Bank code of 8 digits")
      ->type_name("CODE")
      ->check(CLI::Validator(german_bank_code_fault, ""));
  check
      ->add_option("ACCOUNT", query->accounts, "Account numbers; - for the lines of standard input")
      ->type_name("")
      ->required();
  check->footer(example);
  check->callback([&exit_status, query] {
    check_options(*query);
    exit_status = run(*query);
  });
}

}  // namespace tivex_program
