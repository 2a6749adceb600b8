"""Missing cells. In the library they have a value of their own; in NumPy they mostly are NaN."""

import numpy

MISSING = -1.79769313486231e308
MISSING_INT = -(2**31)


def is_missing(cells):
    """Which cells are missing: numbers at or below `MISSING`, the integer `MISSING_INT`."""
    cells = numpy.asarray(cells)
    if numpy.issubdtype(cells.dtype, numpy.integer):
        return cells == MISSING_INT
    return cells <= MISSING


def from_nan(cells):
    """A copy, column after column, in which each NaN is a missing number."""
    cells = numpy.array(cells, dtype=numpy.float64, order="F")
    cells[numpy.isnan(cells)] = MISSING
    return cells


def to_nan(cells):
    """A copy, column after column, in which each missing number is NaN."""
    cells = numpy.array(cells, dtype=numpy.float64, order="F")
    cells[is_missing(cells)] = numpy.nan
    return cells
