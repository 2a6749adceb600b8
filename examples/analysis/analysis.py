#!/usr/bin/env python3
"""How ozone goes with the weather, each month counting alike: the analysis of analysis.c through the Python package.

    analysis.py [--exact] FILE    a table like examples/data/airquality.csv; --exact prints hexadecimal numbers, to the bit
"""

import itertools
import sys

import numpy

import csv_table
import korvelmathtools as kmt

NUMBERS = ("Ozone", "Solar.R", "Wind", "Temp")
GROUP = "Month"


def analyse(table, groups):
    """Each result with its name."""
    ones = numpy.ones(len(groups))
    yield "rows", len(groups)
    for name, count in zip(NUMBERS, kmt.VB_M_NbMissing(table).counts):
        yield f"missing {name}", count

    # The rows of each month share a weight of 1.
    info = kmt.VB_M_InfoQuali(groups, weights=ones, sort=True)
    months = dict(zip(info.categories[0], info.frequencies[0, : info.categoryCounts[0]]))
    for month, days in months.items():
        yield f"rows of {GROUP} {month}", days
    weights = numpy.array([1.0 / months[group] for group in groups])

    # The divisor of the variances is the sum of the weights. A pair of columns is taken over the rows that have both.
    columns = kmt.VB_M_MeanStDevVar(table, w=weights, bUnbiased=False, bFreq=False)
    for name, mean, deviation in zip(NUMBERS, columns.means, columns.sds):
        yield f"mean of {name}", mean
        yield f"deviation of {name}", deviation
    covariances = kmt.VB_M_CovCorr(table, w=weights, bCorr=False, bUnbiased=False, bFreq=False, bUndefinedIsZero=False).out
    for i, j in pairs():
        yield f"covariance of {NUMBERS[i]} and {NUMBERS[j]}", covariances[i, j]

    # What follows is over the complete rows.
    incomplete = kmt.Cpp_M_GetMissingDbl(table).iMissingOut
    removed = numpy.count_nonzero(incomplete)
    complete = kmt.VB_RemoveRowsWithMissing(table, removed=removed, flags=incomplete).result_
    kept = kmt.VB_RemoveRowsWithMissing(weights, removed=removed, flags=incomplete).result_
    yield "complete rows", len(complete)
    correlations = kmt.VB_M_CovCorr(complete, w=kept, bCorr=True, bUnbiased=False, bFreq=False, bUndefinedIsZero=False).out
    for i, j in pairs():
        yield f"correlation of {NUMBERS[i]} and {NUMBERS[j]}", correlations[i, j]
    eigen = kmt.VB_M_Eigen(correlations, sortFlag=True)
    if eigen.result != 0:
        raise csv_table.BadTable("no eigenvalues: too few complete rows, or a column is constant")
    for k, value in enumerate(eigen.values, start=1):
        yield f"eigenvalue {k}", value

    # Ozone on the other columns. The weights add up to the number of rows, so that the errors have its degrees of freedom.
    scaled = kept * (len(kept) / kmt.VB_V_Sum(kept, w=numpy.ones(len(kept))))
    fit = kmt.RunOLSBasic2(x=complete[:, 1:], y=complete[:, 0], weights=scaled, degree=1, interactions=False,
                           noConstant=False, tolerance=1e-8)
    for name, coefficient, error in zip((*NUMBERS[1:], "constant"), fit.coefficients, fit.standardErrors):
        yield f"coefficient of {name}", coefficient
        yield f"standard error of {name}", error


def pairs():
    return itertools.combinations(range(len(NUMBERS)), 2)


def main(words):
    options = [word for word in words if word.startswith("--")]
    files = [word for word in words if not word.startswith("--")]
    for option in options:
        if option != "--exact":
            sys.exit(f"analysis: no option {option}")
    if len(files) != 1:
        sys.exit("usage: analysis.py [--exact] FILE")
    try:
        columns = csv_table.read(files[0], NUMBERS, [GROUP])
        table = kmt.from_nan(numpy.column_stack([columns[name] for name in NUMBERS]))
        for name, value in analyse(table, columns[GROUP]):
            print(f"{name:32}", float(value).hex() if options else f"{value:12.6g}")
    except csv_table.BadTable as problem:
        sys.exit(f"analysis: {files[0]}: {problem}")


if __name__ == "__main__":
    main(sys.argv[1:])
