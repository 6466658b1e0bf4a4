"""Writes a credit transfer document from a CSV file with Python's own modules: the
elements that the tivex program writes for the same file, and no checks at all."""

import csv
import sys
from datetime import datetime, timezone
from decimal import Decimal
from xml.etree.ElementTree import Element, ElementTree, SubElement

NAMESPACE = "urn:iso:std:iso:20022:tech:xsd:pain.001.001.09"


def add_transaction(block, iban, name, amount, ref, identifier, town, country):
    transaction = SubElement(block, "CdtTrfTxInf")
    SubElement(SubElement(transaction, "PmtId"), "EndToEndId").text = identifier
    instructed = SubElement(SubElement(transaction, "Amt"), "InstdAmt", Ccy="EUR")
    instructed.text = amount
    creditor = SubElement(transaction, "Cdtr")
    SubElement(creditor, "Nm").text = name
    if country:
        address = SubElement(creditor, "PstlAdr")
        SubElement(address, "TwnNm").text = town
        SubElement(address, "Ctry").text = country
    SubElement(SubElement(SubElement(transaction, "CdtrAcct"), "Id"), "IBAN").text = iban
    SubElement(SubElement(transaction, "RmtInf"), "Ustrd").text = ref


class Block:
    """The payments of one date. Their number and sum are known at the end."""

    def __init__(self, initiation, identifier, date):
        self.count = 0
        self.sum = Decimal()
        self.element = block = SubElement(initiation, "PmtInf")
        SubElement(block, "PmtInfId").text = identifier
        SubElement(block, "PmtMtd").text = "TRF"
        SubElement(block, "BtchBookg").text = "true"
        self.count_element = SubElement(block, "NbOfTxs")
        self.sum_element = SubElement(block, "CtrlSum")
        SubElement(SubElement(SubElement(block, "PmtTpInf"), "SvcLvl"), "Cd").text = "SEPA"
        SubElement(SubElement(block, "ReqdExctnDt"), "Dt").text = date
        SubElement(SubElement(block, "Dbtr"), "Nm").text = "Beispiel GmbH"
        account = SubElement(SubElement(block, "DbtrAcct"), "Id")
        SubElement(account, "IBAN").text = "DE89370400440532013000"
        agent = SubElement(SubElement(block, "DbtrAgt"), "FinInstnId")
        SubElement(agent, "BICFI").text = "COBADEFFXXX"
        SubElement(block, "ChrgBr").text = "SLEV"

    def finish(self):
        self.count_element.text = str(self.count)
        self.sum_element.text = str(self.sum)


def main(csv_path, document_path):
    now = datetime.now(timezone.utc)
    message_id = now.strftime("SEPA-%Y%m%d%H%M%S")
    document = Element("Document", xmlns=NAMESPACE)
    initiation = SubElement(document, "CstmrCdtTrfInitn")
    header = SubElement(initiation, "GrpHdr")
    SubElement(header, "MsgId").text = message_id
    SubElement(header, "CreDtTm").text = now.strftime("%Y-%m-%dT%H:%M:%SZ")
    count_element = SubElement(header, "NbOfTxs")
    sum_element = SubElement(header, "CtrlSum")
    SubElement(SubElement(header, "InitgPty"), "Nm").text = "Beispiel GmbH"

    blocks = {}
    with open(csv_path, encoding="utf-8", newline="") as file:
        rows = csv.reader(file)
        next(rows)
        for iban, name, amount, ref, identifier, date, town, country in rows:
            block = blocks.get(date)
            if block is None:
                number = f"{message_id}-P{len(blocks) + 1}"
                block = blocks[date] = Block(initiation, number, date)
            block.count += 1
            block.sum += Decimal(amount)
            add_transaction(block.element, iban, name, amount, ref, identifier, town, country)
    for block in blocks.values():
        block.finish()
    count_element.text = str(sum(block.count for block in blocks.values()))
    sum_element.text = str(sum(block.sum for block in blocks.values()))
    ElementTree(document).write(document_path, encoding="UTF-8", xml_declaration=True)


if __name__ == "__main__":
    main(*sys.argv[1:])
