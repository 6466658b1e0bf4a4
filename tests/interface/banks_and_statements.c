/* A host in C that looks banks up, checks and converts accounts and reads a
   statement file: FILE. It ends with 0 when everything is as a host expects it. */
#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <tivex.h>

static int faults = 0;

static void expect(int holds, const char *what) {
  if (holds) return;
  ++faults;
  printf("not so: %s\n", what);
}

static void look_banks_up(void) {
  tivex_bank_info_t *bank = NULL;
  char successor[9];
  expect(tivex_bankid_check("DE", "10000000", &bank) == 1, "the Bundesbank is found");
  if (bank == NULL) return;
  expect(strcmp(bank->name, "Bundesbank") == 0, "its name");
  expect(strcmp(bank->city, "Berlin") == 0, "its city");
  expect(bank->flags == 0, "no flags behind a bank code");
  free(bank);
  bank = NULL;
  expect(tivex_bic_getBank("MARKDEFF", &bank) == 1, "its BIC is found");
  if (bank == NULL) return;
  expect(bank->postcode == NULL && bank->city == NULL, "a BIC has no address");
  expect((bank->flags & TIVEX_SCHEME_CREDIT_TRANSFER) != 0, "it takes credit transfers");
  free(bank);
  expect(tivex_bankid_getMethod("37040044") == 0x13, "the method of a bank");
  expect(tivex_bankid_getSuccessor("25050299", successor) == 1, "a bank code is marked");
  expect(strcmp(successor, "25050180") == 0, "its successor");
  expect(strstr(tivex_edition_str, " DE ") != NULL, "the edition names its sizes");
}

static void check_and_convert(void) {
  char iban[35];
  char bic[12];
  unsigned char status = 77;
  expect(tivex_account_check("9290701", 0x00) == TIVEX_ACCOUNT_VALID, "a valid account");
  expect(tivex_account_check2("9290702", "37040044", 0x00) == TIVEX_ACCOUNT_INVALID,
         "an invalid account");
  expect(tivex_iban_convert("DE", "532013000", "37040044", iban, &status) == 1, "a conversion");
  expect(strcmp(iban, "DE89370400440532013000") == 0, "its IBAN");
  expect(status == TIVEX_CONVERSION_AS_GIVEN, "its status");
  expect(tivex_iban_check(iban) == 1, "it is valid");
  expect(tivex_iban_getBIC(iban, bic) == 1 && strcmp(bic, "COBADEFFXXX") == 0, "its BIC");
  expect(tivex_iban_getBank(iban, NULL) == 1, "its bank is found");
}

struct aligned {
  char before;
  double number;
};

static void read_statements(const char *path) {
  tivex_stmt_parser_t *parser = tivex_stmt_parser_new();
  const tivex_stmt_t *statement;
  const tivex_stmt_tx_t *entry;
  int statements = 0;
  int entries = 0;
  int keywords = 0;
  expect(tivex_stmt_parser_load(parser, TIVEX_FORMAT_MT940, path) == 1, "the file is read");
  expect(*tivex_stmt_parser_getError(parser) == '\0', "there is no error");
  for (statement = tivex_stmt_parser_getStatement(parser); statement != NULL;
       statement = statement->next) {
    ++statements;
    expect(statement->account != NULL, "a statement has an account");
    expect(strcmp(statement->opening_currency, "EUR") == 0, "a statement is in euro");
    expect(statement->closing_date.tm_year == 126 && statement->closing_date.tm_mon == 10,
           "a statement ends in November 2026");
    for (entry = statement->first_tx; entry != NULL; entry = entry->next) {
      ++entries;
      if (entry->svwz != NULL) ++keywords;
      expect((size_t)entry % offsetof(struct aligned, number) == 0, "an entry is aligned");
      expect(entry->amount != 0, "an entry has an amount");
      expect(strlen(entry->type_code) == 3, "an entry has a type");
      expect(entry->value_date.tm_mday > 0, "an entry has a value date");
      if (entry->next == NULL) expect(entry == statement->last_tx, "the last entry is the last");
    }
  }
  expect(statements == 2, "there are two statements");
  expect(entries >= 20 && keywords >= 10, "they hold entries with remittance information");
  tivex_stmt_parser_free(parser);
}

