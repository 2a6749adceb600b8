"""tools/generate: the Calc add-in, made of a table and of the headers, and each kind of mistake in that table."""

import ast
import sys
import types
import unittest

from source_tree import TOOLS, Tree

HELPERS = "bindings/calc/extension/pythonpath/korvelcalc/cells.py"
MADE = "bindings/calc/extension/"

FUNCTIONS = """\
/**
 * Mean of a vector. Adds upwards.
 *
 * @param x [in] n numbers
 * @param n their number
 * @param w [in] n weights
 * @param q what is added
 * @param bTrim true only when -1
 * @return the mean
 */
KORVEL_FLAT double VB_Mean(const double* x, int n, const double* w, double q, short int bTrim);

/**
 * Solves.
 *
 * @param a [inout] n by n numbers
 * @param n their number
 * @param middle [out] one number: the middle
 * @param result [out] n numbers
 * @param seed [inout] one integer: the seed
 * @return 0; -1: singular
 */
KORVEL_FLAT int VB_Solve(double* a, int n, double* middle, double* result, int* seed);

"""

SPECIAL = """\
/**
 * Does it.
 *
 * @param x,y where
 * @return it
 */
KORVEL_API double special(double x, double y);
"""

TABLE = """\
# A comment.

[Summaries]

MEAN(x: vector, q: number[0, 1], weights: weights = 1, trim: flag = false)
    VB_Mean(x=x, w=weights, q=q, bTrim=trim)
    -> result
SOLVED(a: square[10], start: integer[1, 9] = 3)
    says: What solves <it>.
    VB_Solve(a=a, seed=one(start))
    fails if result < 0: the table is singular
    -> beside(column(result_), a)
MIDDLE(a: square)
    found = VB_Solve(a=a, seed=one(1))
    VB_Mean(x=a, w=ones(rows(a)), q=found.middle, bTrim=true)
    -> result

[Special]

SPECIAL(x: number)
    special(x=x, y=-1)
    -> result
"""


