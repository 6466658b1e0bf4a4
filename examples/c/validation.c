/* Checks IBANs; a message that is asked to take one gives the reason. */
#include <stdio.h>
#include <stdlib.h>

#include "tivex.h"

int main(void) {
  static const char *const ibans[] = {"AT611904300234573201", "NO9386011117948"};
  size_t i;
  tivex_t *msg = tivex_new(TIVEX_CREDIT_TRANSFER);
  if (msg == NULL) return EXIT_FAILURE;
  for (i = 0; i < 2; ++i) {
    if (tivex_iban_check(ibans[i]) == 1) {
      printf("%s: valid\n", ibans[i]);
    } else if (!tivex_setIBAN(msg, ibans[i])) {
      puts(tivex_getError(msg));
    }
  }
  tivex_free(msg);
  return EXIT_SUCCESS;
}
