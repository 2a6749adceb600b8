"""Reads bindings/calc/functions.txt, the table of the worksheet functions. What does not fit the C headers is an error."""

import ast
import re
from dataclasses import dataclass, field

from . import core_functions
from .flat_headers import Problem, Unreadable
from .python_module import spelled

NAME = "bindings/calc/functions.txt"
HELPERS = "bindings/calc/extension/pythonpath/korvelcalc/cells.py"

# Kinds of arguments; those of one number may have a range, those of tables a number of rows.
TABLES = ("table", "full", "square", "labels")
RANGES = TABLES + ("vector", "numbers", "texts", "weights")
NUMBERS = ("number", "integer")
CELLS = NUMBERS + ("flag", "text")
CONSTANTS = {"true": "True", "false": "False", "missing": "cells.MISSING"}
UNNAMED = "done"  # the variable of a call that has no name
MARKED = ("table",)  # says of an answer that it is a table, and does nothing


@dataclass
class Argument:
    name: str
    kind: str
    limits: tuple
    default: object

    @property
    def optional(self):
        return self.default is not None


@dataclass
class Step:
    """One call, or an array that is made beforehand."""

    target: str
    function: object
    given: dict
    made: list


@dataclass
class Entry:
    name: str
    line: int
    section: str
    arguments: list
    text: str = ""
    steps: list = field(default_factory=list)
    failures: list = field(default_factory=list)
    answer: str = ""
    is_table: bool = False


def helpers_in(text):
    return {node.name for node in ast.parse(text).body if isinstance(node, ast.FunctionDef)}


