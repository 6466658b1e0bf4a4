{ tivex for Free Pascal, on Windows and elsewhere: include/tivex.h, which says what each
  function does, in Pascal. A program is compiled with

      fpc -Fl<folder of the library> payments.pas

  Texts are NUL-terminated and in UTF-8. Pass UTF-8 strings with PAnsiChar(...); the
  library copies what it keeps. }
unit tivex;

{$mode objfpc}{$H+}
{$packrecords c}

interface

uses
  ctypes;

const
{$ifdef windows}
  library_name = 'tivex.dll';
  run_time_name = 'msvcrt.dll'; { the one that the library itself is linked to }
{$else}
  library_name = 'tivex';
  run_time_name = 'c';
{$endif}

  { The header's version. Pascal, which does not tell capitals from small letters, would
    take its name for that of the library's tivex_version_int. }
  TIVEX_HEADER_VERSION_INT = 22800;
  TIVEX_HEADER_VERSION_STR = '2.28';

  TIVEX_OPTION_RULEBOOK = 3;

  TIVEX_DIRECT_DEBIT = 1;
  TIVEX_CREDIT_TRANSFER = 2;

  TIVEX_DD_CORE = 0;
  TIVEX_DD_COR1 = 1;
  TIVEX_DD_B2B = 2;

  TIVEX_CT_STANDARD = 0;
  TIVEX_CT_INSTANT = 1;

  TIVEX_SCHEME_CREDIT_TRANSFER = $01;
  TIVEX_SCHEME_DEBIT_CORE = $02;
  TIVEX_SCHEME_DEBIT_B2B = $08;

  TIVEX_ACCOUNT_INVALID = -1;
  TIVEX_ACCOUNT_NOT_CHECKED = 0;
  TIVEX_ACCOUNT_VALID = 1;
  TIVEX_ACCOUNT_VALID_BY_VARIANT = 2;

  TIVEX_CONVERSION_AS_GIVEN = 0;
  TIVEX_CONVERSION_ACCOUNT_REPLACED = 1;
  TIVEX_CONVERSION_BANK_UNKNOWN = 10;
  TIVEX_CONVERSION_ACCOUNT_INVALID = 11;
  TIVEX_CONVERSION_BANK_REFUSES = 12;
  TIVEX_CONVERSION_SUCCESSOR_USED = 13;
  TIVEX_CONVERSION_BANK_CODE_REPLACED = 15;
  TIVEX_CONVERSION_ACCOUNT_REFUSED = 50;

  TIVEX_FORMAT_MT940 = 1;
  TIVEX_FORMAT_DETECT = 1000;
  TIVEX_FORMAT_CAMT = 1053;
  TIVEX_FORMAT_MT940_DIALECTS = 1940;

type
  { A message and a statement parser: only the library looks inside. }
  tivex_t = record
  end;
  ptivex_t = ^tivex_t;
  tivex_stmt_parser_t = record
  end;
  ptivex_stmt_parser_t = ^tivex_stmt_parser_t;

  { A list of these ends with a nil key. }
  tivex_keyvalue_t = record
    key: PAnsiChar;
    value: PAnsiChar;
  end;
  ptivex_keyvalue_t = ^tivex_keyvalue_t;

  { Released with one call of tivex_release. }
  tivex_bank_info_t = record
    name: PAnsiChar;
    postcode: PAnsiChar;
    city: PAnsiChar;
    country: PAnsiChar;
    bic: PAnsiChar;
    flags: cushort;
  end;
  ptivex_bank_info_t = ^tivex_bank_info_t;
  pptivex_bank_info_t = ^ptivex_bank_info_t;

  { struct tm of the C run-time. }
  tivex_tm = record
    tm_sec: cint;
    tm_min: cint;
    tm_hour: cint;
    tm_mday: cint;
    tm_mon: cint;  { from 0 }
    tm_year: cint; { from 1900 }
    tm_wday: cint;
    tm_yday: cint;
    tm_isdst: cint;
{$ifndef windows}
    tm_gmtoff: clong;
    tm_zone: PAnsiChar;
{$endif}
  end;

  ptivex_stmt_tx_t = ^tivex_stmt_tx_t;
  tivex_stmt_tx_t = record
    value_date: tivex_tm;
    booking_date: tivex_tm;
    reversal: cuchar;
    amount: cdouble;
    type_code: array[0..3] of AnsiChar;
    customer_ref: PAnsiChar;
    bank_ref: PAnsiChar;
    booking_text: PAnsiChar;
    primanota: PAnsiChar;
    gvc: cint;
    text_key_ext: cint;
    bank_code: array[0..12] of AnsiChar;
    account_no: array[0..34] of AnsiChar;
    name: array[0..55] of AnsiChar;
    purpose: PAnsiChar;
    eref: PAnsiChar;
    kref: PAnsiChar;
    mref: PAnsiChar;
    cred: PAnsiChar;
    debt: PAnsiChar;
    purp: PAnsiChar;
    coam: PAnsiChar;
    oamt: PAnsiChar;
    svwz: PAnsiChar;
    abwa: PAnsiChar;
    abwe: PAnsiChar;
    next: ptivex_stmt_tx_t;
    full_name: PAnsiChar;
    return_reason: PAnsiChar;
  end;

  ptivex_stmt_t = ^tivex_stmt_t;
  tivex_stmt_t = record
    reference: PAnsiChar;
    account: PAnsiChar;
    statement_no: cuint;
    sequence_no: cuint;
    opening_date: tivex_tm;
    closing_date: tivex_tm;
    opening_balance: cdouble;
    closing_balance: cdouble;
    opening_currency: array[0..3] of AnsiChar;
    closing_currency: array[0..3] of AnsiChar;
    first_tx: ptivex_stmt_tx_t;
    last_tx: ptivex_stmt_tx_t;
    next: ptivex_stmt_t;
  end;

var
  tivex_version_int: cint; external library_name name 'tivex_version_int';
  tivex_version_str: PAnsiChar; external library_name name 'tivex_version_str';
  tivex_edition_str: PAnsiChar; external library_name name 'tivex_edition_str';

function tivex_init(option: cint; value: PAnsiChar): cint; cdecl; external library_name;
procedure tivex_cleanup; cdecl; external library_name;

function tivex_new(kind: cint): ptivex_t; cdecl; external library_name;
procedure tivex_free(msg: ptivex_t); cdecl; external library_name;
function tivex_getError(msg: ptivex_t): PAnsiChar; cdecl; external library_name;
function tivex_setIBAN(msg: ptivex_t; iban: PAnsiChar): cint; cdecl; external library_name;
function tivex_setBIC(msg: ptivex_t; bic: PAnsiChar): cint; cdecl; external library_name;
function tivex_setName(msg: ptivex_t; name: PAnsiChar): cint; cdecl; external library_name;
function tivex_setCreditorIdentifier(msg: ptivex_t; id: PAnsiChar): cint; cdecl;
  external library_name;
function tivex_setDate(msg: ptivex_t; date: PAnsiChar): cint; cdecl; external library_name;
function tivex_setDDType(msg: ptivex_t; code: cint): cint; cdecl; external library_name;
function tivex_setCTType(msg: ptivex_t; code: cint): cint; cdecl; external library_name;
function tivex_setCategoryPurpose(msg: ptivex_t; code: PAnsiChar): cint; cdecl; external library_name;
function tivex_setBatchBooking(msg: ptivex_t; mode: cuchar): cint; cdecl; external library_name;
function tivex_setMessageId(msg: ptivex_t; id: PAnsiChar): cint; cdecl; external library_name;
function tivex_setStrict(msg: ptivex_t; mode: cuchar): cint; cdecl; external library_name;
function tivex_add(msg: ptivex_t; list: ptivex_keyvalue_t): cint; cdecl; external library_name;
{ The text is the host's, who releases it with tivex_release. }
function tivex_toXML(msg: ptivex_t): PAnsiChar; cdecl; external library_name;

function tivex_iban_check(iban: PAnsiChar): cint; cdecl; external library_name;

{ info: where the address of a new record goes, or nil. }
function tivex_bankid_check(country, bank_code: PAnsiChar; info: pptivex_bank_info_t): cint;
  cdecl; external library_name;
function tivex_iban_getBank(iban: PAnsiChar; info: pptivex_bank_info_t): cint; cdecl;
  external library_name;
function tivex_bic_getBank(bic: PAnsiChar; info: pptivex_bank_info_t): cint; cdecl;
  external library_name;
function tivex_bankid_getMethod(bank_code: PAnsiChar): cint; cdecl; external library_name;
{ successor: 9 bytes or nil. }
function tivex_bankid_getSuccessor(bank_code, successor: PAnsiChar): cint; cdecl;
  external library_name;

function tivex_account_check(account: PAnsiChar; method: cint): cint; cdecl;
  external library_name;
function tivex_account_check2(account, bank_code: PAnsiChar; method: cint): cint; cdecl;
  external library_name;

{ iban: 35 bytes or nil; status: where a TIVEX_CONVERSION_... goes, or nil. }
function tivex_iban_convert(country, account, bank_code, iban: PAnsiChar;
  status: pcuchar): cint; cdecl; external library_name;
{ bic: 12 bytes. }
function tivex_iban_getBIC(iban, bic: PAnsiChar): cint; cdecl; external library_name;

function tivex_stmt_parser_new: ptivex_stmt_parser_t; cdecl; external library_name;
{ path: on Windows in the code page of the process, GetACP. }
function tivex_stmt_parser_load(parser: ptivex_stmt_parser_t; format: cint;
  path: PAnsiChar): cint; cdecl; external library_name;
function tivex_stmt_parser_getStatement(parser: ptivex_stmt_parser_t): ptivex_stmt_t; cdecl;
  external library_name;
function tivex_stmt_parser_getError(parser: ptivex_stmt_parser_t): PAnsiChar; cdecl;
  external library_name;
function tivex_stmt_parser_getPending(parser: ptivex_stmt_parser_t): Cardinal; cdecl;
  external library_name;
procedure tivex_stmt_parser_free(parser: ptivex_stmt_parser_t); cdecl; external library_name;

{ Releases a document or a bank: free() of the library's C run-time. Dispose and FreeMem
  belong to another heap. }
procedure tivex_release(block: Pointer); cdecl; external run_time_name name 'free';

implementation

end.
