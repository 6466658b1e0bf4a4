/**
 * @mainpage tivex: payments in the Single Euro Payments Area
 *
 * The library writes pain.001 and pain.008 documents from key-value transactions
 * under eleven national rulebooks, validates IBANs and BICs and finds the bank behind
 * them in a directory of its own. The header tivex.h is its whole interface; it is
 * valid C89, C11 and C++.
 *
 * What holds for every function
 *
 * - Texts are NUL-terminated 8-bit strings in UTF-8. All lengths and limits
 *   count bytes, without the NUL, so a letter with an umlaut counts two.
 *   Letters, digits and case mean ASCII, whatever locale the host has set.
 * - The library copies every text that it keeps; the host keeps owning what it
 *   passes in. The host releases two things with the C run-time's free(): the
 *   document that tivex_toXML returns and the block that a bank lookup returns.
 * - Nothing is printed, logged or thrown, and no call ends the process; a host's
 *   floating-point traps are off while the library computes. Results are small
 *   integers; the reason of a failure is read with tivex_getError.
 * - The library creates no threads. A message belongs to one thread at a time;
 *   different messages may be used by different threads, and the checks and
 *   lookups may be called by any number of threads at once; none waits for
 *   another. tivex_init is called while no other thread is inside the library.
 * - Account data is overwritten with zeros before its memory is released.
 */
#ifndef TIVEX_H
#define TIVEX_H

/**
 * @defgroup library Version, settings and memory
 * What the library is, and what holds for the whole process.
 *
 * @include version.c
 *
 * @{
 */

/** The version: major * 10000 + minor * 100 + patch. It is stated here and nowhere
    else, and so is its text: the build reads them from these lines. What is added to
    this version says since which revision of it (2.28-1, 2.28-2, ...) it is there. */
#define TIVEX_VERSION_INT 22800
/** The version as text. */
#define TIVEX_VERSION_STR "2.28"

/** @cond */
/* TIVEX_STATIC is defined where the library's code is linked into the program itself. */
#if defined(TIVEX_STATIC)
#define TIVEX_API
#elif defined(_WIN32)
#if defined(TIVEX_BUILDING)
#define TIVEX_API __declspec(dllexport)
#else
#define TIVEX_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define TIVEX_API __attribute__((visibility("default")))
#else
#define TIVEX_API
#endif
/** @endcond */

#include <time.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The version of the loaded library, to be compared with TIVEX_VERSION_INT of the
    header that the host was compiled with. */
extern TIVEX_API const int tivex_version_int;

/** The same as text, to be compared with TIVEX_VERSION_STR. It lives as long as the
    library is loaded. */
extern TIVEX_API const char *tivex_version_str;

/** The edition of the compiled bank directory: the date from which its latest
   German data holds, and the numbers of German, Austrian and Swiss (with
   Liechtenstein) bank codes and of BICs, such as
   "2025-03-03 DE 3527 AT 871 CH 1171 BIC 4687". An addition, there since revision
   2.28-1. */
extern TIVEX_API const char *tivex_edition_str;

/** The option of tivex_init that selects the rulebook. */
#define TIVEX_OPTION_RULEBOOK 3

/**
 * Changes a process-wide setting.
 *
 * @param option TIVEX_OPTION_RULEBOOK, the only one.
 * @param value the rulebook's name, compared byte for byte: "DE-2.6", "DE-2.7",
 *        "DE-2.8", "DE-2.9", "DE-3.0", "DE-3.1", "DE-3.5", "DE-3.7", "DE-26.11"
 *        (Germany), "AT-6" (Austria) or "NL-6" (Netherlands).
 *
 * The rulebook decides which characters and address keys tivex_add admits and
 * in which schema version tivex_toXML writes. It is read when a check or a
 * document runs, so it also affects messages that exist already. "DE-26.11" is what
 * German banks work by since 16 November 2026: as "DE-3.7", with address lines beside
 * the parts of an address, instant payments, banks told by their IBANs alone, further
 * keys, and documents of the strict mode only; an addition, there since revision
 * 2.28-1. Without a call the first tivex_new selects "DE-3.7" from 17 April 2024 (local
 * date) on, and "DE-3.5" before.
 *
 * Returns 1, or 0 for another option, a null value or an unknown name; then
 * nothing changes.
 */
TIVEX_API int tivex_init(int option, const char *value);

/**
 * Meant for the end of the library's use. There is nothing to release any more, so
 * it does nothing and may be called at any time, by any thread.
 */
TIVEX_API void tivex_cleanup(void);

/** @} */

/**
 * @defgroup messages Messages
 * A message is made, given its header values and transactions, written as a document
 * and released.
 *
 * @include message.c
 *
 * @{
 */

/** A message: one account of the host's own, header values that its
   transactions share, and the transactions. */
typedef struct tivex_message tivex_t;

/* The kinds of message, for tivex_new. */
#define TIVEX_DIRECT_DEBIT 1    /**< kind of message: pain.008 */
#define TIVEX_CREDIT_TRANSFER 2 /**< kind of message: pain.001 */

/* The local instruments of a direct debit, for tivex_setDDType. */
#define TIVEX_DD_CORE 0 /**< local instrument: core scheme */
#define TIVEX_DD_COR1 1 /**< local instrument: core scheme, one day */
#define TIVEX_DD_B2B 2  /**< local instrument: between businesses */

/* The types of a credit transfer, for tivex_setCTType; an addition, there since revision
   2.28-1. */