class Reader:
    """Turns the lines of the table into entries."""

    def __init__(self, functions, helpers):
        self.functions, self.helpers = functions, helpers
        self.entries = []
        self.section = ""
        self.line = 0

    def fail(self, message):
        raise Unreadable(self.line, message)

    def parsed(self, text):
        try:
            return ast.parse(text.strip(), mode="eval").body
        except SyntaxError:
            self.fail(f"cannot read '{text.strip()}'")

    def argument(self, node, default):
        annotation, limits = node.annotation, ()
        if isinstance(annotation, ast.Subscript):
            limits = ast.literal_eval(annotation.slice)
            limits = limits if isinstance(limits, tuple) else (limits,)
            annotation = annotation.value
        kind = annotation.id if isinstance(annotation, ast.Name) else ""
        allowed = {0, 1} if kind in TABLES else {0, 2} if kind in NUMBERS else {0}
        if kind not in RANGES + CELLS or len(limits) not in allowed or \
                (default is not None and kind not in (*CELLS, "weights")):
            self.fail(f"argument {node.arg} has no kind that is known here")
        if default is not None:
            default = {"true": True, "false": False}.get(default.id) if isinstance(default, ast.Name) else \
                ast.literal_eval(default)
        return Argument(node.arg, kind, limits, default)

    def begin(self, text):
        try:
            node = ast.parse(f"def {text}: pass").body[0]
        except SyntaxError:
            self.fail(f"cannot read '{text}'")
        if any(entry.name == node.name for entry in self.entries):
            self.fail(f"{node.name} is there already")
        defaults = [None] * (len(node.args.args) - len(node.args.defaults)) + node.args.defaults
        arguments = [self.argument(*pair) for pair in zip(node.args.args, defaults)]
        self.entries.append(Entry(node.name, self.line, self.section, arguments))

    def source(self, node, names):
        """Python for an expression, in which `names` stand for what they are."""
        if isinstance(node, ast.Constant) and isinstance(node.value, (int, float)):
            return repr(node.value)
        if isinstance(node, ast.UnaryOp) and isinstance(node.op, ast.USub):
            return f"-{self.source(node.operand, names)}"
        if isinstance(node, ast.Name) and node.id in {**CONSTANTS, **names}:
            return names.get(node.id) or CONSTANTS[node.id]
        if isinstance(node, ast.Attribute) and isinstance(node.value, ast.Name):
            known = names.get(f"{node.value.id}.{node.attr}")
            if known:
                return known
        if isinstance(node, ast.Compare) and len(node.ops) == 1:
            operators = {ast.NotEq: "!=", ast.Lt: "<", ast.Gt: ">"}
            operator = operators.get(type(node.ops[0]))
            if operator:
                return f"{self.source(node.left, names)} {operator} {self.source(node.comparators[0], names)}"
        if isinstance(node, ast.Call) and isinstance(node.func, ast.Name) and not node.keywords:
            if node.func.id in self.helpers:
                return f"cells.{node.func.id}({', '.join(self.source(part, names) for part in node.args)})"
        self.fail(f"'{ast.unparse(node)}' has no meaning here")

    def names_in(self, entry):
        """What an expression may name: arguments, what the last call wrote, and what steps with a name wrote or are."""
        names = {argument.name: argument.name for argument in entry.arguments}
        last = {}
        for step in entry.steps:
            if step.function is None:
                names[step.target] = step.target
            elif step.target:
                names |= {f"{step.target}.{name}": code for name, code in self.written(step, step.target).items()}
            else:
                last = self.written(step, UNNAMED)
        return names | last

    @staticmethod
    def written(step, variable):
        """What a call gives: `result` is what it returns, `result_` an array of that name that it writes."""
        returned = ["result"] if step.function.result != "void" else []
        codes = {name: f"{variable}.{name}" for name in returned}
        for k, p in enumerate(step.made, len(returned)):
            # The Python package has the second of two names by its place alone.
            codes |= {f"{p.name}_": f"{variable}[{k}]"} if p.name in returned else {p.name: f"{variable}.{p.name}"}
        return codes | {p.name: step.given[p.name] for p in step.function.parameters
                        if p.name in step.given and p.direction in ("inout", "out")}

    def step(self, entry, text):
        found = re.match(r"(?:(\w+) = )?(.*)", text)
        target, node = found.group(1) or "", self.parsed(found.group(2))
        names = self.names_in(entry)
        if not (isinstance(node, ast.Call) and isinstance(node.func, ast.Name)):
            self.fail(f"'{text}' is no call")
        if node.func.id in self.helpers and target:
            entry.steps.append(Step(target, None, {"": self.source(node, names)}, []))
            return
        function = self.functions.get(node.func.id)
        if function is None or node.args:
            self.fail(f"'{node.func.id}' is no function that is known here, or its arguments have no names")
        by_spelling = {spelled(p.name): p.name for p in function.parameters}
        step = Step(target, function, {}, [])
        for keyword in node.keywords:
            if keyword.arg not in by_spelling:
                self.fail(f"{function.name} has no parameter {keyword.arg}")
            step.given[by_spelling[keyword.arg]] = self.source(keyword.value, names)
        for p in function.parameters:
            if p.name in step.given:
                code = step.given[p.name]
                if p.direction in ("out", "inout") and not code.isidentifier():
                    # An array of its own, to be looked at later.
                    entry.steps.append(Step(f"its_{p.name}", None, {"": code}, []))
                    step.given[p.name] = f"its_{p.name}"
            elif p.direction == "out" and not p.nullable:
                step.made.append(p)
            elif p.direction and not p.nullable:
                self.fail(f"{function.name}: {p.name} is not given")
        entry.steps.append(step)

    def read_line(self, text):
        if text.startswith("["):
            self.section = text.strip("[]")
        elif not text.startswith(" "):
            self.begin(text)
        elif not self.entries or self.entries[-1].answer:
            self.fail("a step that belongs to no function")
        elif text.startswith("    says: ") and not self.entries[-1].steps:
            self.entries[-1].text = text.removeprefix("    says: ")
        elif text.startswith("    fails if "):
            entry = self.entries[-1]
            condition, _, message = text.removeprefix("    fails if ").partition(": ")
            entry.failures.append((self.source(self.parsed(condition), self.names_in(entry)), message))
        elif text.startswith("    -> "):
            entry = self.entries[-1]
            node = self.parsed(text.removeprefix("    -> "))
            entry.is_table = isinstance(node, ast.Call) and getattr(node.func, "id", "") != "last"
            if entry.is_table and node.func.id in MARKED:
                (node,) = node.args
            entry.answer = self.source(node, self.names_in(entry))
        else:
            self.step(self.entries[-1], text.strip())

    def read(self, text):
        for self.line, line in enumerate(text.splitlines(), 1):
            if line.strip() and not line.startswith("#"):
                if not line.startswith(" ") and self.entries and not self.entries[-1].answer:
                    self.fail(f"{self.entries[-1].name} has no answer")
                self.read_line(line)
        if self.entries and not self.entries[-1].answer:
            self.fail(f"{self.entries[-1].name} has no answer")
        return self.entries


def read(root, headers, problems):
    """The entries of the table; none when there is no table."""
    path = root / NAME
    if not path.is_file():
        return []
    functions = {function.name: function for header in headers for function in header.functions}
    functions |= core_functions.read_all(root, problems)
    reader = Reader(functions, helpers_in((root / HELPERS).read_text(encoding="ascii")))
    try:
        return reader.read(path.read_text(encoding="ascii"))
    except Unreadable as error:
        problems.append(Problem(NAME, error.line, error.message))
        return []
