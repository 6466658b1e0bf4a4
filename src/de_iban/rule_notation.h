// The notation of the table of IBAN rules: rules that replace the bank code, map
// accounts, or refuse.
#pragma once

#include <cstddef>
#include <span>

#include "de_account/account_check.h"
#include "de_account/method_notation.h"
#include "de_iban/rule_input.h"
#include "de_iban/table_rows.h"
#include "tivex.h"

namespace tivex::iban_rules {

using check_digits::account_condition;
using check_digits::literal_text;

// The result of a rule: whether the buffer holds the IBAN to use.
enum rule_result { DECLINED = -1, MADE = 1 };

// A rule writes a German IBAN of 22 characters, with any check digits, into a
// buffer of iban_buffer_size bytes.
using iban_rule = rule_result(char* iban, rule_input& input);

// A step changes the input on the way to an IBAN.
using rule_step = void(rule_input& input);

// The IBAN of bank code and account as they are.
inline rule_result iban_build_standard(char* iban, rule_input& input) {
  constexpr std::string_view head = "DE00";
  std::memcpy(iban, head.data(), head.size());
  std::memcpy(iban + head.size(), input.bank_code, bank_code_length);
  std::memcpy(iban + head.size() + bank_code_length, input.account, account_length);
  return MADE;
}

inline rule_result decline(rule_input& input, conversion_status status) {
  input.status = status;
  return DECLINED;
}

template <rule_step&... steps>
rule_result standard_after(char* iban, rule_input& input) {
  (steps(input), ...);
  return iban_build_standard(iban, input);
}

// Without a status.
template <account_condition& condition, rule_step&... steps>
rule_result declined_if(char* iban, rule_input& input) {
  if (condition(input.digits())) return DECLINED;
  return standard_after<steps...>(iban, input);
}

template <conversion_status status>
rule_result always_declined(char*, rule_input& input) {
  return decline(input, status);
}

template <literal_text bank_code>
void bank_code_becomes(rule_input& input) {
  static_assert(sizeof bank_code.text == bank_code_length + 1);
  input.set_bank_code({bank_code.text, bank_code_length});
}

// How an account that was replaced is checked again: by the bank's method without
// the bank code.
inline void check_again(rule_input& input) {
  input.check_result =
      static_cast<std::int8_t>(check_digits::check_account(input.digits(), nullptr, input.method));
}
// What is not plainly valid counts as not checked.
inline void check_again_yes_or_no(rule_input& input) {
  const bool valid = check_account(input.digits(), nullptr, input.method) == check_digits::VALID;
  input.check_result = valid ? 1 : 0;
}
inline void count_as_valid(rule_input& input) { input.check_result = 1; }

// Whether the account was replaced.
inline bool account_map_lookup(rule_input& input, std::span<const account_replacement> map) {
  for (const account_replacement& row : map) {
    if (!input.has_account(row.account)) continue;
    input.set_account(row.replacement);
    return true;
  }
  return false;
}

template <const auto& map, rule_step& when_replaced>
void map_account(rule_input& input) {
  if (account_map_lookup(input, map)) when_replaced(input);
}

template <const auto& accounts>
void accept_accounts(rule_input& input) {
  for (const account_row& row : accounts) {
    if (input.has_account(row.account)) input.check_result = 1;
  }
}

}  // namespace tivex::iban_rules
