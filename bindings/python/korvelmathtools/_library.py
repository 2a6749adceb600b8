"""Where the library is, and what texts are made of."""

import ctypes
import ctypes.util
import functools
import os
import sys
from pathlib import Path

from ._declarations import ABI

WINDOWS = sys.platform == "win32"
NAME = "KORVELMathTools.dll" if WINDOWS else f"libKORVELMathTools.so.{ABI}"
AUTOMATION = "oleaut32" if WINDOWS else f"libKORVELAutomation.so.{ABI}"
HERE = Path(__file__).resolve().parent
# The library of a wheel lies in this folder; otherwise the system's own search finds it.
LIBRARY_PATH = str(HERE / NAME) if (HERE / NAME).is_file() else NAME


@functools.lru_cache(maxsize=None)
def load():
    """The library."""
    try:
        return ctypes.CDLL(LIBRARY_PATH)
    except OSError as error:
        raise ImportError(f"{NAME} is not installed: {error}") from None


class Texts:
    """An array of texts as the library takes them: pointers to the automation type, each owned by the array."""

    def __init__(self, values):
        self._system = automation()
        self.cells = (ctypes.c_void_p * len(values))(*map(self._made, values))

    def _made(self, value):
        if not isinstance(value, str):
            raise TypeError(f"a text is wanted, not {type(value).__name__}")
        data = value.encode("utf-16-le", "surrogatepass")
        made = self._system.SysAllocStringLen(data, len(data) // 2)
        if made is None:
            raise MemoryError
        return made

    def values(self):
        """What the texts are now. A null pointer is the empty text."""
        return [ctypes.string_at(cell, self._system.SysStringByteLen(cell)).decode("utf-16-le", "surrogatepass") if cell else ""
                for cell in self.cells]

    def __del__(self):
        for cell in getattr(self, "cells", ()):
            self._system.SysFreeString(cell)


@functools.lru_cache(maxsize=None)
def automation():
    """The library of the automation types; on Windows it is the system's."""
    if WINDOWS:
        system = ctypes.WinDLL(AUTOMATION)
    else:
        beside = HERE / AUTOMATION
        system = ctypes.CDLL(os.fspath(beside) if beside.is_file() else AUTOMATION)
    system.SysAllocStringLen.restype = ctypes.c_void_p
    system.SysAllocStringLen.argtypes = (ctypes.c_char_p, ctypes.c_uint)
    system.SysFreeString.restype = None
    system.SysFreeString.argtypes = (ctypes.c_void_p,)
    system.SysStringByteLen.restype = ctypes.c_uint
    system.SysStringByteLen.argtypes = (ctypes.c_void_p,)
    return system
