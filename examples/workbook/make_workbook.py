#!/usr/bin/env python3
"""Makes airquality.fods, the sample workbook: the data set of the same name, and an analysis of it by KORVEL functions.

    make_workbook.py            write it
    make_workbook.py --check    write nothing; fail when it differs
"""

import argparse
import csv
import sys
from pathlib import Path

from flat_sheet import Sheet, address, document_of, named_range

HERE = Path(__file__).resolve().parent
WORKBOOK = HERE / "airquality.fods"
DATA = HERE.parent / "data" / "airquality.csv"

NUMBERS = ("Ozone", "Solar.R", "Wind", "Temp")
PREDICTORS = NUMBERS[1:]
MONTHS = {5: "May", 6: "June", 7: "July", 8: "August", 9: "September"}
COOL, PALE, WARM = "#74a9cf", "#ffffff", "#f4a261"

STYLES = """\
<number:number-style style:name="whole"><number:number number:decimal-places="0" number:min-integer-digits="1"/>\
</number:number-style>
<number:number-style style:name="tenths"><number:number number:decimal-places="1" number:min-decimal-places="1"\
 number:min-integer-digits="1"/></number:number-style>
<number:number-style style:name="thousandths"><number:number number:decimal-places="3" number:min-decimal-places="3"\
 number:min-integer-digits="1"/></number:number-style>
<style:style style:name="Default" style:family="table-cell"><style:table-cell-properties style:vertical-align="middle"\
 fo:padding="0.06cm"/><style:text-properties style:font-name="Sans" fo:font-size="10pt"\
 fo:color="#1f2933"/></style:style>
<style:style style:name="Title" style:family="table-cell" style:parent-style-name="Default"><style:text-properties\
 fo:font-size="17pt" fo:font-weight="bold" fo:color="#12395b"/></style:style>
<style:style style:name="Heading" style:family="table-cell" style:parent-style-name="Default"><style:text-properties\
 fo:font-size="12pt" fo:font-weight="bold" fo:color="#12395b"/></style:style>
<style:style style:name="Note" style:family="table-cell" style:parent-style-name="Default"><style:text-properties\
 fo:font-size="9pt" fo:color="#52606d"/></style:style>
<style:style style:name="Head" style:family="table-cell" style:parent-style-name="Default"><style:table-cell-properties\
 fo:background-color="#e8eef4" fo:border-bottom="0.75pt solid #12395b"/><style:paragraph-properties fo:text-align="end"/>\
<style:text-properties fo:font-weight="bold"/></style:style>
<style:style style:name="HeadLeft" style:family="table-cell" style:parent-style-name="Head"><style:paragraph-properties\
 fo:text-align="start"/></style:style>
<style:style style:name="Whole" style:family="table-cell" style:parent-style-name="Default" style:data-style-name="whole"/>
<style:style style:name="Tenths" style:family="table-cell" style:parent-style-name="Default" style:data-style-name="tenths"/>
<style:style style:name="Thousandths" style:family="table-cell" style:parent-style-name="Default"\
 style:data-style-name="thousandths"/>
"""


def read_data():
    with open(DATA, encoding="ascii", newline="") as file:
        header, *rows = csv.reader(file)
    return header, [["" if cell in ("", "NA") else float(cell) for cell in row] for row in rows]


def name_of(column):
    """The name of a column's range; a point means something else to the office."""
    return column.replace(".", "_")


class Page(Sheet):
    """A sheet that is written from top to bottom."""

    def __init__(self, name, widths):
        super().__init__(name, widths)
        self.row = 0

    def line(self, *cells, style="Default", down=1):
        for j, cell in enumerate(cells):
            self.put(self.row, j, cell, style)
        self.row += down

    def head(self, first, *others):
        self.put(self.row, 0, first, "HeadLeft")
        for j, cell in enumerate(others, 1):
            self.put(self.row, j, cell, "Head")
        self.row += 1

    def formulas(self, label, *styled):
        """A line of formulas, each with the style of its number."""
        self.put(self.row, 0, label, "Default")
        for j, (style, formula) in enumerate(styled, 1):
            self.put_formula(self.row, j, f"of:={formula}", style=style)
        self.row += 1


