"""Cells of a sheet as arrays for the library, its results as cells, and the helpers of functions.txt.

A range comes as a tuple of rows, one cell as itself, and what was left out as None. Numbers are floats, texts are str; an
empty cell is the empty text. What cannot be used raises `Refused`, what the library could not compute `Failed`.
"""

import ctypes
import math
import struct
import types

import numpy

import korvelmathtools as kmt

MISSING = kmt.MISSING
MOST_COLUMNS = 1000
MOST_CELLS = 4_000_000

# Error values of the office, by the numbers that it has for them: they travel in the low half of a NaN.
NOT_AVAILABLE = 32767
NOT_A_NUMBER = 503


class Refused(Exception):
    """An argument cannot be used: the office shows Err:502."""


class Failed(Exception):
    """The library found no result: the office shows #NUM!."""


def error_value(number):
    return struct.unpack("<d", struct.pack("<Q", 0x7FF8_0000_0000_0000 | number))[0]


def refuse_unless(condition, message):
    if not condition:
        raise Refused(message)


def fail_if(condition, message):
    if condition:
        raise Failed(message)


# Cells as arrays.

def grid(value):
    """The rows of a range; one cell is a range too."""
    refuse_unless(value is not None, "a range is missing")
    rows = value if isinstance(value, tuple) else ((value,),)
    refuse_unless(rows and rows[0] and len(rows) * len(rows[0]) <= MOST_CELLS, "the range is empty or too large")
    refuse_unless(all(len(row) == len(rows[0]) for row in rows), "the rows of the range differ in length")
    return rows


def number_of(cell):
    return float(cell) if isinstance(cell, (int, float)) else MISSING


def text_of(cell):
    """A number as the office shows it in a cell without a format."""
    if isinstance(cell, str):
        return cell.partition("\0")[0]
    return f"{cell:.0f}" if float(cell).is_integer() and abs(cell) < 1e15 else repr(float(cell))


def table(value, most=MOST_CELLS):
    rows = grid(value)
    refuse_unless(len(rows) <= most and len(rows[0]) <= MOST_COLUMNS, "the table is too large for this function")
    return numpy.array([[number_of(cell) for cell in row] for row in rows], dtype=numpy.float64, order="F")


def vector(value):
    """All cells, column after column."""
    rows = grid(value)
    return numpy.array([number_of(row[j]) for j in range(len(rows[0])) for row in rows], dtype=numpy.float64)


def without_gaps(array):
    refuse_unless(not kmt.is_missing(array).any(), "a cell is empty or holds a text")
    return array


def numbers(value):
    return without_gaps(vector(value))


def full(value, most=MOST_CELLS):
    return without_gaps(table(value, most))


def square(value, most=MOST_CELLS):
    array = full(value, most)
    refuse_unless(array.shape[0] == array.shape[1], "the table is not square")
    return array


def labels(value, most=MOST_CELLS):
    rows = grid(value)
    refuse_unless(len(rows) <= most and len(rows[0]) <= MOST_COLUMNS, "the table is too large for this function")
    array = numpy.empty((len(rows), len(rows[0])), dtype=object, order="F")
    for i, row in enumerate(rows):
        array[i] = [text_of(cell) for cell in row]
    return array


def texts(value):
    rows = grid(value)
    array = numpy.empty(len(rows) * len(rows[0]), dtype=object)
    array[:] = [text_of(row[j]) for j in range(len(rows[0])) for row in rows]
    return array


def weights(value, first):
    """A weight for each row of the first argument; all are 1 when they are left out."""
    if value is None:
        return ones(len(first))
    array = vector(value)
    refuse_unless(len(array) == len(first), "the weights are not as many as the rows")
    refuse_unless((array >= 0).all(), "a weight is negative, empty or a text")
    return array


def as_many(first, other):
    refuse_unless(len(first) == len(other), "the ranges differ in their number of cells")


# One cell.

def single(value):
    """The one cell of an argument; None when it was left out or is empty."""
    rows = value if isinstance(value, tuple) else ((value,),)
    refuse_unless(len(rows) == 1 and len(rows[0]) == 1, "one cell is wanted, not a range")
    return None if rows[0][0] == "" else rows[0][0]


def number(value, low=-math.inf, high=math.inf, left_out=None):
    cell = single(value)
    cell = left_out if cell is None else cell
    refuse_unless(isinstance(cell, (int, float)) and low <= cell <= high, "a number is missing or outside its range")
    return float(cell)


def integer(value, low=-(2**31) + 1, high=2**31 - 1, left_out=None):
    cell = number(value, low, high, left_out)
    refuse_unless(cell.is_integer(), "a number is not whole")
    return int(cell)


def flag(value, left_out=None):
    return number(value, left_out=left_out) != 0