#define TIVEX_CT_STANDARD 0 /**< credit transfer: on the next business day */
#define TIVEX_CT_INSTANT 1  /**< credit transfer: within seconds */

/**
 * One property of a transaction, for tivex_add.
 * @ingroup transactions
 */
typedef struct tivex_keyvalue {
  const char *key;   /**< the property's name; null ends the list */
  const char *value; /**< its value */
} tivex_keyvalue_t;

/**
 * Creates an empty message with batch booking on, the CORE local instrument, the
 * standard type of credit transfers and no category purpose.
 * Selects the default rulebook when none is selected yet, even when it then
 * refuses the type.
 *
 * @param type TIVEX_CREDIT_TRANSFER or TIVEX_DIRECT_DEBIT.
 *
 * Returns the message, which the host releases with tivex_free, or null for
 * another type or when memory is exhausted.
 */
TIVEX_API tivex_t *tivex_new(int type);

/**
 * Releases a message with its transactions, all overwritten with zeros before.
 * Null is ignored. The message and every error text read from it must not be
 * used afterwards.
 */
TIVEX_API void tivex_free(tivex_t *msg);

/**
 * Returns the reason of the most recent failure on the message, or null when
 * nothing has failed yet; for a null message "Invalid tivex_t handle (NULL)".
 *
 * A later success does not clear the reason: decide by the functions' results.
 * The text belongs to the message, is at most 255 bytes long and is valid until
 * the next failure on the message or its release. It may repeat account data
 * and single bytes of a text in UTF-8.
 */
TIVEX_API const char *tivex_getError(const tivex_t *msg);

/**
 * @defgroup header_values Header values
 * The setters below store one header value each. They may be called in any
 * order, any number of times, before or after tivex_add; the last value set
 * before tivex_toXML counts.
 *
 * Each returns 1, or 0 with the reason in the message's error text; then the
 * value held before stays, except that it is lost when the copy of the new one
 * could not be allocated ("strdup() failed" in the reason). For a null message
 * each returns 0 and does nothing.
 *
 * @include header_values.c
 *
 * @{
 */

/**
 * Sets the IBAN of the message's own account: the debtor's of a credit
 * transfer, the creditor's of a direct debit. It is checked as tivex_iban_check
 * does and stored as given.
 *
 * Errors: "%s (%s)" with one of the reasons below and the IBAN ("(null)" for a
 * null one), cut at 255 bytes; "strdup() failed".
 *   "Invalid IBAN (NULL)", "Invalid or unknown IBAN country code",
 *   "Wrong IBAN length", "Invalid IBAN format", "Invalid IBAN checksum",
 *   "Invalid character in IBAN", of a German IBAN also
 *   "Invalid bank ID (BLZ) in IBAN" (not in the directory) and
 *   "Invalid account number in IBAN" (by the bank's check-digit method).
 * "Error while initializing regular expressions", a reason of earlier builds, can no
 * longer occur: validation needs no memory.
 */
TIVEX_API int tivex_setIBAN(tivex_t *msg, const char *iban);

/**
 * Sets the BIC (ISO 9362) of the message's own bank, stored in upper case: six
 * letters, a letter or 2 to 9, a letter but O or a digit, and three letters or
 * digits or none, so 8 or 11 bytes.
 *
 * Errors: "tivex_setBIC: invalid BIC" (null or longer than 11 bytes),
 * "tivex_setBIC: invalid BIC format", "tivex_setBIC: strdup() failed".
 */
TIVEX_API int tivex_setBIC(tivex_t *msg, const char *bic);

/**
 * Sets the name of the account's holder: 1 to 70 bytes of the rulebook's
 * widest character set: letters, digits, blank, ' : ? , - ( ) + / . and,
 * except under "DE-2.6", & * $ % and the German letters with umlaut and sharp s;
 * under "AT-6" also the euro sign and ! " # ; < = > @ [ ] ^ _ { | } ~.
 *
 * Errors: "tivex_setAccount: Name too short", "tivex_setAccount: Name too long",
 * "tivex_setName: invalid character '%c' in name" with the first byte of the
 * first character refused, "tivex_setName: strdup() failed".
 */
TIVEX_API int tivex_setName(tivex_t *msg, const char *name);

/**
 * Sets the creditor identifier of a direct debit, 7 to 35 bytes, checked by
 * ISO 7064 MOD 97-10 as the European Payments Council prescribes for it (the
 * creditor business code, characters 5 to 7, takes no part and is not looked at),
 * stored as given and written without escaping.
 *
 * Errors: "Creditor Identifier too short", "Creditor Identifier too long",
 * "Invalid character in Creditor Identifier",
 * "Invalid Creditor Identifier checksum", "strdup() failed".
 */
TIVEX_API int tivex_setCreditorIdentifier(tivex_t *msg, const char *id);

/**
 * Sets the date, "yyyy-mm-dd", on which transactions that bring none of their
 * own are executed or collected. Of its 10 bytes only the start is checked: a number
 * of up to four digits and two of up to two, with hyphens between them, each with
 * white space or a sign in front where there is room. Neither the calendar nor what
 * stands behind the third number is looked at, and the text is written without
 * escaping: "24-1-1xxxx" and "1-1-1<b/>x" are accepted (tivex_setStrict refuses such
 * documents). Without a date tivex_toXML takes today's local date.
 *
 * Errors: "Invalid date" (null or not 10 bytes), "Invalid date format",
 * "strdup() failed".
 */
