#!/usr/bin/env python3
"""Holds the pages for callers to the library: programs in C and C++ print what stands below them, calls in Visual Basic fit the
declarations, names of functions exist.

    guide_test.py LIBRARY AUTOMATION FOLDER    the built libraries, and a folder for the programs, which is emptied first
"""

import os
import re
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))

from korveltools import flat_headers  # noqa: E402
from korveltools.declarations import one_line  # noqa: E402

GUIDE = ROOT / "docs" / "guide"
PAGES = sorted(GUIDE.glob("*.md"))
# What is no subject of its own.
GENERAL = {"index.md", "contract.md", "tasks.md", "pitfalls.md"}
# What has no flat functions.
CORE_ONLY = {"special.md"}
STRICT = ["-pedantic-errors", "-Wall", "-Wextra", "-Werror", f"-I{ROOT}/include", f"-I{ROOT}/include/korvelmathtools"]
COMPILERS = {"c": ["gcc", "-std=c99"], "cpp": ["g++", "-std=c++20"]}
MODULE = ROOT / "bindings" / "vba" / "KORVELMathTools.bas"


def blocks(page):
    """The fenced blocks of a page, as (language, line, text)."""
    found = re.finditer(r"^```(\w*)\n(.*?)^```$", page.read_text(encoding="utf-8"), re.MULTILINE | re.DOTALL)
    return [(block[1], page.read_text(encoding="utf-8")[: block.start()].count("\n") + 1, block[2]) for block in found]


def declared_counts(module):
    """How many arguments each declared function has."""
    text = re.sub(r" _\n\s*", " ", module)
    found = re.findall(r"^Public Declare PtrSafe (?:Function|Sub) (\w+) Lib \"KORVELMathTools.dll\"(?: Alias \"[^\"]*\")? \((.*)\)", text,
                       re.MULTILINE)
    return {name: len([p for p in parameters.split(",") if p.strip()]) for name, parameters in found}


def visual_basic_calls(code, names):
    """(name, number of arguments) of each call of one of the functions, with its arguments in brackets or on its line."""
    code = re.sub(r" _\n\s*", " ", re.sub(r"(?m)'.*$|\"[^\"]*\"", "", code))
    for found in re.finditer(rf"\b({'|'.join(names)})\b(\(?)", code):
        rest = code[found.end():]
        depth, pieces = 0, [""]
        for character in rest if found[2] else rest.partition("\n")[0]:
            depth += (character == "(") - (character == ")")
            if depth < 0:
                break
            if character == "," and depth == 0:
                pieces.append("")
            else:
                pieces[-1] += character
        yield found[1], len([piece for piece in pieces if piece.strip()])


