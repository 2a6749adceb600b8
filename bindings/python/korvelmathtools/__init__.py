"""The flat functions of KORVELMathTools over NumPy arrays.

    >>> import korvelmathtools as kmt
    >>> kmt.VB_V_Sum([1.0, 2.0, 4.0], w=[1.0, 1.0, 0.5])
    5.0
    >>> kmt.VB_M_ProductAB(a=[[1.0, 2.0], [3.0, 4.0]], b=[[0.0, 1.0], [1.0, 0.0]]).c
    array([[2., 1.],
           [4., 3.]])

Each function takes its arguments in the order of the C declaration or by name; `help(kmt.VB_V_Sum)` describes them.
What follows from the others may be left out: a count that an array shows, an array that may be absent, and an array that
is only written, which is then made. The answer is the result of the function, or, when arrays were made, a named tuple of
the result and of them. A name that Python or the tuple has already gets an underscore: `from_`, `result_`.

Tables are column-major: an array in Fortran order is handed over as it stands, any other that is only read is copied. An
array that is changed must have the right type and order. A missing number is `MISSING`, not a NaN: `from_nan` and `to_nan`
convert.

The interpreter's lock is released during each call.
"""

from ._call import Flat
from ._declarations import FUNCTIONS, VERSION
from ._library import LIBRARY_PATH, load
from .missing import MISSING, MISSING_INT, from_nan, is_missing, to_nan

__version__ = VERSION
__all__ = ["LIBRARY_PATH", "MISSING", "MISSING_INT", "from_nan", "is_missing", "to_nan", *FUNCTIONS]

_made = {}


def __getattr__(name):
    """The flat function of that name."""
    if name not in FUNCTIONS:
        raise AttributeError(f"korvelmathtools has no function {name}")
    if name not in _made:
        _made[name] = Flat(load(), name, *FUNCTIONS[name])
    return _made[name]


def __dir__():
    return sorted([*globals(), *FUNCTIONS])
