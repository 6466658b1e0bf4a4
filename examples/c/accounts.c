/* Checks account numbers by the method of their bank. */
#include <stdio.h>
#include <stdlib.h>

#include "tivex.h"

int main(void) {
  static const char *const accounts[] = {"532013000", "532031000"};
  const char *const bank_code = "37040044";
  const int method = tivex_bankid_getMethod(bank_code);
  size_t i;
  if (method < 0) return EXIT_FAILURE;
  for (i = 0; i < 2; ++i) {
    const int result = tivex_account_check2(accounts[i], bank_code, method);
    printf("%s by method %02X: %s\n", accounts[i], (unsigned)method,
           result == TIVEX_ACCOUNT_INVALID       ? "invalid"
           : result == TIVEX_ACCOUNT_NOT_CHECKED ? "not checked"
                                                 : "valid");
  }
  return EXIT_SUCCESS;
}
