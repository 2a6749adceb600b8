"""Writes flat documents for the spreadsheet: one XML file of sheets, cells and formulas, without results."""

from pathlib import Path
from xml.sax.saxutils import quoteattr

OPENING = """\
<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
    xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0" xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
    xmlns:of="urn:oasis:names:tc:opendocument:xmlns:of:1.2" office:version="1.3"
    office:mimetype="application/vnd.oasis.opendocument.spreadsheet">
<office:body><office:spreadsheet>
"""
CLOSING = "</office:spreadsheet></office:body></office:document>\n"


def letters(column):
    """A for 0, AA for 26."""
    return (letters(column // 26 - 1) if column >= 26 else "") + chr(ord("A") + column % 26)


def address(row, column):
    return f"{letters(column)}{row + 1}"


class Sheet:
    """Cells by their places, counted from 0."""

    def __init__(self, name):
        self.name, self.cells = name, {}

    def put(self, row, column, value):
        if isinstance(value, str):
            cell = f'<table:table-cell office:value-type="string" office:string-value={quoteattr(value)}/>' if value else ""
        else:
            cell = f'<table:table-cell office:value-type="float" office:value="{float(value)!r}"/>'
        if cell:
            self.cells[row, column] = cell

    def put_formula(self, row, column, formula, shape=None):
        """With a shape, an array formula of so many rows and columns."""
        spans = ""
        if shape:
            spans = f' table:number-matrix-rows-spanned="{shape[0]}" table:number-matrix-columns-spanned="{shape[1]}"'
        self.cells[row, column] = f"<table:table-cell table:formula={quoteattr(formula)}{spans}/>"

    def text(self):
        rows = [[] for _ in range(max((row for row, _ in self.cells), default=-1) + 1)]
        for (row, column), cell in sorted(self.cells.items()):
            rows[row] += [(column, cell)]
        lines = [f"<table:table table:name={quoteattr(self.name)}>"]
        for row in rows:
            line, reached = "<table:table-row>", 0
            for column, cell in row:
                if column > reached:
                    line += f'<table:table-cell table:number-columns-repeated="{column - reached}"/>'
                line += cell
                reached = column + 1
            lines.append(line + ("" if row else "<table:table-cell/>") + "</table:table-row>")
        return "\n".join([*lines, "</table:table>", ""])


def document_of(path, sheets):
    """Writes a document and returns its path."""
    Path(path).write_text(OPENING + "".join(sheet.text() for sheet in sheets) + CLOSING, encoding="utf-8")
    return path
