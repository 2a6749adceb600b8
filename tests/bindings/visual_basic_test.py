#!/usr/bin/env python3
"""visual_basic_test.py FOLDER: has the modules of Visual Basic read by a Basic, and what in them needs no library run by it.
That Basic is LibreOffice's, which does not know `PtrSafe` and `LongPtr`, cannot call a library, and reads arrays inside
records but cannot fill them. A procedure gives nothing when a line of its module cannot be read. FOLDER, which is emptied
first, becomes the home of the office.
"""

import os
import shutil
import subprocess
import sys
import time
import unittest
from pathlib import Path

import uno

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "package"))
import guide_test  # noqa: E402

MODULES = {path.stem: path.read_text(encoding="ascii") for path in sorted((ROOT / "bindings" / "vba").glob("*.bas"))}
FOLDER = Path(sys.argv[1]).resolve()
PIPE = f"korvel_{os.getpid()}"

# Pages whose examples fill arrays inside records.
WITH_ARRAYS_IN_RECORDS = {"containers.md", "layouts.md"}

# A module is read when something in it is called.
READ = "\nPublic Function Read{0}() As String\n    Read{0} = \"read\"\nEnd Function\n"

CHECK = """\
Option Explicit

Public Function OneCell() As String
    Dim table() As Double
    ReadCells 7.5, table
    OneCell = UBound(table, 1) & " " & UBound(table, 2) & " " & table(1, 1)
End Function

Public Function ManyCells() As String
    Dim cells(1 To 2, 1 To 3) As Variant, table() As Double, i As Long, j As Long
    cells(1, 1) = 1.5: cells(1, 2) = "text": cells(1, 3) = True
    cells(2, 1) = -2.5: cells(2, 2) = Empty: cells(2, 3) = CDbl(4)
    ReadCells cells, table
    For i = 1 To 2
        For j = 1 To 3
            ManyCells = ManyCells & IIf(table(i, j) = KORVEL_MISSING_DBL, "-", table(i, j)) & " "
        Next j
    Next i
End Function

Public Function MissingCells() As String
    MissingCells = KORVEL_MISSING_LNG & KORVEL_MISSING_STR & IsEmpty(CellOfNumber(KORVEL_MISSING_DBL)) & CellOfNumber(2)
End Function
"""


def spoken(text):
    """A module as LibreOffice writes it."""
    lines = [line for line in text.splitlines() if not line.startswith("Attribute ")]
    return "\n".join(["Option VBASupport 1", *lines]).replace("PtrSafe ", "").replace("LongPtr", "Long")


class Office:
    """An office that runs, and a library of modules for each question."""

    def __init__(self):
        shutil.rmtree(FOLDER, ignore_errors=True)
        FOLDER.mkdir(parents=True)
        self.process = subprocess.Popen(
            ["soffice", f"-env:UserInstallation=file://{FOLDER}/profile", "--headless", "--norestore", "--nologo",
             f"--accept=pipe,name={PIPE};urp;"], env={"HOME": str(FOLDER), "PATH": "/usr/bin:/bin"},
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        here = uno.getComponentContext()
        resolver = here.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", here)
        end = time.monotonic() + 120
        while True:
            try:
                self.context = resolver.resolve(f"uno:pipe,name={PIPE};urp;StarOffice.ComponentContext")
                break
            except Exception:  # noqa: BLE001  pylint: disable=broad-except
                if time.monotonic() > end or self.process.poll() is not None:
                    raise
                time.sleep(0.1)
        self.libraries = self.service("com.sun.star.script.ApplicationScriptLibraryContainer")
        self.scripts = self.service("com.sun.star.script.provider.MasterScriptProviderFactory").createScriptProvider("")

    def service(self, name):
        return self.context.ServiceManager.createInstanceWithContext(name, self.context)

    def library(self, modules):
        """Modules that see each other; answers what one of their procedures gives."""
        name = f"Library{len(self.libraries.getElementNames())}"
        self.libraries.createLibrary(name)
        for module, text in {**{key: text + READ.format(key) for key, text in modules.items()}, "Check": CHECK}.items():
            self.libraries.getByName(name).insertByName(module, spoken(text))
        return lambda procedure: self.scripts.getScript(
            f"vnd.sun.star.script:{name}.{procedure}?language=Basic&location=application").invoke((), (), ())[0]

    def close(self):
        self.service("com.sun.star.frame.Desktop").terminate()
        self.process.wait(60)


class VisualBasic(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.office = Office()
        cls.addClassCleanup(cls.office.close)

    def test_every_line_is_read(self):
        ask = self.office.library(MODULES)
        for module in MODULES:
            self.assertEqual(ask(f"{module}.Read{module}"), "read", module)

    def test_examples_of_the_pages_are_read(self):
        examples = {f"Example{page.stem.capitalize()}{line}": code for page in [*guide_test.PAGES, ROOT / "docs" / "windows.md"]
                    for language, line, code in guide_test.blocks(page)
                    if language == "vb" and page.name not in WITH_ARRAYS_IN_RECORDS}
        self.assertGreater(len(examples), 10)
        ask = self.office.library({**MODULES, **examples})
        for module in examples:
            self.assertEqual(ask(f"{module}.Read{module}"), "read", module)

    def test_a_wrong_line_is_seen(self):
        self.assertEqual(set(MODULES), {"KORVELMathTools", "Sample"})
        for module, right, wrong in (("KORVELMathTools", "    ByRef x As Double, ", "    ByRef x Az Double, "),
                                     ("KORVELMathTools", "End Type", "End Typ"),
                                     ("Sample", "record.nbcols = columns", "record.nbcolumns columns ="),
                                     ("Sample", "        Next i\r\n", "")):
            text = "\r\n".join(MODULES[module].splitlines()) + "\r\n"
            self.assertIn(right, text)
            ask = self.office.library({**MODULES, module: text.replace(right, wrong, 1)})
            self.assertNotEqual(ask(f"{module}.Read{module}"), "read", wrong)

    def test_what_needs_no_library_works(self):
        ask = self.office.library(MODULES)
        self.assertEqual(ask("Check.OneCell"), "1 1 7.5")
        self.assertEqual(ask("Check.ManyCells"), "1.5 - - -2.5 - 4 ")
        self.assertEqual(ask("Check.MissingCells"), "-2147483648True2")

    def test_calls_fit_the_declarations(self):
        counts = guide_test.declared_counts(MODULES["KORVELMathTools"].replace("\r\n", "\n"))
        calls = list(guide_test.visual_basic_calls(MODULES["Sample"].replace("\r\n", "\n"), counts))
        self.assertGreaterEqual(len({name for name, _ in calls}), 7)
        for name, count in calls:
            self.assertEqual(count, counts[name], name)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
