#!/usr/bin/env python3
"""The Calc add-in in a real spreadsheet: each worksheet function beside a direct call, bit for bit, and hostile cells.

    calc_test.py ROOT FOLDER    the source tree, and a folder of its own, which is emptied first
"""

import platform
import re
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

from office import Office, make_extension

ROOT, SCRATCH = map(Path, sys.argv[1:3])
NOT_AVAILABLE, NOT_A_NUMBER, BAD_ARGUMENT = 32767, 503, 502


EXTENSION = make_extension(ROOT, SCRATCH)

import numpy  # noqa: E402  pylint: disable=wrong-import-position

import korvelmathtools as kmt  # noqa: E402  pylint: disable=wrong-import-position
from calc_cases import CASES, DATA, ROWS  # noqa: E402  pylint: disable=wrong-import-position
from flat_sheet import Sheet, address, document_of  # noqa: E402  pylint: disable=wrong-import-position


def functions_of_the_table():
    text = (ROOT / "bindings" / "calc" / "functions.txt").read_text(encoding="ascii")
    return {name: arguments for name, arguments in re.findall(r"^([A-Z]+)\((.*)\)$", text, re.MULTILINE)}


FUNCTIONS = functions_of_the_table()


def sheet_value(cell):
    """How a cell of the data stands in the sheet: a missing number as a text."""
    return "no number" if isinstance(cell, float) and cell <= kmt.MISSING else cell


def sheet_of_data():
    sheet, places, column = Sheet("Data"), {}, 0
    for name, array in DATA.items():
        block = array.reshape(len(array), -1, order="F")
        for i, line in enumerate(block.tolist()):
            for j, cell in enumerate(line):
                sheet.put(i, column + j, sheet_value(cell))
        places[name] = f"[$Data.{address(0, column)}:.{address(len(block) - 1, column + block.shape[1] - 1)}]"
        column += block.shape[1]
    return sheet, places


def formula(function, arguments, places):
    """With ranges for the names of the data."""
    placed = re.sub(r"\b[a-z]+\b(?!\")", lambda found: places.get(found[0], found[0]), arguments)
    return f"of:=KORVEL.{function}({placed})"


class Shown:
    """What is in the first cells of a sheet: ("number", bits), ("text", it) or ("error", its number)."""

    def __init__(self, sheet, rows, columns):
        self.sheet = sheet
        self.cells = sheet.getCellRangeByPosition(0, 0, columns - 1, rows - 1).getDataArray()

    def at(self, row, column=0):
        cell = self.cells[row][column]
        if cell is None:
            return "error", self.sheet.getCellByPosition(column, row).getError()
        return ("text", cell) if isinstance(cell, str) else ("number", cell.hex())


def wanted(value):
    if isinstance(value, str):
        return "text", value
    value = float(value)
    if value <= kmt.MISSING:
        return "error", NOT_AVAILABLE
    return ("number", value.hex()) if numpy.isfinite(value) else ("error", NOT_A_NUMBER)


class Extension(unittest.TestCase):
    def test_contents(self):
        inside = SCRATCH / "extension"
        listed = re.findall(r'full-path="([^"]*)"', (inside / "META-INF" / "manifest.xml").read_text(encoding="ascii"))
        self.assertEqual(len(listed), 3)
        for name in (*listed, "licences.md", "pythonpath/korvelcalc/cells.py", "pythonpath/korvelmathtools/_declarations.py"):
            self.assertTrue((inside / name).is_file(), name)
        self.assertTrue(kmt.LIBRARY_PATH.startswith(str(inside)))
        about = (inside / "description.xml").read_text(encoding="ascii")
        self.assertIn(f'<version value="{kmt.__version__}"/>', about)
        self.assertIn(f'<platform value="linux_{platform.machine()}"/>', about)

    def test_each_archive_of_the_same_sources_is_the_same(self):
        folder = SCRATCH / "extension" / "pythonpath" / "korvelmathtools"
        (library,) = folder.glob("libKORVELMathTools.so.*")
        libraries = SCRATCH / "libraries"
        libraries.mkdir()
        shutil.copy(library, libraries / f"{library.name}.0")
        made = []
        for name in ("first.oxt", "second.oxt"):
            subprocess.run([ROOT / "tools" / "calc_extension", libraries, SCRATCH / name], check=True)
            made.append((SCRATCH / name).read_bytes())
        self.assertEqual(*made)

    def test_without_libraries_there_is_none(self):
        done = subprocess.run([ROOT / "tools" / "calc_extension", ROOT / "docs", SCRATCH / "none.oxt"],
                              stderr=subprocess.PIPE, encoding="utf-8", check=False)
        self.assertEqual((done.returncode, done.stderr.count("\n")), (2, 1))
        self.assertIn("no libraries in", done.stderr)
        self.assertFalse((SCRATCH / "none.oxt").exists())