def summaries(page):
    page.line("Summaries", style="Heading")
    page.head("column", "n", "missing", "mean", "st.dev.", "min", "25 %", "median", "75 %", "max", "skewness")
    for column in NUMBERS:
        x = name_of(column)
        quantiles = [("Tenths", f"KORVEL.QUANTILE({x};{q})") for q in (0.25, 0.5, 0.75)]
        page.formulas(column, ("Whole", f"KORVEL.COUNTPRESENT({x})"), ("Whole", f"KORVEL.COUNTMISSING({x})"),
                      ("Tenths", f"KORVEL.MEAN({x})"), ("Tenths", f"KORVEL.DEVIATION({x})"),
                      ("Tenths", f"KORVEL.MINIMUM({x})"), *quantiles, ("Tenths", f"KORVEL.MAXIMUM({x})"),
                      ("Thousandths", f"KORVEL.SKEWNESS({x})"))
    page.row += 1


def months(page):
    page.line("Means by month", style="Heading")
    page.head("month", "days", *NUMBERS)
    top = page.row
    for month, name in MONTHS.items():
        means = [("Tenths", f"KORVEL.GROUPMEAN({name_of(column)};Month;{month})") for column in NUMBERS]
        page.formulas(name, ("Whole", f"KORVEL.GROUPWEIGHT(Month;{month})"), *means)
    for j in range(2, 2 + len(NUMBERS)):
        page.colour(top, j, page.row - 1, j, (("minimum", "", PALE), ("maximum", "", WARM)))
    page.row += 1


def correlations(page):
    page.line("Correlations", style="Heading")
    page.line("Each over the days that neither of its columns misses.", style="Note")
    page.head("column", *NUMBERS)
    size = len(NUMBERS)
    page.put_formula(page.row, 1, "of:=KORVEL.CROSSCORRELATION(Numbers;Numbers)", (size, size), "Thousandths")
    page.colour(page.row, 1, page.row + size - 1, size,
                (("number", "-1", COOL), ("number", "0", PALE), ("number", "1", WARM)))
    for column in NUMBERS:
        page.line(column)
    page.row += 1


def regression(page):
    page.line("Regression of Ozone on Solar.R, Wind and Temp", style="Heading")
    page.line("Over the days without a missing cell; tolerances over those that no predictor misses.", style="Note")
    page.head("term", "estimate", "st.error", "t", "tolerance", "VIF")
    terms = len(PREDICTORS) + 1
    page.put_formula(page.row, 1, "of:=KORVEL.REGRESSION(Ozone;Predictors)", (terms, 2), "Thousandths")
    page.put_formula(page.row, 4, "of:=KORVEL.TOLERANCES(KORVEL.CORRELATION(KORVEL.COMPLETEROWS(Predictors)))", (terms - 1, 2),
                     "Thousandths")
    for term in (*PREDICTORS, "(intercept)"):
        page.put(page.row, 0, term)
        estimate, error = address(page.row, 1), address(page.row, 2)
        page.put_formula(page.row, 3, f"of:=[.{estimate}]/[.{error}]", style="Tenths")
        page.row += 1
    page.formulas("R-squared", ("Thousandths", "1-KORVEL.UNEXPLAINED(Ozone;Predictors)"))


def analysis():
    page = Page("Analysis", ["3cm"] + ["2.35cm"] * 10)
    page.line("Air quality in New York, May to September 1973", style="Title")
    page.tall_rows.append(0)
    page.line("Every number comes from KORVEL functions of the sheet Data. Without the extension the cells show #NAME?.",
              style="Note", down=2)
    for block in (summaries, months, correlations, regression):
        block(page)
    return page


def make():
    header, rows = read_data()
    data = Page("Data", ["2.05cm"] * len(header))
    data.line(*header, style="Head")
    fractions = [any(row[j] != "" and not row[j].is_integer() for row in rows) for j in range(len(header))]
    for row in rows:
        for j, cell in enumerate(row):
            data.put(data.row, j, cell, "Tenths" if fractions[j] else "Whole")
        data.row += 1
    names = [named_range(name_of(column), "Data", 1, j, len(rows), j) for j, column in enumerate(header)]
    names.append(named_range("Numbers", "Data", 1, 0, len(rows), len(NUMBERS) - 1))
    names.append(named_range("Predictors", "Data", 1, 1, len(rows), len(PREDICTORS)))
    return document_of([analysis(), data], names, STYLES)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true")
    options = parser.parse_args()
    text = make()
    if not options.check:
        WORKBOOK.write_text(text, encoding="utf-8", newline="\n")
    elif WORKBOOK.read_text(encoding="utf-8") != text:
        print(f"{WORKBOOK.name}: differs from what is made; run make_workbook.py", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
