"""tools/check_names: which names it reports, and how it reads sources together."""

import json
import sys
import unittest
from unittest import mock

from source_tree import Tree, load

# In the place of clang-tidy. It writes down which sources it is given, reports functions named Bad..., and fails when two
# sources name a helper alike, as a compiler would.
STAND_IN = f"""#!{sys.executable}
import os, re, sys
together = next(word for word in sys.argv if word.endswith(".cpp"))
sources = re.findall('"(.+)"', open(together).read())
with open(os.path.join(os.path.dirname(__file__), "calls"), "a") as calls:
    print(*map(os.path.basename, sources), file=calls)
helpers = []
for source in sources:
    text = open(source).read()
    helpers += re.findall("helper\\w*", text)
    for name in re.findall("Bad\\w*", text):
        print(f"{{source}}:1:1: warning: invalid case style for function '{{name}}' [x]")
if len(set(helpers)) < len(helpers):
    sys.exit("a helper twice")
"""


class Names(Tree):
    def test_names_that_callers_know_are_left_alone(self):
        self.write("exports/core.txt", "V_Sum(matrix<double>*, int)\n")
        self.write("exports/flat.txt", "VB_V_Sum\n")
        self.write("include/korvelmathtools/containers/caller_records.h", "int CheckType;\n")
        script = load("check_names")
        known = script.known_names(self.root)
        kinds = {"V_Sum": "function", "VB_V_Sum": "function", "CheckType": "member", "MISSING_DBL": "variable",
                 "B2": "parameter", "T": "variable", "U": "member",
                 "sum_of": "function", "Count": "member", "Sums": "variable", "B": "function"}
        output = "".join(f"{self.root}/src/tables/a.h:3:5: warning: invalid case style for {kind} '{name}' [x]\n"
                         for name, kind in kinds.items())
        output += f"{self.root}/include/korvelmathtools/platform/automation.h:9:1: " \
                  "warning: invalid case style for struct 'VARIANT' [x]\n"
        self.assertEqual(
            list(script.broken_rules(self.root, output, known)),
            [f"src/tables/a.h:3: {kind} {name} is not named as docs/names.md says"
             for kind, name in (("function", "sum_of"), ("member", "Count"), ("variable", "Sums"), ("function", "B"))],
        )


class Groups(Tree):
    def setUp(self):
        super().setUp()
        for path in (".clang-tidy", "tools/check_names", "exports/core.txt", "exports/flat.txt",
                     "include/korvelmathtools/containers/caller_records.h"):
            self.write(path, "")
        self.write("clang-tidy", STAND_IN)
        (self.root / "clang-tidy").chmod(0o755)

    def sources(self, **texts):
        """Sources of tables/, all compiled with the same flags but for those with `wide` in their names."""
        for name, text in texts.items():
            self.write(f"src/tables/{name}.cpp", text)
        commands = [{"file": str(self.root / f"src/tables/{name}.cpp"),
                     "command": f"g++ {'-mavx2' if 'wide' in name else '-O2'} -o {name}.o -c {name}.cpp"} for name in texts]
        self.write("build/compile_commands.json", json.dumps(commands))

    def expect(self, lines, calls):
        """Checks the names, and expects these errors and these groups of sources, in any order."""
        self.write("calls", "")
        objects = {command["command"].split()[3]: [] for command in json.loads(self.read("build/compile_commands.json"))}
        with mock.patch.object(load("check_names"), "dependencies", lambda build: objects):
            code, errors = self.run_tool("check_names", "--clang-tidy", self.root / "clang-tidy", self.root / "build")
        self.assertEqual(errors, lines)
        self.assertEqual(code, 1 if lines else 0)
        self.assertEqual(sorted(self.read("calls").splitlines()), sorted(calls))

    def test_sources_with_the_same_flags_are_read_together(self):
        self.sources(a="", b="", wide="", c="")
        self.expect([], ["a.cpp b.cpp c.cpp", "wide.cpp"])

    def test_groups_that_cannot_be_read_together_are_read_in_halves(self):
        self.sources(a="helper", b="", c="helper", d="")
        self.expect([], ["a.cpp b.cpp c.cpp d.cpp", "a.cpp b.cpp", "c.cpp d.cpp"])

    def test_violations_are_reported_from_every_half(self):
        self.sources(a="helper BadA", b="helper", c="", d="BadD")
        self.expect([f"src/tables/{name}.cpp:1: function Bad{name.upper()} is not named as docs/names.md says"
                     for name in "ad"],
                    ["a.cpp b.cpp c.cpp d.cpp", "a.cpp b.cpp", "a.cpp", "b.cpp", "c.cpp d.cpp"])

    def test_source_that_cannot_be_read_alone(self):
        self.sources(a="helper helper", b="")
        self.expect(["src/tables/a.cpp: clang-tidy fails: a helper twice"], ["a.cpp b.cpp", "a.cpp", "b.cpp"])

    def test_only_what_has_not_passed_is_read_again(self):
        self.sources(a="", wide="Bad")
        wrong = ["src/tables/wide.cpp:1: function Bad is not named as docs/names.md says"]
        self.expect(wrong, ["a.cpp", "wide.cpp"])
        self.expect(wrong, ["wide.cpp"])


if __name__ == "__main__":
    unittest.main()
