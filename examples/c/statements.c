/* Prints the entries of a statement file, MT940 or CAMT: statements FILE */
#include <stdio.h>
#include <stdlib.h>

#include "tivex.h"

static void print_statement(const tivex_stmt_t *statement) {
  const tivex_stmt_tx_t *entry;
  for (entry = statement->first_tx; entry != NULL; entry = entry->next) {
    printf("%02d.%02d. %10.2f %s\n", entry->value_date.tm_mday,
           entry->value_date.tm_mon + 1, entry->amount, entry->name);
  }
  printf("balance %.2f %s\n", statement->closing_balance, statement->closing_currency);
}

int main(int argument_count, char **arguments) {
  const tivex_stmt_t *statement;
  const char *const file = argument_count > 1 ? arguments[1] : "statement.sta";
  tivex_stmt_parser_t *parser = tivex_stmt_parser_new();
  if (!tivex_stmt_parser_load(parser, TIVEX_FORMAT_DETECT, file)) {
    fprintf(stderr, "%s: %s\n", file, tivex_stmt_parser_getError(parser));
    tivex_stmt_parser_free(parser);
    return EXIT_FAILURE;
  }
  statement = tivex_stmt_parser_getStatement(parser);
  for (; statement != NULL; statement = statement->next) print_statement(statement);
  tivex_stmt_parser_free(parser); /* with all the records */
  return EXIT_SUCCESS;
}
