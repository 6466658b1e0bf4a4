"""The reference tables against the sources, the library and the program."""

import json
import re
import subprocess

from library import CREDIT_TRANSFER, DIRECT_DEBIT, SOUND, SOUND_DEBIT
from markdown import code, codes

# --- docs/errors.md ---------------------------------------------------------------

TOKENS = re.compile(
    r'"(?:[^"\\\n]|\\.)*"|//[^\n]*|/\*.*?\*/|\'(?:[^\'\\]|\\.)+\'|#include[^\n]*|\w+|\s+|.', re.S)

# Texts with a blank that no host ever reads.
UNSEEN_FILES = ("src/validation/iban_countries.h", "src/validation/iban_forms.h",
                "src/validation/patterns.h")
UNSEEN = re.compile(r"^( xmlns| Ccy|<\?xml)|^(creditor identifier|local instrument|message id)$")


def literals(text):
    """The string literals of a source, adjacent ones joined, without those of assertions."""
    joined, asserted, depth = None, False, 0
    for token in TOKENS.findall(text):
        if token.startswith('"') or token == "PRIu32":
            joined = (joined or "") + ("u" if token == "PRIu32" else token[1:-1])
        elif not token.isspace() and not token.startswith("//"):
            if joined is not None and not asserted:
                yield joined
            joined = None
            if token == "static_assert":
                asserted, depth = True, 0
            depth += {"(": 1, ")": -1}.get(token, 0)
            if token == ";" and depth <= 0:
                asserted = False


def texts_of_sources(root):
    texts = {}
    for path in sorted((root / "src").rglob("*")):
        name = str(path.relative_to(root))
        if path.suffix not in (".cpp", ".h") or "/data/" in name or name in UNSEEN_FILES:
            continue
        for text in literals(path.read_text()):
            if re.search(r"[A-Za-z]{3,}.* |^ .*[A-Za-z]{3}", text) and not UNSEEN.match(text):
                texts[text.replace("%.255s", "%s")] = name
    return texts


def error_faults(document, root):
    """What the table lacks, and what it has that no source says."""
    said = texts_of_sources(root)
    listed = {}
    for line, cells in document.table("Text"):
        for text in codes(cells[0]):
            listed[text] = line
    # The system's reason is put behind some.
    bare = {text.removesuffix(": %s"): text for text in listed}
    for text, source in said.items():
        if text not in listed and text not in bare:
            yield 1, f"'{text}' of {source} is missing"
    for text, line in listed.items():
        if text not in said and text.removesuffix(": %s") not in said:
            yield line, f"'{text}' is in no source"
    for line, cells in document.table("Text"):
        if not all(cells):
            yield line, "a cell is empty"


def examples_of_errors(document, root):
    """Lines of text blocks that are no error text with its places filled."""
    def as_pattern(text):
        return re.sub(r"%(?:[0-9.]*[a-z]+X?|c)", ".+", re.escape(text).replace("\\%", "%"))

    texts = texts_of_sources(root)
    reasons = [as_pattern(text) for text in texts if text.count("%s %s") == 0]
    placed = r"(?:transaction \d+: [A-Za-z_0-9]+ |message: [A-Za-z ]+ )?(?:" + "|".join(reasons) + ")"
    for block in document.blocks:
        for at, line in enumerate(block.lines if block.language == "text" else []):
            if not re.fullmatch(placed, line):
                yield block.line + at, f"'{line}' is no text of the library"


# --- texts of the program ----------------------------------------------------------


def program_text_faults(document, root, first_column):
    """Texts in a table that the program does not say; "..." stands for what varies."""
    said = [text for path in sorted((root / "cli").rglob("*.*"))
            if path.suffix in (".cpp", ".h") for text in literals(path.read_text())]

    def is_said(piece):
        return any(piece in text for text in said) or any(
            any(text.endswith(piece[:at]) for text in said) and
            any(text.startswith(piece[at:]) for text in said) for at in range(4, len(piece) - 4))

    for line, cells in document.table(first_column):
        for text in codes(cells[0]):
            for piece in filter(None, text.split("...")):
                if not is_said(piece):
                    yield line, f"the program does not say '{text}'"