TIVEX_API int tivex_setDate(tivex_t *msg, const char *date);

/**
 * Sets the local instrument of a direct debit message.
 *
 * @param code TIVEX_DD_CORE, TIVEX_DD_COR1 (only under "DE-2.7", "DE-2.8", "DE-2.9",
 *        "AT-6" and "NL-6") or TIVEX_DD_B2B.
 *
 * Errors: "Not a direct debit message",
 * "Unknown/unsupported LocalInstrumentCode (setDDType)",
 * "COR1 is not allowed with selected SEPA rulebook".
 */
TIVEX_API int tivex_setDDType(tivex_t *msg, int code);

/**
 * Sets the type of a credit transfer message.
 *
 * @param code TIVEX_CT_STANDARD, or TIVEX_CT_INSTANT (only under "DE-26.11"): each
 *        payment is to reach the other account within seconds.
 *
 * An addition, there since revision 2.28-1.
 *
 * Errors: "Not a credit transfer message",
 * "Unknown/unsupported credit transfer type",
 * "Instant payments are not allowed with selected SEPA rulebook".
 */
TIVEX_API int tivex_setCTType(tivex_t *msg, int code);

/**
 * Sets what all payments of the message are for (ISO 20022 external code set of
 * category purposes), by which banks may treat them.
 *
 * @param code four capital letters or digits, such as "SALA" for salaries, or null for
 *        none. It may be set under any rulebook and is written under "DE-26.11" only.
 *
 * An addition, there since revision 2.28-1.
 *
 * Errors: "Invalid category purpose".
 */
TIVEX_API int tivex_setCategoryPurpose(tivex_t *msg, const char *code);

/**
 * Asks the bank to book each payment block as one batch (mode 1, the default)
 * or its transactions singly (mode 0).
 *
 * Errors: "Invalid BatchBooking mode (only 0 or 1 allowed)".
 */
TIVEX_API int tivex_setBatchBooking(tivex_t *msg, unsigned char mode);

/**
 * Sets the message identifier: 1 to 35 letters, digits, blanks and
 * ' ( ) + , - . / : ? under every rulebook. Without it tivex_toXML makes one.
 *
 * Errors: "Invalid message id", "strdup() failed".
 */
TIVEX_API int tivex_setMessageId(tivex_t *msg, const char *id);

/**
 * Chooses how tivex_toXML writes the message: in the prescribed form, whatever
 * the schema says of its values (mode 0, the default), or only as a document that
 * its schema accepts (mode 1, the strict mode; see tivex_toXML). Under "DE-26.11" every
 * document is one of the strict mode.
 *
 * Errors: "Invalid strict mode (only 0 or 1 allowed)".
 *
 * An addition, there since revision 2.28-1.
 */
TIVEX_API int tivex_setStrict(tivex_t *msg, unsigned char mode);

/** @} */
/** @} */

/**
 * @defgroup transactions Transactions
 * A transaction is a list of keys and values.
 *
 * @include transactions.c
 *
 * @{
 */

