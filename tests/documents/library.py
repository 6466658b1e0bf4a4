"""The library as the documents speak of it."""

import ctypes
import os

DIRECT_DEBIT, CREDIT_TRANSFER = 1, 2

# A transaction that every rulebook takes.
SOUND = {"iban": "AT611904300234573201", "bic": "BKAUATWWXXX", "name": "Name", "amount": "1"}
SOUND_DEBIT = dict(SOUND, seq="RCUR", mref="M", mdate="2026-01-01")


class KeyValue(ctypes.Structure):
    _fields_ = [("key", ctypes.c_char_p), ("value", ctypes.c_char_p)]


class Library:
    def __init__(self, path):
        self.calls = ctypes.CDLL(os.fspath(path))
        self.calls.tivex_new.restype = ctypes.c_void_p
        self.calls.tivex_getError.restype = ctypes.c_char_p
        self.calls.tivex_toXML.restype = ctypes.c_void_p
        self.free = ctypes.CDLL(None).free
        self.free.argtypes = [ctypes.c_void_p]

    def select(self, rulebook):
        return self.calls.tivex_init(3, rulebook.encode()) == 1

    def add(self, kind, values, setting=None):
        """Returns the error text, or None for a transaction that is taken."""
        message = ctypes.c_void_p(self.calls.tivex_new(kind))
        entries = [(key.encode(), value.encode()) for key, value in values.items()]
        added = setting is None or getattr(self.calls, setting[0])(message, setting[1])
        if added:
            added = self.calls.tivex_add(
                message, (KeyValue * (len(entries) + 1))(*entries, (None, None)))
        error = self.calls.tivex_getError(message)
        self.calls.tivex_free(message)
        return None if added else error.decode("utf-8", "replace")

    def document(self, kind, values, strict=0):
        """Returns the document of one transaction, or None and the error text."""
        calls = self.calls
        message = ctypes.c_void_p(calls.tivex_new(kind))
        calls.tivex_setStrict(message, strict)
        calls.tivex_setIBAN(message, b"DE54100000000000012345")
        calls.tivex_setBIC(message, b"MARKDEF1100")
        calls.tivex_setName(message, b"Name")
        calls.tivex_setCreditorIdentifier(message, b"DE98ZZZ09999999999")
        entries = [(key.encode(), value.encode()) for key, value in values.items()]
        calls.tivex_add(message, (KeyValue * (len(entries) + 1))(*entries, (None, None)))
        address = calls.tivex_toXML(message)
        text = ctypes.string_at(address).decode() if address else None
        error = calls.tivex_getError(message)
        if address:
            self.free(address)
        calls.tivex_free(message)
        return text, error
