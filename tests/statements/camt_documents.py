#!/usr/bin/env python3
"""Random CAMT documents, each read by the library and by a second reading of the rules.

Usage: camt_documents.py LIBRARY ENTRIES [SEED]. With TIVEX_SCHEMAS every document is also held
against its schema. What differs is shown, and the document left in the temporary folder.
"""

import ctypes as c
import decimal
import os
import random
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

# What stands in what, in the order of the schemas: ? once at most, * several times, | one of
# these; behind "=" the type, where it has another name; behind "@" the version from or up to
# which an element is there.
GRAMMAR = """
Stmt: Id StmtPgntn?=Pg@4- RptPgntn?=Pg@4- NtfctnPgntn?=Pg@4- ElctrncSeqNb? LglSeqNb? CreDtTm Acct=OwnAcct Bal*=Bal Ntry*
Pg: PgNb LastPgInd
GrpHdr: MsgId=Id CreDtTm MsgPgntn?=Pg
OwnAcct: Id=OwnId Ccy? Nm?
OwnId: IBAN=OwnIban
Acct: Id=AcctId Ccy? Nm?
AcctId: IBAN=Iban| Othr=Other|
Other: Id
Bal: Tp=BalTp Amt CdtDbtInd Dt=Date
BalTp: CdOrPrtry=BalCd
BalCd: Cd=BalCode
Date: Dt=Day| DtTm=Moment|
Ntry: NtryRef?=Id Amt CdtDbtInd RvslInd? Sts=Status@-4 Sts=StatusChoice@8- BookgDt?=Date ValDt?=Date AcctSvcrRef?=Id BkTxCd AmtDtls? Chrgs*=OldChrgs@-2 Chrgs?@4- NtryDtls* AddtlNtryInf?=Text
StatusChoice: Cd=Status
BkTxCd: Domn? Prtry?=PrtryCd
Domn: Cd=Code4 Fmly
Fmly: Cd=Code4 SubFmlyCd=Code4
PrtryCd: Cd=German Issr?=Id
OldChrgs: TtlChrgsAndTaxAmt?=Amt Amt
Chrgs: TtlChrgsAndTaxAmt?=Amt Rcrd*
Rcrd: Amt CdtDbtInd?
NtryDtls: Btch? TxDtls*
Btch: MsgId?=Id PmtInfId?=Id
TxDtls: Refs? Amt@4-4 CdtDbtInd@4-4 Amt?@8- CdtDbtInd?@8- AmtDtls? BkTxCd? Chrgs*=OldChrgs@-2 Chrgs?@4- RltdPties? RltdAgts? Purp? RmtInf? RtrInf? AddtlTxInf?=Text
Refs: MsgId?=Id AcctSvcrRef?=Id PmtInfId?=Id InstrId?=Id EndToEndId? TxId?=Id MndtId?=Id
AmtDtls: InstdAmt?=InAmt TxAmt?=InAmt
InAmt: Amt
RltdPties: InitgPty?=Pty Dbtr?=Pty DbtrAcct?=Acct UltmtDbtr?=Pty Cdtr?=Pty CdtrAcct?=Acct UltmtCdtr?=Pty
Pty: Nm?@-4 Id?=PtyId@-4 Pty=Inner|@8- Agt|@8-
Inner: Nm? Id?=PtyId
PtyId: OrgId=Others| PrvtId=Others|
Others: Othr*=Other
RltdAgts: DbtrAgt?=Agt CdtrAgt?=Agt IntrmyAgt1?=Agt
Agt: FinInstnId
FinInstnId: BIC?=Bic@-2 BICFI?=Bic@4- ClrSysMmbId? Nm?
ClrSysMmbId: MmbId
Purp: Cd=Code4| Prtry=Id|
RmtInf: Ustrd*=Text Strd*
Strd: CdtrRefInf? AddtlRmtInf*=Text
CdtrRefInf: Ref?=Id
RtrInf: Rsn?=PurpRsn AddtlInf*=Text
PurpRsn: Cd=Code4| Prtry=Id|
"""
MESSAGES = {"053": ("BkToCstmrStmt", "Stmt"), "052": ("BkToCstmrAcctRpt", "Rpt"),
            "054": ("BkToCstmrDbtCdtNtfctn", "Ntfctn")}
