"""Reads the core routines over numbers alone, which callers outside C++ can reach by their linker names."""

import re

from .declarations import Function, Parameter, one_line
from .flat_headers import HEADERS, Problem, Unreadable, read_comment, read_doc

FOLDER = f"{HEADERS}/special"
LETTERS = {"double": "d", "int": "i"}
PROTOTYPE = re.compile(r"KORVEL_API double (\w+)\(((?:(?:double|int) \w+(?:, )?)+)\);")


def symbol(function):
    """The name that the compilers give to the linker."""
    return f"_Z{len(function.name)}{function.name}{''.join(LETTERS[p.type] for p in function.parameters)}"


def described(function, tag):
    for name in tag.name.split(","):
        for parameter in function.parameters:
            if parameter.name == name:
                parameter.text = tag.text


def read_header(text):
    lines = text.splitlines()
    doc = None
    index = 0
    while index < len(lines):
        line = lines[index].strip()
        if line.startswith("/**"):
            comment, index = read_comment(lines, index)
            doc = read_doc(comment)
            continue
        found = PROTOTYPE.fullmatch(line)
        if found and doc:
            parameters = [Parameter(piece.split()[1], piece.split()[0]) for piece in found.group(2).split(", ")]
            function = Function(found.group(1), "double", parameters, doc, index + 1)
            function.is_core = True
            for tag in doc.tagged("param"):
                described(function, tag)
            if all(one_line(p.text) for p in parameters):
                yield function
        if line:
            doc = None
        index += 1


def read_all(root, problems):
    """{name: function} of the special functions that are described."""
    functions = {}
    for path in sorted((root / FOLDER).glob("*.h")):
        try:
            functions |= {function.name: function for function in read_header(path.read_text(encoding="ascii"))}
        except Unreadable as error:
            problems.append(Problem(path.relative_to(root).as_posix(), error.line, error.message))
    return functions
