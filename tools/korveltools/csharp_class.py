"""The C# classes of the flat functions: declarations, and for each a method that checks the arrays that it is given."""

import re
import textwrap
from xml.sax.saxutils import escape

from .declarations import one_line

WIDTH = 120
VALUES = {"double": "double", "int": "int", "short int": "short", "void": "void", "OLECHAR**": "IntPtr",
          "OLECHAR*": "IntPtr", "VARIANT*": "IntPtr", "const char*": "string"}
ARRAYS = {"double*": "double[]", "int*": "int[]", "short int*": "short[]", "OLECHAR**": "IntPtr[]"}
HOST_ARRAYS = ("SAFEARRAY**", "Hostarray**")
FIELDS = {"BSTR": "IntPtr", "SAFEARRAY*": "IntPtr", **VALUES}
MODIFIERS = {"in": "", "out": "out ", "inout": "ref "}

KEYWORDS = frozenset("""
    abstract as base bool break byte case catch char checked class const continue decimal default delegate do double else
    enum event explicit extern false finally fixed float for foreach goto if implicit in int interface internal is lock
    long namespace new null object operator out override params private protected public readonly ref return sbyte sealed
    short sizeof stackalloc static string struct switch this throw true try typeof uint ulong unchecked unsafe ushort
    using virtual void volatile while
    """.split())

PREAMBLE = """\
// The flat functions of KORVELMathTools. Made by tools/generate: edit the C headers instead. Compile it with Helpers.cs.

using System;
using System.Runtime.InteropServices;

namespace KORVEL
{
"""


def spelled(name):
    return f"@{name}" if name in KEYWORDS else name


def is_single(parameter):
    """Whether the pointer is to one cell that must be there: a value in C#."""
    rooms = parameter.rooms
    return parameter.plain_type in ARRAYS and parameter.plain_type != "OLECHAR**" and not parameter.nullable and (
        list(rooms) == [None] and (rooms[None].rows, rooms[None].columns) == ("1", "1"))


def native(parameter):
    """A parameter of the declaration."""
    type_ = parameter.plain_type
    if is_single(parameter):
        return f"{MODIFIERS[parameter.direction] or 'ref '}{ARRAYS[type_][:-2]} {spelled(parameter.name)}"
    if type_ in HOST_ARRAYS:
        return f"IntPtr[] {spelled(parameter.name)}"
    if type_.startswith("ST_"):
        return f"ref {type_[:-1]} {spelled(parameter.name)}"
    return f"{ARRAYS.get(type_) or VALUES[type_]} {spelled(parameter.name)}"


def public(parameter):
    """A parameter of the method."""
    name = spelled(parameter.name)
    if is_single(parameter):
        return f"{MODIFIERS[parameter.direction]}{ARRAYS[parameter.plain_type][:-2]} {name}"
    if parameter.type in HOST_ARRAYS:
        return f"HostArray {name}"
    return {"OLECHAR**": f"string[] {name}", "OLECHAR*": f"string {name}"}.get(parameter.plain_type, native(parameter))


def argument(parameter):
    """What the method hands on."""
    name = spelled(parameter.name)
    if is_single(parameter):
        return f"{MODIFIERS[parameter.direction] or 'ref '}{name}"
    if parameter.type in HOST_ARRAYS:
        return f"HostArray.Of({name})"
    if parameter.type.startswith("ST_"):
        return f"ref {name}"
    return {"OLECHAR**": f"{parameter.name}Texts.Cells", "OLECHAR*": f"{parameter.name}Texts.Cells[0]"}.get(
        parameter.plain_type, name)


def count(expression, function):
    """A room's expression in C#."""
    by_name = {p.name: p for p in function.parameters}

    def translated(found):
        word = found.group()
        if word.endswith(".nbrowsmax") or word.isdigit():
            return word
        if word in ("max(", "sum("):
            arrays = re.match(r"(\w+)\)", expression[found.end():])
            return {"max(": "Room.Largest(", "sum(": "Room.PositiveSum("}[word] if arrays else "Math.Max("
        if "*" in by_name[word].type and not is_single(by_name[word]):
            return spelled(word)
        return f"({spelled(word)} == 0 ? 1L : {spelled(word)})" if by_name[word].least else f"(long){spelled(word)}"

    return re.sub(r"(max|sum)\(|\w+\.nbrowsmax|\w+", translated, expression)


