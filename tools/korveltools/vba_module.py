"""The Visual Basic module that declares the flat functions."""

import re
import textwrap

from . import vba_records
from .declarations import one_line

LIBRARY = "KORVELMathTools.dll"
WIDTH = 100
LONGEST_LINE = 1023
MOST_CONTINUATIONS = 24
MOST_PARAMETERS = 60

BY_VALUE = {
    "double": "Double",
    "int": "Long",
    "short int": "Integer",
    "const char*": "String",
    "OLECHAR*": "LongPtr",
    "OLECHAR**": "LongPtr",
    "Hostarray**": "LongPtr",
    "ST_Vect*": "LongPtr",
    "ST_MVect*": "LongPtr",
    "ST_QualiInfo*": "LongPtr",
}
BY_REFERENCE = {"double*": "Double", "int*": "Long", "short int*": "Integer", "VARIANT*": "Variant"}

RESERVED = frozenset("""
    abs addressof and any array as attribute boolean byref byte byval call case cbool cbyte ccur cdate cdbl cdec cdecl
    cint circle clng clnglng clngptr close const csng cstr currency cvar cverr date debug decimal declare defbool
    defbyte defcur defdate defdbl defdec defint deflng deflnglng deflngptr defobj defsng defstr defvar dim do doevents
    double each else elseif empty end endif enum eqv erase event exit false fix for friend function get global gosub
    goto if imp implements in input inputb int integer is lbound len lenb let like lineinput lock long longlong
    longptr loop lset me mod new next not nothing null object on open option optional or paramarray preserve print
    private pset public put raiseevent redim rem resume return rset scale seek select set sgn shared single spc static
    step stop string sub tab then to true type typeof ubound unlock until variant wend while with withevents write xor
    """.split())

PREAMBLE = f"""\
Attribute VB_Name = "KORVELMathTools"
Option Explicit

' The flat functions of {LIBRARY}, for 64-bit hosts. Made by tools/generate: edit the C headers instead.
'
' What a parameter's type asks for:
'
' ByRef x As Double, Long, Integer   the first element of an array, x(0) or x(1, 1) as its bounds are, or a variable
'                                    for a single result. Tables are stored column after column, as Visual Basic
'                                    stores them. Integer arrays of Booleans hold True as -1 and False as 0.
' ByRef x As Any                     an array that may be absent: its first element as above, of the type that the
'                                    comment names, or ByVal KORVEL_NULL.
' ByRef x() As Double                a whole dynamic array. The function may resize it.
' ByVal x As LongPtr                 the address of what Visual Basic cannot hand over as it is:
'   a block of texts                 VarPtr(x(0)), with x an array of String
'   one text                         StrPtr(x)
'   a host array of String           VarPtr(holder) + 8, where holder is a Variant that holds the array (ReDim holder(1
'                                    To 9) As String): as an array parameter its texts would arrive in 8-bit characters
'   chunked tables                   VarPtr(table), where table is a HostarrayTable, below
'   records                          VarPtr(record), of one of the types below
' ByVal x As String                  a short label in 8-bit characters.
'
' KORVEL_NULL stands for an array, block or record that is absent, where the function allows that.

Public Const KORVEL_NULL As LongPtr = 0
"""


class CannotDeclare(Exception):
    pass


def unique_name(name, taken):
    """A name that Visual Basic accepts and, upper and lower case being the same there, that is not taken yet."""
    result = f"{name}Value" if name.lower() in RESERVED else name
    while result.lower() in taken:
        result += "2"
    taken.add(result.lower())
    return result


def declare_parameter(parameter, name):
    if parameter.type == "SAFEARRAY**":
        element = parameter.host_element
        return f"ByVal {name} As LongPtr" if element == "String" else f"ByRef {name}() As {element}"
    if parameter.plain_type in BY_VALUE:
        return f"ByVal {name} As {BY_VALUE[parameter.plain_type]}"
    if parameter.nullable:
        return f"ByRef {name} As Any"
    return f"ByRef {name} As {BY_REFERENCE[parameter.plain_type]}"


def first_sentence(text):
    """The first sentence of a doc comment's first paragraph."""
    paragraph = one_line(text[: text.index("")] if "" in text else text)
    end = re.search(r"(?<!\be\.g)(?<!\bi\.e)(?<!\betc)\.(?= |$)", paragraph)
    return paragraph[: end.end()] if end else paragraph


def comment(function, names):
    """The lines above a declaration: what it does, then each argument and the result."""
    lines = textwrap.wrap(first_sentence(function.doc.text), WIDTH, initial_indent="' ", subsequent_indent="' ")
    told = []
    for parameter, name in zip(function.parameters, names):
        absent = parameter.nullable and parameter.plain_type in BY_REFERENCE
        kind = f" ({BY_REFERENCE[parameter.plain_type]}, or ByVal KORVEL_NULL)" if absent else ""
        told.append(f"{name}{kind}: {parameter.described}")
    for line in [*told, *function.outcome]:
        lines += textwrap.wrap(line, WIDTH, initial_indent="'   ", subsequent_indent="'       ")
    return lines


def declaration(function, names, taken):
    """The lines of one `Declare` statement, its arguments having these names."""
    if len(function.parameters) > MOST_PARAMETERS:
        raise CannotDeclare(f"more than {MOST_PARAMETERS} parameters, which Visual Basic cannot declare")
    kind = "Sub" if function.result == "void" else "Function"
    result = "" if function.result == "void" else f" As {BY_VALUE[function.result]}"
    name = unique_name(function.name, taken)
    alias = "" if name == function.name else f' Alias "{function.name}"'
    parameters = [declare_parameter(p, inside) for p, inside in zip(function.parameters, names)]
    opening = f'Public Declare PtrSafe {kind} {name} Lib "{LIBRARY}"{alias} ('
    if not parameters:
        return [f"{opening}){result}"]
    body = textwrap.wrap(
        ", ".join(p.replace(" ", "\0") for p in parameters),
        WIDTH,
        initial_indent="    ",
        subsequent_indent="    ",
        break_long_words=False,
        break_on_hyphens=False,
    )
    lines = [opening, *(line.replace("\0", " ") for line in body)]
    lines[-1] += f"){result}"
    lines = [f"{line} _" if line.endswith(",") else line for line in lines]
    lines[0] += " _"
    if len(lines) - 1 > MOST_CONTINUATIONS or any(len(line) > LONGEST_LINE for line in lines):
        raise CannotDeclare("too long a declaration for Visual Basic")
    return lines


def make(headers, records, missing, problem):
    """The whole module; `problem(header, function, message)` is told of what cannot be declared."""
    lines = [*PREAMBLE.splitlines(), *vba_records.make(records, missing)]
    taken = {name.lower() for name in re.findall(r"^Public (?:\w+ )*?(\w+)(?: As| Lib|$)", "\n".join(lines), re.MULTILINE)}
    for header in headers:
        if not header.functions:
            continue
        lines += ["", f"' ---- {header.name}"]
        for function in header.functions:
            inside = set()
            names = [unique_name(p.name, inside) for p in function.parameters]
            try:
                lines += ["", *comment(function, names), *declaration(function, names, taken)]
            except CannotDeclare as error:
                problem(header, function, str(error))
    return "".join(f"{line}\r\n" for line in lines)