def text(value):
    cell = single(value)
    return "" if cell is None else text_of(cell)


# Helpers of the table.

def rows(array):
    return array.shape[0]


def columns(array):
    return array.shape[1] if array.ndim == 2 else 1


def ones(count):
    return numpy.ones(count)


def zeros(count, width):
    return numpy.zeros(count if width == 1 else (count, width), order="F")


def noIntegers(count):
    return numpy.zeros(count, dtype=numpy.int32)


def none(array):
    """A flag for each row, none of them set."""
    return numpy.zeros(len(array), dtype=numpy.int16)


def gaps(array):
    """A flag for each row, set where a number is missing."""
    missing = kmt.is_missing(array)
    return -(missing.any(axis=1) if array.ndim == 2 else missing).astype(numpy.int16)


def count(flags):
    return int((flags != 0).sum())


def present(array):
    return array[~kmt.is_missing(array)]


def complete(first, second):
    """Which rows have no missing number in either array."""
    as_many(first, second)
    kept = (gaps(first) == 0) & (gaps(second) == 0)
    refuse_unless(kept.any(), "no row is without missing cells")
    return kept


def keep(array, kept):
    return numpy.asfortranarray(array[kept])


def spread(array, kept):
    """The kept rows at their places, with missing numbers between them."""
    result = numpy.full(len(kept), MISSING)
    result[kept] = array
    return result


def numbered(array):
    """With a last column that numbers the rows."""
    return numpy.asfortranarray(numpy.column_stack([array, numpy.arange(1.0, len(array) + 1)]))


def emptyTexts(count):
    return numpy.full(count, "", dtype=object)


def distinctTexts(array):
    """The most categories that a column has; 1 when all cells are empty."""
    table_of_texts = array.reshape(len(array), -1, order="F")
    return max(1, *(len(set(table_of_texts[:, j]) - {""}) for j in range(table_of_texts.shape[1])))


def mark(value):
    return numpy.array([value], dtype=numpy.int16)


def one(value):
    """A count that the library changes: a seed."""
    return numpy.array([value], dtype=numpy.int32)


def cell(value):
    """A number that the library changes."""
    return numpy.array([value], dtype=numpy.float64)


def within(value, most):
    refuse_unless(1 <= value <= most, f"a number is not from 1 to {most}")
    return int(value)


def mostColumns(array):
    """How many columns a result of as many rows may have."""
    return min(MOST_COLUMNS, MOST_CELLS // len(array))


def withRoom(a, b):
    """The first table, when there is room for a table of all products of a cell of each."""
    refuse_unless(a.size * b.size <= MOST_CELLS, "the result is too large")
    return a


def power(degree, array):
    """The degree, when a regression on the powers of all columns has room."""
    refuse_unless(degree * columns(array) <= MOST_COLUMNS, "too many terms")
    return degree


def least(a, b):
    return min(a, b)


def last(array):
    return array.flat[-1]


# Calls.

def call(function, **arguments):
    """What a flat function returns and writes, by name."""
    try:
        found = function(**arguments)
    except (TypeError, ValueError) as error:
        raise Refused(str(error)) from error
    return found if isinstance(found, tuple) else types.SimpleNamespace(result=found)


def call_core(symbol, *arguments):
    """A core routine over numbers."""
    function = ctypes.CDLL(kmt.LIBRARY_PATH)[symbol]
    function.restype = ctypes.c_double
    return types.SimpleNamespace(result=function(*map(ctypes.c_double, arguments)))


# Results as cells.

def leading(array, count):
    return array[:int(count)]


def leadingColumns(array, count):
    return array.reshape(len(array), -1)[:, :int(count)]


def column(array):
    return numpy.asarray(array).reshape(-1, 1)


def row(*parts):
    return numpy.hstack([numpy.ravel(part) for part in parts]).reshape(1, -1)


def beside(*tables):
    return numpy.hstack([numpy.asarray(part, dtype=object) for part in tables])


def below(*tables):
    return numpy.vstack(tables)


def shown(value):
    """One cell of a result."""
    if isinstance(value, str):
        return value
    found = float(value)
    if found <= MISSING:
        return error_value(NOT_AVAILABLE)
    return found if math.isfinite(found) else error_value(NOT_A_NUMBER)


def answer(value):
    """A result as the office takes it: one cell, or a tuple of rows."""
    if isinstance(value, numpy.ndarray) and value.ndim == 2:
        refuse_unless(0 < value.size <= MOST_CELLS, "the result has no cell, or too many")
        return tuple(tuple(shown(cell_value) for cell_value in line) for line in value.tolist())
    if isinstance(value, numpy.ndarray):
        value = value.item()
    return shown(value)


def failure(is_table):
    value = error_value(NOT_A_NUMBER)
    return ((value,),) if is_table else value
