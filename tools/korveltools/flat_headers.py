"""Reads the plain-C headers of the flat functions. Whatever it cannot read is an error: nothing is skipped."""

import re
from dataclasses import dataclass

from .declarations import ARRAYS, READ_ONLY, Doc, Function, Header, Parameter, Tag, one_line

SCALARS = ("double", "int", "short int")
# Wrapping a record or a chunked table writes to it, even where the routine only reads.
REFERENCES = ("ST_Vect*", "ST_MVect*", "ST_QualiInfo*", "SAFEARRAY**", "Hostarray**")
POINTERS = (*ARRAYS, *READ_ONLY, *REFERENCES, "const char*")
RESULTS = SCALARS + ("void", "OLECHAR*", "OLECHAR**")
HOST_ARRAY_ELEMENTS = ("Double", "Long", "Boolean", "String")

HEADERS = "include/korvelmathtools"
UMBRELLA = "KORVELMathTools.h"
COMMON = "types.h"
DIRECTION = re.compile(r"\[(in|out|inout)\](\s+|$)")

# What a Boolean says of its values: `-1: ...` and `true only when -1` take anything else for false; `not 0: ...` and
# `true unless 0` take anything else for true; some tell three cases apart.
TRUTH = re.compile(r"(-1|not 0): |.*\btrue (only when -1|unless 0)\b|.*\b[Aa]ny other value\b")

# What flags of missing rows say of their values.
FLAG_TRUTH = re.compile(r"-1|\bnon-zero\b|\b(other than|not|unless) 0\b")


@dataclass(frozen=True)
class Problem:
    path: str
    line: int
    message: str

    def __str__(self):
        return f"{self.path}:{self.line}: {self.message}"


class Unreadable(Exception):
    """What follows in the file has no meaning any more."""

    def __init__(self, line, message):
        super().__init__(message)
        self.line = line
        self.message = message


def read_comment(lines, start):
    """The lines inside the comment that opens at index `start`, as (line number, text), and the next index."""
    inside = []
    for index in range(start, len(lines)):
        line = lines[index].strip()
        text, closed, rest = line.partition("*/")
        if rest.strip():
            raise Unreadable(index + 1, "text behind the end of a comment")
        text = text.removeprefix("/**").removeprefix("/*") if index == start else text.removeprefix("*")
        inside.append((index + 1, text.removeprefix(" ").rstrip()))
        if closed:
            return inside, index + 1
    raise Unreadable(start + 1, "a comment that does not end")


def read_doc(comment):
    """Sorts a doc comment into its text and its tags. A blank line ends a tag."""
    doc = Doc(comment[0][0])
    target = doc.text
    for number, text in comment:
        opening = re.match(r"\s*@(\w+)\s*(.*)", text)
        if not opening:
            if not text.strip():
                target = doc.text
            target.append(text)
            continue
        kind, rest = opening.groups()
        if kind == "file":
            doc.is_file = True
            continue
        name = ""
        if kind == "param":
            name, _, rest = rest.partition(" ")
        elif kind == "like":
            name, _, rest = rest.partition(",")
        elif kind not in ("return", "throws"):
            raise Unreadable(number, f"@{kind} is not known here")
        target = [rest.strip()]
        doc.tags.append(Tag(kind, name, number, target))
    while doc.text and not doc.text[0].strip():
        doc.text.pop(0)
    while doc.text and not doc.text[-1].strip():
        doc.text.pop()
    return doc


def normal_type(words):
    return re.sub(r"\s*\*", "*", " ".join(words.split()))


def read_prototype(text, line, doc):
    """A function from `KORVEL_FLAT result name(parameters);` on one line."""
    found = re.fullmatch(r"KORVEL_FLAT\s+(.*?)\b(\w+)\s*\(([^()]*)\)\s*;", text)
    if not found:
        raise Unreadable(line, "cannot read this prototype")
    result, name, inside = normal_type(found.group(1)), found.group(2), found.group(3).strip()
    if result not in RESULTS:
        raise Unreadable(line, f"{name}: unknown result type '{result}'")
    if not inside:
        raise Unreadable(line, f"{name}: an empty parameter list is written (void)")
    parameters = []
    for piece in inside.split(",") if inside != "void" else []:
        split = re.fullmatch(r"(.*[\s*])(\w+)", piece.strip())
        if not split:
            raise Unreadable(line, f"{name}: cannot read the parameter '{piece.strip()}'")
        type_ = normal_type(split.group(1))
        if type_ not in SCALARS + POINTERS:
            raise Unreadable(line, f"{name}: unknown type '{type_}' of parameter {split.group(2)}")
        parameters.append(Parameter(split.group(2), type_))
    return Function(name, result, parameters, doc, line)


