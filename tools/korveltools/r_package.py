"""The made files of the R package: declarations, the calls in C, a help page for each header."""

import re
import textwrap

from .declarations import one_line

FOLDER = "bindings/r/korvelmathtools"
WIDTH = 118

# The member of a slot that holds an argument or a result, and the letter by which src/call.c tells them apart.
SLOTS = {
    "double": ("number", "d"), "int": ("integer", "i"), "short int": ("flag", "s"), "double*": ("numbers", "D"),
    "int*": ("integers", "I"), "short int*": ("flags", "S"), "OLECHAR**": ("texts", "T"), "OLECHAR*": ("text", "t"),
    "const char*": ("label", "l"), "SAFEARRAY**": ("array", "A"), "Hostarray**": ("chunks", "H"), "ST_Vect*": ("column", "C"),
    "ST_MVect*": ("table", "M"), "ST_QualiInfo*": ("categories", "x"), "VARIANT*": ("cell", "x"), "void": ("", "v"),
}

DESCRIPTION = """\
Package: korvelmathtools
Type: Package
Title: Numerical and Statistical Routines with Weights and Missing Cells
Version: {version}
Description: The flat functions of the library KORVELMathTools over vectors, matrices, lists of columns and texts of R.
License: not chosen yet
SystemRequirements: KORVELMathTools, pkg-config, GNU make
Encoding: UTF-8
"""

OPENING = {
    "R": "# What the flat functions take and give. Made by tools/generate: edit the C headers instead.\n\n",
    "C": "/* A call of each flat function with its arguments in slots. Made by tools/generate: edit the C headers instead. */\n"
         '#include "call.h"\n\n',
    "Rd": "% Made by tools/generate: edit the C headers instead.\n",
}


def expression(text):
    return text if text.isdigit() else f"quote({text})"


def declaration(function):
    lines = [f"{function.name} = list({SLOTS[function.result][1]!r}, list(".replace("'", '"')]
    for p in function.parameters:
        rooms = [f"list({expression(room.rows)}, {expression(room.columns)}" + (f', "{key[0]}", {key[1]})' if key else ")")
                 for key, room in p.rooms.items()] if p.plain_type.endswith("*") else []
        element = f'"{p.host_element}"' if p.type == "SAFEARRAY**" else "NULL"
        lines.append(f'    .p("{p.name}", "{SLOTS[p.plain_type][1]}", {str(p.direction in ("out", "inout")).upper()}, '
                     f'{str(p.direction == "out").upper()}, {str(p.nullable).upper()}, {p.least}, '
                     f'{element}{"".join(f", {room}" for room in rooms)}),')
    if function.parameters:
        lines[-1] = lines[-1][:-1]
    return "\n".join([*lines, "))"])


def call(function):
    """The function that takes the arguments out of their slots."""
    arguments = ", ".join(f"a[{k}].{SLOTS[p.plain_type][0]}" for k, p in enumerate(function.parameters))
    slot = SLOTS[function.result][0]
    text = f"{f'r->{slot} = ' if slot else ''}{function.name}({arguments});"
    unused = "".join(f" (void){name};" for name, used in (("a", function.parameters), ("r", slot)) if not used)
    lines = textwrap.wrap(text, WIDTH, initial_indent="    ", subsequent_indent="        ")
    return [f"static void call_{function.name}(const korvel_slot* a, korvel_slot* r)", "{", *lines,
            *([f"   {unused}"] if unused else []), "}", ""]


def escape(text):
    return re.sub(r"([\\%{}])", r"\\\1", text.replace("`", ""))


def page(header):
    """A help page, with a section for each function of a header."""
    name = header.name.removesuffix(".h").replace("/", "_")
    title = escape(one_line(header.title).removeprefix("Flat functions: ").rstrip("."))
    lines = [f"\\name{{{name}}}", *(f"\\alias{{{f.name}}}" for f in header.functions), f"\\title{{{title}}}",
             "\\description{", "What is written is returned in a list, under its name, beside the result.", "}"]
    for function in header.functions:
        usage = f"{function.name}({', '.join(p.name for p in function.parameters)})"
        lines += [f"\\section{{{function.name}}}{{", f"\\code{{{escape(usage)}}}", ""]
        lines += textwrap.wrap(escape(one_line(function.doc.text)), WIDTH)
        if function.parameters:
            lines += ["\\describe{"]
            for p in function.parameters:
                lines += textwrap.wrap(f"\\item{{{p.name}}}{{{escape(p.described)}}}", WIDTH)
            lines += ["}"]
        for outcome in function.outcome:
            lines += ["", *textwrap.wrap(escape(outcome), WIDTH)]
        lines += ["}"]
    return f"{FOLDER}/man/{name}.Rd", OPENING["Rd"] + "".join(f"{line}\n" for line in lines)


def make(headers, version):
    functions = sorted((f for header in headers for f in header.functions), key=lambda f: f.name)
    declared = ",\n".join(map(declaration, functions))
    calls = [line for function in functions for line in call(function)]
    table = [f'    {{"{f.name}", "{"".join(SLOTS[p.plain_type][1] for p in f.parameters)}", "{SLOTS[f.result][1]}", '
             f"call_{f.name}}}," for f in functions]
    made = {
        f"{FOLDER}/DESCRIPTION": DESCRIPTION.format(version=version),
        f"{FOLDER}/R/declarations.R": f"{OPENING['R']}.functions <- list(\n{declared}\n)\n",
        f"{FOLDER}/src/calls.c": OPENING["C"] + "".join(f"{line}\n" for line in [
            *calls, "const korvel_function korvel_functions[] = {", *table, "};", "",
            f"const size_t korvel_function_count = {len(functions)};"]),
    }
    return made | dict(page(header) for header in headers if header.functions)
