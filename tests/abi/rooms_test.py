#!/usr/bin/env python3
"""rooms_test.py LIBRARY AUTOMATION_LIBRARY: calls every flat function whose arguments are numbers and plain arrays, each
array with exactly the room that its documentation says, between pages that nobody may touch: first with the end of the
array at the next page, then with its start at the page before. A function that reads or writes a cell that is not its
own ends its process, and fails. The counts are small and often 0.
"""

import ctypes
import mmap
import os
import random
import re
import signal
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))

from korveltools import declarations, flat_headers  # noqa: E402

DRAWS = 40
PAGE = mmap.PAGESIZE
MISSING = -1.79769313486231e308
CELLS = {
    "double*": (ctypes.c_double, (0.0, 1.0, 1.0, 2.0, 3.0, 0.5, -1.0, MISSING)),
    "int*": (ctypes.c_int, (0, 1, 1, 2, 3, -(2**31))),
    "short int*": (ctypes.c_short, (0, 0, -1)),
}
# Without it, a value below the threshold is set to 0 and looked at again for ever.
FIXED = {("VB_FilterEigen", "dropTail"): -1}
VALUES = {"double": ctypes.c_double, "int": ctypes.c_int, "short int": ctypes.c_short}

system = ctypes.CDLL(None)
system.mmap.restype = ctypes.c_void_p
system.mmap.argtypes = (ctypes.c_void_p, ctypes.c_size_t, ctypes.c_int, ctypes.c_int, ctypes.c_int, ctypes.c_long)
system.mprotect.argtypes = (ctypes.c_void_p, ctypes.c_size_t, ctypes.c_int)


def between_pages(size, at_the_end):
    """The address of `size` bytes with a page before the first or behind the last that nobody may touch."""
    inside = (size + PAGE - 1) // PAGE * PAGE
    start = system.mmap(None, inside + 2 * PAGE, mmap.PROT_READ | mmap.PROT_WRITE,
                        mmap.MAP_PRIVATE | mmap.MAP_ANONYMOUS, -1, 0)
    for page in (start, start + PAGE + inside):
        if system.mprotect(page, PAGE, 0) != 0:
            raise OSError("mprotect")
    return start + PAGE + (inside - size if at_the_end else 0)