/**
 * Adds one transaction: to a credit transfer message a payment from the
 * message's own account to a creditor, to a direct debit message a collection
 * from a debtor's account to the message's own. The "other side" below is that
 * creditor or debtor.
 *
 * @param list an array of properties that ends at the first null key. Keys compare
 *        whole and without case. A key may occur again; each value is checked and the
 *        last one counts. A credit transfer ignores unknown keys, a direct debit
 *        refuses them.
 *
 * The keys:
 *
 *     key          value                                            length in bytes
 *     "iban"       the other side's IBAN, required                  15 to 31
 *     "amount"     euro, decimal point, rounded half up to cents,   -
 *                  required; as a binary fraction, so that 1.005
 *                  is 1.00 and cents are exact below 2^45 euro;
 *                  white space may stand in front only
 *     "bic"        the other side's bank; required under "DE-2.6"   8 or 11
 *     "name"       the other side's name                            1 to 70
 *     "ref"        unstructured remittance information              0 to 140
 *     "date"       requested execution or collection date,          10
 *                  "yyyy-mm-dd"
 *     "id"         end-to-end identification                        1 to 35
 *     "addrCC"     country, two capital letters                     2
 *     "addrLine1", "addrLine2"  address lines, not under "DE-3.7"   1 to 70
 *     under "DE-3.7" and "DE-26.11" (a direct debit refuses them otherwise):
 *     "addrDept", "addrSubDept", "addrStreet", "addrFloor", "addrRoom"  1 to 70
 *     "addrBldg", "addrTown", "addrLoc", "addrDstrct", "addrCtrySub"    1 to 35
 *     "addrNum", "addrPoBox", "addrCode"                                1 to 16
 *     under "DE-26.11" only (unknown keys otherwise):
 *     "cref"       creditor reference (ISO 11649): "RF", two check  5 to 25
 *                  digits, capital letters or digits; not beside a
 *                  "ref" that is not empty
 *     "ultmtDbtr"  name of the one on whose behalf the debtor pays  1 to 70
 *     "ultmtCdtr"  name of the one on whose behalf the creditor     1 to 70
 *                  receives
 *     "instrId"    identification for the host's own bank           1 to 35
 *     for a credit transfer:
 *     "purp"       purpose code (ISO 20022 external code set)       4
 *     for a direct debit:
 *     "seq"        sequence type, required: "FRST", "RCUR", "OOFF"  4
 *                  or "FNAL", in either case
 *     "mref"       mandate reference                                1 to 35
 *     "mdate"      date of the mandate's signature, "yyyy-mm-dd"    10
 *     "old_mref"   former reference of an amended mandate           1 to 35
 *     "old_iban"   former IBAN of the debtor                        15 to 31
 *     "smnda"      "1": the debtor has a new account under the      1
 *                  same mandate; "old_iban" is then not written
 *
 * A debtor whose BIC names a SEPA country outside the European Economic Area
 * (such as CH or GB) needs an address line under "DE-3.1" and "DE-3.5", town and
 * country under "DE-3.7" and "DE-26.11"; under the latter a debtor without BIC whose
 * IBAN names such a country needs them as well.
 *
 * Names, also those of ultimate parties, address lines and remittance information take
 * the character set that tivex_setName names, "id" and "instrId" the same without
 * & * $ % and German letters, "mref" and "old_mref" the set of "id" without the blank,
 * which "mref" may hold from "DE-3.0" on; under "AT-6" all of them also take the euro
 * sign and ! " # ; < = > @ [ ] ^ _ { | } ~.
 * "purp", "date" and "mdate" are checked for their length only, structured
 * address parts for theirs, and "purp", "date", "mdate", "id", "mref" and
 * "old_mref" are written without escaping.
 *
 * An address is written in the form of the rulebook that is selected when the
 * document is written: structured parts, when there is a town or a country among
 * them, or address lines and country; under "DE-26.11" parts and lines. What that form
 * has no place for is left out, and so are the values of further keys under other
 * rulebooks.
 *
 * Returns 1, or 0 with the reason in the message's error text; then the
 * message's transactions are as before. For a null message returns 0. When memory
 * does not suffice for the copy of a value other than the IBAN, the transaction may be
 * added without that value; the strict mode then refuses the document.
 *
 * Errors ("%c" the first byte of the first character refused, "%s" the key or
 * value as given):
 *   "No key-value list submitted", "Out of memory", "IBAN missing",
 *   "BIC missing", "Amount missing" (also for amounts that round to 0),
 *   "Creditor reference and remittance information exclude each other",
 *   "Sequence type missing", "Address required for BICs outside EEA",
 *   "Structured address required for BICs outside EEA (at least town and country)",
 *   the IBAN's reasons listed at tivex_setIBAN, alone,
 *   "Invalid BIC", "Invalid BIC format", "Invalid name (must be 1-70 characters)",
 *   "Invalid character '%c' in creditor name",
 *   "Invalid character '%c' in debtor name", "Invalid country code",
 *   "selected SEPA rulebook requires structured address data",
 *   "selected SEPA rulebook does not support structured address data",
 *   "Invalid address line 1 (must be 1-70 chars)",
 *   "Invalid character '%c' in address line 1", both also for line 2,
 *   "Invalid format for '%s'" (structured address),
 *   "Invalid unstructured remittance information (must be 0-140 characters)",
 *   "Invalid character '%c' in unstructured remittance information",
 *   "Invalid purpose (must be 4 characters)", "Invalid amount",
 *   "Empty amount not allowed", "Negative or zero amount not allowed",
 *   "Invalid execution date (format: yyyy-mm-dd)",
 *   "Invalid end-to-end ID (must be 1-35 characters)",
 *   "Invalid character '%c' in end-to-end ID", "Invalid/unknown sequence type",
 *   "Invalid mandate reference (must be 1-35 characters)",
 *   "Invalid character '%c' in mandate reference",
 *   "Invalid mandate signature date (format: yyyy-mm-dd)",
 *   "Invalid old mandate reference (must be 1-35 characters)",
 *   "Invalid character '%c' in old mandate reference",
 *   "Invalid value '%s' for SMNDA flag", "Invalid transaction property '%s'",
 *   "Invalid creditor reference", "Invalid creditor reference checksum",
 *   "Invalid ultimate debtor (must be 1-70 characters)",
 *   "Invalid character '%c' in ultimate debtor",
 *   "Invalid ultimate creditor (must be 1-70 characters)",
 *   "Invalid character '%c' in ultimate creditor",
 *   "Invalid instruction ID (must be 1-35 characters)",
 *   "Invalid character '%c' in instruction ID".
 */
TIVEX_API int tivex_add(tivex_t *msg, const tivex_keyvalue_t *list);

/** @} */

/**
 * @defgroup documents Documents
 * A message becomes a document in XML.
 *
 * @include document.c
 *
 * @{
 */

