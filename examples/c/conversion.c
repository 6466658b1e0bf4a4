/* Makes the IBAN of a German account, and finds the BIC that belongs to it. */
#include <stdio.h>
#include <stdlib.h>

#include "tivex.h"

int main(void) {
  char iban[35];
  char bic[12];
  unsigned char status;
  if (tivex_iban_convert("DE", "532013000", "37040044", iban, &status) != 1) {
    printf("no IBAN: status %u\n", (unsigned)status);
    return EXIT_FAILURE;
  }
  if (status != TIVEX_CONVERSION_AS_GIVEN) puts("made of other numbers than given");
  if (tivex_iban_getBIC(iban, bic) == 1) printf("%s %s\n", iban, bic);
  return EXIT_SUCCESS;
}
