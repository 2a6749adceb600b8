"""The Python package, as it is installed from its wheel."""

import threading
import unittest

import numpy

import korvelmathtools as kmt
from korvelmathtools import _declarations


class Declarations(unittest.TestCase):
    def test_every_function_is_found_and_described(self):
        self.assertGreater(len(_declarations.FUNCTIONS), 500)
        for name in _declarations.FUNCTIONS:
            function = getattr(kmt, name)
            self.assertTrue(function.__doc__.split("\n")[2], name)
            self.assertIn(name, kmt.__dir__())

    def test_the_library_is_the_one_in_the_package(self):
        self.assertTrue(kmt.LIBRARY_PATH.startswith(kmt.__path__[0]))
        major, minor, patch = map(int, kmt.__version__.split("."))
        self.assertEqual(kmt.KORVEL_Version(), 10000 * major + 100 * minor + patch)


class Numbers(unittest.TestCase):
    def test_counts_follow_from_arrays(self):
        self.assertEqual(kmt.VB_V_Sum([1.0, 2.0, 4.0], w=[1.0, 1.0, 0.5]), 5.0)
        self.assertEqual(kmt.VB_V_Sum([1, 2, 4], 2, None, [1, 1]), 3.0)

    def test_results_that_are_not_given_are_made(self):
        product = kmt.VB_M_ProductAB(a=[[1.0, 2.0], [3.0, 4.0], [5.0, 6.0]], b=[[0.0, 1.0], [1.0, 2.0]])
        self.assertEqual(product.result, 0)
        numpy.testing.assert_array_equal(product.c, [[2.0, 5.0], [4.0, 11.0], [6.0, 17.0]])
        self.assertTrue(product.c.flags.f_contiguous)
        extremes = kmt.VB_V_MinMax(x=[3.0, kmt.MISSING, -1.0], iMissing=[0, 0, 0])
        self.assertEqual((extremes.min, extremes.max), (-1.0, 3.0))

    def test_arrays_that_are_given_are_filled_and_used_in_place(self):
        table = numpy.array([[3.0, 30.0], [1.0, 10.0], [2.0, 20.0]], order="F")
        key = table[:, 0].copy()
        kmt.VB_SortQDbl(table, key=key, from_=1, to=3, auxCols=-1, bDesc=False, bSortKey=True)
        numpy.testing.assert_array_equal(table, [[1.0, 10.0], [2.0, 20.0], [3.0, 30.0]])
        numpy.testing.assert_array_equal(key, [1.0, 2.0, 3.0])

    def test_rows_of_numpy_are_rows_of_the_library(self):
        table = numpy.arange(12.0).reshape(3, 4)
        numpy.testing.assert_array_equal(kmt.VB_M_SumByCols(table).out, table.sum(axis=0))
        numpy.testing.assert_array_equal(kmt.VB_M_ProductTrAB(a=table, b=numpy.eye(3)).c, table.T)

    def test_flags_may_be_booleans(self):
        flags = numpy.array([False, True, False])
        self.assertEqual(kmt.VB_V_Sum([1.0, 2.0, 4.0], iMissing=flags, w=[1.0, 1.0, 1.0]), 5.0)

    def test_missing_cells(self):
        cells = kmt.from_nan([[1.0, numpy.nan], [numpy.nan, 4.0]])
        numpy.testing.assert_array_equal(kmt.is_missing(cells), [[False, True], [True, False]])
        self.assertEqual(kmt.VB_IsMissingValueDbl(cells[0, 1]), -1)
        numpy.testing.assert_array_equal(kmt.to_nan(cells), [[1.0, numpy.nan], [numpy.nan, 4.0]])
        numpy.testing.assert_array_equal(kmt.is_missing(numpy.array([1, kmt.MISSING_INT])), [False, True])

    def test_several_threads(self):
        draws = numpy.random.default_rng(1).normal(size=(200, 200))
        expected = kmt.VB_M_ProductAB(a=draws, b=draws).c
        found = [None] * 4

        def work(k):
            found[k] = kmt.VB_M_ProductAB(a=draws, b=draws).c

        threads = [threading.Thread(target=work, args=(k,)) for k in range(4)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        for product in found:
            self.assertEqual(product.tobytes(), expected.tobytes())


class TextArrays(unittest.TestCase):
    def test_a_list_is_changed(self):
        texts = ["pear", "apple", "\N{GREEK SMALL LETTER ALPHA}", ""]
        kmt.VB_V_SetToValueStr(texts, n=2, value="x")
        self.assertEqual(texts, ["x", "x", "\N{GREEK SMALL LETTER ALPHA}", ""])

    def test_texts_that_are_only_read(self):
        self.assertEqual(kmt.VB_V_IsConstantStr(["a", "a", "a"], bSkipMissing=False), -1)
        self.assertEqual(kmt.VB_V_IsConstantStr(numpy.array(["a", "b"]), bSkipMissing=False), 0)

    def test_what_is_no_text_is_refused(self):
        with self.assertRaisesRegex(TypeError, "VB_V_SetToValueStr: .*text.* is wanted, not int"):
            kmt.VB_V_SetToValueStr(["a", 3], n=2, value="x")


class Mistakes(unittest.TestCase):
    def refused(self, kind, message, function, *arguments, **named):
        with self.assertRaisesRegex(kind, message):
            function(*arguments, **named)

    def test_type(self):
        self.refused(TypeError, r"VB_V_Sum: x must be an array of float64", kmt.VB_V_Sum, ["a"])
        self.refused(TypeError, r"VB_V_Sum: n must be an integer, not str", kmt.VB_V_Sum, [1.0], n="1")
        self.refused(TypeError, r"VB_V_Sum: n must be an integer, not float", kmt.VB_V_Sum, [1.0], n=1.0)
        self.refused(ValueError, r"n is 2147483648, beyond", kmt.VB_V_Sum, [1.0], n=2**31)

    def test_arrays_that_are_changed(self):
        sort = kmt.VB_SortQDbl
        key = numpy.zeros(2)
        self.refused(TypeError, "x is changed: it must be a NumPy array of float64, not list", sort, [1.0, 2.0], key=key)
        self.refused(TypeError, "not float32", sort, numpy.zeros(2, numpy.float32), key=key)
        self.refused(TypeError, "writeable and in Fortran order", sort, numpy.zeros((2, 2)), key=key)

    def test_shape(self):
        self.refused(ValueError, "b has 2 by 2 cells, not 3 by 2", kmt.VB_M_ProductAB, a=numpy.zeros((2, 3)),
                     b=numpy.zeros((2, 2)))
        self.refused(ValueError, "x has 1 cells, not 2", kmt.VB_V_Sum, [1.0], n=2, w=[1.0, 1.0])
        self.refused(ValueError, "has 3 dimensions", kmt.VB_V_Sum, numpy.zeros((1, 1, 1)), n=1)
        self.refused(ValueError, "x cannot have -1 by 1 cells", kmt.VB_V_Sum, [1.0], n=-1, w=[1.0])

    def test_arguments(self):
        self.refused(TypeError, "VB_V_Sum: n is not given", kmt.VB_V_Sum)
        self.refused(TypeError, "VB_V_Sum: .*'y'", kmt.VB_V_Sum, [1.0], y=1)
        self.refused(TypeError, "VB_V_Sum: too many", kmt.VB_V_Sum, 1, 2, 3, 4, 5)
        with self.assertRaisesRegex(AttributeError, "korvelmathtools has no function VB_Nothing"):
            kmt.VB_Nothing  # pylint: disable=pointless-statement

    def test_addresses(self):
        self.refused(TypeError, "x is not given", kmt.Cpp_ReplaceMissingInContengencyByExp_ST, rows=2)
        self.refused(TypeError, "x must be an address of ctypes, not list",
                     kmt.Cpp_ReplaceMissingInContengencyByExp_ST, [[1.0]], rows=1)


if __name__ == "__main__":
    unittest.main()
