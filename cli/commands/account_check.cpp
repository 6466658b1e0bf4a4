#include "commands/account_check.h"

#include <tivex.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "banks/german_numbers.h"
#include "commands/asked_items.h"
#include "platform/exit_status.h"
#include "terminal/diagnostics.h"
#include "terminal/json_object.h"

namespace tivex_program {
namespace {

constexpr const char* example = R"(Examples:
  tivex account check --bank-code 37040044 532013000 532031000

checks by the method of the bank's record in the directory and prints

  532013000: valid
  532031000: invalid

  tivex account check --bank-code 37040044 --json --input accounts.txt

prints an object a line with "account", "bank_code", "method", "result" and
"fault".)";

struct account_query {
  std::string method;     // two characters, or empty
  std::string bank_code;  // or empty
  asked_items accounts;
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

// The text for a result of the library's.
const char* verdict(int result) {
  return result == TIVEX_ACCOUNT_INVALID       ? "invalid"
         : result == TIVEX_ACCOUNT_NOT_CHECKED ? "not checked"
                                               : "valid";
}

int run(const account_query& query) {
  const std::optional<int> method = method_of(query);
  if (!method) {
    print_error("bank code " + query.bank_code + ": not in the directory");
    return exit_failure;
  }
  char code[8];
  std::snprintf(code, sizeof code, "%02X", static_cast<unsigned>(*method));
  const char* const bank_code = query.bank_code.c_str();
  return answer_each(query.accounts, [&](std::string_view account, std::string& line) {
    const bool fits = is_german_account(account);
    const int result = !fits ? TIVEX_ACCOUNT_INVALID
                       : query.bank_code.empty()
                           ? tivex_account_check(account.data(), *method)
                           : tivex_account_check2(account.data(), bank_code, *method);
    if (query.accounts.json) {
      json_object object;
      object.add_text("account", account);
      object.add_text_or_null("bank_code", query.bank_code);
      object.add_text("method", code);
      object.add_text_or_null("result", fits ? verdict(result) : "");
      object.add_text_or_null("fault", fits ? "" : account_wanted);
      line += object.line();
    } else {
      append_subject(line, account);
      line += fits ? verdict(result) : account_wanted;
    }
    return result != TIVEX_ACCOUNT_INVALID;
  });
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
      ->transform(CLI::Validator(german_bank_code_fault, ""));
  check->add_option("ACCOUNT", query->accounts.arguments, "Account numbers; - for the input")
      ->type_name("");
  add_asking_options(*check, query->accounts);
  check->footer(example);
  check->callback([&exit_status, check, query] {
    check_asked(*check, query->accounts, "ACCOUNT or --input");
    check_options(*query);
    exit_status = run(*query);
  });
}

}  // namespace tivex_program
