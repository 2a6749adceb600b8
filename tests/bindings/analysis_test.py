#!/usr/bin/env python3
"""Runs the example analysis in several languages: the same results to the bit, R's results up to rounding, one line for what
cannot be analysed.

    analysis_test.py COMMAND...    each command a program of examples/analysis as one argument, words apart by blanks
"""

import math
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
DATA = ROOT / "examples" / "data" / "airquality.csv"
REFERENCE = Path(__file__).with_name("analysis_reference.txt")
HEADER = "Ozone,Solar.R,Wind,Temp,Month"


def run(command, *words):
    done = subprocess.run([*command.split(), *words], stdout=subprocess.PIPE, stderr=subprocess.PIPE, encoding="utf-8",
                          check=False, timeout=120)
    return done.returncode, done.stdout, done.stderr


def named(text):
    """(name, what stands behind it) of each line."""
    return [tuple(part.strip() for part in line.rstrip().rpartition(" ")[::2]) for line in text.splitlines()]


class Analysis(unittest.TestCase):
    def results(self, command, *options):
        code, out, err = run(command, *options, str(DATA))
        self.assertEqual((code, err), (0, ""), command)
        return out.replace("\r", "")

    def test_the_same_bits_from_all(self):
        shown = {command: [(name, float.fromhex(value)) for name, value in named(self.results(command, "--exact"))]
                 for command in COMMANDS}
        self.assertGreaterEqual(len(shown), 2)
        first = shown[COMMANDS[0]]
        for command, found in shown.items():
            self.assertEqual([(name, value.hex()) for name, value in found], [(name, value.hex()) for name, value in first],
                             command)

    def test_the_results_of_r(self):
        told = [line.split("\t") for line in REFERENCE.read_text(encoding="ascii").splitlines()]
        self.assertEqual(len(told), 43)
        found = named(self.results(COMMANDS[0], "--exact"))
        self.assertEqual([name for name, _ in found], [name for name, _ in told])
        for (name, value), (_, expected) in zip(found, told):
            self.assertTrue(math.isclose(float.fromhex(value), float(expected), rel_tol=1e-12), f"{name}: {value}, {expected}")

    def test_the_same_text_from_all(self):
        texts = [self.results(command) for command in COMMANDS]
        self.assertIn("coefficient of Wind                  -3.30806\n", texts[0])
        for command, text in zip(COMMANDS, texts):
            self.assertEqual(text, texts[0], command)

    def refused(self, message, *words):
        for command in COMMANDS:
            with self.subTest(command=command, words=words):
                code, _, err = run(command, *words)
                self.assertEqual(code, 1, err)
                self.assertEqual(err.count("\n"), 1, err)
                self.assertRegex(err, message)

    def test_options(self):
        self.refused("^analysis: no option --mac\r?$", "--mac", str(DATA))
        self.refused("^usage: ", "--exact")

    def test_files(self):
        self.refused(r"^analysis: nowhere\.csv: .", "nowhere.csv")
        with tempfile.TemporaryDirectory() as folder:
            file = os.path.join(folder, "table.csv")
            for text, message in (
                    ("", "no column Ozone"),
                    ("Ozone,Solar.R,Wind,Temp\n1,2,3,4\n", "no column Month"),
                    (f"{HEADER}\n", "no rows"),
                    (f"{HEADER}\n1,2,3,4,5\n1,2,3,4\n", "line 3 has 4 cells, not 5"),
                    (f"{HEADER}\n1,2,3,4,5\n1,2,three,4,5\n", "line 3: three is not a number"),
                    (f"{HEADER}\n1,2,1e999,4,5\n", "line 2: 1e999 is not a number"),
                    (f"{HEADER}\n1,NA,3,4,5\n1,,3,4,5\n", "no eigenvalues: too few complete rows, or a column is constant")):
                Path(file).write_text(text, encoding="ascii")
                self.refused(f"^analysis: .*table\\.csv: {message}", file)


if __name__ == "__main__":
    COMMANDS = sys.argv[1:]
    outcome = unittest.TextTestRunner().run(unittest.defaultTestLoader.loadTestsFromTestCase(Analysis))
    sys.exit(0 if outcome.wasSuccessful() else 1)