class AddIn(Tree):
    def setUp(self):
        super().setUp()
        self.functions(FUNCTIONS)
        self.write(HELPERS, (TOOLS.parent / HELPERS).read_text(encoding="ascii"))
        self.write("include/korvelmathtools/special/special.h", SPECIAL)
        self.write("bindings/calc/functions.txt", TABLE)

    def make(self):
        self.assertEqual(self.run_tool("generate"), (0, []))

    def test_interface(self):
        self.make()
        idl = self.read("bindings/calc/korvel.idl")
        self.assertIn("any mean([in] sequence< sequence< any > > x, [in] double q, [in] any weights, [in] any trim)", idl)
        self.assertIn("sequence< sequence< any > > solved([in] sequence< sequence< any > > a, [in] any start)", idl)

    def test_what_the_wizard_shows(self):
        self.make()
        shown = self.read(MADE + "CalcAddIn.xcu")
        self.assertIn(">Mean of a vector. Err:502: an argument does not fit.", shown)
        self.assertIn(">What solves &lt;it&gt;. An array formula. Err:502: an argument does not fit. #N/A: a result is missing. "
                      "#NUM!: the table is singular; the result is no finite number.", shown)
        self.assertIn(">A number. What is added. From 0 to 1.<", shown)
        self.assertIn(">A whole number. From 1 to 9. 3 when it is left out.<", shown)
        self.assertIn(">TRUE or FALSE. FALSE when it is left out.<", shown)
        self.assertIn(">A number. Where.<", shown)
        self.assertIn("At most 10 rows.", shown)

    def module(self, **routines):
        """The made functions over routines that tell how they were called."""
        source = self.read(MADE + "pythonpath/korvelcalc/worksheet.py")
        tree = ast.parse(source)
        tree.body = [node for node in tree.body if not isinstance(node, (ast.Import, ast.ImportFrom))]
        cells = types.SimpleNamespace(
            vector=lambda v: v, number=lambda *v, left_out=None: v, flag=lambda v, left_out: v, weights=lambda v, x: v,
            call=lambda function, **named: function(named), call_core=lambda *all_: types.SimpleNamespace(result=all_))
        names = {"kmt": types.SimpleNamespace(**routines), "cells": cells}
        exec(compile(tree, "worksheet", "exec"), names)
        return types.SimpleNamespace(**names)

    def test_calls(self):
        self.make()
        module = self.module(VB_Mean=lambda named: types.SimpleNamespace(result=named))
        self.assertEqual(module.FUNCTIONS, {"MEAN": False, "SOLVED": True, "MIDDLE": False, "SPECIAL": False})
        self.assertEqual(module.MEAN("x", 0.5, None, True), {"x": "x", "w": None, "q": (0.5, 0, 1), "bTrim": True})
        self.assertEqual(module.SPECIAL(4.0), ("_Z7specialdd", (4.0,), -1))
        source = self.read(MADE + "pythonpath/korvelcalc/worksheet.py")
        self.assertIn("cells.fail_if(done.result < 0, 'the table is singular')", source)
        # The written array is called result too.
        self.assertIn("return cells.beside(cells.column(done[2]), a)", source)
        self.assertIn("q=found.middle", source)
        self.assertIn("its_seed = cells.one(start)", source)

    def test_a_table_that_was_changed_is_found(self):
        self.make()
        self.assertEqual(self.run_tool("generate", "--check"), (0, []))
        self.write("bindings/calc/functions.txt", TABLE.replace("q=q", "q=0.5"))
        self.assertEqual(self.run_tool("generate", "--check"),
                         (1, [f"{MADE}pythonpath/korvelcalc/worksheet.py: differs from what the headers say; run tools/generate",
                              f"{MADE}CalcAddIn.xcu: differs from what the headers say; run tools/generate"][::-1]))
        self.make()
        self.functions(FUNCTIONS.replace("Mean of a vector", "The mean"))
        code, errors = self.run_tool("generate", "--check")
        self.assertEqual(code, 1)
        self.assertIn(f"{MADE}CalcAddIn.xcu: differs from what the headers say; run tools/generate", errors)

    def test_mistakes(self):
        for old, new, line, message in (
                ("VB_Mean(x=x", "VB_Median(x=x", 6,
                 "'VB_Median' is no function that is known here, or its arguments have no names"),
                ("VB_Mean(x=x", "VB_Mean(x", 6, "'VB_Mean' is no function that is known here, or its arguments have no names"),
                ("q=q, bTrim", "p=q, bTrim", 6, "VB_Mean has no parameter p"),
                ("w=weights, ", "", 6, "VB_Mean: w is not given"),
                ("q=q, bTrim", "q=quantile, bTrim", 6, "'quantile' has no meaning here"),
                ("one(start)", "two(start)", 10, "'two(start)' has no meaning here"),
                ("x: vector,", "x: vectors,", 5, "argument x has no kind that is known here"),
                ("number[0, 1]", "number[1]", 5, "argument q has no kind that is known here"),
                ("SOLVED(", "MEAN(", 8, "MEAN is there already"),
                ("trim: flag = false)", "trim: flag = false", 5,
                 "cannot read 'MEAN(x: vector, q: number[0, 1], weights: weights = 1, trim: flag = false'"),
                ("    -> result\nSOLVED", "SOLVED", 7, "MEAN has no answer"),
                ("    -> result\nSOLVED", "    -> results\nSOLVED", 7, "'results' has no meaning here"),
                ("found.middle", "found.centre", 15, "'found.centre' has no meaning here"),
                ("    fails if", "    -> result\n    fails if", 12, "a step that belongs to no function"),
        ):
            with self.subTest(message):
                self.assertEqual(TABLE.count(old), 1)
                self.write("bindings/calc/functions.txt", TABLE.replace(old, new))
                self.assertEqual(self.run_tool("generate"), (1, [f"bindings/calc/functions.txt:{line}: {message}"]))
                self.assertFalse((self.root / MADE / "CalcAddIn.xcu").exists())

    def test_without_a_table_nothing_is_made(self):
        (self.root / "bindings/calc/functions.txt").unlink()
        self.make()
        self.assertFalse((self.root / "docs/worksheet.md").exists())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