LETTERS = "abcdefgh XYZ 0123456789 +-/:.,'()ÄöüßéŠ€&<>\"]"
OWN = "DE54100000000000012345"


def read_grammar():
    types = {}
    for line in GRAMMAR.strip().splitlines():
        name, items = line.split(": ")
        types[name] = []
        for item in items.split():
            item, _, versions = item.partition("@")
            first, _, last = versions.partition("-")
            element, _, kind = item.partition("=")
            marks = "".join(mark for mark in "?*|" if mark in item)
            element, kind = (text.rstrip("?*|") for text in (element, kind or element))
            types[name].append((element, kind, marks, int(first or 1), int(last or 99)))
    return types


class Maker:
    def __init__(self, rng, message, version):
        self.rng, self.message, self.version = rng, message, version
        self.grammar = read_grammar()

    def text(self, length, letters=LETTERS):
        made = "".join(self.rng.choice(letters) for _ in range(self.rng.randint(1, length)))
        return made.strip(" ") or "x"

    def leaf(self, kind):
        rng = self.rng
        amount = f"{rng.choice([0, 1, 5, rng.randint(0, 10 ** 12)])}{rng.choice(['', '.5', '.50', '.07', '.12345'])}"
        date = f"{rng.randint(1970, 2069)}-{rng.randint(1, 12):02}-{rng.randint(1, 28):02}"
        makers = {
            "Amt": lambda: amount, "Day": lambda: date + rng.choice(["", "", "Z", "+01:00"]),
            "Moment": lambda: date + "T23:59:59" + rng.choice(["", "Z", "-05:00"]),
            "CreDtTm": lambda: "2026-11-23T10:00:00", "CdtDbtInd": lambda: rng.choice(["CRDT", "DBIT"]),
            "RvslInd": lambda: rng.choice(["true", "false", "1", "0"]), "LastPgInd": lambda: "true",
            "Status": lambda: rng.choice(["BOOK"] * 9 + ["PDNG"]), "OwnIban": lambda: OWN,
            "Iban": lambda: rng.choice([OWN, "AT611904300234573201", "NO9386011117947"]),
            "BalCode": lambda: rng.choice(["OPBD", "PRCD", "ITBD", "CLBD", "CLAV"]),
            "PgNb": lambda: str(rng.randint(1, 99999)), "Ccy": lambda: "EUR",
            "ElctrncSeqNb": lambda: str(rng.choice([7, 2 ** 32 - 1, 2 ** 32, 10 ** 17])),
            "LglSeqNb": lambda: str(rng.randint(1, 400)), "Code4": lambda: self.text(4, "ABCD"),
            "EndToEndId": lambda: rng.choice(["NOTPROVIDED", self.text(35)]),
            "German": lambda: rng.choice(["NTRF+166+9248+997", "166+1+2", "NDDT", "166", "NXYZ++P+1",
                                          "+1+2", "NTRF+1234+x", self.text(35)]),
            "Bic": lambda: rng.choice(["MARKDEF1100", "DEUTDEFF"]), "Nm": lambda: self.text(70),
            "MmbId": lambda: self.text(28), "Text": lambda: self.text(105),
            "MndtId": lambda: self.text(35)}
        return makers.get(kind, lambda: self.text(34))()

    def fill(self, element, kind):
        items = self.grammar.get(kind)
        if items is None:
            element.text = self.leaf(kind)
            if kind == "Amt":
                element.set("Ccy", self.rng.choice(["EUR"] * 9 + ["USD"]))
            return element
        items = [item for item in items if item[3] <= self.version <= item[4]]
        choices = [item for item in items if "|" in item[2]]
        chosen = self.rng.choice(choices) if choices else None
        for item in items:
            name, inner, marks = item[:3]
            if "Pgntn" in name and kind == "Stmt" and not name.startswith(MESSAGES[self.message][1]):
                continue
            if name == "Bal" and self.message == "054" or "|" in marks and item is not chosen:
                continue
            count = (self.rng.choice([0, 1, 1, 2, 3]) if "*" in marks
                     else self.rng.random() < 0.6 if "?" in marks else 1)
            if name == "Bal":
                count += 1
            for _ in range(count):
                self.fill(ET.SubElement(element, name), inner)
        if kind == "Ntry" and self.rng.random() < 0.6:
            self.make_fit(element)
        return element

    # The amounts of several transactions add up.
    def make_fit(self, entry):
        amounts = [(each, each.find("AmtDtls/TxAmt/Amt") if each.find("Amt") is None else each.find("Amt"))
                   for each in entry.findall("NtryDtls/TxDtls")]
        if len(amounts) < 2 or any(amount is None for _, amount in amounts):
            return
        direction = entry.findtext("CdtDbtInd")
        for each, amount in amounts[:-1]:
            each_direction = each.find("CdtDbtInd")
            if each_direction is not None and each_direction.text != direction:
                amount.text = "0.00"
        for _, amount in amounts:
            amount.set("Ccy", entry.find("Amt").get("Ccy"))
        last = amounts[-1][0].find("CdtDbtInd")
        if last is not None:
            last.text = direction
        entry.find("Amt").text = str(sum(decimal.Decimal(amount.text) for _, amount in amounts))

    def document(self, entries):
        top, name = MESSAGES[self.message]
        self.space = f"urn:iso:std:iso:20022:tech:xsd:camt.{self.message}.001.{self.version:02}"
        root = ET.Element("Document")
        message = ET.SubElement(root, top)
        self.fill(ET.SubElement(message, "GrpHdr"), "GrpHdr")
        while len(root.findall(".//Ntry")) < entries:
            self.fill(ET.SubElement(message, name), "Stmt")
        return root


