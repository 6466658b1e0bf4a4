/* Finds banks by bank code, IBAN and BIC. */
#include <stdio.h>
#include <stdlib.h>

#include "tivex.h"

static void print_bank(int result, tivex_bank_info_t *bank) {
  if (result != 1) {
    printf("not found: %d\n", result);
    return;
  }
  printf("%s, %s\n", bank->bic, bank->name);
  free(bank); /* with all its texts */
}

int main(void) {
  tivex_bank_info_t *bank = NULL;
  int result = tivex_bankid_check("DE", "37040044", &bank);
  print_bank(result, bank);
  result = tivex_iban_getBank("DE54100000000000012345", &bank);
  print_bank(result, bank);
  result = tivex_bic_getBank("COBADEFF", &bank);
  if (result == 1 && (bank->flags & TIVEX_SCHEME_DEBIT_CORE) != 0) {
    puts("takes part in direct debits");
  }
  print_bank(result, bank);
  return EXIT_SUCCESS;
}
