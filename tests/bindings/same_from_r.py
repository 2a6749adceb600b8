#!/usr/bin/env python3
"""same_from_r.py FILE: calls every flat function of plain arrays from Python, and writes down arguments and results for same_from_r.R,
which calls them from R: a line for each, a letter for its type, its name, its cells; numbers in hexadecimal.
"""

import random
import re
import sys
from pathlib import Path

import korvelmathtools as kmt
import numpy
from korvelmathtools._call import spelled

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))

from korveltools import flat_headers  # noqa: E402
from korveltools.declarations import one_line  # noqa: E402

DRAWS = 2
VALUES = ("double", "int", "short int")
ARRAYS = {"double*": "D", "int*": "I", "short int*": "S", "OLECHAR**": "T", "OLECHAR*": "t"}
CELLS = {
    "D": (numpy.float64, (0.0, 1.0, 2.5, 3.0, -1.25, 0.1, kmt.MISSING)),
    "I": (numpy.int32, (1, 1, 2, 3)),
    "S": (numpy.int16, (0, 0, 0, -1)),
    "T": (object, ("a", "b", "c", "pear")),
}
# What never ends with such arguments, and what asks the machine.
LEFT_OUT = ("VB_FilterEigen", "Cpp_TestMemory", "Cpp_GetStatusMemory")


def drawn(parameter, draw):
    if parameter.type == "int":
        return draw.choice((1, 2, 3) if re.search(r", from 1\b", one_line(parameter.text)) else (2, 3, 4))
    return draw.choice((-1, 0) if parameter.type == "short int" else (0.5, 1e-8, 2.0))


def cells_of(parameter, given, function):
    """How many cells the array has; below 0 when the counts do not go together."""
    rooms = parameter.rooms
    room = next((rooms[key] for key in rooms if key and given[key[0]] == key[1]), rooms[None])
    known = {**given, **{p.name: int(given[p.name][0]) for p in function.parameters if p.is_changed_count and p.name in given},
             "max": lambda *a: max(a) if len(a) > 1 else int(max(a[0], default=0)),
             "sum": lambda cells: sum(int(cell) for cell in cells if cell >= 1)}
    rows, columns = (int(eval(text, {"__builtins__": {}}, known)) for text in (room.rows, room.columns))
    return rows * columns if min(rows, columns) >= 0 else -1


def arguments(function, draw):
    """All arguments; None when the counts do not go together."""
    given = {p.name: drawn(p, draw) for p in function.parameters if p.type in VALUES}
    arrays = [p for p in function.parameters if p.type not in VALUES]
    # A room may be made of a count that is changed, or of the cells of another array.
    for p in sorted(arrays, key=lambda p: 0 if p.is_changed_count else 1 + bool(re.search("(max|sum)[(]", str(p.rooms)))):
        kind = ARRAYS[p.plain_type]
        if kind == "t":
            given[p.name] = "a"
            continue
        try:
            count = cells_of(p, given, function)
        except NameError:
            return None
        if count < 0:
            return None
        type_, choices = CELLS[kind]
        given[p.name] = numpy.array([draw.choice(choices) for _ in range(count)], type_)
    return {p.name: given[p.name] for p in function.parameters}


def shown(cells):
    """The cells on one line; an empty text is `<>`."""
    words = (cell.hex() if isinstance(cell, float) else str(cell) or "<>" for cell in numpy.atleast_1d(cells).tolist())
    return " ".join(words)


def record(function, given, file):
    lines = [f"call {function.name}"]
    lines += [f"{ARRAYS.get(p.plain_type, 'v')} {p.name} {shown(given[p.name])}" for p in function.parameters]
    passed = {spelled(name): cells.tolist() if getattr(cells, "dtype", None) == object else cells for name, cells in given.items()}
    answer = getattr(kmt, function.name)(**passed)
    if answer is not None:
        lines.append(f"result - {float(answer).hex()}")
    lines += [f"written {p.name} {shown(passed[spelled(p.name)])}" for p in function.parameters if p.direction in ("out", "inout")]
    file.write("".join(f"{line}\n" for line in lines))


def main():
    headers, _, _ = flat_headers.read_all(ROOT)
    with open(sys.argv[1], "w", encoding="ascii", newline="\n") as file:
        for function in (f for header in headers for f in header.functions):
            plain = all(p.type in VALUES or p.plain_type in ARRAYS for p in function.parameters)
            draws = any(p.name == "seed" for p in function.parameters)
            if not plain or draws or function.result == "OLECHAR*" or function.name in LEFT_OUT:
                continue
            for number in range(DRAWS):
                given = arguments(function, random.Random(f"{function.name} {number}"))
                if given is not None:
                    record(function, given, file)
        file.write("end\n")


if __name__ == "__main__":
    main()
