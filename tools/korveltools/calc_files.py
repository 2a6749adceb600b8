"""The made files of the Calc add-in: its interface, what the function wizard shows, and the calls."""

import re
from xml.sax.saxutils import escape

from . import calc_table, core_functions
from .declarations import ROOM, one_line
from .python_module import spelled
from .vba_module import first_sentence

FOLDER = "bindings/calc"
INSIDE = f"{FOLDER}/extension"
PLATFORM = "linux_x86_64"  # tools/calc_extension puts that of the libraries in its place
IDENTIFIER = "org.korvelmathtools.calc"
PREFIX = "KORVEL"
MADE = "Made by tools/generate from functions.txt and the C headers: edit those instead."

KINDS = {
    "vector": "Numbers; an empty cell or a text is missing.",
    "table": "A table of numbers; an empty cell or a text is missing.",
    "numbers": "Numbers, without empty cells or texts.",
    "full": "A table of numbers, without empty cells or texts.",
    "square": "A square table of numbers, without empty cells or texts.",
    "texts": "Texts; an empty cell is missing.",
    "labels": "A table of texts; an empty cell is missing.",
    "weights": "A weight of at least 0 for each row of the first argument; all are 1 when they are left out.",
    "number": "A number.",
    "integer": "A whole number.",
    "flag": "TRUE or FALSE.",
    "text": "A text.",
}
# What a C caller has to know and a cell does not; and, of arrays, what becomes of the caller's own.
FOR_C_ONLY = re.compile(r"\b([Nn]ull|NUL|how it is|[Nn]o(?:t|thing is) (?:tested|drawn))\b")
OF_C_ARRAYS = re.compile(r"\b(may be|in place|sorted|changed|[Bb]ecomes|replaced|column after column|weights|read|from\.\.to|"
                         r"identifier)\b")
PAGE = """\
# Worksheet functions

Made by `tools/generate` from `bindings/calc/functions.txt` and the C headers: edit those instead.

`tools/package --calc` makes the extension, an `.oxt` for LibreOffice 7.4 or later on 64-bit Linux; `unopkg add FILE.oxt` or
*Tools, Extension Manager, Add* installs it. The Python of the office must have NumPy (on Debian: `apt install
libreoffice-script-provider-python python3-numpy`). All functions stand in the category *Add-in* of the function wizard, with
what is told here and in the reference.

- Arguments in brackets may be left out: `KORVEL.QUANTILE(A1:A9; 0.1)`.
- What gives a table is an array formula: mark as many cells as it has, and end it with Ctrl+Shift+Enter.
- An empty cell and one with a text are missing numbers, but for a reference to one single empty cell, which the office
  hands over as 0. Of texts an empty one is missing; a number among them is taken as it is shown.
- `#N/A` is a result that is missing. `Err:502` says that an argument does not fit: ranges of different lengths, a number
  outside its range, a negative weight, a text where the method needs each number. `#NUM!` says that the method found no
  result, or none that is finite. A range with an error in it gives `Err:504`.
- Weights are numbers of at least 0, one for each row of the first argument.
- A draw has a seed, so that it stays as it is when the sheet is calculated again.
"""
ERRORS = "Err:502: an argument does not fit. #N/A: a result is missing. "


def sentence(text):
    text = text.strip(" .,;:")
    return f"{text[:1].upper()}{text[1:]}." if text else ""


def parameter_behind(entry, argument):
    """The C parameter that takes an argument as it is, or with little done to it."""
    for step in entry.steps:
        for p in step.function.parameters if step.function else ():
            if re.fullmatch(rf"(?:cells\.\w+\()?{argument.name}\b[^()]*(?:\([^()]*\))?\)?", step.given.get(p.name, "")):
                return p
    return None


def said_of(parameter, kind):
    """What the header says of a parameter that a reader of a sheet can use."""
    if parameter is None or (kind in calc_table.CELLS and parameter.type.endswith("*")):
        return ""
    text = one_line(parameter.text).replace("`", "")
    if kind in calc_table.RANGES:
        text = ROOM.sub("", text, count=1)
    text = re.sub(r"(?:^|; |, )(true (?:only when -1|unless 0)|from 1; 0 stands for 1)", "", text)
    if kind == "flag":
        text = re.sub(r"^0: (.*; )any other value: ", r"FALSE: \1TRUE: ", text)
        text = re.sub(r"(^|; )(?:-1|not 0): ", r"\1TRUE: ", text)
    parts = re.split(r"(?<=[;.]) ", text)
    if kind in calc_table.RANGES:
        parts = [part for part in parts if not OF_C_ARRAYS.search(part)]
    return sentence(" ".join(part for part in parts if not FOR_C_ONLY.search(part)))


