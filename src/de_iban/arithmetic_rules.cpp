// Rules by which the account's value decides.
#include "de_iban/data/account_ranges.h"
#include "de_iban/rules.h"

namespace tivex::iban_rules {

namespace {

using check_digits::in;

// Accounts kept as special ones by rules 32 to 35.
constexpr account_condition& is_special = in<800'000'000, 899'999'999>;

bool has_ten_digits(const rule_input& input) { return input.account[0] != '0'; }

// The branch that the first three digits stand for gives its bank code.
void take_bank_code_of_range(rule_input& input) {
  const std::uint64_t number = input.digits().value();
  for (const account_range& row : account_range_table) {
    if (number < row.low || number > row.high) continue;
    input.set_bank_code(row.bank_code);
    return;
  }
}

void take_bank_code_of_ten_digits(rule_input& input) {
  if (has_ten_digits(input)) take_bank_code_of_range(input);
}

}  // namespace

rule_result rule_31(char* iban, rule_input& input) {
  if (!has_ten_digits(input) || input.check_result < 0) return DECLINED;
  return standard_after<take_bank_code_of_range>(iban, input);
}

rule_result rule_32(char* iban, rule_input& input) {
  if (is_special(input.digits())) return decline(input, STATUS_ACCOUNT_REFUSED);
  if (input.check_result < 0) return DECLINED;
  return standard_after<take_bank_code_of_ten_digits>(iban, input);
}

// Special accounts exist at one bank code only.
rule_result rule_33(char* iban, rule_input& input) {
  take_bank_code_of_ten_digits(input);
  if (is_special(input.digits()) && !input.has_bank_code("70020270")) return DECLINED;
  return standard_after<map_account<account_map_33, check_again>>(iban, input);
}

rule_result rule_34(char* iban, rule_input& input) {
  return declined_if<is_special, take_bank_code_of_ten_digits,
                     map_account<account_map_34, check_again>>(iban, input);
}

rule_result rule_35(char* iban, rule_input& input) {
  return declined_if<is_special, take_bank_code_of_ten_digits,
                     map_account<account_map_35, check_again>>(iban, input);
}

// Number ranges without an IBAN; six-digit accounts get the sub-account 000.
rule_result rule_36(char* iban, rule_input& input) {
  using check_digits::any_of;
  constexpr account_condition& is_closed =
      any_of<in<0, 99'999>, in<900'000, 29'999'999>, in<60'000'000, 99'999'999>,
             in<900'000'000, 999'999'999>, in<2'000'000'000, 2'999'999'999>,
             in<7'100'000'000, 8'499'999'999>, in<8'600'000'000, 8'999'999'999>>;
  if (input.check_result < 0) return DECLINED;
  const auto account = input.digits();
  if (is_closed(account)) return decline(input, STATUS_ACCOUNT_REFUSED);
  if (in<100'000, 899'999>(account)) {
    input.set_account(check_digits::normalised_account(account.text(4), "000").text());
  }
  return standard_after<bank_code_becomes<"21050000">>(iban, input);
}

// Accounts of eight digits, of which the fourth (position 6) is 0 outside two ranges and
// the fifth is not 0, and accounts of ten digits with 44 at positions 4 and 5.
rule_result rule_42(char* iban, rule_input& input) {
  using check_digits::any_of;
  constexpr account_condition& is_exception =
      any_of<in<50'462'000, 50'463'999>, in<50'469'000, 50'469'999>>;
  const auto account = input.digits();
  if (has_ten_digits(input)) {
    return account.has("44", 4) ? iban_build_standard(iban, input) : DECLINED;
  }
  const bool has_eight_digits = account.c(2) == '0' && account.c(3) != '0';
  if (!has_eight_digits) return DECLINED;
  if (account.c(6) != '0' && !is_exception(account)) return DECLINED;
  return account.c(7) != '0' ? iban_build_standard(iban, input) : DECLINED;
}

}  // namespace tivex::iban_rules
