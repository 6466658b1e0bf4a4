#include "validation/german_iban.h"

#include <cstring>

#include "directory/find_bank.h"
#include "tivex.h"

namespace tivex {

const char* german_iban_fault(const char* iban) {
  constexpr std::size_t bank_code_length = 8;
  char bank_code[bank_code_length + 1] = {};
  std::memcpy(bank_code, iban + 4, bank_code_length);
  bank_record bank;
  if (directory_find_bank("DE", bank_code, &bank) == 0) return "Invalid bank ID (BLZ) in IBAN";

  const char* const account = iban + 4 + bank_code_length;
  const int result = tivex_account_check2(account, bank_code, bank.method);
  // An account that cannot be checked passes.
  return result == TIVEX_ACCOUNT_INVALID ? "Invalid account number in IBAN" : nullptr;
}

}  // namespace tivex
