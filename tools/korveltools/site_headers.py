"""The public headers as Doxygen reads them: the docs of flat functions written out, shared docs repeated."""

import re

from . import flat_headers
from .reference_page import paragraphs

# What marks exports says nothing to a caller.
LEFT_OUT = ("platform/export.h",)


def comment(lines):
    return ["/**", *(f" * {line}".rstrip() for line in lines), " */"]


def tag(opening, text):
    """A tag whose text may have several paragraphs or items; those that follow the first are indented."""
    first, *others = paragraphs(text) or [""]
    if first.startswith("- "):
        first, others = "", [first, *others]
    return [f"{opening} {first}".rstrip(), *(f"    {line}" if line else "" for line in others)]


def flat_function(function):
    lines = [*paragraphs(function.doc.text), ""]
    for parameter in function.parameters:
        opening = f"@param {parameter.name}"
        if parameter.direction:
            null = "May be null" if parameter.nullable else "Not null"
            direction = parameter.direction.replace("inout", "in,out")
            opening = f"@param[{direction}] {parameter.name} ({null})"
        lines += tag(opening, parameter.text)
    for kind in ("return", "throws"):
        for told in function.doc.tagged(kind):
            lines += tag(f"@{kind}", told.text)
    return [*comment(lines), f"KORVEL_FLAT {function.prototype}", ""]


def flat_header(header):
    """A header of flat functions, made anew from what has been read of it."""
    lines = comment(["@file", "", *paragraphs(header.title)]) + [""]
    for function in header.functions:
        lines += flat_function(function)
    return "\n".join(lines)


def with_docs_repeated(text):
    """A header in which each function that follows a documented one without a gap has that one's doc, and without the
    members that a compiler makes or that are forbidden, unless they have a doc of their own."""
    lines = []
    doc = []
    in_doc = ended = False
    depth = base = 0
    for line in text.splitlines():
        code = re.sub(r"//.*|/\*\*<.*", "", line).strip()
        if code.startswith("/**"):
            doc, in_doc, ended, base = [], True, False, depth
        if in_doc:
            doc.append(line)
            in_doc = "*/" not in line
            lines.append(line)
            continue
        if not code:
            doc = []
        elif not code.startswith(("*", "/*", "#")):
            if not doc and code == line.strip() and re.search(r"= (default|delete);$", code):
                continue
            if doc and ended and depth == base and "(" in code and code == line.strip():
                lines += doc
                ended = False
            depth += sum(map(code.count, "({")) - sum(map(code.count, ")}"))
            ended = depth == base and code.endswith((";", "}"))
        lines.append(line)
    return "\n".join(lines) + "\n"


def all_headers(root, flat):
    """What Doxygen is to read of each public header, as {path in an include line: text}. `flat` is what has been read of
    the flat ones."""
    folder = root / flat_headers.HEADERS
    made = {f"frames/{header.name}": flat_header(header) for header in flat}
    for path in sorted(folder.rglob("*.h")):
        name = path.relative_to(folder).as_posix()
        if name not in made and name not in LEFT_OUT:
            made[name] = with_docs_repeated(path.read_text(encoding="utf-8"))
    # The name of a file alone may be that of several.
    return {f"{folder.name}/{name}": text.replace("@file", f"@file {folder.name}/{name}", 1)
            for name, text in made.items()}