/**
 * Writes the message as an ISO 20022 document in UTF-8, a customer credit
 * transfer initiation or a customer direct debit initiation in the version that
 * the selected rulebook prescribes:
 *
 *     rulebook                       credit transfer   direct debit
 *     "DE-2.6"                       pain.001.002.03   pain.008.002.02
 *     "DE-2.7" to "DE-2.9"           pain.001.003.03   pain.008.003.02
 *     "DE-3.0" to "DE-3.5",          pain.001.001.03   pain.008.001.02
 *     "AT-6", "NL-6"
 *     "DE-3.7", "DE-26.11"           pain.001.001.09   pain.008.001.08
 *
 * Transactions stand in payment blocks, one for each date in ascending order and,
 * of direct debits, for each sequence type in the order FRST, RCUR, OOFF, FNAL;
 * within a block they stand in the order of adding. A credit transfer is written
 * with the header values that are set, so that the host decides what its bank
 * needs; a direct debit needs IBAN, BIC, name, creditor identifier and a
 * transaction (under "DE-26.11" no BIC), and a mandate's reference or date that is not
 * given is left out.
 *
 * A date or message identifier that is not set is filled in and kept, also when
 * the document is then refused: today's local date, and "SEPA-", local time and
 * seven digits from the process identifier and a process-wide counter. A message
 * may be written repeatedly.
 *
 * In the strict mode (tivex_setStrict) the document is valid by its ISO 20022
 * schema and, under a German rulebook or "AT-6", by the subset of it that the banking
 * industry of the country prescribes and its banks check; and it keeps to rules that
 * hold for every SEPA file though no schema states them. Against the prescribed form the
 * execution date of pain.001.001.09 stands within Dt, elements that would be
 * empty are left out where the schema can do without them, and sums are exact (the
 * prescribed ones are sums of binary fractions). A message whose values do not make
 * such a document is refused before anything is written; values are never altered,
 * though by XML's rules a reader takes a carriage return as a line feed.
 * docs/schemas.md tells what each schema asks for.
 *
 * Returns a new NUL-terminated text that the host owns and releases with the C
 * run-time's free() (it holds account data: overwrite it first where that
 * matters), or null with the reason in the message's error text. For a null
 * message returns null.
 *
 * Errors: "malloc() failed", "cti_toXML: strdup() failed",
 * "ddi_toXML: strdup() failed", "Out of memory",
 * "unknown/unsupported SEPA rulebook selected"; of a direct debit also
 * "Missing creditor IBAN", "Missing creditor BIC", "Missing creditor name",
 * "Missing creditor identifier", "No transactions available" and
 * "Unknown/unsupported LocalInstrumentCode (setDDType)" (COR1 from "DE-3.0" on); of a
 * credit transfer "Instant payments are not allowed with selected SEPA rulebook" (when
 * the rulebook has changed).
 * When memory is exhausted the error text may stay as it was.
 * In the strict mode also the first flaw of the values: those of the header stand
 * before those of the transactions, which stand in the order of adding (counted
 * from 1), each with the keys in the order name, bic, address, purp, amount, date,
 * id, mref, mdate, old_mref, ref, ultmtDbtr, ultmtCdtr, instrId, and sums come last;
 * "%s" is the key at the first place and the schema version at the second:
 *   "message: %s ..." with IBAN, BIC, name, creditor identifier, date, message id,
 *   transactions, sum or local instrument, "transaction %u: %s ..." with a
 *   key of tivex_add, and
 *   "missing (required by %s)", "is not a calendar date (required by %s)",
 *   "has character '%c' (not allowed by %s)",
 *   "has byte 0x%02X (not allowed by %s)" (by the schema's version, or by XML, in
 *   which a value that is not escaped must hold no markup either),
 *   "has ']]>' (not allowed by XML)", "lost (out of memory)" (see tivex_add; first of
 *   its transaction's),
 *   "above 999999999.99 (not allowed by %s)",
 *   "above 999999999999.99 (not allowed by %s)" (sums), "above 999999 (not allowed by
 *   %s)" (transactions), "is not in the list of purposes (not allowed by %s)" (with the
 *   name of the subset that has the list, such as pain.001.001.03.at.004),
 *   "of more than 18 digits (not allowed by %s)", "is COR1 (not allowed by %s)",
 *   "has '/' at its start (not allowed by SEPA)", "has '/' at its end (not allowed by
 *   SEPA)", "has '//' (not allowed by SEPA)", "has blanks only (not allowed by SEPA)",
 *   "missing (not allowed by SEPA)" (the address of a debtor whose IBAN names a country
 *   outside the European Economic Area),
 *   "is not two letters, two digits, business code and national identifier
 *   (required by %s)", "above %u bytes, payment ids above 35 (not allowed by %s)"
 *   (they are the message's with "-P" and the block's number).
 * For instance "transaction 17: name missing (required by pain.001.001.09)".
 */
TIVEX_API char *tivex_toXML(tivex_t *msg);

/** @} */

/**
 * @defgroup validation Validation
 * IBANs are checked without a message.
 *
 * @include validation.c
 *
 * @{
 */

/**
 * Checks an IBAN (ISO 13616) of the 37 countries whose rules the library
 * holds: country, length (15 to 31 bytes), national format and check digits; of
 * German IBANs also that the bank code is in the compiled directory and that the
 * account number passes the bank's check-digit method (tivex_account_check2; an
 * account that is not checked passes). Capital letters only, no blanks.
 *
 * Returns 1 for a valid IBAN, -1 for an invalid or null one. tivex_setIBAN gives
 * the reason.
 */
TIVEX_API int tivex_iban_check(const char *iban);

/** @} */

/**
 * @defgroup directory Bank directory
 * The lookups read a directory that is compiled into the library, and the
 * clock: a German bank code may change on a date that the directory knows, and
 * from 00:00 German time of that date the changed data is returned without the
 * library being loaded anew.
 *
 * Their argument info says where to store the address of a new block when the bank
 * is found; it is null when the host only wants to know whether the bank exists. On
 * any other result what it points to is left as it was.
 *
 * Results: 1 found, 0 no directory for this country, -1 invalid IBAN, -2 not in
 * the directory, -3 memory exhausted.
 *
 * @include directory.c
 *
 * @{
 */

