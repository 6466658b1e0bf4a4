/*
 * Writes a credit transfer document with two payments to standard output:
 *
 *     cc payments.c -ltivex -o payments && ./payments > payments.xml
 */
#include <stdio.h>
#include <stdlib.h>

#include "tivex.h"

static int fill_header(tivex_t *msg) {
  return tivex_setStrict(msg, 1) && /* only what the bank's schema accepts */
         tivex_setName(msg, "Kontor & Partner") &&
         tivex_setIBAN(msg, "AT611904300234573201") &&
         tivex_setBIC(msg, "BKAUATWW") &&
         tivex_setDate(msg, "2026-12-01");
}

static int add_payments(tivex_t *msg) {
  static const tivex_keyvalue_t salary[] = {
    {"name", "Jutta M\303\274ller"}, /* UTF-8 */
    {"iban", "NL91ABNA0417164300"},
    {"amount", "2480.15"},
    {"purp", "SALA"},
    {"ref", "Salary November 2026"},
    {"addrStreet", "Havenstraat"},
    {"addrNum", "12"},
    {"addrCode", "1011 AB"},
    {"addrTown", "Amsterdam"},
    {"addrCC", "NL"},
    {NULL, NULL}
  };
  static const tivex_keyvalue_t invoice[] = {
    {"name", "Papier Nord"},
    {"iban", "FR1420041010050500013M02606"},
    {"amount", "119"},
    {"id", "INV-4711"},
    {"date", "2026-11-30"},
    {NULL, NULL}
  };
  return tivex_add(msg, salary) && tivex_add(msg, invoice);
}

int main(void) {
  tivex_t *msg;
  char *document = NULL;

  if (!tivex_init(TIVEX_OPTION_RULEBOOK, "DE-3.7")) return EXIT_FAILURE;
  msg = tivex_new(TIVEX_CREDIT_TRANSFER);
  if (msg == NULL) return EXIT_FAILURE;

  if (fill_header(msg) && add_payments(msg)) document = tivex_toXML(msg);
  if (document != NULL) {
    fputs(document, stdout);
  } else {
    const char *reason = tivex_getError(msg);
    fprintf(stderr, "payments: %s\n", reason != NULL ? reason : "out of memory");
  }

  tivex_free(msg);
  tivex_cleanup();
  if (document == NULL) return EXIT_FAILURE;
  free(document);
  return EXIT_SUCCESS;
}
