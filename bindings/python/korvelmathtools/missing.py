"""Missing cells. In the library they have a value of their own; in NumPy they mostly are NaN."""

import numpy

MISSING = -1.79769313486231e308
MISSING_INT = -(2**31)


def is_missing(cells):
    """Which cells are missing: numbers at or below `MISSING`, the integer `MISSING_INT`, the empty text."""
    cells = numpy.asarray(cells)
    if cells.dtype.kind in "OU":
        return cells == ""
    if numpy.issubdtype(cells.dtype, numpy.integer):
        return cells == MISSING_INT
    return cells <= MISSING


def from_nan(cells):
    """A copy, column after column, in which each NaN and each masked cell is a missing number."""
    masked = numpy.ma.getmaskarray(cells) if isinstance(cells, numpy.ma.MaskedArray) else False
    cells = numbers(cells)
    cells[numpy.isnan(cells) | masked] = MISSING
    return cells


def to_nan(cells):
    """A copy, column after column, in which each missing number is NaN."""
    cells = numbers(cells)
    cells[is_missing(cells)] = numpy.nan
    return cells


def numbers(cells):
    """A copy, column after column."""
    if numpy.iscomplexobj(cells):
        raise TypeError("a cell must be a number, not a complex one")
    return numpy.array(cells, dtype=numpy.float64, order="F")
