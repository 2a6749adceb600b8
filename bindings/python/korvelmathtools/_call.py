"""Calls of the flat functions: what the arguments are turned into, and what comes back."""

import collections
import ctypes
import inspect
import keyword

import numpy

from ._library import Texts

NUMBERS = {"double": (ctypes.c_double, numpy.float64), "int": (ctypes.c_int, numpy.int32),
           "short int": (ctypes.c_short, numpy.int16)}
INTEGERS = {"int": (-(2**31), 2**31 - 1), "short int": (-(2**15), 2**15 - 1)}

Parameter = collections.namedtuple("Parameter", "name type direction nullable rooms least")
Room = collections.namedtuple("Room", "rows columns when")


def spelled(name):
    """`from_` for `from`, which Python keeps for itself."""
    return f"{name}_" if keyword.iskeyword(name) else name


def element_of(type_):
    """`double` of `double*`."""
    return type_.rstrip("*")


class Flat:
    """One flat function."""

    def __init__(self, library, name, result, parameters, text):
        self._parameters = [Parameter(*p[:4], tuple(Room(*r) for r in p[4]), p[5]) for p in parameters]
        self._function = getattr(library, name)
        self._function.restype = None if result == "void" else NUMBERS.get(result, (ctypes.c_void_p,))[0]
        self._has_result = result != "void"
        self.__name__ = self.__qualname__ = name
        self.__doc__ = text
        self.__signature__ = inspect.Signature(
            [inspect.Parameter(spelled(p.name), inspect.Parameter.POSITIONAL_OR_KEYWORD, default=None) for p in self._parameters])

    def __repr__(self):
        return f"<flat function {self.__name__}{self.__signature__}>"

    def __call__(self, *arguments, **named):
        try:
            given = self.__signature__.bind_partial(*arguments, **named).arguments
        except TypeError as error:
            raise TypeError(f"{self.__name__}: {error}") from None
        return _Call(self, {p.name: given[spelled(p.name)] for p in self._parameters
                            if given.get(spelled(p.name)) is not None}).run()


