"""What a document names must exist: files, headings, functions, options; numbers hold."""

import re
import subprocess

from markdown import CLAIM, Document

FOLDERS = r"(?:bench|cli|cmake|data|docs|examples|fuzz|include|packaging|scripts|src|tests|tools)/"
# A number with what is counted wants a claim behind it.
COUNTED = re.compile(
    r"(?<![\w.-])[0-9][0-9.,]*(?= (?:MB|rulebooks|countries|methods|(?:check-digit|IBAN) (?:methods|rules)|"
    r"(?:German|Austrian|Swiss) (?:bank )?codes|BICs|random)\b)")


def broken_links(document, root):
    for line, match in document.matches(r"\]\(([^)]+)\)"):
        target, _, anchor = match[1].partition("#")
        if target.startswith(("http:", "https:")):
            continue
        path = (root / document.path).parent / target if target else root / document.path
        if not path.exists():
            yield line, f"link to {target}, which does not exist"
        elif anchor and anchor not in Document(target, path.read_text()).anchors():
            yield line, f"{match[1]}: no such heading"


def missing_files(document, root):
    for line, match in document.matches(r"`([^`]+)`"):
        path = match[1].split()[0] if match[1].strip() else ""
        if re.match(FOLDERS, path) and not list(root.glob(path.rstrip("/"))):
            yield line, f"{path} does not exist"


def unknown_functions(document, root):
    declared = (root / "include/tivex.h").read_text()
    for pattern in ("CMakeLists.txt", "bench/CMakeLists.txt", "tests/CMakeLists.txt",
                    "cmake/*", "packaging/debian/*.cmake"):
        declared += "".join(path.read_text() for path in root.glob(pattern))
    parts = [(number, text) for number, text in document.prose]
    for block in document.blocks:
        parts += [(block.line + at, text) for at, text in enumerate(block.lines)]
    for line, text in parts:
        for name in re.findall(r"\b(?:tivex_[A-Za-z0-9_]+|TIVEX_[A-Z0-9_]+)\b", text):
            known = name in declared or name in ("TIVEX_SCHEMAS", "TIVEX_PROGRAM")
            if not known:
                yield line, f"{name} is not declared"


def unknown_options(document, help_text):
    for line, match in document.matches(r"`(--[a-z-]+)[^`]*`"):
        if not re.search(re.escape(match[1]) + r"(?![a-z-])", help_text):
            yield line, f"no command has the option {match[1]}"


class Facts:
    def __init__(self, table, root, environment):
        rows = [line.split("\t") for line in table.read_text().splitlines()[1:]]
        self.rows = {name: (float(within), command) for name, within, command in rows}
        self.root = root
        self.environment = environment

    def fault(self, name, before):
        """Why the number that ends the text does not hold, or None."""
        if name not in self.rows:
            return f"unknown fact '{name}'"
        within, command = self.rows[name]
        found = subprocess.run(["bash", "-c", command], cwd=self.root, env=self.environment,
                               stdout=subprocess.PIPE, check=False).stdout.decode().strip()
        stated = before.split()[-1].strip("(").replace(",", "") if before.split() else ""
        if stated == found and found:
            return None
        try:
            if abs(float(stated) - float(found)) <= within * float(found):
                return None
        except ValueError:
            pass
        return f"states {stated}, {name} is {found}"

    def faults(self, document):
        for line, text in document.prose:
            for match in CLAIM.finditer(text):
                fault = self.fault(match[1], text[:match.start()])
                if fault:
                    yield line, fault
            for match in COUNTED.finditer(CLAIM.sub("\0", text)):
                yield line, f"{match[0]} is stated without a check"


def unchecked_blocks(document, root):
    """Blocks that no check reads."""
    for line, text in document.prose:
        if re.match(r" {4,}[^ \-*0-9]", text):
            yield line, "an indented block is not run: fence it"
    for block in document.blocks:
        if block.language == "sh":
            for at, line in enumerate(block.lines):
                if not (root / line.split()[0]).exists():
                    yield block.line + at, f"{line.split()[0]} does not exist"
        elif block.language not in ("console", "c", "csv", "text"):
            yield block.line, f"a block of '{block.language}' is not checked"
