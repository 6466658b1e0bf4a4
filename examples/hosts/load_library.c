/*
 * A host that loads the library while it runs. It needs no import library, so any
 * compiler for Windows will do:
 *
 *     cl /I..\..\include load_library.c
 *     load_library tivex.dll statement.sta
 *
 * It checks an IBAN, looks a bank up, writes a credit transfer document to standard
 * output and, when a statement file is named, reads its closing balances.
 */
#include <stdio.h>
#include <string.h>
#include <windows.h>

#include "tivex.h" /* for types and constants only */

/* The calling convention is cdecl whatever the host's compiler has been told to take. */
static struct {
  int(__cdecl *init)(int, const char *);
  tivex_t *(__cdecl *new_message)(int);
  void(__cdecl *free_message)(tivex_t *);
  const char *(__cdecl *get_error)(const tivex_t *);
  int(__cdecl *set_iban)(tivex_t *, const char *);
  int(__cdecl *set_bic)(tivex_t *, const char *);
  int(__cdecl *set_name)(tivex_t *, const char *);
  int(__cdecl *set_strict)(tivex_t *, unsigned char);
  int(__cdecl *add)(tivex_t *, const tivex_keyvalue_t *);
  char *(__cdecl *to_xml)(tivex_t *);
  int(__cdecl *iban_check)(const char *);
  int(__cdecl *iban_get_bank)(const char *, tivex_bank_info_t **);
  tivex_stmt_parser_t *(__cdecl *parser_new)(void);
  void(__cdecl *parser_free)(tivex_stmt_parser_t *);
  int(__cdecl *parser_load)(tivex_stmt_parser_t *, int, const char *);
  const char *(__cdecl *parser_get_error)(const tivex_stmt_parser_t *);
  tivex_stmt_t *(__cdecl *parser_get_statement)(tivex_stmt_parser_t *);
  void(__cdecl *release)(void *); /* free() of the library's C run-time */
} tivex;

static int missing = 0;

/* FARPROC takes no part in the cast: compilers warn of one between unlike functions. */
typedef void(__cdecl *any_function)(void);

static any_function look_up(HMODULE module, const char *name) {
  const FARPROC address = module != NULL ? GetProcAddress(module, name) : NULL;
  if (address == NULL) {
    fprintf(stderr, "load_library: there is no %s\n", name);
    ++missing;
  }
  return (any_function)address;
}

#define LOOK_UP(result, parameters, name) \
  ((result(__cdecl *) parameters)look_up(library, name))

static int load(const char *path) {
  const HMODULE library = LoadLibraryA(path);
  /* The library links to msvcrt.dll, so that is loaded now. The free() of the host's own
     compiler may belong to another run-time, with a heap of its own. */
  const HMODULE run_time = GetModuleHandleA("msvcrt.dll");
  if (library == NULL) {
    fprintf(stderr, "load_library: error %lu when loading %s\n", GetLastError(), path);
    return 0;
  }
  tivex.init = LOOK_UP(int, (int, const char *), "tivex_init");
  tivex.new_message = LOOK_UP(tivex_t *, (int), "tivex_new");
  tivex.free_message = LOOK_UP(void, (tivex_t *), "tivex_free");
  tivex.get_error = LOOK_UP(const char *, (const tivex_t *), "tivex_getError");
  tivex.set_iban = LOOK_UP(int, (tivex_t *, const char *), "tivex_setIBAN");
  tivex.set_bic = LOOK_UP(int, (tivex_t *, const char *), "tivex_setBIC");
  tivex.set_name = LOOK_UP(int, (tivex_t *, const char *), "tivex_setName");
  tivex.set_strict = LOOK_UP(int, (tivex_t *, unsigned char), "tivex_setStrict");
  tivex.add = LOOK_UP(int, (tivex_t *, const tivex_keyvalue_t *), "tivex_add");
  tivex.to_xml = LOOK_UP(char *, (tivex_t *), "tivex_toXML");
  tivex.iban_check = LOOK_UP(int, (const char *), "tivex_iban_check");
  tivex.iban_get_bank =
      LOOK_UP(int, (const char *, tivex_bank_info_t **), "tivex_iban_getBank");
  tivex.parser_new = LOOK_UP(tivex_stmt_parser_t *, (void), "tivex_stmt_parser_new");
  tivex.parser_free = LOOK_UP(void, (tivex_stmt_parser_t *), "tivex_stmt_parser_free");
  tivex.parser_load =
      LOOK_UP(int, (tivex_stmt_parser_t *, int, const char *), "tivex_stmt_parser_load");
  tivex.parser_get_error =
      LOOK_UP(const char *, (const tivex_stmt_parser_t *), "tivex_stmt_parser_getError");
  tivex.parser_get_statement =
      LOOK_UP(tivex_stmt_t *, (tivex_stmt_parser_t *), "tivex_stmt_parser_getStatement");
  tivex.release = (void(__cdecl *)(void *))look_up(run_time, "free");
  return missing == 0;
}

static int show_bank(const char *iban) {
  tivex_bank_info_t *bank = NULL;
  if (tivex.iban_check(iban) != 1 || tivex.iban_get_bank(iban, &bank) != 1) return 0;
  printf("%s: %s, %s, %s\n", iban, bank->bic, bank->name, bank->city);
  tivex.release(bank);
  return 1;
}

static int write_document(void) {
  static const tivex_keyvalue_t payment[] = {
    {"name", "Jutta M\303\274ller"}, /* UTF-8 */
    {"iban", "NL91ABNA0417164300"},
    {"amount", "2480.15"},
    {"ref", "Salary November 2026"},
    {NULL, NULL}
  };
  tivex_t *msg;
  char *document = NULL;

  if (!tivex.init(TIVEX_OPTION_RULEBOOK, "DE-3.7")) return 0;
  msg = tivex.new_message(TIVEX_CREDIT_TRANSFER);
  if (msg == NULL) return 0;
  if (tivex.set_strict(msg, 1) && tivex.set_name(msg, "Kontor & Partner") &&
      tivex.set_iban(msg, "AT611904300234573201") && tivex.set_bic(msg, "BKAUATWW") &&
      tivex.add(msg, payment)) {
    document = tivex.to_xml(msg);
  }
  if (document != NULL) {
    fputs(document, stdout);
    SecureZeroMemory(document, strlen(document)); /* it holds account data */
    tivex.release(document);
  } else {
    const char *reason = tivex.get_error(msg);
    fprintf(stderr, "load_library: %s\n", reason != NULL ? reason : "out of memory");
  }
  tivex.free_message(msg);
  return document != NULL;
}

static int show_balances(const char *path) {
  tivex_stmt_parser_t *parser = tivex.parser_new();
  const int loaded = tivex.parser_load(parser, TIVEX_FORMAT_MT940, path);
  const tivex_stmt_t *statement = tivex.parser_get_statement(parser);
  if (!loaded) fprintf(stderr, "load_library: %s\n", tivex.parser_get_error(parser));
  for (; statement != NULL; statement = statement->next) {
    printf("%s: %.2f %s\n", statement->account != NULL ? statement->account : "",
           statement->closing_balance, statement->closing_currency);
  }
  tivex.parser_free(parser);
  return loaded;
}

int main(int argument_count, char **arguments) {
  if (argument_count < 2) {
    fprintf(stderr, "usage: load_library DLL [STATEMENT]\n");
    return 2;
  }
  if (!load(arguments[1])) return 1;
  if (!show_bank("DE89370400440532013000") || !write_document()) return 1;
  return argument_count == 2 || show_balances(arguments[2]) ? 0 : 1;
}