class Guide(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(SCRATCH, ignore_errors=True)
        SCRATCH.mkdir(parents=True)
        headers, _, problems = flat_headers.read_all(ROOT)
        if problems:
            raise AssertionError(problems)
        cls.functions = {function.name: function for header in headers for function in header.functions}
        cls.core = set(re.findall(r"(?m)^(?:void )?([\w:]+)", (ROOT / "exports" / "core.txt").read_text(encoding="ascii")))

    def test_programs_print_what_is_shown(self):
        shown = 0
        for page in PAGES:
            fenced = blocks(page)
            for (language, line, source), following in zip(fenced, [*fenced[1:], ("", 0, "")]):
                if language not in COMPILERS:
                    continue
                with self.subTest(page=page.name, line=line):
                    self.assertEqual(following[0], "text", "what the program prints stands below it")
                    name = SCRATCH / f"{page.stem}_{line}"
                    file = name.with_suffix(f".{language}")
                    file.write_text(source, encoding="ascii")
                    folders = {Path(library).parent for library in LIBRARIES}
                    built = subprocess.run([*COMPILERS[language], *STRICT, file, "-o", name, *LIBRARIES, "-lm"], check=False,
                                           stdout=subprocess.PIPE, stderr=subprocess.STDOUT, encoding="utf-8")
                    self.assertEqual(built.returncode, 0, built.stdout)
                    done = subprocess.run([name], stdout=subprocess.PIPE, encoding="utf-8", check=False, timeout=60,
                                          env=dict(os.environ, LD_LIBRARY_PATH=":".join(map(str, folders))))
                    self.assertEqual((done.returncode, done.stdout), (0, following[2]))
                    shown += 1
        self.assertGreaterEqual(shown, len(PAGES) - len(GENERAL))

    def test_each_subject_is_shown_in_both_languages(self):
        for page in PAGES:
            if page.name not in GENERAL:
                shown = {"cpp", "text"} if page.name in CORE_ONLY else {"c", "vb", "text"}
                self.assertLessEqual(shown, {language for language, _, _ in blocks(page)}, page.name)

    def test_calls_in_visual_basic_fit(self):
        counts = declared_counts(MODULE.read_text(encoding="ascii"))
        self.assertEqual(set(counts), set(self.functions))
        calls = 0
        for page in [*PAGES, ROOT / "docs" / "windows.md"]:
            for language, line, code in blocks(page):
                if language == "vb":
                    for name, count in visual_basic_calls(code, counts):
                        with self.subTest(page=page.name, line=line, function=name):
                            self.assertEqual(count, counts[name])
                            calls += 1
        self.assertGreater(calls, 8)

    def test_names_exist(self):
        for page in PAGES:
            text = re.sub(r"^```.*?^```$", "", page.read_text(encoding="utf-8"), flags=re.MULTILINE | re.DOTALL)
            for name in re.findall(r"[`\[]((?:VB|Cpp)_\w+|[MV]_[A-Z]\w+)[`\]]", text):
                self.assertIn(name, self.core if name[1] == "_" else self.functions, page.name)

    def test_every_function_that_can_fail_is_told(self):
        """Those whose result, or an argument, says how the call ended."""
        contract = GUIDE / "contract.md"
        told = re.findall(r"(?m)^\| `(\w+)`", contract.read_text(encoding="utf-8")) if contract.is_file() else []
        fails = []
        for name, function in self.functions.items():
            result = " ".join(one_line(tag.text) for tag in function.doc.tagged("return"))
            by_result = function.result == "int" and re.match(r"0(?:; -?\d|, or -\d| when the table is complete)|1 when every free|"
                                                              r"the rank;", result)
            by_argument = any(p.name in ("status", "error", "success") and p.direction in ("out", "inout")
                              for p in function.parameters)
            if by_result or by_argument:
                fails.append(name)
        self.assertGreater(len(fails), 20)
        self.assertEqual(sorted(told), sorted(fails))

    def test_layouts_are_those_of_the_header(self):
        header = (ROOT / "include/korvelmathtools/containers/caller_records.h").read_text(encoding="ascii")
        page = (GUIDE / "layouts.md").read_text(encoding="utf-8")
        records = re.findall(r"KORVEL_SIZE\((\w+), (\d+)\);", header)
        self.assertEqual(len(records), 4)
        for record, size in records:
            section = re.search(rf"(?ms)^## [^\n]*: {record}$(.*?)^## ", page).group(1)
            self.assertRegex(section, rf"\b{size} bytes\b", record)
            fields = re.findall(rf"KORVEL_FIELD_AT\({record}, (\w+), (\d+), (\d+)\);", header)
            shown = re.findall(r"(?m)^\| (\d+) \| (\d+) \| [^|]+ \| `(\w+)`", section)
            self.assertEqual(shown, [(offset, bytes_, field) for field, offset, bytes_ in fields], record)

    def test_tasks(self):
        tasks = GUIDE / "tasks.md"
        rows = re.findall(r"(?m)^\| ([^|]+) \| (\[[^|]+) \|$", tasks.read_text(encoding="utf-8")) if tasks.is_file() else []
        self.assertGreaterEqual(len(rows), 120)
        self.assertEqual(len({task for task, _ in rows}), len(rows))
        for task, names in rows:
            for name, link in re.findall(r"\[(\w+)\]\(([^)]+)\)", names):
                if link.endswith(".h"):
                    self.assertIn(name, self.core, task)
                    self.assertRegex((GUIDE / link).read_text(encoding="utf-8"), rf"KORVEL_API [^;]*\b{name}\(", task)
                else:
                    self.assertIn(name, self.functions, task)
                    self.assertEqual(link, f"../reference.md#{name.lower()}", task)
            self.assertEqual(re.sub(r"\[\w+\]\([^)]+\)", "", names).strip(", "), "", task)


if __name__ == "__main__":
    LIBRARIES = [Path(name).resolve() for name in sys.argv[1:3]]
    SCRATCH = Path(sys.argv[3]).resolve()
    outcome = unittest.TextTestRunner().run(unittest.defaultTestLoader.loadTestsFromTestCase(Guide))
    sys.exit(0 if outcome.wasSuccessful() else 1)
