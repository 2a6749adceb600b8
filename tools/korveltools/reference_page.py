"""docs/reference.md, the reference of the flat functions."""

import re

from .declarations import one_line

PREAMBLE = """\
# Reference of the flat functions

Made by `tools/generate` from the headers in `include/korvelmathtools/frames`: edit those instead. [How names are put together](names.md).
"""


def escape(text):
    """Markdown for plain text; what stands between backticks is code and stays."""
    pieces = re.split(r"(`[^`]*`)", text)
    return "".join(p if p.startswith("`") else re.sub(r"([\\*_<\[\]|])", r"\\\1", p) for p in pieces)


def paragraphs(text):
    """Lines of Markdown: paragraphs unwrapped, items of a list that starts with `- ` kept apart."""
    blocks = [[]]
    for line in text:
        if not line.strip():
            blocks.append([])
        elif line.strip().startswith("- "):
            blocks.append([line])
        else:
            blocks[-1].append(line)
    lines = []
    in_list = False
    for block in blocks:
        if not block:
            continue
        joined = escape(one_line(block))
        if lines and not (in_list and joined.startswith("- ")):
            lines.append("")
        in_list = joined.startswith("- ")
        lines.append(joined)
    return lines


def inside_item(text):
    """The same, as the rest of a list item."""
    first, *others = paragraphs(text)
    if first.startswith("- "):
        first, others = "", [first, *others]
    return [first, *(f"  {line}" if line else "" for line in others)]


def item(title, text):
    first, *others = inside_item(text)
    return [f"- {title}: {first}".rstrip(), *others]


def entry(function):
    lines = ["", f"### {function.name}", "", "```c", function.prototype, "```", "", *paragraphs(function.doc.text)]
    items = []
    for parameter in function.parameters:
        null = "may be null" if parameter.nullable else "not null"
        direction = f" [{parameter.direction}, {null}]" if parameter.direction else ""
        items += item(f"`{parameter.name}`{direction}", parameter.text)
    for kind, title in (("return", "Result"), ("throws", "Throws")):
        for tag in function.doc.tagged(kind):
            items += item(title, tag.text)
    return lines + ([""] + items if items else [])


def make(headers, common):
    """The page: what is common to all functions, a list of the sections, then a section for each header."""
    lines = PREAMBLE.splitlines() + ["", *paragraphs(common), "", "## Sections", ""]
    filled = [header for header in headers if header.functions]
    lines += [f"- [{h.name}](#{re.sub('[^a-z0-9_-]', '', h.name)}): {escape(one_line(h.title))}" for h in filled]
    for header in filled:
        lines += ["", f"## {header.name}", "", *paragraphs(header.title)]
        for function in header.functions:
            lines += entry(function)
    return "".join(f"{line}\n" for line in lines)