def take_over(function, earlier, problem):
    """`@like OTHER` takes over what a function above says of each parameter, of its result and of what it throws, but
    for what this function says itself; `@like OTHER, texts for numbers` replaces a word on the way."""
    doc = function.doc
    likes = doc.tagged("like")
    if not likes:
        return
    like = likes[0]
    other = next((f for f in earlier if f.name == like.name), None)
    words = re.fullmatch(r"(?:(\w+) for (\w+))?", one_line(like.text))
    if other is None or words is None or len(likes) > 1:
        problem(like.line, f"{function.name}: @like names a function above, and after a comma 'word for word'")
        return

    def taken(kind, name, first, more=()):
        lines = [first, *more]
        if words.group(1):
            lines = [re.sub(rf"\b{words.group(2)}\b", words.group(1), line) for line in lines]
        return Tag(kind, name, like.line, lines)

    own = [tag.name for tag in doc.tagged("param")]
    names = [p.name for p in function.parameters]
    params = doc.tagged("param")
    for p in other.parameters:
        if p.name in names and p.name not in own:
            params.append(taken("param", p.name, f"[{p.direction}] {p.text[0]}" if p.direction else p.text[0], p.text[1:]))
    if len(params) == len(own):
        problem(like.line, f"{function.name}: @like {like.name} adds nothing")
    params.sort(key=lambda tag: names.index(tag.name) if tag.name in names else len(names))
    others = []
    for kind in ("return", "throws"):
        theirs = [taken(kind, "", *tag.text[:1], tag.text[1:]) for tag in other.doc.tagged(kind)]
        others += doc.tagged(kind) or (theirs if kind == "throws" or function.result != "void" else [])
    doc.tags = params + others


def has_room(parameter, by_name):
    """Whether the text says how many cells the array has, in counts that the caller passes."""
    counts = " ".join(f"{room.rows} {room.columns}" for room in parameter.rooms.values())
    measured = set(re.findall(r"(\w+)\.nbrowsmax", counts))
    counts = re.sub(r"\w+\.nbrowsmax", "1", counts)
    summed = re.findall(r"(?:max|sum)\((\w+)\)", counts)
    names = set(re.findall(r"[A-Za-z_]\w*", re.sub(r"\b(sum|max)\(", "(", counts))) - set(summed)
    passed = {name for name, p in by_name.items() if p.type == "int" or p.is_changed_count}
    arrays = {name for name, p in by_name.items() if p.plain_type in ("double*", "int*")}
    tables = {name for name, p in by_name.items() if p.type == "ST_MVect*"}
    choosers = {key[0] for key in parameter.rooms if key}
    return (bool(counts) and names <= passed and set(summed) <= arrays and measured <= tables
            and choosers <= set(by_name))


def describe(function, problem):
    """Gives each parameter its `@param` text, and calls `problem(line, message)` for whatever does not fit."""
    doc = function.doc
    by_name = {p.name: p for p in function.parameters}
    described = []
    if not doc.text:
        problem(doc.line, f"{function.name}: the doc comment has no text")
    for tag in doc.tagged("param"):
        parameter = by_name.get(tag.name)
        if parameter is None:
            problem(tag.line, f"{function.name}: @param {tag.name} names no parameter")
            continue
        if tag.name in described:
            problem(tag.line, f"{function.name}: a second @param {tag.name}")
            continue
        described.append(tag.name)
        direction = DIRECTION.match(tag.text[0])
        if direction:
            parameter.direction = direction.group(1)
            tag.text[0] = tag.text[0][direction.end():]
        parameter.text = tag.text
        if parameter.type in POINTERS and not direction:
            problem(tag.line, f"{function.name}: @param {tag.name} needs [in], [out] or [inout]")
        if parameter.type in ARRAYS and parameter.direction == "in":
            problem(tag.line, f"{function.name}: @param {tag.name} is only read: declare it {ARRAYS[parameter.type]}")
        if parameter.type in READ_ONLY and parameter.direction in ("out", "inout"):
            problem(tag.line, f"{function.name}: @param {tag.name} is written, but declared {parameter.type}")
        if parameter.type in SCALARS and direction:
            problem(tag.line, f"{function.name}: @param {tag.name} is passed by value and has no direction")
        if not one_line(tag.text):
            problem(tag.line, f"{function.name}: @param {tag.name} has no text")
        if parameter.type == "short int" and one_line(tag.text) and not TRUTH.match(one_line(tag.text)):
            problem(tag.line, f"{function.name}: @param {tag.name} must say whether only -1 or anything but 0 is true")
        if tag.name.startswith("iMissing") and parameter.direction != "out" and not FLAG_TRUTH.search(one_line(tag.text)):
            problem(tag.line, f"{function.name}: @param {tag.name} must say which flags leave a cell out")
        if parameter.type == "SAFEARRAY**" and parameter.host_element not in HOST_ARRAY_ELEMENTS:
            elements = ", ".join(HOST_ARRAY_ELEMENTS)
            problem(tag.line, f"{function.name}: @param {tag.name} must say 'host array of' one of {elements}")
    for tag in doc.tagged("param"):
        # A room may be made of a count that is described later.
        parameter = by_name.get(tag.name)
        if parameter and parameter.plain_type in ARRAYS and parameter.direction and not has_room(parameter, by_name):
            problem(tag.line, f"{function.name}: @param {tag.name} must begin with its room: 'n numbers', "
                              "'rows by cols numbers', made of counts that are parameters, or 'one number'")
    for parameter in function.parameters:
        if parameter.name not in described:
            problem(function.line, f"{function.name}: parameter {parameter.name} has no @param line")
    if set(described) == set(by_name) and described != list(by_name):
        problem(doc.line, f"{function.name}: the @param lines are not in the order of the parameters")
    returns = doc.tagged("return")
    if function.result == "void" and returns:
        problem(returns[0].line, f"{function.name}: @return, but there is no result")
    if function.result != "void" and not any(one_line(tag.text) for tag in returns):
        problem(function.line, f"{function.name}: no @return")
    for tag in doc.tagged("throws"):
        if not one_line(tag.text):
            problem(tag.line, f"{function.name}: @throws has no text")
    if len(returns) > 1:
        problem(returns[1].line, f"{function.name}: a second @return")


