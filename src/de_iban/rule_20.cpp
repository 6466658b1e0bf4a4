#include "de_account/methods.h"
#include "de_iban/rules.h"
#include "de_iban/sub_accounts.h"

namespace tivex::iban_rules {

namespace {

// Method 63 up to the question whether the account's shape has an IBAN.
bool fits_method_63(rule_input& input) {
  const auto account = input.digits();
  if (account.has("000000")) return false;
  if (account.has("00000")) return accepted_by_13(account) || accept_shifted(input);
  if (account.has("000")) return accept_shifted(input) || input.check_result == 1;
  return input.check_result >= 0;
}

rule_result by_method_63(char* iban, rule_input& input) {
  if (!fits_method_63(input)) return DECLINED;
  const auto account = input.digits();
  if (account.c(1) != '0' || account.has("000", 2)) return DECLINED;
  return iban_build_standard(iban, input);
}

// Method C7 tells accounts of method 63 from those of method 06, which one bank
// does not admit.
rule_result by_method_c7(char* iban, rule_input& input) {
  const auto account = input.digits();
  const bool by_63 = account.c(1) == '0' &&
                     (accepted_by_13(account) || (account.has("000") && accept_shifted(input)));
  const bool by_06 = !by_63 && check_digits::method_06(account) == check_digits::VALID;
  const bool admits_06 = !input.has_bank_code("76026000");
  if (by_06 && !admits_06) input.status = STATUS_BANK_REFUSES;
  const bool fits = by_63 || (by_06 && admits_06);
  input.check_result = fits ? 1 : -1;
  return fits ? iban_build_standard(iban, input) : DECLINED;
}

}  // namespace

rule_result rule_20(char* iban, rule_input& input) {
  if (input.has_bank_code("50070010") && input.has_account("0000009999")) {
    input.set_account("0092777202");
  }
  if (input.method == 0x63) return by_method_63(iban, input);
  if (input.method == 0xC7) return by_method_c7(iban, input);
  return iban_build_standard(iban, input);
}

}  // namespace tivex::iban_rules
