/* The header of a direct debit: one result tells whether all values were taken. */
#include <stdio.h>
#include <stdlib.h>

#include "tivex.h"

int main(void) {
  int good;
  tivex_t *msg = tivex_new(TIVEX_DIRECT_DEBIT);
  if (msg == NULL) return EXIT_FAILURE;
  good = tivex_setStrict(msg, 1) && tivex_setName(msg, "Stadtwerke Nord") &&
         tivex_setIBAN(msg, "DE89370400440532013000") &&
         tivex_setBIC(msg, "COBADEFFXXX") &&
         tivex_setCreditorIdentifier(msg, "DE98ZZZ09999999999") &&
         tivex_setDDType(msg, TIVEX_DD_B2B) && tivex_setBatchBooking(msg, 0) &&
         tivex_setDate(msg, "2026-12-01") && tivex_setMessageId(msg, "FEES-2026-12");
  puts(good ? "all taken" : tivex_getError(msg));
  tivex_free(msg);
  return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