class Writer:
    """Writes a tree in one of the many ways that mean the same."""

    def __init__(self, rng, space):
        self.rng, self.space = rng, space
        self.prefix = rng.choice(["", "", "c:"])
        self.encoding = rng.choice(["", "UTF-8", "utf-8", "US-ASCII", "ISO-8859-1", "ISO-8859-15", "windows-1252"])
        self.line = rng.choice(["", "\n", "\r\n", "\r"])
        self.plain = rng.random() < 0.5

    def text(self, text):
        codec = self.encoding or "utf-8"
        out = ""
        for letter in text:
            try:
                letter.encode(codec)
                known = True
            except UnicodeEncodeError:
                known = False
            if letter in "&<>\"" and self.rng.random() < 0.8 or letter in "&<":
                out += {"&": "&amp;", "<": "&lt;", ">": "&gt;", '"': "&quot;"}[letter]
            elif letter == ">" or not known or not self.plain and self.rng.random() < 0.05:
                out += self.rng.choice([f"&#{ord(letter)};", f"&#x{ord(letter):x};"])
            elif not self.plain and self.rng.random() < 0.02:
                out += self.rng.choice(["<!-- - -->", "<?p x?>"]) + letter
            elif not self.plain and self.rng.random() < 0.02 and letter not in "]":
                out += f"<![CDATA[{letter}]]>"
            else:
                out += letter
        return out

    def element(self, element, depth=0):
        name = self.prefix + element.tag
        attributes = "".join(f" {key}={quote}{value}{quote}" for key, value in element.attrib.items()
                             for quote in [self.rng.choice("'\"")])
        if depth == 0:
            attributes = f' xmlns{":c" if self.prefix else ""}="{self.space}"'
        gap = self.line + " " * depth if self.line else ""
        content = "".join(self.element(child, depth + 1) for child in element)
        if not content and not element.text:
            return f"{gap}<{name}{attributes}/>"
        return f"{gap}<{name}{attributes}>{self.text(element.text or '')}{content}{gap if content else ''}</{name}>"

    def document(self, root):
        declaration = f'<?xml version="1.0" encoding="{self.encoding}"?>' if self.encoding else ""
        return (declaration + self.element(root)).encode(self.encoding or "utf-8")


# The second reading: what the records must be.
def first(node, *paths):
    for path in paths if node is not None else ():
        for found in node.findall(path):
            if (found.text or "").strip():
                return found.text.strip()
    return None


def first_money(node, *paths):
    for path in paths if node is not None else ():
        for found in node.findall(path):
            return found.get("Ccy"), found.text
    return None


def day(node, name):
    text = first(node, name + "/Dt", name + "/DtTm")
    return tuple(int(part) for part in text[:10].split("-")) if text else None


def cut(text, size):
    return (text or "").encode()[:size].decode(errors="ignore")