def shown_number(number):
    return f"{number:d}" if isinstance(number, int) else f"{number:g}"


def help_of(entry, argument):
    pieces = [KINDS[argument.kind]]
    if argument.kind != "weights":
        pieces.append(said_of(parameter_behind(entry, argument), argument.kind))
    if argument.limits and argument.kind in calc_table.NUMBERS:
        limits = "rom {} to {}".format(*map(shown_number, argument.limits))
        pieces += [] if limits in pieces[-1] else [f"F{limits}."]
    elif argument.limits:
        pieces.append(f"At most {argument.limits[0]} rows.")
    if argument.optional and argument.kind != "weights":
        shown = str(argument.default).upper() if isinstance(argument.default, bool) else shown_number(argument.default)
        pieces.append(f"{shown} when it is left out.")
    return " ".join(piece for piece in pieces if piece)


def main_step(entry):
    return [step for step in entry.steps if step.function][-1]


def purpose(entry):
    """What the function does, by the doc comment of the routine behind it; of several results the one that is shown."""
    step = main_step(entry)
    text = entry.text or sentence(first_sentence(step.function.doc.text).replace("`", ""))
    shown = next((p for p in step.made if entry.answer == f"{calc_table.UNNAMED}.{p.name}"), None)
    if shown is not None and not entry.is_table and not entry.text:
        text += f" Shows {one_line(ROOM.sub('', one_line(shown.text), count=1).split(';')[:1]).split(':')[1].strip()}."
    return text + (" An array formula." if entry.is_table else "")


def description(entry):
    """What the function does, and what its errors mean."""
    numbers = "; ".join([*(message for _, message in entry.failures), "the result is no finite number"])
    return f"{purpose(entry)} {ERRORS}#NUM!: {numbers}."


# The Python that calls the library.

def conversion(argument):
    name = argument.name
    if argument.kind == "weights":
        return None
    more = [repr(limit) for limit in argument.limits]
    if argument.kind in calc_table.CELLS and argument.optional:
        more.append(f"left_out={argument.default!r}")
    return f"    {name} = cells.{argument.kind}({', '.join([name, *more])})"


def call_of(step):
    variable = step.target or calc_table.UNNAMED
    if step.function is None:
        return f"    {variable} = {step.given['']}"
    if getattr(step.function, "is_core", False):
        values = "".join(f", {step.given[p.name]}" for p in step.function.parameters)
        return f"    {variable} = cells.call_core({core_functions.symbol(step.function)!r}{values})"
    values = "".join(f", {spelled(name)}={value}" for name, value in step.given.items())
    return f"    {variable} = cells.call(kmt.{step.function.name}{values})"


def python_function(entry):
    parameters = ", ".join(f"{a.name}=None" if a.optional else a.name for a in entry.arguments)
    lines = ["", "", f"def {entry.name}({parameters}):"]
    first = entry.arguments[0].name
    lines += [line for line in map(conversion, entry.arguments) if line]
    lines += [f"    {a.name} = cells.weights({a.name}, {first})" for a in entry.arguments if a.kind == "weights"]
    lines += [f"    cells.as_many({first}, {a.name})" for a in entry.arguments[1:] if a.kind in ("vector", "numbers")]
    lines += [call_of(step) for step in entry.steps]
    lines += [f"    cells.fail_if({condition}, {message!r})" for condition, message in entry.failures]
    return [*lines, f"    return {entry.answer}"]


def python_module(entries):
    lines = [f'"""The worksheet functions. {MADE}"""', "", "import korvelmathtools as kmt", "", "from . import cells", "",
             "# Name: whether its result is a table.", "FUNCTIONS = {"]
    lines += [f"    {entry.name!r}: {entry.is_table}," for entry in entries]
    lines.append("}")
    for entry in entries:
        lines += python_function(entry)
    return "".join(f"{line}\n" for line in lines)


# What the office reads.

ANY_TABLE = "sequence< sequence< any > >"


def idl_type(argument):
    if argument.optional:
        return "any"
    return ANY_TABLE if argument.kind in calc_table.RANGES else "string" if argument.kind == "text" else "double"


