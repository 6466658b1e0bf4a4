/* Random account checks, conversions and IBAN checks, and a document: COUNT. Prints a
   checksum of all answers and every 1000th of them, the same with every build of the
   library. */
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <tivex.h>

static uint64_t state = 20261123;

static unsigned below(unsigned limit) {
  state = state * 6364136223846793005u + 1442695040888963407u;
  return (unsigned)(state >> 33) % limit;
}

static uint64_t checksum = 14695981039346656037u;

static void take(const char *kind, unsigned number, const char *asked, const char *answer) {
  const char *c;
  for (c = answer; *c != '\0'; ++c) checksum = (checksum ^ (unsigned char)*c) * 1099511628211u;
  if (number % 1000 == 0) printf("%s %u %s: %s\n", kind, number, asked, answer);
}

static void digits(char *text, unsigned length) {
  unsigned i;
  for (i = 0; i < length; ++i) text[i] = (char)('0' + below(10));
  text[length] = '\0';
}

/* The code of a bank in the directory, by trying. */
static void draw_bank(char *code) {
  static char found[512][9];
  static unsigned count = 0;
  while (count < 512) {
    digits(found[count], 8);
    memset(found[count] + 5, '0', 3);
    if (tivex_bankid_check("DE", found[count], NULL) == 1) ++count;
  }
  strcpy(code, found[below(512)]);
}

static void check_account(unsigned number) {
  char account[11], bank[9], asked[40], answer[40];
  const int method = (int)below(256);
  digits(account, 1 + below(10));
  draw_bank(bank);
  sprintf(asked, "%s %s %02X", account, bank, (unsigned)method);
  sprintf(answer, "%d %d %d", tivex_account_check(account, method),
          tivex_account_check2(account, bank, method), tivex_bankid_getMethod(bank));
  take("account", number, asked, answer);
}

static void convert(unsigned number, char *iban) {
  char account[11], bank[9], bic[12] = "", asked[40], answer[100];
  unsigned char status = 0;
  int result;
  digits(account, 1 + below(10));
  draw_bank(bank);
  memset(iban, 0, 35);
  result = tivex_iban_convert("DE", account, bank, iban, &status);
  sprintf(asked, "%s %s", account, bank);
  sprintf(answer, "%d %s %u", result, iban, status);
  if (result == 1) sprintf(answer + strlen(answer), " %d %s", tivex_iban_getBIC(iban, bic), bic);
  take("conversion", number, asked, answer);
}

/* One that was made, or one of any country, often with a digit changed. */
static void check_iban(unsigned number, const char *made) {
  static const char *const good[] = {"NO9386011117947", "GB29NWBK60161331926819",
                                     "AT611904300234573201", "CH9300762011623852957",
                                     "FR1420041010050500013M02606", "NL91ABNA0417164300"};
  char iban[35], answer[20];
  strcpy(iban, made[0] != '\0' && below(2) == 0 ? made : good[below(6)]);
  if (below(2) == 0) iban[below((unsigned)strlen(iban))] = (char)('0' + below(10));
  sprintf(answer, "%d %d", tivex_iban_check(iban), tivex_iban_getBank(iban, NULL));
  take("iban", number, iban, answer);
}

static void write_document(void) {
  tivex_t *message;
  char amount[20], ref[80];
  char *document;
  unsigned i;
  tivex_keyvalue_t list[] = {{"iban", "NO9386011117947"}, {"name", "Eva M\303\274ller & Co"},
                             {"addrTown", "Oslo"},        {"addrCC", "NO"},
                             {"amount", NULL},            {"ref", NULL},
                             {NULL, NULL}};
  tivex_init(TIVEX_OPTION_RULEBOOK, "DE-3.7");
  message = tivex_new(TIVEX_CREDIT_TRANSFER);
  tivex_setName(message, "Muster GmbH");
  tivex_setIBAN(message, "DE89370400440532013000");
  tivex_setMessageId(message, "answers");
  tivex_setDate(message, "2026-11-30");
  for (i = 0; i < 20; ++i) {
    sprintf(amount, "%u.%03u", below(100000), below(1000));
    sprintf(ref, "Rechnung %u", below(100000));
    list[4].value = amount;
    list[5].value = ref;
    if (tivex_add(message, list) != 1) printf("refused: %s\n", tivex_getError(message));
  }
  document = tivex_toXML(message);
  printf("%s\n", document != NULL ? document : tivex_getError(message));
  free(document);
  tivex_free(message);
}

int main(int argument_count, char **arguments) {
  const unsigned count = argument_count > 1 ? (unsigned)atoi(arguments[1]) : 100000;
  char iban[35];
  unsigned i;
  for (i = 0; i < count; ++i) {
    check_account(i);
    convert(i, iban);
    check_iban(i, iban);
  }
  printf("checksum %08x%08x\n", (unsigned)(checksum >> 32), (unsigned)checksum);
  printf("%s\n%s %d\n", tivex_edition_str, tivex_version_str, tivex_version_int);
  write_document();
  return 0;
}
