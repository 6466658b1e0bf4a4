#include "de_iban/data/rule_05_tables.h"
#include "de_iban/rules.h"
#include "de_iban/sub_accounts.h"

namespace tivex::iban_rules {

namespace {

// Numbers of former branches for which there is no IBAN.
bool is_closed(const rule_input& input) {
  const std::uint64_t number = input.digits().value(2);
  if (number < 998'000'000 || number > 999'499'999) return false;
  for (const bank_code_row& row : bank_codes_05) {
    if (input.has_bank_code(row.bank_code)) return true;
  }
  return false;
}

bool map_account_of_bank(rule_input& input) {
  for (const bank_account_replacement& row : accounts_05) {
    if (!input.has_bank_code(row.bank_code) || !input.has_account(row.account)) continue;
    input.set_account(row.replacement);
    check_again(input);
    return true;
  }
  return false;
}

// Method 13: short accounts are most likely written without their sub-account.
bool fits_method_13(rule_input& input) {
  const auto account = input.digits();
  if (account.has("000") && !account.has("00000") && accept_shifted(input)) return true;
  return accepted_by_13(account) || (account.has("00") && accept_shifted(input));
}

// Method 76: an account that is valid by the second variant only lacks its
// sub-account.
bool fits_method_76(rule_input& input) {
  const int result = tivex_account_check(input.account, 0x76);
  if (result == TIVEX_ACCOUNT_VALID_BY_VARIANT) shift_account(input);
  return result != TIVEX_ACCOUNT_INVALID;
}

}  // namespace

rule_result rule_05(char* iban, rule_input& input) {
  if (input.has_bank_code("50040033")) return decline(input, STATUS_BANK_REFUSES);
  if (is_closed(input)) return decline(input, STATUS_ACCOUNT_REFUSED);
  if (map_account_of_bank(input)) return iban_build_standard(iban, input);
  if (input.method == 0x13 && !fits_method_13(input)) return DECLINED;
  if (input.method == 0x76 && !fits_method_76(input)) return DECLINED;
  return iban_build_standard(iban, input);
}

}  // namespace tivex::iban_rules