/**
 * The bank behind a code. The block and its texts are one allocation of the C
 * run-time's malloc(): the host releases it with one call of free().
 */
typedef struct tivex_bank_info {
  char *name;           /**< of the institution */
  char *postcode;       /**< null after tivex_bic_getBank, otherwise may be empty */
  char *city;           /**< null after tivex_bic_getBank, otherwise may be empty */
  char *country;        /**< ISO 3166 code of the address, empty for Switzerland; after
                           tivex_bic_getBank that of the BIC */
  char *bic;            /**< 11 characters, or empty for a bank without one */
  unsigned short flags; /**< after tivex_bic_getBank TIVEX_SCHEME_..., otherwise 0 */
} tivex_bank_info_t;

/* Payment schemes by which a BIC is reachable, as the Deutsche Bundesbank's
   register of reachable payment service providers states them. Other bits may
   be set in later editions. */
#define TIVEX_SCHEME_CREDIT_TRANSFER 0x01 /**< SEPA credit transfer */
#define TIVEX_SCHEME_DEBIT_CORE 0x02      /**< SEPA direct debit, core */
#define TIVEX_SCHEME_DEBIT_B2B 0x08       /**< SEPA direct debit between businesses */

/**
 * Finds a bank by its national bank code.
 *
 * @param country "AT", "CH", "DE" or "LI", in capital letters.
 * @param bank_code at most 5 bytes, for "DE" 8; zeros on the left may be left out. "LI"
 *        and "CH" share their bank codes.
 *
 * Returns 1, 0 (another or null country), -2 (also for a null, empty or too long
 * bank code) or -3.
 */
TIVEX_API int tivex_bankid_check(const char *country, const char *bank_code,
                                 tivex_bank_info_t **info);

/**
 * Finds the bank that an IBAN of AT, CH, DE or LI names. The IBAN is checked as
 * tivex_iban_check does.
 *
 * Returns 1, 0 (a valid IBAN of another country), -1 (also for null), -2 or -3.
 */
TIVEX_API int tivex_iban_getBank(const char *iban, tivex_bank_info_t **info);

/**
 * Finds a payment service provider by its BIC (ISO 9362): 8 or 11 letters and
 * digits in either case; 8 stand for the same with "XXX" behind them. postcode
 * and city of the block are null.
 *
 * Returns 1, -2 (also for a null or malformed BIC) or -3.
 */
TIVEX_API int tivex_bic_getBank(const char *bic, tivex_bank_info_t **info);

/**
 * Returns the check-digit method of a German bank code, for tivex_account_check2:
 * 0 to 255, its two characters as hexadecimal digits. As with the lookups above
 * it is the method that holds now, zeros on the left may be left out, and -2 means
 * not in the directory (also for a null, empty or too long bank code).
 *
 * An addition, there since revision 2.28-1.
 */
TIVEX_API int tivex_bankid_getMethod(const char *bank_code);

/**
 * Tells whether a German bank code is marked for deletion, that is given up already or
 * about to be, and which bank code has taken over. As with the lookups above it is the
 * data that holds now.
 *
 * @param bank_code 8 bytes; zeros on the left may be left out.
 * @param successor 9 bytes that receive the bank code that has taken over, 8 digits and a
 *        NUL; an empty text when the directory names none and when the bank code is not
 *        in it; or null. It is the direct successor, which may have one of its own: ask
 *        again with it. tivex_iban_convert follows all of them, marked or not.
 *
 * Returns 1 (marked), 0 (in the directory, not marked; a successor that is named all the
 * same is told, today's directory has no such bank code) or -2 (not in the directory, also
 * for a null, empty or too long bank code).
 *
 * An addition, there since revision 2.28-1.
 */
TIVEX_API int tivex_bankid_getSuccessor(const char *bank_code, char *successor);

/** @} */

/**
 * @defgroup accounts German account numbers
 * Account numbers are checked by the methods of their banks.
 *
 * @include accounts.c
 *
 * @{
 */

/* Results of the account checks. */
#define TIVEX_ACCOUNT_INVALID (-1)       /**< fails the check */
#define TIVEX_ACCOUNT_NOT_CHECKED 0      /**< there is no check for it */
#define TIVEX_ACCOUNT_VALID 1            /**< passes the check */
#define TIVEX_ACCOUNT_VALID_BY_VARIANT 2 /**< second variant of method 76 */

/**
 * Checks a German account number by a check-digit method of the Deutsche
 * Bundesbank's list ("Pruefzifferberechnungsmethoden zur Pruefung von
 * Kontonummern auf ihre Richtigkeit").
 *
 * @param account 1 to 10 bytes; zeros on the left may be left out. Characters other
 *        than digits are not refused as such, they fail or pass by the method's
 *        arithmetic.
 * @param method the method's two characters as hexadecimal digits: 0x00 for "00", 0xB6
 *        for "B6". Only the low 8 bits count.
 *
 * Returns TIVEX_ACCOUNT_VALID, TIVEX_ACCOUNT_VALID_BY_VARIANT (valid as well),
 * TIVEX_ACCOUNT_NOT_CHECKED (there is no such method, method 09, an account that
 * the method leaves unchecked, or method 52, 53, B6 or C0, which need
 * tivex_account_check2), or TIVEX_ACCOUNT_INVALID (also for a null, empty or too
 * long account).
 */
TIVEX_API int tivex_account_check(const char *account, int method);

