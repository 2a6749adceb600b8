"""What the tests of the scripts in tools/ share: a source tree of their own, and flat headers to put there."""

import functools
import importlib.machinery
import importlib.util
import io
import shutil
import sys
import tempfile
import unittest
from contextlib import redirect_stderr, redirect_stdout
from pathlib import Path
from unittest import mock

TOOLS = Path(__file__).resolve().parent.parent.parent.parent / "tools"
sys.path.insert(0, str(TOOLS))

UMBRELLA = """\
/**
 * @file
 * All of them.
 */
#ifndef KORVELMATHTOOLS_H
#define KORVELMATHTOOLS_H

#include "frames/sample.h"

#endif
"""

COMMON = """\
/**
 * @file
 * What is common to all.
 */
#ifndef KORVEL_FRAMES_TYPES_H
#define KORVEL_FRAMES_TYPES_H
#endif
"""

RECORDS = """\
/** One labelled column, 24 bytes. */
typedef struct ST_Vect {
    int Count;       /**< Its cells. */
    BSTR Label;      /**< Its name. */
    SAFEARRAY* Vect; /**< The column. */
} ST_Vect;

/** A table. */
typedef struct ST_MVect {
    SAFEARRAY* nbrows;  /**< `int`: row counts. */
    SAFEARRAY* Vectors; /**< `ST_Vect` records. */
} ST_MVect;

/** Categories. */
typedef struct ST_QualiInfo {
    double SumW;        /**< Sum. */
    short int withSort; /**< -1: sorted. */
    ST_MVect CatNames;  /**< Texts. */
    ST_MVect CatFreq;   /**< `double`. */
} ST_QualiInfo;
"""

MISSING = """\
#define KORVEL_MISSING_DBL (-1.5e308)
#define KORVEL_MISSING_LNG (-7 - 1)
"""

OPENING = """\
/**
 * @file
 * Flat functions: samples.
 */
#ifndef KORVEL_FRAMES_SAMPLE_H
#define KORVEL_FRAMES_SAMPLE_H

#include "frames/types.h"

"""
FIRST_LINE = OPENING.count("\n") + 1

SUM = """\
/**
 * Sums a vector, e.g. of weights. Adds upwards.
 *
 * @param x [in] n numbers
 * @param n their number
 * @param flags [in] n flags;
 *              Null: none is set
 * @return the sum
 */
KORVEL_FLAT double VB_Sum(const double* x, int n,
                          const short int* flags);

"""

LIKE = """\
/**
 * Sums integers.
 *
 * @like VB_Sum, integers for numbers
 * @param n length of x
 */
KORVEL_FLAT double VB_SumLng(const int* x, int n, const short int* flags);

"""


@functools.cache
def load(name):
    """A script of tools/ as a module."""
    loader = importlib.machinery.SourceFileLoader(name, str(TOOLS / name))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(name, loader))
    loader.exec_module(module)
    return module


class Tree(unittest.TestCase):
    """A test with a source tree of its own."""

    def setUp(self):
        self.root = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.root)
        self.write("include/korvelmathtools/KORVELMathTools.h", UMBRELLA)
        self.write("include/korvelmathtools/frames/types.h", COMMON)
        self.write("include/korvelmathtools/containers/caller_records.h", RECORDS)
        self.write("include/korvelmathtools/containers/missing_values.h", MISSING)
        self.write("VERSION", "1.20.3\n")

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8", newline="\n")

    def read(self, name):
        return (self.root / name).read_bytes().decode("ascii")

    def functions(self, text):
        self.write("include/korvelmathtools/frames/sample.h", OPENING + text + "#endif\n")

    def run_tool(self, name, *arguments):
        """(exit code, lines on the error stream)"""
        script = load(name)
        errors = io.StringIO()
        command = [name, "--root", str(self.root), *map(str, arguments)]
        with mock.patch("sys.argv", command), redirect_stderr(errors), redirect_stdout(io.StringIO()):
            code = script.main()
        return code, errors.getvalue().splitlines()
