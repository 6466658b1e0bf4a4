// Rules with more to say than the table's notation: what the banks want with their
// account numbers and bank codes.
#include "de_iban/data/account_ibans.h"
#include "de_iban/data/pair_maps.h"
#include "de_iban/rules.h"

namespace tivex::iban_rules {

namespace {

// A complete IBAN of a table; its account is what the conversion reports.
rule_result build_from_table(char* iban, rule_input& input, const char* account,
                             const char* table_iban) {
  input.set_account(account);
  std::memcpy(iban, table_iban, german_iban_length + 1);
  input.check_result = 1;
  return MADE;
}

// Whether bank code and account were replaced.
bool pair_map_lookup(rule_input& input, std::span<const pair_replacement> map) {
  for (const pair_replacement& row : map) {
    if (!input.has_bank_code(row.bank_code) || !input.has_account(row.account)) continue;
    input.set_bank_code(row.new_bank_code);
    input.set_account(row.new_account);
    return true;
  }
  return false;
}

}  // namespace

// Rule 9: accounts beginning 1116 of the bank taken over now begin 3047.
void replace_prefix_1116(rule_input& input) {
  if (input.digits().has("1116")) std::memcpy(input.account, "3047", 4);
}

// Rule 10: two donation accounts; a branch is now led under the main bank code.
rule_result rule_10(char* iban, rule_input& input) {
  static constexpr account_replacement accounts[] = {{"0000002000", "0000222000"},
                                                     {"0000800000", "0000180802"}};
  if (input.has_bank_code("50050201")) {
    if (account_map_lookup(input, accounts)) count_as_valid(input);
  } else if (input.has_bank_code("50050222")) {
    input.set_bank_code("50050201");
  }
  return iban_build_standard(iban, input);
}

// Rule 29: ten-digit accounts lose a 0 at their fourth place.
void drop_zero_at_4(rule_input& input) {
  const auto account = input.digits();
  if (account.c(1) == '0' || account.c(4) != '0') return;
  std::memmove(input.account + 1, input.account, 3);
  input.account[0] = '0';
}

// Rule 41: the bank has one account, whatever number is given.
rule_result rule_41(char* iban, rule_input&) {
  static constexpr char only_iban[] = "DE96500604000000011404";
  std::memcpy(iban, only_iban, sizeof only_iban);
  return MADE;
}

// Rule 43: accounts of the bank code taken over are checked by the new bank's
// method 06.
rule_result rule_43(char* iban, rule_input& input) {
  if (input.has_bank_code("60651070")) {
    input.set_bank_code("66650085");
    input.method = 0x06;
    check_again(input);
    if (input.check_result == TIVEX_ACCOUNT_INVALID) input.status = STATUS_ACCOUNT_REFUSED;
  }
  return iban_build_standard(iban, input);
}

// Rule 47: accounts of eight digits get the sub-account 00.
void shift_eight_digits(rule_input& input) {
  const auto account = input.digits();
  if (account.has("00") && account.c(3) != '0') {
    input.set_account(shifted_account(input).text());
  }
}

// Rule 49: the root with a 9 at position 5 goes in front.
void rotate_nine_at_5(rule_input& input) {
  const auto account = input.digits();
  if (account.c(5) != '9') return;
  input.set_account(check_digits::normalised_account(account.text(5), account.text(1, 4)).text());
}

// Rule 52: accounts of banks taken over; others have no IBAN.
rule_result rule_52(char* iban, rule_input& input) {
  return pair_map_lookup(input, pair_map_52) ? iban_build_standard(iban, input) : DECLINED;
}

// Rule 53: the same, and others stay as they are.
rule_result rule_53(char* iban, rule_input& input) {
  pair_map_lookup(input, pair_map_53);
  return iban_build_standard(iban, input);
}

// Rule 54: replaced accounts, and accounts with IBANs of the main bank.
rule_result rule_54(char* iban, rule_input& input) {
  map_account<account_map_54, check_again_yes_or_no>(input);
  for (const account_iban& row : account_ibans_54) {
    if (input.has_account(row.account)) {
      return build_from_table(iban, input, row.iban + german_iban_length - account_length,
                              row.iban);
    }
  }
  return iban_build_standard(iban, input);
}

// Rule 56: donation accounts with IBANs of other branches; only ten-digit accounts
// otherwise.
rule_result rule_56(char* iban, rule_input& input) {
  for (const account_replacement_iban& row : account_ibans_56) {
    if (input.has_account(row.account)) {
      return build_from_table(iban, input, row.new_account, row.iban);
    }
  }
  return input.account[0] == '0' ? DECLINED : iban_build_standard(iban, input);
}

// Rule 57: the bank code taken over is replaced.
rule_result rule_57(char* iban, rule_input& input) {
  if (input.has_bank_code("50810900")) input.set_bank_code("66010200");
  return iban_build_standard(iban, input);
}

}  // namespace tivex::iban_rules
