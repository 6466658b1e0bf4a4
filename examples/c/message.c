/* The life of a message. */
#include <stdio.h>
#include <stdlib.h>

#include "tivex.h"

int main(void) {
  tivex_t *msg = tivex_new(TIVEX_CREDIT_TRANSFER);
  if (msg == NULL) return EXIT_FAILURE; /* out of memory */
  if (!tivex_setBIC(msg, "COBADEFFXX")) {
    printf("refused: %s\n", tivex_getError(msg));
  }
  tivex_free(msg); /* the error text goes with it */
  return EXIT_SUCCESS;
}
