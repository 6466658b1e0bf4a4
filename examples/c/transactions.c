/* Adds a collection; a value that is refused leaves the message as it was. */
#include <stdio.h>
#include <stdlib.h>

#include "tivex.h"

int main(void) {
  static const tivex_keyvalue_t fee[] = {{"iban", "AT611904300234573201"},
                                         {"name", "Eva Alt"},
                                         {"amount", "48.00"},
                                         {"seq", "RCUR"},
                                         {"mref", "M-1001"},
                                         {"mdate", "2024-03-01"},
                                         {NULL, NULL}};
  static const tivex_keyvalue_t faulty[] = {
      {"iban", "AT611904300234573201"}, {"amount", "48,00"}, {"seq", "RCUR"}, {NULL, NULL}};
  tivex_t *msg = tivex_new(TIVEX_DIRECT_DEBIT);
  if (msg == NULL) return EXIT_FAILURE;
  puts(tivex_add(msg, fee) ? "added" : tivex_getError(msg));
  puts(tivex_add(msg, faulty) ? "added" : tivex_getError(msg));
  tivex_free(msg);
  return EXIT_SUCCESS;
}