/* The records are read by position: their members stand in the declared order. */
static void check_order_of_members(void) {
  const size_t statement[] = {
      offsetof(tivex_stmt_t, reference),        offsetof(tivex_stmt_t, account),
      offsetof(tivex_stmt_t, statement_no),     offsetof(tivex_stmt_t, sequence_no),
      offsetof(tivex_stmt_t, opening_date),     offsetof(tivex_stmt_t, closing_date),
      offsetof(tivex_stmt_t, opening_balance),  offsetof(tivex_stmt_t, closing_balance),
      offsetof(tivex_stmt_t, opening_currency), offsetof(tivex_stmt_t, closing_currency),
      offsetof(tivex_stmt_t, first_tx),         offsetof(tivex_stmt_t, last_tx),
      offsetof(tivex_stmt_t, next)};
  const size_t entry[] = {
      offsetof(tivex_stmt_tx_t, value_date),   offsetof(tivex_stmt_tx_t, booking_date),
      offsetof(tivex_stmt_tx_t, reversal),     offsetof(tivex_stmt_tx_t, amount),
      offsetof(tivex_stmt_tx_t, type_code),    offsetof(tivex_stmt_tx_t, customer_ref),
      offsetof(tivex_stmt_tx_t, bank_ref),     offsetof(tivex_stmt_tx_t, booking_text),
      offsetof(tivex_stmt_tx_t, primanota),    offsetof(tivex_stmt_tx_t, gvc),
      offsetof(tivex_stmt_tx_t, text_key_ext), offsetof(tivex_stmt_tx_t, bank_code),
      offsetof(tivex_stmt_tx_t, account_no),   offsetof(tivex_stmt_tx_t, name),
      offsetof(tivex_stmt_tx_t, purpose),      offsetof(tivex_stmt_tx_t, eref),
      offsetof(tivex_stmt_tx_t, kref),         offsetof(tivex_stmt_tx_t, mref),
      offsetof(tivex_stmt_tx_t, cred),         offsetof(tivex_stmt_tx_t, debt),
      offsetof(tivex_stmt_tx_t, purp),         offsetof(tivex_stmt_tx_t, coam),
      offsetof(tivex_stmt_tx_t, oamt),         offsetof(tivex_stmt_tx_t, svwz),
      offsetof(tivex_stmt_tx_t, abwa),         offsetof(tivex_stmt_tx_t, abwe),
      offsetof(tivex_stmt_tx_t, next),         offsetof(tivex_stmt_tx_t, full_name),
      offsetof(tivex_stmt_tx_t, return_reason)};
  const size_t bank[] = {offsetof(tivex_bank_info_t, name),    offsetof(tivex_bank_info_t, postcode),
                         offsetof(tivex_bank_info_t, city),    offsetof(tivex_bank_info_t, country),
                         offsetof(tivex_bank_info_t, bic),     offsetof(tivex_bank_info_t, flags)};
  size_t i;
  for (i = 1; i < sizeof statement / sizeof *statement; ++i) {
    expect(statement[i - 1] < statement[i], "the order of a statement's members");
  }
  for (i = 1; i < sizeof entry / sizeof *entry; ++i) {
    expect(entry[i - 1] < entry[i], "the order of an entry's members");
  }
  for (i = 1; i < sizeof bank / sizeof *bank; ++i) {
    expect(bank[i - 1] < bank[i], "the order of a bank's members");
  }
#if defined(_WIN32)
  /* Hosts in other languages declare the records by hand. */
  expect(sizeof(tivex_stmt_t) == (sizeof(void *) == 4 ? 128 : 144), "the size of a statement");
  expect(sizeof(tivex_stmt_tx_t) == (sizeof(void *) == 4 ? 280 : 360), "the size of an entry");
  expect(sizeof(tivex_bank_info_t) == (sizeof(void *) == 4 ? 24 : 48), "the size of a bank");
#endif
  expect(sizeof((tivex_stmt_tx_t *)NULL)->account_no == 35, "room for an IBAN of 34 characters");
  expect(sizeof((tivex_stmt_tx_t *)NULL)->name == 56, "room for a name of 55 bytes");
}

int main(int argument_count, char **arguments) {
  if (argument_count != 2) return 2;
  look_banks_up();
  check_and_convert();
  read_statements(arguments[1]);
  check_order_of_members();
  return faults == 0 ? 0 : 1;
}
