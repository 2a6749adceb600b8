#!/usr/bin/env python3
"""The sample workbook: calculated by the office, compared with direct calls, printed by the office and looked at.

    calc_workbook_test.py ROOT FOLDER    the source tree, and a folder of its own, which is emptied first
"""

import shutil
import subprocess
import sys
import unittest
from pathlib import Path

from office import Office, make_extension

ROOT, SCRATCH = map(Path, sys.argv[1:3])
EXTENSION = make_extension(ROOT, SCRATCH)

import numpy  # noqa: E402  pylint: disable=wrong-import-position

import korvelmathtools as kmt  # noqa: E402  pylint: disable=wrong-import-position
import make_workbook  # noqa: E402  pylint: disable=wrong-import-position

YES, NO = -1, 0
PROBABILITIES = (0.25, 0.5, 0.75)


def missing_as(cell):
    return kmt.MISSING if cell == "" else cell


HEADER, ROWS = make_workbook.read_data()
DATA = numpy.array([[missing_as(cell) for cell in row] for row in ROWS], order="F")
COUNT = len(DATA)
ONES = numpy.ones(COUNT)
UNFLAGGED = numpy.zeros(COUNT, dtype=numpy.int16)
TABLE = numpy.asfortranarray(DATA[:, :4])
PREDICTORS = numpy.asfortranarray(DATA[:, 1:4])
MONTH = DATA[:, 4].copy()


def summary(x):
    moments = kmt.VB_V_MeanVarSkewPKurtP(x, iMissing=UNFLAGGED, w=ONES, bUnbiased=NO, bFreq=NO)
    return [kmt.VB_V_NbNonMissing(x), kmt.VB_V_NbMissing(x), kmt.VB_V_Mean(x, iMissing=UNFLAGGED, w=ONES),
            kmt.VB_V_Stdev(x, iMissing=UNFLAGGED, w=ONES, bUnbiased=YES, bFreq=NO), kmt.VB_V_Min(x, iMissing=UNFLAGGED),
            *(kmt.VB_V_QuantileMW(x, iMissing=UNFLAGGED, w=ONES, q=q) for q in PROBABILITIES), kmt.VB_V_Max(x), moments.skew]


def of_month(month):
    means = [kmt.VB_V_MeanIfW(x.copy(), g=MONTH, w=ONES, val=float(month)) for x in TABLE.T]
    return [kmt.VB_V_NbIfW(MONTH, w=ONES, val=float(month)), *means]


def complete(table):
    return kmt.Cpp_M_GetMissingDbl(table).iMissingOut == 0


def fit():
    kept = complete(TABLE)
    return kmt.RunOLSBasic3(x=numpy.asfortranarray(PREDICTORS[kept]), y=DATA[kept, 0], weights=ONES[kept], degree=1,
                            interactions=NO, noConstant=NO, tolerance=1e-9)


def tolerances():
    kept = numpy.asfortranarray(PREDICTORS[complete(PREDICTORS)])
    correlations = kmt.VB_M_CovCorr(kept, bCorr=YES, w=numpy.ones(len(kept)), bUnbiased=YES, bFreq=NO, bUndefinedIsZero=NO).out
    found, factors = numpy.zeros(3), numpy.zeros(3)
    kmt.VB_CheckTolerance(correlations, groupSelection=[1.0], groupNumbers=[1.0] * 3, tolerance=1e-9, duplicates=NO, entered=NO,
                          reverse=NO, skipGroup=NO, tolerances=found, inflationFactors=factors)
    return found, factors


def expected():
    """The numbers of each line that has some, by the label before them and its place among the lines of that label."""
    lines = {(name, 0): summary(DATA[:, j].copy()) for j, name in enumerate(HEADER[:4])}
    lines |= {(name, 0): of_month(month) for month, name in make_workbook.MONTHS.items()}
    correlations = kmt.VB_M_CorrMatMat(TABLE, y=TABLE, w=ONES, bCorr=YES, bSquare=NO, bUnbiased=YES, bFreq=NO,
                                       bUndefinedIsZero=NO).out
    lines |= {(name, 1): correlations[j].tolist() for j, name in enumerate(HEADER[:4])}
    found = fit()
    regression = [[b, error, b / error] for b, error in zip(found.coefficients.tolist(), found.standardErrors.tolist())]
    for line, more in zip(regression, zip(*tolerances())):
        line += more
    lines |= {(name, 2): line for name, line in zip(HEADER[1:4], regression)}
    lines["(intercept)", 0] = regression[3]
    lines["R-squared", 0] = [1 - found.sweptMatrix[-1, -1]]
    return lines


def pixels(path):
    """The picture of a page, from the plain format of pdftoppm."""
    kind, size, _, data = path.read_bytes().split(b"\n", 3)
    columns, rows = map(int, size.split())
    assert kind == b"P6"
    return numpy.frombuffer(data, dtype=numpy.uint8).reshape(rows, columns, 3)


def colour(text):
    return [int(text[k: k + 2], 16) for k in (1, 3, 5)]


class Workbook(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.office = cls.enterClassContext(Office(EXTENSION))
        cls.document = cls.office.open(cls.office.place(make_workbook.WORKBOOK))
        printed = cls.office.save(cls.document, cls.office.folder / "airquality.pdf", "calc_pdf_Export")
        cls.printed = shutil.copy(printed, SCRATCH)

    def test_it_is_the_one_that_the_script_makes(self):
        self.assertEqual(make_workbook.WORKBOOK.read_text(encoding="utf-8"), make_workbook.make())

    def test_every_number_is_that_of_a_direct_call(self):
        sheet = self.document.Sheets.getByName("Analysis")
        cells = sheet.getCellRangeByName("A1:L60").getDataArray()
        self.assertFalse([row for row in cells if None in row], "an error")
        found, seen = {}, {}
        for label, *others in cells:
            numbers = [cell.hex() for cell in others if isinstance(cell, float)]
            if numbers:
                found[label, seen.setdefault(label, 0)] = numbers
                seen[label] += 1
        self.assertEqual(found, {key: [float(number).hex() for number in line] for key, line in expected().items()})

    def test_the_printed_page(self):
        text = subprocess.run(["pdftotext", "-layout", "-l", "1", self.printed, "-"], stdout=subprocess.PIPE, encoding="utf-8",
                              check=True).stdout
        # What R gives for the same data: mean(), cor(use = "pairwise"), lm().
        for figure in ("42.1", "-0.602", "0.698", "-64.342", "0.606"):
            self.assertIn(figure, text)
        subprocess.run(["pdftoppm", "-r", "60", "-f", "1", "-l", "1", "-singlefile", self.printed, SCRATCH / "page"], check=True)
        page = pixels(SCRATCH / "page.ppm").astype(int)
        dark = (page.sum(axis=2) < 300).sum()
        self.assertGreater(dark, 2000)
        self.assertLess(dark, page.shape[0] * page.shape[1] / 10)
        # The diagonal of the correlations, in the colour of 1; what is negative, bluer than red.
        warm = (abs(page - colour(make_workbook.WARM)).max(axis=2) <= 2).sum()
        self.assertGreater(warm, 4 * 400)
        self.assertGreater((page[:, :, 2] - page[:, :, 0] > 40).sum(), 2 * 400)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
