"""Columns of a CSV file, for the examples beside it."""

import csv

import numpy


class BadTable(Exception):
    """What is wrong with the file, in a few words."""


def read(path, numbers, texts):
    """The columns of these names, as lists: of numbers, NaN where a cell is empty or NA, and of texts."""
    try:
        with open(path, newline="", encoding="utf-8") as file:
            header, *rows = list(csv.reader(file)) or [[]]
    except OSError as error:
        raise BadTable(error.strerror) from None
    except UnicodeDecodeError as error:
        raise BadTable(error) from None
    for name in (*numbers, *texts):
        if name not in header:
            raise BadTable(f"no column {name}")
    if not rows:
        raise BadTable("no rows")
    for line, row in enumerate(rows, start=2):
        if len(row) != len(header):
            raise BadTable(f"line {line} has {len(row)} cells, not {len(header)}")
    columns = dict(zip(header, zip(*rows)))
    read_numbers = {name: [number(cell, line) for line, cell in enumerate(columns[name], start=2)] for name in numbers}
    return read_numbers | {name: list(columns[name]) for name in texts}


def number(cell, line):
    if cell in ("", "NA"):
        return numpy.nan
    try:
        value = float(cell)
    except ValueError:
        value = numpy.nan
    if not numpy.isfinite(value):
        raise BadTable(f"line {line}: {cell} is not a number")
    return value