def number(text):
    return int(text) if text and int(text) < 2 ** 32 else 0


def german(code):
    parts = (code or "").split("+")
    fields = {"type_code": "", "gvc": 0, "primanota": None, "text_key_ext": 0}
    is_type = len(parts[0]) == 4 and parts[0][0].isascii() and parts[0][0].isalpha()
    if is_type:
        fields["type_code"] = cut(parts.pop(0)[1:], 3)
    elif len(parts) == 1:
        return fields
    parts += ["", "", ""]
    digits = [int(part) if part.isascii() and part.isdigit() and len(part) <= 3 else 0 for part in parts]
    fields.update(gvc=digits[0], primanota=parts[1] or None, text_key_ext=digits[2])
    return fields


def side(tx, who):
    party = "RltdPties/" + who
    agents = ["RltdAgts/" + who + "Agt/FinInstnId/", party + "/Agt/FinInstnId/"]
    banks = [agent + name for agent in agents for name in ("BICFI", "BIC", "ClrSysMmbId/MmbId")]
    return (first(tx, party + "/Nm", party + "/Pty/Nm", party + "/Agt/FinInstnId/Nm"),
            first(tx, party + "Acct/Id/IBAN", party + "Acct/Id/Othr/Id"), first(tx, *banks))


def identification(tx, who):
    paths = [f"RltdPties/{who}/{inner}Id/{kind}/Othr/Id" for kind in ("PrvtId", "OrgId") for inner in ("", "Pty/")]
    return first(tx, *paths)


def money_text(money):
    return None if money is None else "".join(money)


def record(entry, tx, money, debit, own):
    turned = first(entry, "RvslInd") in ("true", "1")
    returned = tx is not None and tx.find("RtrInf") is not None
    sides = [side(tx, "Dbtr"), side(tx, "Cdtr")]
    if debit != (turned or returned):
        sides.reverse()
    one, other = sides
    if one[1] == own and other[1] != own:
        one = other
    elif one[:2] == (None, None) and other[:2] != (None, None) and other[1] != own:
        one = other
    value, booking = day(entry, "ValDt"), day(entry, "BookgDt")
    domain = next((node.find("BkTxCd/Domn") for node in (tx, entry)
                   if node is not None and node.find("BkTxCd/Domn") is not None), None)
    codes = domain is not None and "-".join(domain.findtext(path) for path in ("Cd", "Fmly/Cd", "Fmly/SubFmlyCd"))
    charges = ("Chrgs/Rcrd/Amt", "Chrgs/Amt", "Chrgs/TtlChrgsAndTaxAmt")
    instructed = first_money(tx, "AmtDtls/InstdAmt/Amt")
    if instructed and instructed[0] == money[0] and decimal.Decimal(instructed[1]) == decimal.Decimal(money[1]):
        instructed = None
    texts = [] if tx is None else [found.text for path in ("RmtInf/Ustrd", "RmtInf/Strd/CdtrRefInf/Ref", "RmtInf/Strd/AddtlRmtInf")
                                   for found in tx.findall(path)]
    reasons = [] if tx is None else [first(tx, "RtrInf/Rsn/Cd", "RtrInf/Rsn/Prtry")] + [found.text for found in tx.findall("RtrInf/AddtlInf")]
    reasons = [reason for reason in reasons if reason]
    eref = first(tx, "Refs/EndToEndId")
    amount = float(money[1])
    fields = {
        "value_date": value or booking, "booking_date": booking or value, "reversal": int(turned),
        "amount": -amount if debit != turned else amount, "customer_ref": first(entry, "NtryRef"),
        "bank_ref": first(tx, "Refs/AcctSvcrRef") or first(entry, "AcctSvcrRef"),
        "booking_text": first(entry, "AddtlNtryInf") or first(tx, "AddtlTxInf") or codes or None,
        "eref": None if eref == "NOTPROVIDED" else eref, "mref": first(tx, "Refs/MndtId"),
        "kref": first(tx, "Refs/PmtInfId") or first(entry, "NtryDtls/Btch/PmtInfId"),
        "cred": identification(tx, "Cdtr"), "debt": identification(tx, "Dbtr"), "purp": first(tx, "Purp/Cd"),
        "oamt": money_text(instructed), "coam": money_text(first_money(tx, *charges) or first_money(entry, *charges)),
        "svwz": "\n".join(texts) or None, "return_reason": " ".join(reasons) or None,
        "purpose": first(entry, "AddtlNtryInf") if tx is None else None,
        "abwa": first(tx, "RltdPties/UltmtDbtr/Nm", "RltdPties/UltmtDbtr/Pty/Nm"),
        "abwe": first(tx, "RltdPties/UltmtCdtr/Nm", "RltdPties/UltmtCdtr/Pty/Nm"),
        "name": cut(one[0], 55), "full_name": one[0], "account_no": cut(one[1], 34), "bank_code": cut(one[2], 12)}
    fields.update(german(first(tx, "BkTxCd/Prtry/Cd") or first(entry, "BkTxCd/Prtry/Cd")))
    return fields