def interface(entries):
    lines = [f"// {MADE}", "module korvel {", "    interface XFunctions {"]
    for entry in entries:
        result = ANY_TABLE if entry.is_table else "any"
        parameters = ", ".join(f"[in] {idl_type(a)} {a.name}" for a in entry.arguments)
        lines.append(f"        {result} {entry.name.lower()}({parameters})")
        lines.append("            raises (com::sun::star::lang::IllegalArgumentException);")
    return "".join(f"{line}\n" for line in [*lines, "    };", "};"])


def named(indent, name, text):
    return f'{indent}<prop oor:name="{name}"><value xml:lang="en">{escape(text)}</value></prop>'


def function_node(entry):
    shown = f"{PREFIX}.{entry.name}"
    lines = [f'        <node oor:name="{entry.name.lower()}" oor:op="replace">',
             named("          ", "DisplayName", shown), named("          ", "Description", description(entry)),
             '          <prop oor:name="Category"><value>Add-In</value></prop>',
             named("          ", "CompatibilityName", shown), '          <node oor:name="Parameters">']
    for argument in entry.arguments:
        lines += [f'            <node oor:name="{argument.name}" oor:op="replace">',
                  named("              ", "DisplayName", argument.name),
                  named("              ", "Description", help_of(entry, argument)), "            </node>"]
    return [*lines, "          </node>", "        </node>"]


def configuration(entries):
    lines = ['<?xml version="1.0" encoding="UTF-8"?>', f"<!-- {MADE} -->",
             '<oor:component-data xmlns:oor="http://openoffice.org/2001/registry"',
             '    xmlns:xs="http://www.w3.org/2001/XMLSchema" oor:name="CalcAddIns" oor:package="org.openoffice.Office">',
             '  <node oor:name="AddInInfo">', f'    <node oor:name="{PREFIX.lower()}" oor:op="replace">',
             '      <node oor:name="AddInFunctions">']
    for entry in entries:
        lines += function_node(entry)
    lines += ["      </node>", "    </node>", "  </node>", "</oor:component-data>"]
    return "".join(f"{line}\n" for line in lines)


def manifest():
    files = (("korvel.rdb", "application/vnd.sun.star.uno-typelibrary;type=RDB"),
             ("korvel_component.py", "application/vnd.sun.star.uno-component;type=Python"),
             ("CalcAddIn.xcu", "application/vnd.sun.star.configuration-data"))
    lines = ['<?xml version="1.0" encoding="UTF-8"?>', f"<!-- {MADE} -->",
             '<manifest:manifest xmlns:manifest="http://openoffice.org/2001/manifest">']
    lines += [f'  <manifest:file-entry manifest:full-path="{path}" manifest:media-type="{type_}"/>' for path, type_ in files]
    return "".join(f"{line}\n" for line in [*lines, "</manifest:manifest>"])


def about(version):
    return f"""\
<?xml version="1.0" encoding="UTF-8"?>
<!-- {MADE} -->
<description xmlns="http://openoffice.org/extensions/description/2006" xmlns:xlink="http://www.w3.org/1999/xlink">
  <identifier value="{IDENTIFIER}"/>
  <version value="{version}"/>
  <platform value="{PLATFORM}"/>
  <display-name><name lang="en">KORVELMathTools: statistics in cells</name></display-name>
</description>
"""


def page(entries):
    """A list of the functions for people."""
    lines = PAGE.splitlines()
    section = ""
    for entry in entries:
        if entry.section != section:
            section = entry.section
            lines += ["", f"## {section}", "", "| function | what it gives | by |", "| --- | --- | --- |"]
        required = [f"[{a.name}]" if a.optional else a.name for a in entry.arguments]
        function = main_step(entry).function
        text = purpose(entry).replace("|", "\\|").replace("*", "\\*")
        lines.append(f"| `{PREFIX}.{entry.name}({'; '.join(required)})` | {text} | `{function.name}` |")
    return "".join(f"{line}\n" for line in lines)


def make(root, headers, version, problems):
    """{path: content}; nothing where there is no table."""
    entries = calc_table.read(root, headers, problems)
    if not entries:
        return {}
    return {
        f"{FOLDER}/korvel.idl": interface(entries),
        f"{INSIDE}/CalcAddIn.xcu": configuration(entries),
        f"{INSIDE}/META-INF/manifest.xml": manifest(),
        f"{INSIDE}/description.xml": about(version),
        f"{INSIDE}/pythonpath/korvelcalc/worksheet.py": python_module(entries),
        "docs/worksheet.md": page(entries),
    }