# --- docs/columns.md --------------------------------------------------------------


def columns_of_help(text):
    return set(re.search(r"Columns[^:]*:((?:\s+\w+)+?)\n\n", text)[1].split())


def kinds_of(cell):
    return {"both": (CREDIT_TRANSFER, DIRECT_DEBIT), "credit transfer": (CREDIT_TRANSFER,),
            "direct debit": (DIRECT_DEBIT,)}[cell]


def try_value(library, kind, key, value):
    """The library's error under the rulebook that has the key."""
    lines = key.startswith("addrLine")
    further = key in ("cref", "ultmtDbtr", "ultmtCdtr", "instrId")
    library.select("DE-2.9" if lines or key in ("mref", "old_mref") else
                   "DE-26.11" if further else "DE-3.7")
    return library.add(kind, dict(SOUND if kind == CREDIT_TRANSFER else SOUND_DEBIT, **{key: value}))


def column_faults(document, library, helps):
    kinds = {CREDIT_TRANSFER: set(), DIRECT_DEBIT: set()}
    characters = {"text": (True, True), "plain": (True, False), "reference": (False, False)}
    for line, (key, commands, _, limits, admitted, example) in document.table("Column"):
        key = code(key)
        for kind in kinds_of(commands):
            kinds[kind].add(key)
            error = try_value(library, kind, key, code(example))
            if error:
                yield line, f"the example of {key} is refused: {error}"
            bytes_ = re.match(r"(\d+) to (\d+) bytes$", limits)
            if bytes_ and (try_value(library, kind, key, "A" * int(bytes_[2])) or not
                           try_value(library, kind, key, "A" * (int(bytes_[2]) + 1))):
                yield line, f"{key} does not end at {bytes_[2]} bytes"
            if admitted in characters:
                taken = tuple(try_value(library, kind, key, f"a{c}b") is None for c in " &")
                if taken != characters[admitted]:
                    yield line, f"{key} is not of the characters '{admitted}'"
    for kind, command in ((CREDIT_TRANSFER, "credit-transfer"), (DIRECT_DEBIT, "direct-debit")):
        wanted = columns_of_help(helps[command])
        for key in sorted(kinds[kind] ^ wanted):
            yield 1, f"{command}: column {key} is " + ("missing" if key in wanted else "unknown")


# --- docs/statements.md -----------------------------------------------------------


def statement_faults(document, root):
    """The fields and words of the tables against those of the sources."""
    known = {"Field": ("cli/statements/statement_fields.cpp", r'\{"(\w+)", value_of<'),
             "Word": ("src/statements/dialects/word_text.cpp", r'^ +\{"([A-Z]+)"')}
    for first_column, (path, pattern) in known.items():
        wanted = set(re.findall(pattern, (root / path).read_text(), re.M))
        listed = {name: line for line, cells in document.table(first_column)
                  for name in codes(cells[0])}
        for name in sorted(set(listed) ^ wanted):
            yield listed.get(name, 1), f"{name} is " + ("unknown" if name in listed else "missing")


# --- docs/rulebooks.md ------------------------------------------------------------