def read_header(name, path, text, problems):
    """One header; what is wrong with it is added to `problems`."""

    def problem(line, message):
        problems.append(Problem(path, line, message))

    header = Header(name, path)
    lines = text.splitlines()
    for number, line in enumerate(lines, 1):
        if not line.isascii():
            problem(number, "a character outside ASCII")
    doc = None
    index = 0
    try:
        while index < len(lines):
            line = lines[index].strip()
            if line.startswith("/**"):
                if doc:
                    raise Unreadable(doc.line, "a doc comment that belongs to no prototype")
                comment, index = read_comment(lines, index)
                doc = read_doc(comment)
                if doc.is_file:
                    header.title, doc = doc.text, None
            elif line.startswith("/*"):
                _, index = read_comment(lines, index)
            elif line.startswith("KORVEL_FLAT"):
                first, pieces = index, []
                while not pieces or ";" not in pieces[-1]:
                    if index == len(lines):
                        raise Unreadable(first + 1, "a prototype that does not end")
                    pieces.append(lines[index].strip())
                    index += 1
                if not doc:
                    problem(first + 1, "a prototype without a doc comment before it")
                    doc = Doc(first + 1)
                    header.functions.append(read_prototype(" ".join(pieces), first + 1, doc))
                else:
                    function = read_prototype(" ".join(pieces), first + 1, doc)
                    take_over(function, header.functions, problem)
                    describe(function, problem)
                    header.functions.append(function)
                doc = None
            elif not line or re.fullmatch(r'#(ifndef \w+|define \w+|include "[^"]+"|endif)', line):
                index += 1
            else:
                raise Unreadable(index + 1, "cannot read this line")
        if doc:
            raise Unreadable(doc.line, "a doc comment that belongs to no prototype")
        if not header.title:
            raise Unreadable(1, "no @file comment that says what the header is about")
    except Unreadable as error:
        problem(error.line, error.message)
    return header


def included_by_umbrella(folder, root, problems):
    """Names of the flat headers, in the order in which the umbrella header includes them."""
    path = root / HEADERS / UMBRELLA
    names = []
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        found = re.fullmatch(r'\s*#\s*include\s+"(.+)"\s*', line)
        if not found:
            continue
        name = found.group(1).removeprefix("frames/")
        where = path.relative_to(root).as_posix()
        if name == found.group(1) or not (folder / name).is_file():
            problems.append(Problem(where, number, f"{found.group(1)} is no header of {HEADERS}/frames"))
        elif name in names:
            problems.append(Problem(where, number, f"{found.group(1)} is included twice"))
        else:
            names.append(name)
    return names


def find_duplicates(headers, problems):
    first = {}
    for header in headers:
        for function in header.functions:
            if function.name in first:
                message = f"{function.name} is declared already at {first[function.name]}"
                problems.append(Problem(header.path, function.line, message))
            first.setdefault(function.name, f"{header.path}:{function.line}")


def read_all(root):
    """All flat headers below `root` sorted by name, the header common to them, the problems found."""
    folder = root / HEADERS / "frames"
    problems = []
    umbrella = included_by_umbrella(folder, root, problems)
    headers = []
    for path in sorted(folder.rglob("*.h")):
        name = path.relative_to(folder).as_posix()
        where = path.relative_to(root).as_posix()
        text = path.read_text(encoding="utf-8")
        if name in umbrella or name == COMMON:
            headers.append(read_header(name, where, text, problems))
        elif re.search(r"^\s*KORVEL_FLAT\b", text, re.MULTILINE):
            line = text[: text.index("KORVEL_FLAT")].count("\n") + 1
            problems.append(Problem(where, line, f"flat functions in a header that {UMBRELLA} does not include"))
    find_duplicates(headers, problems)
    common = next((header for header in headers if header.name == COMMON), Header(COMMON, ""))
    return headers, common, problems
