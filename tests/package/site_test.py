#!/usr/bin/env python3
"""Makes the documentation site, looks whether all of it is there, and that nothing is left of one that cannot be made.

    site_test.py FOLDER    a folder for all of it, which is emptied first
"""

import os
import re
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def docs(*options, **more):
    return subprocess.run([ROOT / "run", "docs", *map(str, options)], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                          encoding="utf-8", check=False, **more)


class Site(unittest.TestCase):
    """Made once for all tests."""

    @classmethod
    def setUpClass(cls):
        shutil.rmtree(SCRATCH, ignore_errors=True)
        SCRATCH.mkdir(parents=True)
        cls.site = SCRATCH / "site"
        done = docs("--to", cls.site)
        if done.returncode != 0:
            raise AssertionError(done.stdout + done.stderr)

    def text(self, name):
        return (self.site / name).read_text(encoding="utf-8")

    def test_opens_from_files_without_a_network(self):
        for path in self.site.rglob("*"):
            if path.suffix in (".html", ".js", ".css"):
                text = path.read_text(encoding="utf-8")
                loaded = re.findall(r'<(?:script|img|iframe)[^>]*src="(?:https?:)?//[^"]*"|<link[^>]*href="(?:https?:)?//[^"]*"'
                                    r'|url\(["\']?(?:https?:)?//|XMLHttpRequest\(', text)
                # The script library carries the call that it would use to load pages; no page asks it to.
                self.assertEqual([] if path.name == "jquery.js" else loaded, [], path.name)

    def test_each_function_is_found(self):
        """By the search, and by its letter without the prefix."""
        found = "".join(path.read_text(encoding="utf-8") for path in (self.site / "search").glob("*.js"))
        letters = self.text("page_letters.html")
        for name in (ROOT / "exports" / "flat.txt").read_text(encoding="ascii").split():
            self.assertIn(f"['{name}',", found, name)
            self.assertIn(f">{name}</a>", letters, name)
        m, n = (re.search(rf"</a>\s*{letter}</h1>", letters).start() for letter in "MN")
        self.assertIn(">VB_V_Mean2</a>", letters[m:n])

    def test_a_function_shows_what_its_header_says(self):
        """A doc that is taken over from another function, but for one word."""
        page = re.sub(r"<[^>]*>|&#160;", " ", self.text("frames_2ordering_2sort__table_8h.html"))
        told = re.sub(r"\s+", " ", page.partition(" VB_SortQLng() ")[2])
        self.assertRegex(told[:1500], r"Parameters \[in,out\] x \(Not null\) rows by cols integers")

    def test_bad_options(self):
        kept = sorted(path.name for path in self.site.iterdir())
        something = SCRATCH / "something"
        something.mkdir()
        (something / "else").touch()
        for options, told in ((["--pdf"], "no option '--pdf'"), (["--to"], "--to needs a folder"),
                              (["--to", __file__], "is not a folder"),
                              (["--to", something], "holds something else")):
            done = docs(*options)
            self.assertEqual((done.returncode, done.stdout), (2, ""), options)
            self.assertEqual(done.stderr.count("\n"), 1, done.stderr)
            self.assertIn(told, done.stderr)
        self.assertEqual(sorted(path.name for path in self.site.iterdir()), kept)
        self.assertEqual([file.name for file in something.iterdir()], ["else"])

    def test_a_missing_tool(self):
        """On a machine where nothing can be installed."""
        programs = SCRATCH / "programs"
        programs.mkdir()
        for name in ("bash", "env", "dirname", "readlink", "python3"):
            (programs / name).symlink_to(shutil.which(name))
        done = docs("--to", SCRATCH / "none", env=dict(os.environ, PATH=str(programs)))
        self.assertEqual((done.returncode, done.stdout), (2, ""))
        self.assertEqual(done.stderr.count("\n"), 1, done.stderr)
        self.assertIn("doxygen", done.stderr)
        self.assertFalse((SCRATCH / "none").exists())

    def test_what_is_not_documented_stops_it(self):
        """A tree that claims one more export; the site that was there stays."""
        tree = SCRATCH / "tree"
        for name in ("include", "exports", "docs"):
            shutil.copytree(ROOT / name, tree / name)
        shutil.copy(ROOT / "VERSION", tree)
        with open(tree / "exports" / "flat.txt", "a", encoding="ascii") as names:
            names.write("VB_V_NotThere\n")
        with open(tree / "exports" / "core.txt", "a", encoding="ascii") as names:
            names.write("V_Mean2(matrix<text>*, int)\n")
        there = tree / "build" / "site"
        there.mkdir(parents=True)
        (there / "doxygen.css").write_text("old", encoding="ascii")
        done = docs("--root", tree)
        self.assertEqual((done.returncode, done.stdout), (1, ""))
        self.assertEqual(done.stderr.splitlines(), ["VB_V_NotThere: not documented",
                                                    "V_Mean2(matrix<text>*, int): not documented"])
        self.assertEqual([path.name for path in (tree / "build").iterdir()], ["site"])
        self.assertEqual((there / "doxygen.css").read_text(encoding="ascii"), "old")


if __name__ == "__main__":
    SCRATCH = Path(sys.argv[1]).resolve()
    outcome = unittest.TextTestRunner().run(unittest.defaultTestLoader.loadTestsFromTestCase(Site))
    sys.exit(0 if outcome.wasSuccessful() else 1)