def rulebook_row(library, name):
    """What a rulebook admits and writes, in the words of the table."""
    if not library.select(name):
        return None

    def taken(kind, setting=None, **values):
        base = SOUND if kind == CREDIT_TRANSFER else SOUND_DEBIT
        values = {key: value for key, value in dict(base, **values).items() if value is not None}
        return library.add(kind, values, setting) is None

    documents = [library.document(CREDIT_TRANSFER, SOUND)[0],
                 library.document(DIRECT_DEBIT, SOUND_DEBIT)[0]]
    versions = [re.search(r":xsd:(pain[0-9.]*)", text)[1] for text in documents]
    nameless = {key: value for key, value in SOUND.items() if key != "name"}
    subset = library.document(CREDIT_TRANSFER, nameless, strict=1)[0] is None
    of = "Austrian" if library.document(CREDIT_TRANSFER, dict(SOUND, purp="ZZZZ"),
                                        strict=1)[0] is None else "German"
    swiss = {"bic": "SNBZCHZZXXX"}
    outside = ("nothing" if taken(DIRECT_DEBIT, **swiss) else
               "an address line" if taken(DIRECT_DEBIT, addrLine1="A", **swiss) else
               "town and country" if taken(DIRECT_DEBIT, addrTown="A", addrCC="CH", **swiss) else "?")
    yes_no = {True: "yes", False: "no"}
    return [
        *versions,
        (f"ISO, {of} subset" if re.search(r"\.001\.0[1-9]$", versions[0]) and subset
         and not re.search(r"00[23]\.03", versions[0]) else of if subset else "ISO"),
        "optional" if taken(CREDIT_TRANSFER, bic=None) else "required",
        ("wide" if taken(CREDIT_TRANSFER, name="A [€]") else
         "German" if taken(CREDIT_TRANSFER, name="A & Ä") else "plain"),
        yes_no[taken(DIRECT_DEBIT, ("tivex_setDDType", 1))],
        yes_no[taken(DIRECT_DEBIT, mref="a b")],
        ", ".join(["parts"] * taken(DIRECT_DEBIT, addrTown="A") +
                  ["lines"] * taken(DIRECT_DEBIT, addrLine1="A")),
        outside,
    ]


def rulebook_faults(document, library, names):
    rows = {code(cells[0]): (line, cells[1:]) for line, cells in document.table("Rulebook")}
    for name in sorted(set(names) ^ set(rows)):
        yield 1, f"rulebook {name} is " + ("missing" if name in names else "unknown")
    for name, (line, cells) in rows.items():
        found = rulebook_row(library, name)
        if found is not None and found != cells:
            yield line, f"{name} is {' | '.join(found)}"


def rulebook_names(root):
    return re.findall(r'^    \{"([A-Z]+-[0-9.]+)",', (root / "src/core/rulebook.h").read_text(), re.M)


# --- docs/spreadsheets.md ---------------------------------------------------------


def read_as(environment, cells, *options):
    """What the program reads a table of one payment as, or why it refuses it."""
    cells = {"iban": "AT611904300234573201", "name": "Name", "amount": "1", **cells}
    run = subprocess.run(
        ["tivex", "credit-transfer", "--name", "Name", "--iban", "DE54100000000000012345",
         "--check", "--json", *options, "-"], env=environment, check=False,
        input="\t".join(cells) + "\n" + "\t".join(cells.values()) + "\n", encoding="utf-8",
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    told = [json.loads(line) for line in run.stdout.splitlines()]
    return next(each for each in told if "sum" in each or "fault" in each)


def cell_faults(document, environment):
    signs = [(), ("--decimal", ","), ("--decimal", ".")]
    for line, (amount, *expected) in document.table("Amount"):
        for options, text in zip(signs, expected):
            told = read_as(environment, {"amount": code(amount)}, *options)
            found = told.get("sum") or told["fault"]
            if found != text:
                yield line, f"{amount} {' '.join(options)} is '{found}'"
    for line, (date, expected) in document.table("Date"):
        told = read_as(environment, {"date": code(date)})
        found = told["sums"][0]["date"] if "sums" in told else told["fault"]
        if found != expected:
            yield line, f"{date} is '{found}'"


def spreadsheet_faults(document, root, helps, environment):
    yield from cell_faults(document, environment)
    wanted = {}
    source = (root / "cli/files/column_names.cpp").read_text()
    for name, key in re.findall(r'^    \{"([^"]+)", "(\w+)"\},$', source, re.M):
        wanted.setdefault(key, set()).add(name)
    listed = {code(key): (line, set(codes(names))) for line, (key, names) in document.table("Key")}
    for key in sorted(set(wanted) | set(listed)):
        line, names = listed.get(key, (1, set()))
        for name in sorted(names ^ wanted.get(key, set())):
            yield line, f"{key}: '{name}' is " + ("unknown" if name in names else "missing")
    warnings = re.search(r"Leave warnings out:([a-z,\s-]+)", helps["credit-transfer"])[1]
    known = set(re.findall(r"[a-z-]+", warnings.split("\n  --")[0]))
    told = {code(cells[0]) for _, cells in document.table("Warning")}
    for name in sorted(known ^ told):
        yield 1, f"warning {name} is " + ("missing" if name in known else "unknown")