class InTheOffice(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.office = cls.enterClassContext(Office(EXTENSION))

    def opened(self, name, *sheets):
        path = self.office.folder / name
        path.write_text(document_of(sheets), encoding="utf-8")
        document = self.office.open(path)
        self.addCleanup(document.close, True)
        return document

    # In the order of the alphabet: before any function is called.
    def test_a_wizard_describes_every_function(self):
        descriptions = self.office.service("com.sun.star.sheet.FunctionDescriptions")
        found = {}
        for k in range(descriptions.Count):
            properties = {p.Name: p.Value for p in descriptions.getByIndex(k)}
            if properties["Name"].startswith("KORVEL."):
                found[properties["Name"].removeprefix("KORVEL.")] = properties
        self.assertEqual(set(found), set(FUNCTIONS))
        self.assertGreaterEqual(len(found), 60)
        for name, arguments in FUNCTIONS.items():
            told = found[name]["Arguments"]
            self.assertEqual([a.Name for a in told], re.findall(r"(\w+): ", arguments), name)
            self.assertEqual([a.IsOptional for a in told], [" = " in a for a in re.split(r", (?=\w+: )", arguments)], name)
            self.assertTrue(all(a.Description for a in told), name)
            self.assertIn("Err:502: an argument does not fit.", found[name]["Description"])
        self.assertIn("#NUM!: the table is singular", found["INVERSE"]["Description"])
        self.assertIn("Weighted mean", found["MEAN"]["Description"])

    def test_every_function_gives_what_a_direct_call_gives(self):
        self.assertEqual({name for name, _, _ in CASES}, set(FUNCTIONS))
        data, places = sheet_of_data()
        sheet, top, expected = Sheet("Cases"), 0, []
        for name, arguments, call in CASES:
            result = call()
            block = result if isinstance(result, numpy.ndarray) else None
            # One row and one column more than the result, which show that it ends there.
            shape = (block.shape[0] + 1, block.shape[1] + 1) if block is not None else None
            sheet.put_formula(top, 0, formula(name, arguments, places), shape)
            expected.append((name, arguments, top, result))
            top += shape[0] if shape else 1
        document = self.opened("cases.fods", data, sheet)
        self.check_data(document.Sheets.getByName("Data"))
        cells = Shown(document.Sheets.getByName("Cases"), top, 1 + max(
            result.shape[1] for *_, result in expected if isinstance(result, numpy.ndarray)))
        for name, arguments, top, result in expected:
            with self.subTest(f"{name}({arguments})"):
                if not isinstance(result, numpy.ndarray):
                    self.assertEqual(cells.at(top), wanted(result))
                    continue
                rows, columns = result.shape
                found = [[cells.at(top + i, j) for j in range(columns)] for i in range(rows)]
                self.assertEqual(found, [list(map(wanted, line)) for line in result.tolist()])
                # The office repeats one row or one column over the whole range.
                if rows > 1 and columns > 1:
                    for corner in ((top + rows, columns), (top + rows, 0), (top, columns)):
                        self.assertEqual(cells.at(*corner), ("error", NOT_AVAILABLE))

    def check_data(self, sheet):
        """The office has read the data to the last bit."""
        columns = [column for array in DATA.values() for column in array.reshape(len(array), -1, order="F").T.tolist()]
        read = sheet.getCellRangeByPosition(0, 0, len(columns) - 1, ROWS - 1).getDataArray()
        for j, column in enumerate(columns):
            self.assertEqual([line[j] for line in read[: len(column)]], list(map(sheet_value, column)))

    def test_failures_are_error_values(self):
        cases = {
            "INVERSE({1;2|2;4})": NOT_A_NUMBER,
            "CHOLESKY({1;2|2;1})": NOT_A_NUMBER,
            "SOLUTION({0;0|0;0};{1|1})": NOT_A_NUMBER,
            "SQUAREROOT({-1;0|0;-1})": NOT_A_NUMBER,
            "LOGGAMMA(0)": NOT_A_NUMBER,
            "LOGGAMMA(-7)": BAD_ARGUMENT,
            "INVERSE({1;2;3|2;4;5})": BAD_ARGUMENT,
            "PRODUCT({1;2};{1;2})": BAD_ARGUMENT,
            "QUANTILE({1;2;3};1.5)": BAD_ARGUMENT,
            "MEAN({1;2;3};{1;2})": BAD_ARGUMENT,
            "MEAN({1;2;3};{1;-1;1})": BAD_ARGUMENT,
            'MEAN({1;2;3};{1;"a";1})': BAD_ARGUMENT,
            "PAIRCORRELATION({1;2;3};{1;2})": BAD_ARGUMENT,
            "PAIRCORRELATION({1;2};{1;2;3})": BAD_ARGUMENT,
            "SORTED({1;2};3)": BAD_ARGUMENT,
            "SORTED({1;2};1.5)": BAD_ARGUMENT,
            "RANDOM(2;2;0)": BAD_ARGUMENT,
            'QUANTILE({"a";"b"};0.5)': NOT_AVAILABLE,
            "VARIANCE({5})": NOT_AVAILABLE,
        }
        sheet = Sheet("Cases")
        for k, text in enumerate(cases):
            sheet.put_formula(k, 0, f"of:=KORVEL.{text}")
        cells = Shown(self.opened("failures.fods", sheet).Sheets.getByName("Cases"), len(cases), 1)
        for k, (text, number) in enumerate(cases.items()):
            self.assertEqual(cells.at(k), ("error", number), text)

    def test_hostile_cells_never_end_the_office(self):
        rows = 10_000
        hostile = Sheet("Hostile")
        for i in range(rows):
            hostile.put(i, 0, ((i * 7919) % rows) / 8)
            hostile.put(i, 1, f"text {i % 50}" if i < 200 else "")
        for i in range(20):
            hostile.put(i, 3, float(i))
            hostile.put(i, 4, 1e308)
        hostile.put_formula(7, 3, "of:=1/0")
        ranges = {"empty": "[$Hostile.H1:.I20]", "texts": "[$Hostile.B1:.B20]", "errors": "[$Hostile.D1:.D20]",
                  "long": f"[$Hostile.A1:.A{rows}]", "wide": f"[$Hostile.A1:.B{rows}]", "cell": "[$Hostile.A5]",
                  "huge": "[$Hostile.E1:.E20]", "nothing": "[$Hostile.H1]"}
        _, places = sheet_of_data()
        sheet, formulas = Sheet("Cases"), []
        for name, arguments in {name: arguments for name, arguments, _ in reversed(CASES)}.items():
            parts = arguments.split(";")
            for kind, place in ranges.items():
                for k in range(len(parts) if kind in ("empty", "errors") else 1):
                    changed = formula(name, ";".join([*parts[:k], "here", *parts[k + 1:]]), {**places, "here": place})
                    # Where one cell is wanted, the office takes the one in the row of the formula.
                    formulas.append((kind if parts[k] in DATA else "", changed))
        for i, (_, text) in enumerate(formulas):
            sheet.put_formula(i, 0, text)
        data, _ = sheet_of_data()
        cells = Shown(self.opened("hostile.fods", data, hostile, sheet).Sheets.getByName("Cases"), len(formulas), 1).cells
        self.assertEqual([text for (kind, text), (cell,) in zip(formulas, cells) if kind == "errors" and cell is not None], [])
        found = {text: cell for (_, text), (cell,) in zip(formulas, cells)}
        numbers = numpy.array([((i * 7919) % rows) / 8 for i in range(rows)])
        self.assertEqual(found[formula("MAXIMUM", "here", {"here": ranges["long"]})], kmt.VB_V_Max(numbers))
        self.assertEqual(found[formula("COUNTMISSING", "here", {"here": ranges["empty"]})], 40.0)
        self.assertEqual(found[formula("COUNTMISSING", "here", {"here": ranges["wide"]})], float(rows))
        self.assertIsNone(found[formula("DISTANCES", "here", {"here": ranges["long"]})])
        self.assertTrue(self.office.is_running())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