def records(entry, own):
    txs, whole = entry.findall("NtryDtls/TxDtls"), first_money(entry, "Amt")
    debit = first(entry, "CdtDbtInd") == "DBIT"
    if len(txs) > 1:
        parts = [(tx, first_money(tx, "Amt", "AmtDtls/TxAmt/Amt"),
                  (first(tx, "CdtDbtInd") or first(entry, "CdtDbtInd")) == "DBIT") for tx in txs]
        if all(money and money[0] == whole[0] for _, money, _ in parts) and decimal.Decimal(whole[1]) == sum(
                decimal.Decimal(money[1]) * (1 if each == debit else -1) for _, money, each in parts):
            return [record(entry, tx, money, each, own) for tx, money, each in parts]
    return [record(entry, txs[0] if len(txs) == 1 else None, whole, debit, own)]


def balance(node):
    if node is None:
        return None, 0.0, ""
    money = first_money(node, "Amt")
    return day(node, "Dt"), float(money[1]) * (-1 if first(node, "CdtDbtInd") == "DBIT" else 1), money[0]


def statement(node, page):
    own = first(node, "Acct/Id/IBAN")
    by_code = {code: [each for each in node.findall("Bal") if first(each, "Tp/CdOrPrtry/Cd") == code]
               for code in ("OPBD", "PRCD", "ITBD", "CLBD")}
    interim = by_code["ITBD"]
    opening = (by_code["OPBD"] + by_code["PRCD"] + (interim if len(interim) > 1 else []) + [None])[0]
    closing = ([None] + interim + by_code["CLBD"])[-1]
    fields = {"reference": first(node, "Id"), "account": own,
              "statement_no": number(first(node, "ElctrncSeqNb", "LglSeqNb")),
              "sequence_no": number(first(node, "StmtPgntn/PgNb", "RptPgntn/PgNb", "NtfctnPgntn/PgNb") or page)}
    for name, found in (("opening", opening), ("closing", closing)):
        fields[name + "_date"], fields[name + "_balance"], fields[name + "_currency"] = balance(found)
    booked = [entry for entry in node.findall("Ntry") if first(entry, "Sts", "Sts/Cd") == "BOOK"]
    return fields, [each for entry in booked for each in records(entry, own)], len(node.findall("Ntry")) - len(booked)


# The library's records.
class Tm(c.Structure):
    _fields_ = [(name, c.c_int) for name in ("sec", "min", "hour", "mday", "mon", "year", "wday", "yday", "isdst")] + [
        ("gmtoff", c.c_long), ("zone", c.c_char_p)]


class Tx(c.Structure):
    pass


class Stmt(c.Structure):
    pass


Tx._fields_ = ([("value_date", Tm), ("booking_date", Tm), ("reversal", c.c_ubyte), ("amount", c.c_double), ("type_code", c.c_char * 4)]
               + [(name, c.c_char_p) for name in ("customer_ref", "bank_ref", "booking_text", "primanota")]
               + [("gvc", c.c_int), ("text_key_ext", c.c_int), ("bank_code", c.c_char * 13), ("account_no", c.c_char * 35), ("name", c.c_char * 56)]
               + [(name, c.c_char_p) for name in "purpose eref kref mref cred debt purp coam oamt svwz abwa abwe".split()]
               + [("next", c.POINTER(Tx)), ("full_name", c.c_char_p), ("return_reason", c.c_char_p)])
