/* Writes a credit transfer of one payment to standard output. */
#include <stdio.h>
#include <stdlib.h>

#include "tivex.h"

int main(void) {
  static const tivex_keyvalue_t payment[] = {{"iban", "NL91ABNA0417164300"},
                                             {"name", "Eva Alt"},
                                             {"amount", "2480.15"},
                                             {NULL, NULL}};
  char *document = NULL;
  tivex_t *msg = tivex_new(TIVEX_CREDIT_TRANSFER);
  if (tivex_setStrict(msg, 1) && tivex_setName(msg, "Nordlicht GmbH") &&
      tivex_setIBAN(msg, "DE89370400440532013000") &&
      tivex_setBIC(msg, "COBADEFFXXX") && tivex_add(msg, payment)) {
    document = tivex_toXML(msg);
  }
  if (document != NULL) {
    fputs(document, stdout);
  } else {
    fprintf(stderr, "%s\n", tivex_getError(msg));
  }
  tivex_free(msg);
  free(document); /* the host's own */
  return document != NULL ? EXIT_SUCCESS : EXIT_FAILURE;
}
