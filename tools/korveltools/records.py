"""The records that callers keep in their own memory, and the values that stand for missing cells, as their headers say."""

import re
from dataclasses import dataclass

from .flat_headers import HEADERS, Problem

RECORDS = f"{HEADERS}/containers/caller_records.h"
MISSING = f"{HEADERS}/containers/missing_values.h"
TYPES = ("int", "short int", "double", "BSTR", "SAFEARRAY*")
# What a field's text calls the elements of its array. A column that says nothing holds numbers in one table, texts in another.
ELEMENTS = {"`int`": "int", "`double`": "double", "`ST_Vect`": "ST_Vect", "BSTR": "BSTR", "numeric": "double"}


@dataclass(frozen=True)
class Field:
    name: str
    type: str
    text: str

    @property
    def element(self):
        """The type of the array's elements; None where the table decides."""
        found = re.search("|".join(ELEMENTS), self.text)
        return ELEMENTS[found.group()] if found else None

    @property
    def holds_texts(self):
        """Whether the table is one of texts."""
        return self.text.startswith("Texts")


@dataclass(frozen=True)
class Record:
    name: str
    text: str
    fields: tuple

    @property
    def holds_either(self):
        """Whether its columns hold numbers in one table, and texts in another."""
        return any(f.type == "SAFEARRAY*" and f.element in (None, "ST_Vect") for f in self.fields)


def read_records(root, problems):
    """All records in their order. A line that cannot be read is a problem."""
    text = (root / RECORDS).read_text(encoding="ascii")
    records = []
    for found in re.finditer(r"/\*\* ([^\n]*) \*/\ntypedef struct (\w+) \{\n(.*?)\} \2;", text, re.DOTALL):
        known = (*TYPES, *(record.name for record in records))
        fields = []
        for number, line in enumerate(found[3].splitlines(), text[: found.start(3)].count("\n") + 1):
            field = re.fullmatch(r"\s+([\w ]+\*?) (\w+);\s+/\*\*< (.*) \*/", line)
            if field and field[1] in known:
                fields.append(Field(field[2], field[1], field[3]))
            else:
                problems.append(Problem(RECORDS, number, f"{found[2]}: cannot read this field"))
        records.append(Record(found[2], found[1], tuple(fields)))
    if len(records) != text.count("typedef struct"):
        problems.append(Problem(RECORDS, 1, "a record that cannot be read"))
    return records


def read_missing(root):
    """The missing number and the missing integer, as C says them."""
    text = (root / MISSING).read_text(encoding="ascii")
    return tuple(re.search(rf"#define KORVEL_MISSING_{type_} \((.*)\)", text)[1] for type_ in ("DBL", "LNG"))