Stmt._fields_ = [("reference", c.c_char_p), ("account", c.c_char_p), ("statement_no", c.c_uint), ("sequence_no", c.c_uint),
                 ("opening_date", Tm), ("closing_date", Tm), ("opening_balance", c.c_double), ("closing_balance", c.c_double),
                 ("opening_currency", c.c_char * 4), ("closing_currency", c.c_char * 4),
                 ("first_tx", c.POINTER(Tx)), ("last_tx", c.POINTER(Tx)), ("next", c.POINTER(Stmt))]


def fields_of(structure):
    def plain(value):
        if isinstance(value, Tm):
            return (value.year + 1900, value.mon + 1, value.mday) if value.mday else None
        return value.decode() if isinstance(value, bytes) else value
    return {name: plain(getattr(structure, name)) for name, kind in structure._fields_
            if not issubclass(kind, c._Pointer)}


def chain(pointer):
    while pointer:
        yield pointer.contents
        pointer = pointer.contents.next


def load(library, path):
    library.tivex_stmt_parser_new.restype = library.tivex_stmt_parser_getError.argtypes = None
    for name, result in (("new", c.c_void_p), ("getStatement", c.POINTER(Stmt)), ("getError", c.c_char_p)):
        getattr(library, "tivex_stmt_parser_" + name).restype = result
    parser = c.c_void_p(library.tivex_stmt_parser_new())
    if library.tivex_stmt_parser_load(parser, 1053, path.encode()) != 1:
        raise SystemExit(f"{path}: {library.tivex_stmt_parser_getError(parser).decode()}")
    found = [(fields_of(each), [fields_of(tx) for tx in chain(each.first_tx)])
             for each in chain(library.tivex_stmt_parser_getStatement(parser))]
    pending = library.tivex_stmt_parser_getPending(parser)
    library.tivex_stmt_parser_free(parser)
    return found, pending


def differences(wanted, found, where):
    return [f"{where} {name}: {found.get(name)!r} instead of {value!r}" for name, value in wanted.items() if found.get(name) != value]


def main():
    library, entries = c.CDLL(sys.argv[1]), int(sys.argv[2])
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else random.randrange(2 ** 32)
    rng, schemas = random.Random(seed), os.environ.get("TIVEX_SCHEMAS")
    made = read = held = 0
    path = os.path.join(tempfile.gettempdir(), f"tivex_camt_{os.getpid()}.xml")
    while made < entries:
        maker = Maker(rng, rng.choice(list(MESSAGES)), rng.choice([2, 4, 8]))
        root = maker.document(min(200, entries - made))
        with open(path, "wb") as file:
            file.write(Writer(rng, maker.space).document(root))
        page = first(root, "*/GrpHdr/MsgPgntn/PgNb")
        wanted = [statement(node, page) for node in root.findall("*/" + MESSAGES[maker.message][1])]
        found, pending = load(library, path)
        wrong = [] if len(found) == len(wanted) else ["other number of statements"]
        if pending != sum(each[2] for each in wanted):
            wrong.append(f"{pending} pending")
        for number_of, (one, other) in enumerate(zip(wanted, found)):
            wrong += differences(one[0], other[0], f"statement {number_of}")
            if len(one[1]) != len(other[1]):
                wrong.append(f"statement {number_of}: {len(other[1])} entries instead of {len(one[1])}")
            for place, (tx, other_tx) in enumerate(zip(one[1], other[1])):
                wrong += differences(tx, other_tx, f"statement {number_of} entry {place}")
                if set(tx) != set(other_tx):
                    wrong.append(f"fields that nobody looks at: {set(tx) ^ set(other_tx)}")
            read += len(one[1])
        schema = f"{schemas}/camt/camt.{maker.message}.001.{maker.version:02}.xsd"
        if schemas and os.path.exists(schema):
            held += 1
            checked = subprocess.run(["xmllint", "--noout", "--schema", schema, path], capture_output=True, text=True)
            if checked.returncode != 0:
                wrong.append(checked.stderr[:1000])
        if wrong:
            raise SystemExit("\n".join(wrong[:20]) + f"\nseed {seed}, document {path}")
        made += len(root.findall(".//Ntry"))
    os.remove(path)
    print(f"{made} entries gave {read} records; {held} documents held against their schemas; seed {seed}")


if __name__ == "__main__":
    main()
