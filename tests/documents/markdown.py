"""A document as its parts: blocks of code, tables, links, names of files, claims."""

import re

FENCE = re.compile(r"^```(\S*) ?(.*)$")
CLAIM = re.compile(r"<!-- check: (.+?) -->")


class Block:
    def __init__(self, line, language, name):
        self.line = line  # of the first line within
        self.language = language
        self.name = name
        self.lines = []

    @property
    def text(self):
        return "".join(line + "\n" for line in self.lines)


class Document:
    def __init__(self, path, text):
        self.path = path
        self.blocks = []
        self.prose = []  # lines with their numbers, without the blocks
        block = None
        for number, line in enumerate(text.splitlines(), 1):
            fence = FENCE.match(line)
            if fence and block is None:
                block = Block(number + 1, fence[1], fence[2])
                self.blocks.append(block)
            elif line == "```":
                block = None
            elif block is not None:
                block.lines.append(line)
            else:
                self.prose.append((number, line))

    def matches(self, pattern):
        """Yields line number and match of each place in the prose."""
        for number, line in self.prose:
            for match in re.finditer(pattern, line):
                yield number, match

    def anchors(self):
        """The names by which GitHub links to the headings."""
        for _, heading in self.matches(r"^#+ (.*)$"):
            yield re.sub(r"[^\w\- ]", "", heading[1].lower()).replace(" ", "-")

    def table(self, first_column):
        """The rows of the tables that have this first column, as lists of cells, with lines."""
        inside = False
        for number, line in self.prose:
            # "&#124;" stands for the mark that would end a cell.
            cells = [cell.strip().replace("&#124;", "|") for cell in line.split("|")[1:-1]]
            if not cells:
                inside = False
            elif inside and not re.fullmatch(r":?-+:?", cells[0]):
                yield number, cells
            elif cells[0] == first_column:
                inside = True


def code(cell):
    """The text within the first backticks of a cell, or the cell without any."""
    match = re.search(r"``? ?(.+?) ?``?(?!`)", cell)
    return match[1] if match else cell


def codes(cell):
    return re.findall(r"`([^`]+)`", cell)