/**
 * Does the same with the bank code, which methods 52, 53, B6 and C0 need and the
 * others ignore.
 *
 * @param bank_code 8 bytes; any other length and null give TIVEX_ACCOUNT_INVALID,
 *        whatever the method.
 */
TIVEX_API int tivex_account_check2(const char *account, const char *bank_code, int method);

/** @} */

/**
 * @defgroup conversion IBANs from German account numbers
 * Account number and bank code become an IBAN, and an IBAN leads to its BIC.
 *
 * @include conversion.c
 *
 * @{
 */

/* What tivex_iban_convert reports besides its result. */
/** The IBAN was made from what was given. Without an IBAN, the status of arguments that
   are refused, of another country and of banks that state no IBAN without saying why. */
#define TIVEX_CONVERSION_AS_GIVEN 0
#define TIVEX_CONVERSION_ACCOUNT_REPLACED 1   /**< made with another account number */
#define TIVEX_CONVERSION_BANK_UNKNOWN 10      /**< bank code or successor not in the directory */
#define TIVEX_CONVERSION_ACCOUNT_INVALID 11   /**< by the bank's check-digit method */
#define TIVEX_CONVERSION_BANK_REFUSES 12      /**< the bank does not allow a conversion */
#define TIVEX_CONVERSION_SUCCESSOR_USED 13    /**< the bank code has a successor */
#define TIVEX_CONVERSION_BANK_CODE_REPLACED 15 /**< made with another bank code */
#define TIVEX_CONVERSION_ACCOUNT_REFUSED 50   /**< no IBAN for this account number */

/**
 * Makes the IBAN of a German account number and bank code by the IBAN rule of the
 * bank (Deutsche Bundesbank, "IBAN-Regeln"): most state the standard IBAN, some
 * another bank code or account number, some none. A bank code that has a
 * successor is converted with the successor's.
 *
 * @param country "DE".
 * @param account 1 to 10 bytes; zeros on the left may be left out.
 * @param bank_code 8 bytes.
 * @param iban 35 bytes that receive the IBAN of 22 characters and NULs, or null.
 *        Without an IBAN its first byte is NUL.
 * @param status receives a TIVEX_CONVERSION_... value, also when no IBAN is made; or
 *        null.
 *
 * Returns 1: the IBAN was made; 0: another country (or a bank with an unknown
 * rule); -1: a null country, account or bank code, one of wrong length, an account
 * that fails the check, or the bank states no IBAN; -3: the bank code or its
 * successor is not in the directory, or a character is neither digit nor letter.
 */
TIVEX_API int tivex_iban_convert(const char *country, const char *account,
                                 const char *bank_code, char *iban, unsigned char *status);

/**
 * Finds the BIC that belongs to an IBAN of AT, CH, LI or DE, for German banks with
 * what their IBAN rules say about it. Only the country, the length and the bank
 * code of the IBAN are looked at.
 *
 * @param bic 12 bytes that receive the BIC of 11 characters and a NUL; 12 NULs when
 *        there is none.
 *
 * Returns 1 (the BIC is empty when the bank has none), 0 (null or another country),
 * -1 (wrong length for the country) or -3 (bank code not in the directory).
 */
TIVEX_API int tivex_iban_getBIC(const char *iban, char *bic);

/** @} */

/**
 * @defgroup statements Bank statements
 * A parser reads a file and holds its statements.
 *
 * @include statements.c
 *
 * @{
 */

/** Reads one statement file. The host creates a parser for every file. */
typedef struct tivex_stmt_parser tivex_stmt_parser_t;

/** A format: SWIFT MT940, customer statement message, in the form that banks agreed on. */
#define TIVEX_FORMAT_MT940 1
/** A format: TIVEX_FORMAT_CAMT where "<" comes first, behind a byte order mark and white space,
    else TIVEX_FORMAT_MT940_DIALECTS. */
#define TIVEX_FORMAT_DETECT 1000
/** A format: ISO 20022 camt.052 (report), camt.053 (statement) and camt.054 (notification),
    version 02 and later. Texts are UTF-8 whatever encoding the file declares. */
#define TIVEX_FORMAT_CAMT 1053
/** A format: MT940 and MT942 as banks write them: other line ends, missing and additional tags,
    other forms of tag 86. */
#define TIVEX_FORMAT_MT940_DIALECTS 1940

/**
 * One entry of a statement: a tag 61 and the tag 86 that follows it, an Ntry of CAMT or one of
 * its TxDtls. The members are described as MT940 has them; docs/statements.md tells what fills
 * them in the other formats. Texts are as the file has them, in the bank's encoding (CAMT:
 * UTF-8); they and the record belong to the parser. What the file does not hold is null, 0 or
 * empty. Of dates only tm_mday, tm_mon and tm_year are set.
 */
