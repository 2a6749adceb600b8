"""The Python package: the calls, what they answer to mistakes, and threads."""

import ctypes
import sys
import threading
import unittest

import numpy

import korvelmathtools as kmt
from korvelmathtools import _declarations, _library


class Declarations(unittest.TestCase):
    def test_every_function_is_found_and_described(self):
        self.assertGreater(len(_declarations.FUNCTIONS), 500)
        for name in _declarations.FUNCTIONS:
            function = getattr(kmt, name)
            self.assertTrue(function.__doc__.split("\n")[2], name)
            self.assertIn(name, kmt.__dir__())

    def test_the_library_is_of_the_version_of_the_package(self):
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

    def test_masked_cells(self):
        masked = numpy.ma.array([[1.0, 2.0], [numpy.nan, 4.0]], mask=[[False, True], [False, False]])
        numpy.testing.assert_array_equal(kmt.from_nan(masked), [[1.0, kmt.MISSING], [kmt.MISSING, 4.0]])

    def test_missing_texts(self):
        numpy.testing.assert_array_equal(kmt.is_missing(["a", ""]), [False, True])
        numpy.testing.assert_array_equal(kmt.is_missing(numpy.array(["", None], dtype=object)), [True, False])

    def test_any_layout_of_what_is_only_read(self):
        """A copy is made where the memory is not as the library takes it; read-only memory is as good as any other."""
        table = numpy.arange(24.0).reshape(4, 6)
        sums = table[::2, ::3].sum(axis=0)
        frozen = table[::2, ::3].copy()
        frozen.setflags(write=False)
        for layout in (table[::2, ::3], table[::2, ::3].astype(">f8"), table[::2, ::3].astype(numpy.float32),
                       table[::2, ::3].astype(numpy.int64), frozen, table[::2, ::3].tolist()):
            numpy.testing.assert_array_equal(kmt.VB_M_SumByCols(layout).out, sums)

    def test_a_result_array_named_result(self):
        table = numpy.array([[1.0, 10.0], [2.0, 20.0]])
        removed = kmt.VB_RemoveRowsWithMissing(table, removed=1, flags=[True, False])
        self.assertEqual(removed.result, 0)
        numpy.testing.assert_array_equal(removed.result_, [[2.0, 20.0]])


class Threads(unittest.TestCase):
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


    def test_the_lock_of_the_interpreter_is_released(self):
        """While one thread is inside a call, another one counts and makes calls of its own. No thread gives up the lock
        because of its time here, so the other one runs only when the call has released it."""
        kept = sys.getswitchinterval()
        sys.setswitchinterval(1000.0)
        try:
            # A longer call each time, until the other thread was woken in time.
            self.assertTrue(any(self.counted_during_a_call(order) for order in (100, 400, 800, 1600)))
        finally:
            sys.setswitchinterval(kept)

    def counted_during_a_call(self, order):
        """How far a thread counts while another one decomposes a table."""
        table = numpy.eye(order) + numpy.ones((order, order))
        values, vectors = numpy.zeros(order), numpy.zeros((order, order))
        addresses = [ctypes.c_void_p(array.ctypes.data) for array in (table, values, vectors)]
        decompose = _library.load().VB_M_Eigen
        begins, answers = threading.Event(), []

        def work():
            # Nothing but the call gives up the lock here.
            begins.set()
            answers.append(decompose(*addresses, order, -1))

        thread = threading.Thread(target=work)
        thread.start()
        begins.wait()
        count = 0
        while not answers and count < 1000:
            self.assertEqual(kmt.VB_V_Sum([1.0, 2.0], w=[1.0, 1.0]), 3.0)
            count += not answers
        thread.join()
        self.assertEqual(answers, [0])
        self.assertAlmostEqual(values[0], order + 1, delta=1e-9 * order)
        return count