class _Call:
    """One call. Its arrays live as long as it does."""

    def __init__(self, flat, given):
        self.flat, self.name, self.given = flat, flat.__name__, given
        self.arrays, self.texts, self.made = {}, {}, []
        self.counts = {}

    def fail(self, parameter, message, kind=TypeError):
        raise kind(f"{self.name}: {spelled(parameter.name)} {message}")

    def run(self):
        parameters = self.flat._parameters
        for p in parameters:
            if p.name in self.given and element_of(p.type) in NUMBERS and p.type.endswith("*"):
                self.arrays[p.name] = self.numbers(p, self.given[p.name])
            elif p.name in self.given and p.type == "OLECHAR**":
                self.arrays[p.name] = self.text_cells(p, self.given[p.name])
        for p in parameters:
            if p.type in NUMBERS:
                self.counts[p.name] = self.number(p)
        answer = self.flat._function(*[self.argument(p) for p in parameters])
        for p, texts, target in self.texts.values():
            if p.direction != "in":
                target[...] = numpy.array(texts.values(), dtype=object).reshape(target.shape, order="F")
                given = self.given.get(p.name)
                if isinstance(given, list):
                    given[:] = target.tolist()
        if not self.made:
            return answer
        names = [spelled(name) for name, _ in self.made]
        cells = [array if array.ndim else array[()] for _, array in self.made]
        if self.flat._has_result:
            names = ["result", *("result_" if name == "result" else name for name in names)]
            cells = [answer, *cells]
        return collections.namedtuple(self.name, names)(*cells)

    def numbers(self, p, value):
        """An array of the type that the function takes; the caller's own one where it is changed."""
        wanted = NUMBERS[element_of(p.type)][1]
        if isinstance(value, numpy.ma.MaskedArray):
            self.fail(p, "is a masked array: from_nan turns what is masked into missing numbers")
        if p.direction != "in":
            if not isinstance(value, numpy.ndarray) or value.dtype != wanted:
                kind = f"{value.dtype}" if isinstance(value, numpy.ndarray) else type(value).__name__
                self.fail(p, f"is changed: it must be a NumPy array of {wanted.__name__}, not {kind}")
            if not value.flags.f_contiguous or not value.flags.writeable:
                self.fail(p, "is changed: it must be writeable and in Fortran order")
            return value
        try:
            plain = numpy.asarray(value)
            if plain.size and not numpy.can_cast(plain.dtype, wanted, "same_kind") and plain.dtype != bool:
                raise TypeError(f"cannot hold {plain.dtype}")
            array = numpy.asarray(plain, dtype=wanted, order="F")
        except (TypeError, ValueError) as error:
            self.fail(p, f"must be an array of {wanted.__name__}: {error}")
        if array.size and plain.dtype.kind in "iu" and wanted is not numpy.float64 and not numpy.array_equal(array, plain):
            self.fail(p, f"has numbers beyond {wanted.__name__}", ValueError)
        if plain.dtype == bool and wanted is numpy.int16:
            array = -array
        if array.ndim > 2:
            self.fail(p, f"has {array.ndim} dimensions; vectors and tables have one or two", ValueError)
        return array if array.flags.f_contiguous else numpy.asfortranarray(array)

    def text_cells(self, p, value):
        """The texts; where they are changed, the caller's own array, or a copy of the caller's list."""
        array = numpy.array(value, dtype=object, order="F")
        if array.ndim > 2:
            self.fail(p, f"has {array.ndim} dimensions; vectors and tables have one or two", ValueError)
        if isinstance(value, str):
            self.fail(p, "must be an array of texts, not str")
        if p.direction == "in" or isinstance(value, list):
            return array
        if not isinstance(value, numpy.ndarray) or value.dtype != object or not value.flags.writeable:
            self.fail(p, "is changed: it must be a list, or a writeable NumPy array of object")
        return value

    def number(self, p):
        if p.name not in self.given:
            found = self.count_shown_by_arrays(p.name)
            if found is None:
                self.fail(p, "is not given")
            return found
        value = self.given[p.name]
        if p.type == "double":
            try:
                return float(value if not isinstance(value, (str, bytes)) else None)
            except (TypeError, ValueError):
                self.fail(p, f"must be a number, not {type(value).__name__}")
        if isinstance(value, (bool, numpy.bool_)) and p.type == "short int":
            return -int(value)
        if not isinstance(value, (int, numpy.integer)) or isinstance(value, bool):
            self.fail(p, f"must be an integer, not {type(value).__name__}")
        least, most = INTEGERS[p.type]
        if not least <= value <= most:
            self.fail(p, f"is {value}, beyond {least} to {most}", ValueError)
        return int(value)

    def count_shown_by_arrays(self, name):
        """A count that is the number of rows, of columns or of elements of an array that is given."""
        for p in self.flat._parameters:
            if p.name not in self.arrays or not p.rooms:
                continue
            array, room = self.arrays[p.name], p.rooms[0]
            if room.rows == name:
                return array.size if room.columns == "1" and array.ndim < 2 else array.shape[0] if array.ndim else 1
            if room.columns == name:
                return array.shape[1] if array.ndim == 2 else 1
        return None

    def room(self, p):
        """Rows and columns that the array must have; None where they are not told."""
        if not p.rooms:
            return None
        room = next((r for r in p.rooms[1:] if self.counts.get(r.when[0]) == r.when[1]), p.rooms[0])
        rows, columns = (self.value(expression) for expression in room[:2])
        if min(rows, columns) < 0 and (p.name in self.arrays or not p.nullable):
            self.fail(p, f"cannot have {rows} by {columns} cells", ValueError)
        return rows, columns

    def value(self, expression):
        """What an expression of a room is worth. A count of 0 that stands for 1 is 1."""
        least = {p.name: p.least for p in self.flat._parameters}
        values = {name: max(value, least[name]) if value == 0 else value for name, value in self.counts.items()
                  if isinstance(value, int)}
        values |= {name: array for name, array in self.arrays.items() if isinstance(array, numpy.ndarray)}
        changed = {p.name: int(self.arrays[p.name].flat[0]) for p in self.flat._parameters
                   if p.name in self.arrays and p.type == "int*" and p.direction == "inout" and
                   self.arrays[p.name].size == 1}

        def largest(*numbers):
            return max(numbers) if len(numbers) > 1 else int(max(numbers[0], default=0))

        def positive_sum(cells):
            return sum(int(cell) for cell in cells if cell >= 1)

        return int(eval(expression, {"__builtins__": {}}, {**values, **changed, "max": largest, "sum": positive_sum}))

    def argument(self, p):
        if p.type in NUMBERS:
            return NUMBERS[p.type][0](self.counts[p.name])
        if p.type == "OLECHAR**":
            return self.text_argument(p)
        if element_of(p.type) in NUMBERS:
            return self.array_argument(p)
        return self.other_argument(p)

    def given_or_made(self, p, empty, type_):
        """The array of an argument; None where it is absent."""
        room = self.room(p)
        if p.name not in self.arrays:
            if p.nullable:
                return None
            if p.direction != "out":
                self.fail(p, "is not given")
            scalar = p.rooms[0][:2] == ("1", "1")
            shape = () if scalar else room[0] if p.rooms[0].columns == "1" else room
            self.arrays[p.name] = numpy.full(shape, empty, type_, "F")
            self.made.append((p.name, self.arrays[p.name]))
        self.check_shape(p, self.arrays[p.name], room)
        return self.arrays[p.name]

    def array_argument(self, p):
        array = self.given_or_made(p, 0, NUMBERS[element_of(p.type)][1])
        return None if array is None else ctypes.c_void_p(array.ctypes.data)

    def check_shape(self, p, array, room):
        if room is None:
            return
        rows, columns = room
        if array.ndim == 2 and columns != 1 and array.shape != (rows, columns):
            self.fail(p, f"has {array.shape[0]} by {array.shape[1]} cells, not {rows} by {columns}", ValueError)
        if array.size < rows * columns:
            self.fail(p, f"has {array.size} cells, not {rows * columns}", ValueError)

    def text_argument(self, p):
        array = self.given_or_made(p, "", object)
        if array is None:
            return None
        try:
            texts = Texts(array.ravel(order="F").tolist())
        except TypeError as error:
            self.fail(p, f"must be an array of texts: {error}")
        self.texts[p.name] = (p, texts, array)
        return ctypes.cast(texts.cells, ctypes.c_void_p)

    def other_argument(self, p):
        """One text, a label, or an address that the caller made: of a record, a host array, a chunked table."""
        if p.name not in self.given:
            if p.nullable:
                return None
            self.fail(p, "is not given")
        value = self.given[p.name]
        if p.type == "const char*" and isinstance(value, str):
            try:
                return ctypes.c_char_p(value.encode("latin-1"))
            except UnicodeEncodeError:
                self.fail(p, "must be of 8-bit characters", ValueError)
        if element_of(p.type) == "OLECHAR" and isinstance(value, str):
            texts = Texts([value])
            self.texts[p.name] = (p._replace(direction="in"), texts, None)
            return ctypes.c_void_p(texts.cells[0])
        if isinstance(value, (ctypes._Pointer, ctypes.c_void_p, ctypes.Array)):
            return ctypes.cast(value, ctypes.c_void_p)
        kind = "a text" if element_of(p.type) in ("OLECHAR", "const char") else "an address of ctypes"
        self.fail(p, f"must be {kind}, not {type(value).__name__}")
        return None