typedef struct tivex_stmt_tx {
  struct tm value_date;    /**< value date */
  struct tm booking_date;  /**< entry date; all members 0 without one */
  unsigned char reversal;  /**< 1 for a reversal (mark RC or RD), which takes the amount back */
  double amount;           /**< negative for the mark D, also in RD */
  char type_code[4];       /**< transaction type identification behind its N, such as TRF */
  char *customer_ref;      /**< reference for the account owner */
  char *bank_ref;          /**< reference of the bank, behind the slashes */
  char *booking_text;      /**< subfield 00 of tag 86 */
  char *primanota;         /**< subfield 10 */
  int gvc;                 /**< business transaction code, three digits */
  int text_key_ext;        /**< subfield 34, three digits */
  char bank_code[13];      /**< of the other side: bank code or BIC, up to 12 bytes */
  char account_no[35];     /**< of the other side: account number or IBAN, up to 34 bytes */
  char name[56];           /**< of the other side, up to 55 bytes */
  char *purpose;           /**< purpose without a keyword; line feeds between its lines */
  char *eref;              /**< EREF+ end-to-end reference */
  char *kref;              /**< KREF+ customer reference */
  char *mref;              /**< MREF+ mandate reference */
  char *cred;              /**< CRED+ creditor identifier */
  char *debt;              /**< DEBT+ debtor identifier */
  char *purp;              /**< PURP+ purpose code */
  char *coam;              /**< COAM+ compensation amount, decimal point */
  char *oamt;              /**< OAMT+ initial amount, decimal point */
  char *svwz;              /**< SVWZ+ remittance information */
  char *abwa;              /**< ABWA+ deviating debtor */
  char *abwe;              /**< ABWE+ deviating creditor */
  struct tivex_stmt_tx *next; /**< null after the statement's last entry */
  char *full_name;            /**< name uncut; TIVEX_FORMAT_MT940: points to name */
  char *return_reason;        /**< why a payment came back; null in TIVEX_FORMAT_MT940 */
} tivex_stmt_tx_t;

/** One statement, with what was said of texts and dates above. */
typedef struct tivex_stmt {
  char *reference;           /**< tag 20 */
  char *account;             /**< tag 25; null when absent */
  unsigned int statement_no; /**< tag 28C */
  unsigned int sequence_no;  /**< tag 28C behind the slash; 0 when absent */
  struct tm opening_date;    /**< tag 60F or 60M */
  struct tm closing_date;    /**< tag 62F or 62M */
  double opening_balance;    /**< negative for a debit balance */
  double closing_balance;    /**< negative for a debit balance */
  char opening_currency[4];  /**< ISO 4217 */
  char closing_currency[4];  /**< ISO 4217 */
  tivex_stmt_tx_t *first_tx; /**< entries in the order of the file */
  tivex_stmt_tx_t *last_tx;  /**< null when there is none */
  struct tivex_stmt *next;   /**< null after the last statement */
} tivex_stmt_t;

/** Returns a new parser, which the host releases with tivex_stmt_parser_free, or
   null when memory is exhausted. */
TIVEX_API tivex_stmt_parser_t *tivex_stmt_parser_new(void);

/**
 * Reads a file, once in the life of a parser.
 *
 * @param format one of TIVEX_FORMAT_DETECT, TIVEX_FORMAT_CAMT, TIVEX_FORMAT_MT940_DIALECTS and
 *        TIVEX_FORMAT_MT940.
 * @param path the file, in the encoding of the system. In TIVEX_FORMAT_MT940 lines end with
 *        CR LF and a statement begins with CR LF and ":20:". Opening does not wait for a
 *        pipe's writer, but while another process gives up a lease on the file, for which
 *        the system bounds the time.
 *
 * In TIVEX_FORMAT_MT940 what does not fit the format ends a statement, in
 * TIVEX_FORMAT_MT940_DIALECTS it is passed over; neither is an error, and a file without any
 * statement is read successfully. A CAMT document that is refused gives no statements.
 *
 * Returns 1, or 0 with the reason in the parser's error text; for a null parser 0.
 * Errors (%s the system's text): "Parser already used" (also after a load that
 * failed), "Format not (yet) supported",
 * "Error while allocating %lu bytes: %s", "Can't open input file: %s" (also for a
 * null path), "Can't stat input file: %s", "Input file is empty",
 * "Failed to allocate %li bytes", "Error while reading from file: %s". When memory is
 * exhausted for the records, or the file begins with a NUL byte, the text stays
 * empty; there are no statements then. Of CAMT besides: "Not well-formed XML (line %u)",
 * "DOCTYPE not allowed (line %u)", "Elements nested too deep (line %u)" (an element inside 256
 * others), "Unsupported encoding: %s" (others than UTF-8, US-ASCII, ISO-8859-1, ISO-8859-15 and
 * windows-1252), "No camt document" (another root or content).
 */
TIVEX_API int tivex_stmt_parser_load(tivex_stmt_parser_t *parser, int format, const char *path);

/** Returns the first statement; null when there is none and for a null parser. The
   records and all they point to belong to the parser. */
TIVEX_API tivex_stmt_t *tivex_stmt_parser_getStatement(tivex_stmt_parser_t *parser);

/** Returns the reason of the failure, at most 255 bytes, empty before one; for a null
   parser "invalid tivex_stmt_parser_t handle". The text belongs to the parser. */
TIVEX_API const char *tivex_stmt_parser_getError(const tivex_stmt_parser_t *parser);

/** Returns how many entries of the file were left out because they are not booked yet:
    pending ones of CAMT, expected ones (marks ED and EC) of MT940 in a dialect. 0 for a null
    parser. */
TIVEX_API unsigned tivex_stmt_parser_getPending(const tivex_stmt_parser_t *parser);

/** Releases the parser with its statements and texts, all overwritten with zeros
   before. Null is ignored. */
TIVEX_API void tivex_stmt_parser_free(tivex_stmt_parser_t *parser);

/** @} */

#ifdef __cplusplus
}
#endif

#endif /* TIVEX_H */
