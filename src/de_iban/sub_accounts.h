// Accounts that were written without their sub-account 00, as the check digit of
// method 13 shows.
#pragma once

#include "de_account/method_notation.h"
#include "de_iban/rule_notation.h"

namespace tivex::iban_rules {

// Method 13 without its second variant, which allows for the missing sub-account.
inline bool accepted_by_13(const check_digits::normalised_account& account) {
  using check_digits::XS;
  return XS<10, 8, 0, 0, 0, 2, 1, 2, 1, 2, 1, 0>(account) == check_digits::VALID;
}

inline void shift_account(rule_input& input) {
  input.set_account(shifted_account(input).text());
  input.check_result = 1;
}

// Shifts the account if it is then accepted.
inline bool accept_shifted(rule_input& input) {
  const bool accepted = accepted_by_13(shifted_account(input));
  if (accepted) shift_account(input);
  return accepted;
}

}  // namespace tivex::iban_rules
