{ Reads a statement file through the Pascal records, whose members stand where the
  library puts them: FILE. Prints a line for each statement. }
program statements;

{$mode objfpc}{$H+}

uses
  tivex;

var
  parser: ptivex_stmt_parser_t;
  statement: ptivex_stmt_t;
  entry: ptivex_stmt_tx_t;
  bank: ptivex_bank_info_t;
  entries, keywords: Integer;
  amounts: Int64;
begin
  if tivex_version_int <> TIVEX_HEADER_VERSION_INT then Halt(1);
  if tivex_bic_getBank('MARKDEFF', @bank) <> 1 then Halt(1);
  WriteLn(bank^.bic, ' ', bank^.flags and TIVEX_SCHEME_CREDIT_TRANSFER);
  tivex_release(bank);

  parser := tivex_stmt_parser_new;
  if tivex_stmt_parser_load(parser, TIVEX_FORMAT_MT940, PAnsiChar(ParamStr(1))) <> 1 then Halt(1);
  statement := tivex_stmt_parser_getStatement(parser);
  while statement <> nil do begin
    entries := 0;
    keywords := 0;
    amounts := 0;
    entry := statement^.first_tx;
    while entry <> nil do begin
      Inc(entries);
      if entry^.svwz <> nil then Inc(keywords);
      amounts := amounts + Round(entry^.amount * 100);
      entry := entry^.next;
    end;
    WriteLn(statement^.account, ' ', statement^.statement_no, ' ', statement^.closing_date.tm_mday,
      ' ', statement^.opening_balance:0:2, ' ', amounts, ' ', statement^.closing_balance:0:2, ' ',
      statement^.closing_currency, ' ', entries, ' ', keywords, ' ', statement^.last_tx^.name);
    statement := statement^.next;
  end;
  tivex_stmt_parser_free(parser);
end.
