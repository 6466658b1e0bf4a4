#include "validation/german_iban.h"

#include <cstddef>

#include "de_account/account_check.h"
#include "directory/find_bank.h"

namespace tivex {

const char* german_iban_fault(const char* iban) {
  constexpr std::size_t bank_code_length = 8;
  constexpr std::size_t account_length = 10;
  const char* const bank_code = iban + 4;
  german_bank bank;
  if (!directory_find_german_bank({bank_code, bank_code_length}, bank)) {
    return "Invalid bank ID (BLZ) in IBAN";
  }

  using namespace check_digits;
  const normalised_account account({bank_code + bank_code_length, account_length});
  // An account that cannot be checked passes.
  return check_account(account, bank_code, bank.method) == INVALID
             ? "Invalid account number in IBAN"
             : nullptr;
}

}  // namespace tivex