def checks(function):
    """A line for each array: whether it has the room that the counts ask for."""
    for p in function.parameters:
        if p.plain_type not in ARRAYS or is_single(p):
            continue
        rows, columns = count(p.rooms[None].rows, function), count(p.rooms[None].columns, function)
        for key, room in p.rooms.items():
            if key:
                rows = f"{spelled(key[0])} == {key[1]} ? {count(room.rows, function)} : {rows}"
                columns = f"{spelled(key[0])} == {key[1]} ? {count(room.columns, function)} : {columns}"
        may_be_null = ", true" if p.nullable else ""
        yield f'Room.Check("{function.name}", "{p.name}", {spelled(p.name)}, {rows}, {columns}{may_be_null});'


def listed(opening, pieces, closing):
    """A parameter list over as many lines as it takes."""
    inside = ", ".join(piece.replace(" ", "\0") for piece in pieces)
    lines = textwrap.wrap(opening.replace(" ", "\0") + inside + closing, WIDTH - 8, subsequent_indent="    ",
                          break_long_words=False, break_on_hyphens=False)
    return [line.replace("\0", " ") for line in lines]


def documentation(function):
    tags = [("summary", function.doc.text)]
    tags += [(f'param name="{p.name}"', [p.described]) for p in function.parameters]
    tags += [("returns", tag.text) for tag in function.doc.tagged("return")]
    tags += [("remarks", [f"raises {tag.name}", *tag.text]) for tag in function.doc.tagged("throws")]
    for tag, text in tags:
        yield from textwrap.wrap(f"<{tag}>{escape(one_line(text))}</{tag.split()[0]}>", WIDTH - 12,
                                 initial_indent="/// ", subsequent_indent="/// ")


def method(function):
    native_call = f"Native.{function.name}({', '.join(map(argument, function.parameters))})"
    texts = [p for p in function.parameters if p.plain_type in ("OLECHAR**", "OLECHAR*")]
    result = "string" if function.result == "OLECHAR*" else VALUES[function.result]
    if function.result == "OLECHAR*":
        native_call = f"Texts.Take({native_call})"
    lines = [*documentation(function),
             *listed(f"public static {result} {function.name}(", map(public, function.parameters), ")"), "{",
             *(f"    {line}" for line in checks(function))]
    for p in texts:
        cells = spelled(p.name) if p.plain_type == "OLECHAR**" else f"new[] {{ {spelled(p.name)} }}"
        lines.append(f'    using (var {p.name}Texts = new Texts("{function.name}", "{p.name}", {cells}))')
    written = [f"        {p.name}Texts.CopyTo({spelled(p.name)});" for p in texts if p.direction != "in"]
    if written:
        keep = "" if result == "void" else f"{result} answer = "
        lines += ["    {", f"        {keep}{native_call};", *written, *(["        return answer;"] if keep else []), "    }"]
    else:
        lines.append(f"    {'    ' if texts else ''}{'' if result == 'void' else 'return '}{native_call};")
    return [*lines, "}", ""]


def declaration(function):
    opening = f"internal static extern {VALUES[function.result]} {function.name}("
    return ["[DllImport(Library)]", *listed(opening, map(native, function.parameters), ");")]


def structure(record):
    lines = [f"/// <summary>{escape(record.text)}</summary>", "[StructLayout(LayoutKind.Sequential)]",
             f"public struct {record.name}", "{"]
    for field in record.fields:
        lines += [f"    /// <summary>{escape(field.text.replace('`', ''))}</summary>",
                  f"    public {FIELDS.get(field.type, field.type)} {field.name};"]
    return [*lines, "}", ""]


def make(headers, records, missing, version):
    functions = sorted((f for header in headers for f in header.functions), key=lambda f: f.name)
    number, integer = missing
    members = [
        "/// <summary>The missing number.</summary>", f"public const double KORVEL_MISSING_DBL = {number};", "",
        "/// <summary>The missing integer.</summary>", f"public const int KORVEL_MISSING_LNG = {integer};", "",
        "/// <summary>The version of the library that this was made for.</summary>",
        f'public const string Version = "{version}";', "",
    ]
    for function in functions:
        members += method(function)
    natives = ['private const string Library = "KORVELMathTools";']
    for function in functions:
        natives += ["", *declaration(function)]
    lines = [line for record in records for line in structure(record)]
    lines += ["/// <summary>The flat functions. Arrays are checked against the counts before a call.</summary>",
              "public static class MathTools", "{", *(f"    {line}".rstrip() for line in members[:-1]), "}", "",
              "internal static class Native", "{", *(f"    {line}".rstrip() for line in natives), "}"]
    return PREAMBLE + "".join(f"    {line}".rstrip() + "\n" for line in lines) + "}\n"
