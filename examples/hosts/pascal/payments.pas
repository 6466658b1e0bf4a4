{ Writes a credit transfer document with two payments to standard output:

      fpc payments.pas && ./payments > payments.xml }
program payments;

{$mode objfpc}{$H+}

uses
  tivex;

function fill_header(msg: ptivex_t): Boolean;
begin
  Result := (tivex_setStrict(msg, 1) = 1) { only what the bank's schema accepts }
    and (tivex_setName(msg, 'Kontor & Partner') = 1)
    and (tivex_setIBAN(msg, 'AT611904300234573201') = 1)
    and (tivex_setBIC(msg, 'BKAUATWW') = 1)
    and (tivex_setDate(msg, '2026-12-01') = 1);
end;

function add_payments(msg: ptivex_t): Boolean;
const
  salary: array[0..10] of tivex_keyvalue_t = (
    (key: 'name'; value: 'Jutta M'#$C3#$BC'ller'), { UTF-8 }
    (key: 'iban'; value: 'NL91ABNA0417164300'),
    (key: 'amount'; value: '2480.15'),
    (key: 'purp'; value: 'SALA'),
    (key: 'ref'; value: 'Salary November 2026'),
    (key: 'addrStreet'; value: 'Havenstraat'),
    (key: 'addrNum'; value: '12'),
    (key: 'addrCode'; value: '1011 AB'),
    (key: 'addrTown'; value: 'Amsterdam'),
    (key: 'addrCC'; value: 'NL'),
    (key: nil; value: nil));
  invoice: array[0..5] of tivex_keyvalue_t = (
    (key: 'name'; value: 'Papier Nord'),
    (key: 'iban'; value: 'FR1420041010050500013M02606'),
    (key: 'amount'; value: '119'),
    (key: 'id'; value: 'INV-4711'),
    (key: 'date'; value: '2026-11-30'),
    (key: nil; value: nil));
begin
  Result := (tivex_add(msg, @salary[0]) = 1) and (tivex_add(msg, @invoice[0]) = 1);
end;

var
  msg: ptivex_t;
  document: PAnsiChar = nil;
  reason: PAnsiChar;
begin
  if tivex_init(TIVEX_OPTION_RULEBOOK, 'DE-3.7') <> 1 then Halt(1);
  msg := tivex_new(TIVEX_CREDIT_TRANSFER);
  if msg = nil then Halt(1);

  if fill_header(msg) and add_payments(msg) then document := tivex_toXML(msg);
  if document <> nil then
    Write(document)
  else begin
    reason := tivex_getError(msg);
    if reason = nil then reason := 'out of memory';
    WriteLn(StdErr, 'payments: ', reason);
  end;

  tivex_free(msg);
  tivex_cleanup;
  if document = nil then Halt(1);
  tivex_release(document);
end.
