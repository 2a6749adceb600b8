"""What is known of a flat function from its declaration and doc comment."""

import re
from dataclasses import dataclass, field

# The type of an array that is written, and of one that is only read.
ARRAYS = {
    "double*": "const double*",
    "int*": "const int*",
    "short int*": "const short int*",
    "OLECHAR*": "const OLECHAR*",
    "OLECHAR**": "OLECHAR* const*",
    "VARIANT*": "const VARIANT*",
}
READ_ONLY = {read: written for written, read in ARRAYS.items()}

# The room of an array: one cell, a count of cells, or rows by columns; and another room for one value of an argument. A
# count is made of the function's own counts and sums of them, of the larger of two, of the largest of an array's numbers,
# of the sum of those that are positive, truncated, or of the length of the longest column of a labelled table.
FACTOR = r"(?:\w+\.nbrowsmax|\w+|\(\w+(?: [-+] \w+)+\))"
COUNT = rf"(?:(?:max|sum)\([\w, ]+\)|{FACTOR})(?: [-+*/] {FACTOR})*"
CELLS = r"(?:[a-z]+ )?(?!(?:row|column)s\b)[a-z]+s\b"
ROOM = re.compile(rf"one [a-z]+\b|({COUNT})(?: by ({COUNT}))? {CELLS}"
                  rf"(?:, or ({COUNT})(?: by ({COUNT}))? {CELLS} when (\w+) is (-?\d+)\b)?")


@dataclass(frozen=True)
class Room:
    """Counts of rows and of columns, as expressions."""

    rows: str
    columns: str


def spell(type_, name):
    return f"{type_} {name}"


def one_line(lines):
    return " ".join(line.strip() for line in lines if line.strip())


@dataclass
class Tag:
    """A `@param`, `@return`, `@throws` or `@like`, with its text as lines."""

    kind: str
    name: str
    line: int
    text: list


@dataclass
class Doc:
    line: int
    is_file: bool = False
    text: list = field(default_factory=list)
    tags: list = field(default_factory=list)

    def tagged(self, kind):
        return [tag for tag in self.tags if tag.kind == kind]


@dataclass
class Parameter:
    name: str
    type: str
    direction: str = ""
    text: list = field(default_factory=list)

    @property
    def described(self):
        """The direction and the text."""
        return ", ".join(filter(None, (self.direction, one_line(self.text))))

    @property
    def nullable(self):
        return re.search(r"\b(may be null|[Nn]ull:)", one_line(self.text)) is not None

    @property
    def least(self):
        """What a count of 0 stands for: 1 where the text says so."""
        return 1 if re.search(r"\b0 (stands for|counts as) 1\b", one_line(self.text)) else 0

    @property
    def rooms(self):
        """The room that the array takes, under the key None; and another one under the key (argument, its value)."""
        found = ROOM.match(one_line(self.text))
        if not found:
            return {}
        rows, columns, other_rows, other_columns, argument, value = found.groups()
        rooms = {None: Room(rows or "1", columns or "1")}
        if argument:
            rooms[argument, int(value)] = Room(other_rows, other_columns or "1")
        return rooms

    @property
    def is_changed_count(self):
        """Whether it is one integer that the caller passes and that is then changed: a count that rooms may be made of."""
        return self.type == "int*" and self.direction == "inout" and one_line(self.text).startswith("one integer:")

    @property
    def plain_type(self):
        """The type as it would be if the array were written."""
        return READ_ONLY.get(self.type, self.type)

    @property
    def host_element(self):
        found = re.search(r"\bhost array of (\w+)", " ".join(self.text))
        return found.group(1) if found else None


@dataclass
class Function:
    name: str
    result: str
    parameters: list
    doc: Doc
    line: int

    @property
    def prototype(self):
        parameters = ", ".join(spell(p.type, p.name) for p in self.parameters)
        return f"{spell(self.result, self.name)}({parameters or 'void'});"

    @property
    def outcome(self):
        """What it returns and raises, a line each."""
        return [f"returns {one_line(tag.text)}" for tag in self.doc.tagged("return")] + [
            f"raises {tag.name} {one_line(tag.text)}".rstrip() for tag in self.doc.tagged("throws")]


@dataclass
class Header:
    name: str
    path: str
    title: list = field(default_factory=list)
    functions: list = field(default_factory=list)
