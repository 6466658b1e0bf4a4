/* A host in C that asks the library about accounts made by a fixed generator: FILE, the
   edition's German bank codes. It prints every 1000th answer and, of each kind of
   question, a checksum over all of them. Wherever it runs, it prints the same. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <tivex.h>

#define QUESTIONS 100000
#define SHOWN_EACH 1000
#define DOCUMENTS 100
#define PAYMENTS 100
#define MOST_BANKS 8000

static char banks[MOST_BANKS][9];
static unsigned long bank_count = 0;

static int read_banks(const char *path) {
  char line[1000];
  FILE *file = fopen(path, "rb");
  if (file == NULL) return 0;
  while (fgets(line, sizeof line, file) != NULL && bank_count < MOST_BANKS) {
    if (strspn(line, "0123456789") == 8) memcpy(banks[bank_count++], line, 8);
  }
  fclose(file);
  return bank_count > 0;
}

/* Numbers of 32 bits, whatever a long has; the high bits are the more random ones. */
static unsigned long state = 1;

static unsigned long below(unsigned long bound) {
  state = (state * 1664525UL + 1013904223UL) & 0xFFFFFFFFUL;
  return (state >> 8) % bound;
}

static void make_digits(char *text, unsigned long count) {
  while (count-- > 0) *text++ = (char)('0' + below(10));
  *text = '\0';
}

static const char *any_bank(void) { return banks[below(bank_count)]; }

/* The checksum named FNV-1a. */
static unsigned long checksum;

static void add_to_checksum(const char *text) {
  for (; *text != '\0'; ++text) {
    checksum = ((checksum ^ (unsigned char)*text) * 16777619UL) & 0xFFFFFFFFUL;
  }
}

static void take_answer(unsigned long number, const char *answer) {
  add_to_checksum(answer);
  if (number % SHOWN_EACH == 0) puts(answer);
}

static void end_of_kind(const char *kind) {
  printf("%s %08lx\n", kind, checksum);
  checksum = 2166136261UL;
}

static void check_account(char *answer) {
  char account[11];
  const char *const bank = any_bank();
  const int method = (int)below(256);
  make_digits(account, 1 + below(10));
  sprintf(answer, "account %s method %02X bank %s: %d %d", account, (unsigned)method, bank,
          tivex_account_check(account, method), tivex_account_check2(account, bank, method));
}

static char iban[35];

static void convert(char *answer) {
  char account[11];
  const char *const bank = any_bank();
  unsigned char status = 0;
  int result;
  make_digits(account, 1 + below(10));
  result = tivex_iban_convert("DE", account, bank, iban, &status);
  sprintf(answer, "account %s bank %s: %d %u %s", account, bank, result, (unsigned)status, iban);
}

/* Sets the check digits as ISO 7064 MOD 97-10 says. */
static void set_check_digits(char *text) {
  unsigned long rest = 0;
  size_t at;
  const size_t length = strlen(text);
  memcpy(text + 2, "00", 2);
  for (at = 0; at < length; ++at) {
    const char c = text[(at + 4) % length];
    rest = c <= '9' ? rest * 10 + (unsigned long)(c - '0')
                    : rest * 100 + (unsigned long)(c - 'A') + 10;
    rest %= 97;
  }
  rest = 98 - rest;
  text[2] = (char)('0' + rest / 10);
  text[3] = (char)('0' + rest % 10);
}

/* Of several countries, right or with one character changed; German ones may have been
   converted. */