class Call:
    """One call of a function, with counts and cells of its own."""

    def __init__(self, function, make_text, draw, at_the_end):
        self.function, self.make_text, self.draw, self.at_the_end = function, make_text, draw, at_the_end
        self.values = {p.name: self.drawn(p) for p in function.parameters if p.type in VALUES}
        self.filled = {}

    def drawn(self, parameter):
        """A count, a position where positions start at 1, a Boolean, or another number."""
        if (self.function.name, parameter.name) in FIXED:
            return FIXED[self.function.name, parameter.name]
        if parameter.type != "int":
            return self.draw.choice((-1, 0, 1))
        positions = re.search(r", from 1\b", declarations.one_line(parameter.text))
        return self.draw.choice((1, 1, 2, 3, 4) if positions else (0, 1, 1, 2, 3, 4))

    def count(self, expression):
        """What an expression of a room is worth; a count of columns of 0 stands for 1 where the function says so."""
        names = {name: value or self.least(name) for name, value in self.values.items()}
        names |= {p.name: self.filled[p.name][0] for p in self.changed_counts() if p.name in self.filled}
        return int(eval(expression, {"__builtins__": {}, "max": self.largest, "sum": self.positive_sum},
                        {**self.filled, **names}))

    def changed_counts(self):
        return [p for p in self.function.parameters if p.is_changed_count]

    def least(self, name):
        return next(p for p in self.function.parameters if p.name == name).least

    @staticmethod
    def positive_sum(cells):
        return sum(int(value) for value in cells if value >= 1)

    @staticmethod
    def largest(*values):
        """Of two counts, or of the cells of one array."""
        return max(values) if len(values) > 1 else max(values[0], default=0)

    def cells_of(self, parameter):
        rooms = parameter.rooms
        room = next((rooms[key] for key in rooms if key and self.values[key[0]] == key[1]), rooms[None])
        rows, columns = self.count(room.rows), self.count(room.columns)
        if rows < 0 or columns < 0:
            return None
        return rows * columns

    def argument(self, parameter):
        if parameter.type in VALUES:
            return VALUES[parameter.type](self.values[parameter.name])
        if parameter.plain_type == "OLECHAR*":
            return ctypes.c_void_p(self.make_text("a"))
        cells = self.cells_of(parameter)
        if cells is None:
            return None
        if parameter.plain_type == "OLECHAR**":
            type_, values = ctypes.c_void_p, [self.make_text(text) for text in ("", "a", "b", "1")] + [None]
        else:
            type_, values = CELLS[parameter.plain_type]
        place = between_pages(cells * ctypes.sizeof(type_), self.at_the_end)
        array = (type_ * cells).from_address(place)
        for k in range(cells):
            text = parameter.plain_type == "OLECHAR**"
            array[k] = self.make_text(self.draw.choice(("", "a", "b", "1"))) if text else self.draw.choice(values)
        self.filled[parameter.name] = list(array)
        return ctypes.c_void_p(place)

    def run(self, called):
        # A room that is a sum of cells, or the largest of them, or made of a count that is changed, needs these before.
        needed = "|".join(["sum", "max", *(p.name for p in self.changed_counts())])
        late = [p for p in self.function.parameters
                if p.plain_type in CELLS | {"OLECHAR**": None} and re.search(rf"\b({needed})\b", str(p.rooms))]
        made = {}
        for parameter in [p for p in self.function.parameters if p not in late] + late:
            made[parameter.name] = self.argument(parameter)
            if made[parameter.name] is None:
                return False
        called(*(made[p.name] for p in self.function.parameters))
        return True


def text_maker(automation):
    library = ctypes.CDLL(automation)
    library.SysAllocString.restype = ctypes.c_void_p

    def make(text):
        buffer = ctypes.create_string_buffer(text.encode("utf-16-le") + b"\0\0")
        return library.SysAllocString(buffer)

    return make


def in_a_process_of_its_own(work):
    """The exit code of a child that does the work, or the negative number of the signal that ended it."""
    child = os.fork()
    if child == 0:
        silent = os.open(os.devnull, os.O_WRONLY)
        os.dup2(silent, 2)
        signal.alarm(60)
        code = 1
        try:
            work()
            code = 0
        finally:
            os._exit(code)
    _, status = os.waitpid(child, 0)
    return os.waitstatus_to_exitcode(status)


def calls_of(function, library, make_text):
    called = getattr(library, function.name)
    called.restype = ctypes.c_double if function.result == "double" else ctypes.c_int

    def work():
        done = 0
        for number in range(DRAWS * 10):
            draw = random.Random(f"{function.name} {number}")
            done += Call(function, make_text, draw, number % 2 == 0).run(called)
            if done == DRAWS:
                return
        raise AssertionError("no counts fit the rooms")

    return work


def main():
    library, make_text = ctypes.CDLL(sys.argv[1]), text_maker(sys.argv[2])
    headers, _, problems = flat_headers.read_all(ROOT)
    functions = [function for header in headers for function in header.functions]
    arrays = {"double*", "int*", "short int*", "OLECHAR*", "OLECHAR**"}
    plain = [f for f in functions if all(p.type in VALUES or p.plain_type in arrays for p in f.parameters)]
    wrong = []
    for function in plain:
        code = in_a_process_of_its_own(calls_of(function, library, make_text))
        if code != 0:
            end = signal.Signals(-code).name if code < 0 else f"exit code {code}"
            wrong.append(f"{function.name}: {end}")
    print(f"{len(plain)} of {len(functions)} functions called, {len(wrong)} of them beyond their arrays")
    print("\n".join(wrong))
    return 1 if wrong or problems or not plain else 0


if __name__ == "__main__":
    sys.exit(main())
