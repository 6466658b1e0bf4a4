{ Sums that overflow or have no value, in a language that lets them trap: FILE, which is
  written. Ends with 0 when the library deals with them as elsewhere. }
program traps;

{$mode objfpc}{$H+}

uses
  Math, tivex;

procedure expect(holds: Boolean; const what: string);
begin
  if holds then Exit;
  WriteLn('not so: ', what);
  ExitCode := 1;
end;

function add(msg: ptivex_t; amount: PAnsiChar): Boolean;
var
  list: array[0..2] of tivex_keyvalue_t;
begin
  list[0].key := 'iban';
  list[0].value := 'NL91ABNA0417164300';
  list[1].key := 'amount';
  list[1].value := amount;
  list[2].key := nil;
  Result := tivex_add(msg, @list[0]) = 1;
end;

var
  msg: ptivex_t;
  document: PAnsiChar;
  parser: ptivex_stmt_parser_t;
  statement: Text;
begin
  msg := tivex_new(TIVEX_CREDIT_TRANSFER);
  expect(not add(msg, '1e400'), 'infinity is refused');
  expect(not add(msg, '0e400'), 'zero times infinity is refused');
  expect(not add(msg, '1e-400'), 'one by infinity is refused');
  expect(add(msg, '1e306') and add(msg, '1e306'), 'a large amount is taken');
  document := tivex_toXML(msg);
  expect(document <> nil, 'a sum above all numbers is written');
  tivex_release(document);
  tivex_free(msg);

  Assign(statement, ParamStr(1));
  Rewrite(statement);
  Write(statement, #13#10':20:A'#13#10':25:B'#13#10':28C:1'#13#10':60F:C261102EUR',
    StringOfChar('9', 400), ','#13#10':62F:C261102EUR1,'#13#10'-'#13#10);
  Close(statement);
  parser := tivex_stmt_parser_new;
  expect(tivex_stmt_parser_load(parser, TIVEX_FORMAT_MT940, PAnsiChar(ParamStr(1))) = 1,
    'a balance above all numbers is read');
  expect(tivex_stmt_parser_getStatement(parser) <> nil, 'there is its statement');
  expect(IsInfinite(tivex_stmt_parser_getStatement(parser)^.opening_balance), 'infinity stays');
  tivex_stmt_parser_free(parser);
  expect(not (exOverflow in GetExceptionMask), 'the host has its traps again');
end.