static void check_iban(char *answer) {
  static const char *const samples[] = {
      "AT611200000234573201",       "CH9309000011623852957",     "DE89370400440532013000",
      "FR1420041010050500013M02606", "GB29NWBK60161331926819",   "IT60X0542811101000000123456",
      "LI21088000002324013AA",      "MT84MALT011000012345MTLCAST001S",
      "NL91ABNA0417164300",         "NO9386011117947"};
  char text[35];
  char bic[12];
  tivex_bank_info_t *bank = NULL;
  int result;
  convert(answer);
  strcpy(text, iban);
  if (*text == '\0' || below(2) == 0) {
    size_t at;
    strcpy(text, samples[below(sizeof samples / sizeof *samples)]);
    for (at = 12; text[at] != '\0'; ++at) {
      if (text[at] <= '9') text[at] = (char)('0' + below(10));
    }
    if (text[0] == 'D') memcpy(text + 4, any_bank(), 8);
    set_check_digits(text);
  }
  if (below(4) == 0) text[below((unsigned long)strlen(text))] = (char)('0' + below(43));
  result = tivex_iban_check(text);
  sprintf(answer, "iban %s: %d", text, result);
  result = tivex_iban_getBIC(text, bic);
  sprintf(answer + strlen(answer), " bic %d %s", result, bic);
  result = tivex_iban_getBank(text, &bank);
  sprintf(answer + strlen(answer), " bank %d", result);
  if (bank != NULL) {
    sprintf(answer + strlen(answer), " %s %s %02X", bank->name,
            bank->city != NULL ? bank->city : "-", (unsigned)bank->flags);
  }
  free(bank);
}

/* A document of random amounts without the moment of its creation. */
static int write_document(unsigned long number) {
  static const char *const rulebooks[] = {"DE-2.6", "DE-2.7", "DE-3.0", "DE-3.7", "AT-6", "NL-6"};
  const int type = number % 2 == 0 ? TIVEX_CREDIT_TRANSFER : TIVEX_DIRECT_DEBIT;
  tivex_t *msg;
  char *document;
  char *moment;
  int count;
  if (!tivex_init(TIVEX_OPTION_RULEBOOK, rulebooks[below(sizeof rulebooks / sizeof *rulebooks)]))
    return 0;
  msg = tivex_new(type);
  if (!tivex_setIBAN(msg, "AT611904300234573201") || !tivex_setBIC(msg, "BKAUATWW") ||
      !tivex_setName(msg, "Kontor") || !tivex_setCreditorIdentifier(msg, "DE98ZZZ09999999999") ||
      !tivex_setDate(msg, "2026-12-01") || !tivex_setMessageId(msg, "ANSWERS"))
    return 0;
  for (count = 0; count < PAYMENTS; ++count) {
    char amount[20];
    tivex_keyvalue_t list[] = {{"iban", "NL91ABNA0417164300"}, {"bic", "ABNANL2A"},
                               {"amount", NULL}, {"seq", "RCUR"}, {NULL, NULL}};
    list[2].value = amount;
    if (type == TIVEX_CREDIT_TRANSFER) list[3].key = NULL;
    make_digits(amount, 1 + below(9));
    strcat(amount, ".");
    make_digits(amount + strlen(amount), 1 + below(5));
    tivex_add(msg, list); /* not an amount that comes to nothing */
  }
  document = tivex_toXML(msg);
  tivex_free(msg);
  if (document == NULL) return 0;
  moment = strstr(document, "<CreDtTm>");
  if (moment == NULL) return 0;
  *moment = '\0';
  add_to_checksum(document);
  add_to_checksum(strstr(moment + 1, "</CreDtTm>"));
  free(document);
  return 1;
}

int main(int argc, char **argv) {
  char answer[1000];
  unsigned long number;
  if (argc != 2 || !read_banks(argv[1])) return EXIT_FAILURE;
  checksum = 2166136261UL;
  puts(tivex_edition_str);
  for (number = 0; number < QUESTIONS; ++number) {
    check_account(answer);
    take_answer(number, answer);
  }
  end_of_kind("account checks");
  for (number = 0; number < QUESTIONS; ++number) {
    convert(answer);
    take_answer(number, answer);
  }
  end_of_kind("conversions");
  for (number = 0; number < QUESTIONS; ++number) {
    check_iban(answer);
    take_answer(number, answer);
  }
  end_of_kind("IBAN checks");
  for (number = 0; number < DOCUMENTS; ++number) {
    if (!write_document(number)) return EXIT_FAILURE;
  }
  end_of_kind("documents");
  return EXIT_SUCCESS;
}