class TextArrays(unittest.TestCase):
    def test_half_a_surrogate_pair(self):
        """Visual Basic may cut a text anywhere."""
        texts = ["", ""]
        kmt.VB_V_SetToValueStr(texts, n=1, value="a\ud83d")
        self.assertEqual(texts, ["a\ud83d", ""])

    def test_an_array_of_objects_is_changed(self):
        texts = numpy.array([["a", "b"], ["c", "d"]], dtype=object)
        kmt.VB_V_SetToValueStr(texts, n=3, value="x")
        self.assertEqual(texts.tolist(), [["x", "x"], ["x", "d"]])

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
        self.refused(TypeError, r"VB_V_Sum: n must be an integer, not bool", kmt.VB_V_Sum, [1.0], n=True)
        self.refused(ValueError, r"n is 2147483648, beyond", kmt.VB_V_Sum, [1.0], n=2**31)
        for value, kind in (("0.5", "str"), (b"1", "bytes"), (numpy.zeros(2), "ndarray"), (1j, "complex")):
            self.refused(TypeError, f"VB_V_QuantileM: q must be a number, not {kind}", kmt.VB_V_QuantileM, [1.0, 2.0],
                         iMissing=[0, 0], q=value)

    def test_arrays_of_another_kind(self):
        for cells in (numpy.array([1j, 2.0]), [1.0, None], {}, "ab", numpy.array(["2020-01-01"], dtype="M8[D]")):
            self.refused(TypeError, "VB_V_Sum: x must be an array of float64: cannot hold", kmt.VB_V_Sum, cells, w=[1.0])
        self.refused(TypeError, "VB_M_SumByCols: x must be an array of float64: setting an array element",
                     kmt.VB_M_SumByCols, [[1.0], [1.0, 2.0]])
        self.refused(TypeError, "VB_V_Sum: x is a masked array: from_nan", kmt.VB_V_Sum, numpy.ma.array([1.0]), w=[1.0])
        self.refused(TypeError, "iMissing must be an array of int16: cannot hold float64", kmt.VB_V_Sum, [1.0],
                     iMissing=[0.5], w=[1.0])
        self.refused(ValueError, "iMissing has numbers beyond int16", kmt.VB_V_Sum, [1.0], iMissing=[70000], w=[1.0])

    def test_texts(self):
        change = kmt.VB_V_SetToValueStr
        frozen = numpy.array(["a"], dtype=object)
        frozen.setflags(write=False)
        for texts in (("a",), numpy.array(["a"]), frozen):
            self.refused(TypeError, "x is changed: it must be a list, or a writeable NumPy array of object", change, texts,
                         n=1, value="x")
        self.refused(TypeError, "x must be an array of texts, not str", change, "a", n=1, value="x")
        self.refused(TypeError, "value must be a text, not int", change, ["a"], n=1, value=3)
        for wrong, kind in ((b"a", "bytes"), (None, "NoneType"), (["a"], "list")):
            self.refused(TypeError, f"a text is wanted, not {kind}", kmt.VB_V_IsConstantStr, ["a", wrong],
                         bSkipMissing=False)
        self.refused(ValueError, "has 3 dimensions", change, [[["a"]]], n=1, value="x")
        self.refused(ValueError, "label must be of 8-bit characters", kmt.dprint, 1.0, "\N{GREEK SMALL LETTER ALPHA}")

    def test_missing_helpers(self):
        self.refused(ValueError, "could not convert string", kmt.from_nan, ["a"])
        for convert in (kmt.from_nan, kmt.to_nan):
            self.refused(TypeError, "not a complex one", convert, numpy.array([1j]))
            self.refused(ValueError, "inhomogeneous", convert, [[1.0], [1.0, 2.0]])

    def test_arrays_that_are_changed(self):
        sort = kmt.VB_SortQDbl
        key = numpy.zeros(2)
        self.refused(TypeError, "x is changed: it must be a NumPy array of float64, not list", sort, [1.0, 2.0], key=key)
        self.refused(TypeError, "not float32", sort, numpy.zeros(2, numpy.float32), key=key)
        self.refused(TypeError, "not >f8", sort, numpy.zeros(2, ">f8"), key=key)
        self.refused(TypeError, "is a masked array", sort, numpy.ma.zeros(2), key=key)
        frozen = numpy.zeros(2)
        frozen.setflags(write=False)
        for cells in (numpy.zeros((2, 2)), numpy.zeros(4)[::2], frozen):
            self.refused(TypeError, "writeable and in Fortran order", sort, cells, key=key)
        self.refused(TypeError, "seed is changed: it must be a NumPy array of int32, not int", kmt.Cpp_Random01, seed=5)

    def test_shape(self):
        self.refused(ValueError, "b has 2 by 2 cells, not 3 by 2", kmt.VB_M_ProductAB, a=numpy.zeros((2, 3)),
                     b=numpy.zeros((2, 2)))
        self.refused(ValueError, "x has 1 cells, not 2", kmt.VB_V_Sum, [1.0], n=2, w=[1.0, 1.0])
        self.refused(ValueError, "c has 2 by 3 cells, not 2 by 2", kmt.VB_M_ProductAB, a=numpy.eye(2), b=numpy.eye(2),
                     c=numpy.zeros((2, 3), order="F"))
        self.refused(ValueError, "x has 2 by 3 cells, not 3 by 2", kmt.VB_M_SumByCols, numpy.ones((2, 3)), rows=3, cols=2)
        self.refused(ValueError, "has 3 dimensions", kmt.VB_M_LogMatrix, numpy.ones((2, 2, 2), order="F"))
        self.refused(ValueError, "has 3 dimensions", kmt.VB_V_Sum, numpy.zeros((1, 1, 1)), n=1)
        self.refused(ValueError, "x cannot have -1 by 1 cells", kmt.VB_V_Sum, [1.0], n=-1, w=[1.0])

    def test_arguments(self):
        self.refused(TypeError, "VB_V_Sum: n is not given", kmt.VB_V_Sum)
        self.refused(TypeError, "VB_V_Sum: .*'y'", kmt.VB_V_Sum, [1.0], y=1)
        self.refused(TypeError, "VB_SortQDbl: from_ is not given", kmt.VB_SortQDbl, numpy.zeros(2), key=numpy.zeros(2))
        self.refused(TypeError, "VB_V_Sum: too many", kmt.VB_V_Sum, 1, 2, 3, 4, 5)
        with self.assertRaisesRegex(AttributeError, "korvelmathtools has no function VB_Nothing"):
            kmt.VB_Nothing  # pylint: disable=pointless-statement

    def test_addresses(self):
        self.refused(TypeError, "x is not given", kmt.Cpp_ReplaceMissingInContengencyByExp_ST, rows=2)
        self.refused(TypeError, "x must be an address of ctypes, not list",
                     kmt.Cpp_ReplaceMissingInContengencyByExp_ST, [[1.0]], rows=1)


if __name__ == "__main__":
    unittest.main()
