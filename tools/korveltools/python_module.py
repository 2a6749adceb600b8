"""The declarations of the flat functions for the Python package."""

import keyword

from .declarations import one_line

PREAMBLE = '''\
"""What the flat functions take and give. Made by tools/generate: edit the C headers instead."""

VERSION = "{version}"
ABI = "{abi}"

# Name: result; parameters (name, type, direction, may be null, rooms (rows, columns, (argument, its value) of another room),
# what a count of 0 stands for); description.
FUNCTIONS = {{
'''


def spelled(name):
    """The name of a parameter in Python, which keeps some words for itself."""
    return f"{name}_" if keyword.iskeyword(name) else name


def rooms_of(parameter):
    return tuple((room.rows, room.columns, when) for when, room in parameter.rooms.items())


def description(function):
    lines = [one_line([function.prototype]), ""]
    lines += [line.strip() for line in function.doc.text]
    return [*lines, "", *[f"{p.name}: {p.described}" for p in function.parameters], *function.outcome]


def entry(function):
    lines = [f"    {function.name!r}: ({function.result!r}, ("]
    for p in function.parameters:
        lines.append(f"        {(p.name, p.plain_type, p.direction, p.nullable, rooms_of(p), p.least)!r},")
    lines.append("    ), (")
    lines += [f"        {line + chr(10)!r}" for line in description(function)]
    lines.append("    )),")
    return lines


def make(headers, version, abi):
    lines = PREAMBLE.format(version=version, abi=abi).splitlines()
    for function in sorted((f for header in headers for f in header.functions), key=lambda f: f.name):
        lines += entry(function)
    return "".join(f"{line}\n" for line in [*lines, "}"])
