"""Writes flat documents for the spreadsheet: one XML file of sheets, cells and formulas, without results."""

from xml.sax.saxutils import quoteattr

NAMESPACES = {"office": "office", "table": "table", "text": "text", "style": "style", "number": "datastyle",
              "fo": "xsl-fo-compatible", "svg": "svg-compatible"}
OPENING = "".join([
    '<?xml version="1.0" encoding="UTF-8"?>\n<office:document office:version="1.3"\n'
    '    office:mimetype="application/vnd.oasis.opendocument.spreadsheet"\n'
    '    xmlns:of="urn:oasis:names:tc:opendocument:xmlns:of:1.2"\n'
    '    xmlns:calcext="urn:org:documentfoundation:names:experimental:calc:xmlns:calcext:1.0"',
    *(f'\n    xmlns:{short}="urn:oasis:names:tc:opendocument:xmlns:{name}:1.0"' for short, name in NAMESPACES.items()), ">\n"])
FONTS = """\
<office:font-face-decls><style:font-face style:name="Sans" svg:font-family="'Liberation Sans', 'DejaVu Sans'"\
 style:font-family-generic="swiss"/></office:font-face-decls>
"""
ROWS = "".join(f'<style:style style:name="{name}" style:family="table-row"><style:table-row-properties style:row-height='
               f'"{height}" style:use-optimal-row-height="false"/></style:style>\n'
               for name, height in (("row", "0.5cm"), ("tall", "0.85cm")))
# One page wide, without the name of the sheet and the number of the page.
PAGE = """\
<style:page-layout style:name="page"><style:page-layout-properties fo:page-width="29.7cm" fo:page-height="21cm"\
 style:print-orientation="landscape" fo:margin="0.9cm" style:scale-to-X="1" style:scale-to-Y="0"/>\
<style:header-style/><style:footer-style/></style:page-layout>
"""
MASTER = """\
<office:master-styles><style:master-page style:name="Default" style:page-layout-name="page"><style:header\
 style:display="false"/><style:footer style:display="false"/></style:master-page></office:master-styles>
"""


def letters(column):
    """A for 0, AA for 26."""
    return (letters(column // 26 - 1) if column >= 26 else "") + chr(ord("A") + column % 26)


def address(row, column):
    return f"{letters(column)}{row + 1}"


def named_range(name, sheet, top, left, bottom, right):
    places = [f"${letters(column)}${row + 1}" for row, column in ((top, left), (bottom, right))]
    return (f'<table:named-range table:name="{name}" table:base-cell-address="${sheet}.$A$1" '
            f'table:cell-range-address="${sheet}.{places[0]}:.{places[1]}"/>\n')


class Sheet:
    """Cells by their places, counted from 0."""

    def __init__(self, name, widths=()):
        self.name, self.widths = name, widths
        self.cells, self.colours, self.tall_rows = {}, [], []

    def put(self, row, column, value, style="Default"):
        if isinstance(value, str):
            content = f' office:value-type="string" office:string-value={quoteattr(value)}' if value else ""
        else:
            content = f' office:value-type="float" office:value="{float(value)!r}"'
        if content:
            self.cells[row, column] = f'<table:table-cell table:style-name="{style}"{content}/>'

    def put_formula(self, row, column, formula, shape=(), style="Default"):
        """With a shape, an array formula of so many rows and columns."""
        spans = ""
        if shape:
            spans = f' table:number-matrix-rows-spanned="{shape[0]}" table:number-matrix-columns-spanned="{shape[1]}"'
            for i in range(shape[0]):
                for j in range(shape[1]):
                    self.cells[row + i, column + j] = f'<table:table-cell table:style-name="{style}"/>'
        self.cells[row, column] = f'<table:table-cell table:style-name="{style}" table:formula={quoteattr(formula)}{spans}/>'

    def colour(self, top, left, bottom, right, points):
        """A scale of colours for a block: of each point its kind, its value and its colour."""
        entries = "".join(f'<calcext:color-scale-entry calcext:type="{kind}" calcext:value="{value}" calcext:color="{colour}"/>'
                          for kind, value, colour in points)
        place = f"{self.name}.{address(top, left)}:{self.name}.{address(bottom, right)}"
        self.colours.append(f'<calcext:conditional-format calcext:target-range-address="{place}">'
                            f"<calcext:color-scale>{entries}</calcext:color-scale></calcext:conditional-format>\n")

    def column_styles(self):
        return "".join(f'<style:style style:name="{self.name}{k}" style:family="table-column"><style:table-column-properties '
                       f'style:column-width="{width}"/></style:style>\n' for k, width in enumerate(self.widths))

    def text(self):
        rows = [[] for _ in range(max((row for row, _ in self.cells), default=-1) + 1)]
        for (row, column), cell in sorted(self.cells.items()):
            rows[row].append((column, cell))
        lines = [f"<table:table table:name={quoteattr(self.name)}>"]
        lines += [f'<table:table-column table:style-name="{self.name}{k}"/>' for k in range(len(self.widths))]
        for i, row in enumerate(rows):
            line, reached = f'<table:table-row table:style-name="{"tall" if i in self.tall_rows else "row"}">', 0
            for column, cell in row:
                if column > reached:
                    line += f'<table:table-cell table:number-columns-repeated="{column - reached}"/>'
                line += cell
                reached = column + 1
            lines.append(line + ("" if row else "<table:table-cell/>") + "</table:table-row>")
        if self.colours:
            lines.append(f"<calcext:conditional-formats>\n{''.join(self.colours)}</calcext:conditional-formats>")
        return "\n".join([*lines, "</table:table>", ""])


def document_of(sheets, names=(), styles=""):
    """The text of a document."""
    named = f"<table:named-expressions>\n{''.join(names)}</table:named-expressions>\n" if names else ""
    automatic = "".join(sheet.column_styles() for sheet in sheets) + ROWS + PAGE
    return (f"{OPENING}{FONTS}<office:styles>\n{styles}</office:styles>\n<office:automatic-styles>\n{automatic}"
            f"</office:automatic-styles>\n{MASTER}<office:body><office:spreadsheet>\n"
            f"{''.join(sheet.text() for sheet in sheets)}{named}</office:spreadsheet></office:body></office:document>\n")
