"""The scripts in tools/: what they make of good headers, and that each kind of mistake stops them."""

import functools
import importlib.machinery
import importlib.util
import io
import os
import shutil
import subprocess
import sys
import tempfile
import textwrap
import unittest
from contextlib import redirect_stderr, redirect_stdout
from pathlib import Path
from unittest import mock

TOOLS = Path(__file__).resolve().parent.parent.parent / "tools"
sys.path.insert(0, str(TOOLS))
COMPILER = os.environ.get("KORVEL_CXX", "g++")

UMBRELLA = """\
/**
 * @file
 * All of them.
 */
#ifndef KORVELMATHTOOLS_H
#define KORVELMATHTOOLS_H

#include "frames/sample.h"

#endif
"""

COMMON = """\
/**
 * @file
 * What is common to all.
 */
#ifndef KORVEL_FRAMES_TYPES_H
#define KORVEL_FRAMES_TYPES_H
#endif
"""

OPENING = """\
/**
 * @file
 * Flat functions: samples.
 */
#ifndef KORVEL_FRAMES_SAMPLE_H
#define KORVEL_FRAMES_SAMPLE_H

#include "frames/types.h"

"""
FIRST_LINE = OPENING.count("\n") + 1

SUM = """\
/**
 * Sums a vector, e.g. of weights. Adds upwards.
 *
 * @param x [in] n numbers
 * @param n their number
 * @param flags [in] n flags;
 *              Null: none is set
 * @return the sum
 */
KORVEL_FLAT double VB_Sum(const double* x, int n,
                          const short int* flags);

"""


@functools.cache
def load(name):
    """A script of tools/ as a module."""
    loader = importlib.machinery.SourceFileLoader(name, str(TOOLS / name))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(name, loader))
    loader.exec_module(module)
    return module


class Tree(unittest.TestCase):
    """A test with a source tree of its own."""

    def setUp(self):
        self.root = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.root)
        self.write("include/korvelmathtools/KORVELMathTools.h", UMBRELLA)
        self.write("include/korvelmathtools/frames/types.h", COMMON)
        self.write("VERSION", "1.20.3\n")

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8", newline="\n")

    def read(self, name):
        return (self.root / name).read_bytes().decode("ascii")

    def functions(self, text):
        self.write("include/korvelmathtools/frames/sample.h", OPENING + text + "#endif\n")

    def run_tool(self, name, *arguments):
        """(exit code, lines on the error stream)"""
        script = load(name)
        errors = io.StringIO()
        command = [name, "--root", str(self.root), *map(str, arguments)]
        with mock.patch("sys.argv", command), redirect_stderr(errors), redirect_stdout(io.StringIO()):
            code = script.main()
        return code, errors.getvalue().splitlines()


class MadeFiles(Tree):
    def make(self):
        self.assertEqual(self.run_tool("generate"), (0, []))

    def declarations(self):
        """The Visual Basic module from its first section on, with its lines' ends taken off."""
        module = self.read("bindings/vba/KORVELMathTools.bas")
        self.assertEqual(module.count("\n"), module.count("\r\n"))
        lines = module.split("\r\n")
        return lines[lines.index("' ---- sample.h") + 2 : -1]

    def test_lists_are_sorted_by_byte(self):
        names = ("zeta", "Beta", "VB_A", "alpha")
        self.functions("".join(f"/** Does it. */\nKORVEL_FLAT void {name}(void);\n" for name in names))
        self.make()
        self.assertEqual(self.read("exports/flat.txt"), "Beta\nVB_A\nalpha\nzeta\n")
        self.assertEqual(
            self.read("bindings/KORVELMathTools.def"),
            "LIBRARY KORVELMathTools\nEXPORTS\n    Beta\n    VB_A\n    alpha\n    zeta\n",
        )

    def test_declares_arrays_and_scalars(self):
        self.functions(SUM)
        self.make()
        self.assertEqual(
            self.declarations(),
            [
                "' Sums a vector, e.g. of weights. flags (Integer) may be null.",
                'Public Declare PtrSafe Function VB_Sum Lib "KORVELMathTools.dll" ( _',
                "    ByRef x As Double, ByVal n As Long, ByRef flags As Any) As Double",
            ],
        )

    def test_knows_what_may_be_null(self):
        for text in ("n flags. Null: none is", "n flags; may be null", "n flags; null: none is"):
            self.functions(SUM.replace("n flags;\n *              Null: none is set", text))
            self.make()
            self.assertIn("flags (Integer) may be null", self.declarations()[0])
            self.assertIn("`flags` [in, may be null]", self.read("docs/reference.md"))
        self.functions(SUM.replace("n flags;\n *              Null: none is set", "n flags; not null unless n is 0"))
        self.make()
        self.assertNotIn("may be null", self.declarations()[0])
        self.assertIn("`flags` [in, not null]", self.read("docs/reference.md"))

    def test_declares_every_type(self):
        self.functions(
            """\
/**
 * Takes all.
 *
 * @param a -1: yes
 * @param b [in] one integer
 * @param c [out] one flag
 * @param d [inout] 2 by 3 texts
 * @param e [in] one text
 * @param f [in] host array of Double
 * @param g [in] host array of Boolean
 * @param h [inout] host array of String
 * @param i [in] chunks
 * @param j [in] record
 * @param k [in] record
 * @param l [in] record
 * @param m [in] one cell
 * @param n [in] label
 */
KORVEL_FLAT void VB_All(short int a, const int* b, short int* c, OLECHAR** d, const OLECHAR* e, SAFEARRAY** f,
                        SAFEARRAY** g, SAFEARRAY** h, Hostarray** i, ST_Vect* j, ST_MVect* k, ST_QualiInfo* l,
                        const VARIANT* m,
                        const char* n);
"""
        )
        self.make()
        self.assertEqual(
            " ".join(line.strip(" _") for line in self.declarations()[1:]),
            'Public Declare PtrSafe Sub VB_All Lib "KORVELMathTools.dll" ( ByVal a As Integer, ByRef b As Long, '
            "ByRef c As Integer, ByVal d As LongPtr, ByVal e As LongPtr, ByRef f() As Double, ByRef g() As Boolean, "
            "ByVal h As LongPtr, ByVal i As LongPtr, ByVal j As LongPtr, ByVal k As LongPtr, ByVal l As LongPtr, "
            "ByRef m As Variant, ByVal n As String)",
        )

    def test_renames_what_visual_basic_cannot_say(self):
        self.functions(
            """\
/**
 * Names.
 *
 * @param next a word of the language
 * @param k a name
 * @param K the same name, cases being the same
 * @return a block
 */
KORVEL_FLAT OLECHAR** Open(int next, int k, int K);
/** The same name, cases being the same. */
KORVEL_FLAT void openValue(void);
"""
        )
        self.make()
        self.assertEqual(
            self.declarations(),
            [
                "' Names.",
                'Public Declare PtrSafe Function OpenValue Lib "KORVELMathTools.dll" Alias "Open" ( _',
                "    ByVal nextValue As Long, ByVal k As Long, ByVal K2 As Long) As LongPtr",
                "",
                "' The same name, cases being the same.",
                'Public Declare PtrSafe Sub openValue2 Lib "KORVELMathTools.dll" Alias "openValue" ()',
            ],
        )

    def many_parameters(self, count):
        names = [f"parameter_with_a_long_name_{k}" for k in range(count)]
        described = "".join(f" * @param {name} a number\n" for name in names)
        declared = ",\n    ".join(f"int {name}" for name in names)
        self.functions(f"/**\n * Many.\n *\n{described} */\nKORVEL_FLAT void VB_Many({declared});\n")

    def test_keeps_to_the_limits_of_visual_basic(self):
        self.many_parameters(40)
        self.make()
        lines = self.declarations()[1:]
        self.assertLessEqual(len(lines), 25)
        self.assertTrue(all(line.endswith(" _") for line in lines[:-1]))
        self.assertLessEqual(max(map(len, lines)), 1023)

    def test_says_what_visual_basic_cannot_declare(self):
        self.many_parameters(61)
        code, errors = self.run_tool("generate")
        self.assertEqual(code, 1)
        self.assertIn("VB_Many: more than 60 parameters", errors[0])

    def test_reference_page(self):
        self.functions(SUM.replace("Adds upwards.", "Adds x[0] * `x[1]`.\n *\n * Rounds:\n * - up\n * - down"))
        self.make()
        page = self.read("docs/reference.md")
        self.assertIn("\nWhat is common to all.\n", page)
        self.assertIn("\n- [sample.h](#sampleh): Flat functions: samples.\n", page)
        self.assertTrue(
            page.endswith(
                textwrap.dedent(
                    """\
                    ## sample.h

                    Flat functions: samples.

                    ### VB_Sum

                    ```c
                    double VB_Sum(const double* x, int n, const short int* flags);
                    ```

                    Sums a vector, e.g. of weights. Adds x\\[0\\] \\* `x[1]`.

                    Rounds:

                    - up
                    - down

                    - `x` [in, not null]: n numbers
                    - `n`: their number
                    - `flags` [in, may be null]: n flags; Null: none is set
                    - Result: the sum
                    """
                )
            ),
            page,
        )

    LIKE = """\
/**
 * Sums integers.
 *
 * @like VB_Sum, integers for numbers
 * @param n length of x
 */
KORVEL_FLAT double VB_SumLng(const int* x, int n, const short int* flags);

"""

    def test_takes_over_what_another_function_says(self):
        self.functions(SUM + self.LIKE)
        self.make()
        page = self.read("docs/reference.md")
        self.assertTrue(
            page.endswith(
                textwrap.dedent(
                    """\
                    Sums integers.

                    - `x` [in, not null]: n integers
                    - `n`: length of x
                    - `flags` [in, may be null]: n flags; Null: none is set
                    - Result: the sum
                    """
                )
            ),
            page,
        )

    def test_check_names_each_file_that_differs(self):
        self.functions(SUM)
        self.assertEqual(self.run_tool("generate", "--check")[0], 1)
        self.make()
        self.assertEqual(self.run_tool("generate", "--check"), (0, []))
        self.functions(SUM.replace("VB_Sum", "VB_Total"))
        code, errors = self.run_tool("generate", "--check")
        self.assertEqual(code, 1)
        self.assertEqual(
            errors,
            [
                f"{name}: differs from what the headers say; run tools/generate"
                for name in (
                    "exports/flat.txt",
                    "bindings/KORVELMathTools.def",
                    "bindings/vba/KORVELMathTools.bas",
                    "docs/reference.md",
                )
            ],
        )
        self.assertEqual(self.read("exports/flat.txt"), "VB_Sum\n")

    def test_version_header(self):
        self.functions(SUM)
        self.make()
        header = self.read("include/korvelmathtools/platform/version.h").splitlines()
        self.assertEqual(
            [line for line in header if line.startswith("#define KORVEL_VERSION")],
            [
                '#define KORVEL_VERSION "1.20.3"',
                "#define KORVEL_VERSION_MAJOR 1",
                "#define KORVEL_VERSION_MINOR 20",
                "#define KORVEL_VERSION_PATCH 3",
                "#define KORVEL_VERSION_NUMBER 12003",
            ],
        )

    def test_puts_the_core_list_in_order(self):
        self.functions(SUM)
        self.write("exports/core.txt", "b()\na()\nb()\n")
        self.make()
        self.assertEqual(self.read("exports/core.txt"), "a()\nb()\n")


class BrokenHeaders(Tree):
    def expect(self, line, message, name="include/korvelmathtools/frames/sample.h"):
        """`line` counts from the first line behind the opening of the header."""
        code, errors = self.run_tool("generate")
        self.assertEqual(code, 1)
        number = line + FIRST_LINE - 1 if name.endswith("sample.h") else line
        self.assertEqual(errors, [f"{name}:{number}: {message}"])
        self.assertFalse((self.root / "exports").exists())

    def broken(self, old, new, line, message):
        self.assertEqual(SUM.count(old), 1)
        self.functions(SUM.replace(old, new))
        self.expect(line, message)

    def test_unknown_parameter_type(self):
        self.broken("int n,", "long n,", 10, "VB_Sum: unknown type 'long' of parameter n")

    def test_array_that_is_only_read(self):
        self.broken("const double* x", "double* x", 4, "VB_Sum: @param x is only read: declare it const double*")

    def test_const_array_that_is_written(self):
        self.broken("x [in]", "x [out]", 4, "VB_Sum: @param x is written, but declared const double*")
        self.broken("x [in]", "x [inout]", 4, "VB_Sum: @param x is written, but declared const double*")

    def test_unknown_result_type(self):
        self.broken("FLAT double", "FLAT float", 10, "VB_Sum: unknown result type 'float'")

    def test_no_result_type(self):
        self.broken("FLAT double VB", "FLAT VB", 10, "VB_Sum: unknown result type ''")

    def test_parameter_without_name(self):
        self.broken("int n,", "int,", 10, "VB_Sum: cannot read the parameter 'int'")

    def test_array_brackets(self):
        self.broken("const double* x", "double x[]", 10, "VB_Sum: cannot read the parameter 'double x[]'")

    def test_empty_parameter_list(self):
        self.functions("/** Does it. */\nKORVEL_FLAT void VB_A();\n")
        self.expect(2, "VB_A: an empty parameter list is written (void)")

    def test_prototype_that_does_not_end(self):
        self.broken("flags);", "flags)", 10, "a prototype that does not end")

    def test_parenthesis_in_prototype(self):
        self.broken("flags);", "flags(int));", 10, "cannot read this prototype")

    def test_no_doc_comment(self):
        self.functions(SUM[SUM.index("KORVEL_FLAT") :])
        self.expect(1, "a prototype without a doc comment before it")

    def test_plain_comment_is_no_doc_comment(self):
        self.broken("/**", "/*", 10, "a prototype without a doc comment before it")

    def test_doc_comment_without_prototype(self):
        self.functions("/** Lost. */\n" + SUM)
        self.expect(1, "a doc comment that belongs to no prototype")

    def test_doc_comment_at_the_end(self):
        self.functions("/** Lost. */\n")
        self.expect(1, "a doc comment that belongs to no prototype")

    def test_doc_comment_without_text(self):
        self.functions("/** @return 0 */\nKORVEL_FLAT int VB_A(void);\n")
        self.expect(1, "VB_A: the doc comment has no text")

    def test_comment_that_does_not_end(self):
        self.broken(" */\n", "\n", 1, "a comment that does not end")

    def test_code_behind_a_comment(self):
        self.broken(" */\n", " */ int a;\n", 9, "text behind the end of a comment")

    def test_missing_param_line(self):
        self.broken(" * @param n their number\n", "", 9, "VB_Sum: parameter n has no @param line")

    def test_param_line_for_nothing(self):
        self.broken(" * @return", " * @param m nothing\n * @return", 8, "VB_Sum: @param m names no parameter")

    def test_second_param_line(self):
        self.broken(" * @return", " * @param n again\n * @return", 8, "VB_Sum: a second @param n")

    def test_param_without_text(self):
        self.broken("n their number", "n", 5, "VB_Sum: @param n has no text")

    def test_param_lines_in_another_order(self):
        self.functions(SUM.replace(" * @param n their number\n", "").replace(" * @ret", " * @param n number\n * @ret"))
        self.expect(1, "VB_Sum: the @param lines are not in the order of the parameters")

    def test_pointer_without_direction(self):
        self.broken("x [in]", "x", 4, "VB_Sum: @param x needs [in], [out] or [inout]")

    def test_wrong_direction(self):
        self.broken("x [in]", "x [both]", 4, "VB_Sum: @param x needs [in], [out] or [inout]")

    def test_scalar_with_direction(self):
        self.broken("n their", "n [in] their", 5, "VB_Sum: @param n is passed by value and has no direction")

    def with_boolean(self, text):
        self.functions(f"/**\n * Does it.\n * @param b {text}\n */\nKORVEL_FLAT void VB_A(short int b);\n")

    def test_boolean_without_its_truth(self):
        for text in ("whether it does", "0: it does not", "it does when -1"):
            self.with_boolean(text)
            self.expect(3, "VB_A: @param b must say whether only -1 or anything but 0 is true")

    def test_boolean_with_its_truth(self):
        for text in ("-1: it does", "not 0: it does", "whether it does; true only when -1",
                     "whether it\n * does; true unless 0", "-1: it does; 0: it does not; any other value: neither"):
            self.with_boolean(text)
            self.assertEqual(self.run_tool("generate"), (0, []))

    ROOM = "must begin with its room: 'n numbers', 'rows by cols numbers', made of counts that are parameters, or 'one number'"

    def test_array_without_its_room(self):
        for text in ("the numbers", "numbers, n of them", "m numbers", "n by m numbers", "sum(n) numbers", "max(n, m) numbers"):
            self.broken("[in] n numbers", f"[in] {text}", 4, f"VB_Sum: @param x {self.ROOM}")

    def test_array_with_its_room(self):
        for text in ("n numbers", "n by 2 numbers", "n + 1 by n numbers", "n * (n + 1) / 2 numbers", "(n + n - 1) * n numbers",
                     "max(n, n) numbers, or more",
                     "one number: the first"):
            self.functions(SUM.replace("[in] n numbers", f"[in] {text}"))
            self.assertEqual(self.run_tool("generate"), (0, []))

    def test_flags_of_missing_rows_without_their_truth(self):
        self.functions(SUM.replace("@param flags", "@param iMissing").replace("int* flags", "int* iMissing"))
        self.expect(6, "VB_Sum: @param iMissing must say which flags leave a cell out")

    def test_missing_return(self):
        self.broken(" * @return the sum\n", "", 9, "VB_Sum: no @return")

    def test_return_without_text(self):
        self.broken("@return the sum", "@return", 10, "VB_Sum: no @return")

    def test_second_return(self):
        self.broken(" * @return", " * @return 0\n * @return", 9, "VB_Sum: a second @return")

    def test_return_of_nothing(self):
        self.broken("FLAT double", "FLAT void", 8, "VB_Sum: @return, but there is no result")

    def test_throws_without_text(self):
        self.broken(" * @return", " * @throws\n * @return", 8, "VB_Sum: @throws has no text")

    def test_unknown_tag(self):
        self.broken("@return the sum", "@retrun the sum", 8, "@retrun is not known here")

    def test_host_array_without_element(self):
        self.functions(
            "/**\n * Does it.\n * @param a [in] an array\n * @return 0\n */\nKORVEL_FLAT int VB_A(SAFEARRAY** a);\n"
        )
        self.expect(3, "VB_A: @param a must say 'host array of' one of Double, Long, Boolean, String")

    def test_like_nothing_above(self):
        message = "VB_SumLng: @like names a function above, and after a comma 'word for word'"
        line = SUM.count("\n") + 4
        for old, new in (("VB_Sum,", "VB_None,"), ("integers for numbers", "integers"), ("VB_Sum,", "VB_SumLng,")):
            self.functions(SUM + MadeFiles.LIKE.replace(old, new))
            code, errors = self.run_tool("generate")
            self.assertEqual(code, 1)
            where = f"include/korvelmathtools/frames/sample.h:{line + FIRST_LINE - 1}"
            self.assertIn(f"{where}: {message}", errors)

    def test_like_that_adds_nothing(self):
        lone = "/**\n * Does it.\n *\n * @like VB_Sum\n * @param k a number\n */\nKORVEL_FLAT void VB_A(int k);\n"
        self.functions(SUM + lone)
        self.expect(SUM.count("\n") + 4, "VB_A: @like VB_Sum adds nothing")

    def test_unreadable_line(self):
        self.functions("typedef int number;\n" + SUM)
        self.expect(1, "cannot read this line")

    def test_conditional(self):
        self.functions("#if defined(_WIN32)\n" + SUM + "#endif\n")
        self.expect(1, "cannot read this line")

    def test_character_outside_ascii(self):
        self.broken("Adds upwards", "\u03a3", 2, "a character outside ASCII")

    def test_no_file_comment(self):
        self.write("include/korvelmathtools/frames/sample.h", SUM)
        self.expect(1 - FIRST_LINE + 1, "no @file comment that says what the header is about")

    def test_header_that_the_umbrella_lacks(self):
        self.functions(SUM)
        self.write("include/korvelmathtools/frames/other.h", OPENING + SUM.replace("VB_Sum", "VB_Other") + "#endif\n")
        message = "flat functions in a header that KORVELMathTools.h does not include"
        self.expect(FIRST_LINE + 9, message, "include/korvelmathtools/frames/other.h")

    def test_umbrella_includes_what_is_not_there(self):
        self.functions(SUM)
        self.write("include/korvelmathtools/KORVELMathTools.h", UMBRELLA.replace("#endif", '#include "frames/none.h"\n#endif'))
        self.expect(10, "frames/none.h is no header of include/korvelmathtools/frames", "include/korvelmathtools/KORVELMathTools.h")

    def test_umbrella_includes_twice(self):
        self.functions(SUM)
        self.write("include/korvelmathtools/KORVELMathTools.h", UMBRELLA.replace("#endif", '#include "frames/sample.h"\n#endif'))
        self.expect(10, "frames/sample.h is included twice", "include/korvelmathtools/KORVELMathTools.h")

    def test_duplicate_name(self):
        self.functions(SUM + SUM)
        lines = SUM.count("\n")
        self.expect(lines + 10, f"VB_Sum is declared already at include/korvelmathtools/frames/sample.h:{FIRST_LINE + 9}")


class Exports(Tree):
    SOURCE = """\
        #include <string>
        #if defined(_WIN32)
        #define FLAT extern "C" __declspec(dllexport)
        #define CORE __declspec(dllexport)
        typedef wchar_t character;
        typedef unsigned long long count;
        #else
        #define FLAT extern "C"
        #define CORE
        typedef char16_t character;
        typedef unsigned long count;
        #endif
        FLAT int VB_One(void);
        int VB_One(void) { return 1; }
        struct CORE Table {
            explicit Table(count rows);
            count rows;
        };
        Table::Table(count rows) : rows(rows) {}
        CORE int V_Length(const Table*, character*, const std::u16string&, const std::string&);
        int V_Length(const Table*, character*, const std::u16string&, const std::string&) { return 0; }
        """
    CORE = ["Table::Table(unsigned long)", "V_Length(Table const*, char16_t*, text const&, std::string const&)"]

    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        source = cls.folder / "library.cpp"
        source.write_text(textwrap.dedent(cls.SOURCE), encoding="ascii")
        cls.library = cls.folder / "library.bin"
        command = [COMPILER, "-shared", "-fPIC", "-static-libgcc", "-o", str(cls.library), str(source)]
        subprocess.run(command, check=True)

    def lists(self, flat, core):
        self.write("exports/flat.txt", "".join(f"{name}\n" for name in flat))
        self.write("exports/core.txt", "".join(f"{name}\n" for name in core))

    def differences(self):
        code, errors = self.run_tool("check_exports", self.library)
        found = [error for error in errors if error.startswith("exports/")]
        self.assertEqual(code, 1 if errors else 0)
        return found

    def test_lists_that_fit(self):
        self.lists(["VB_One"], self.CORE)
        self.assertEqual(self.run_tool("check_exports", self.library), (0, []))

    def test_missing_flat_function(self):
        self.lists(["VB_One", "VB_Two"], self.CORE)
        self.assertEqual(self.differences(), ["exports/flat.txt: listed, not exported: VB_Two"])

    def test_flat_function_too_many(self):
        self.lists([], self.CORE)
        self.assertEqual(self.differences(), ["exports/flat.txt: exported, not listed: VB_One"])

    def test_missing_core_routine(self):
        self.lists(["VB_One"], [*self.CORE, "V_Sum(int)"])
        self.assertEqual(self.differences(), ["exports/core.txt: listed, not exported: V_Sum(int)"])

    def test_core_routine_too_many(self):
        self.lists(["VB_One"], self.CORE[:1])
        self.assertEqual(self.differences(), [f"exports/core.txt: exported, not listed: {self.CORE[1]}"])

    def test_windows_library_that_needs_more_than_the_system(self):
        self.lists(["VB_One"], self.CORE)
        symbols = load("check_exports").symbols
        needed = ["KERNEL32.dll", "api-ms-win-crt-math-l1-1-0.dll", "libstdc++-6.dll"]
        exported = ({"VB_One"}, set(self.CORE))
        with mock.patch.multiple(symbols, exports=lambda _: exported, is_windows=lambda _: True,
                                 imported_libraries=lambda _: needed):
            self.assertEqual(
                self.run_tool("check_exports", self.library),
                (1, ["needs a library that is not the system's: libstdc++-6.dll"]),
            )

    def test_generate_reads_the_core_list_from_the_release_build(self):
        self.functions(SUM)
        library = self.root / "build" / "release" / "src" / "libKORVELMathTools.so"
        code, errors = self.run_tool("generate", "--core")
        self.assertEqual((code, errors), (1, [f"{library} is not there: build the release preset first"]))
        library.parent.mkdir(parents=True)
        shutil.copy(self.library, library)
        self.assertEqual(self.run_tool("generate", "--core"), (0, []))
        self.assertEqual(self.read("exports/core.txt").splitlines(), self.CORE)

    def test_update(self):
        self.lists(["VB_One"], [])
        self.assertEqual(self.run_tool("check_exports", "--update", self.library), (0, []))
        self.assertEqual(self.read("exports/core.txt").splitlines(), self.CORE)


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


class Includes(Tree):
    def expect(self, *lines):
        code, errors = self.run_tool("check_includes")
        self.assertEqual(errors, list(lines))
        self.assertEqual(code, 1 if lines else 0)

    def include(self, name, *targets):
        self.write(f"src/{name}", "".join(f'#include "{target}"\n' for target in targets))

    def setUp(self):
        super().setUp()
        self.write("include/korvelmathtools/KORVELMathTools.h", "")
        self.write("include/korvelmathtools/frames/types.h", "")
        for name in ("platform/a", "containers/a", "tables/a", "statistics/a", "linalg/a", "fitting/a", "frames/a"):
            self.write(f"src/{name}.h", "")
            self.include(f"{name}.cpp", f"{name}.h")

    def test_downward_includes(self):
        self.include("frames/a.h", "fitting/a.h", "containers/a.h")
        self.include("linalg/a.h", "statistics/a.h", "tables/a.h")
        self.write("src/platform/a.cpp", '#include "platform/a.h"\n#include <vector>\n')
        self.expect()

    def test_upward_include(self):
        self.include("containers/a.cpp", "containers/a.h", "tables/a.h")
        self.expect("src/containers/a.cpp:2: containers/a must not include tables/a.h, which stands higher")

    def test_frames_from_the_core(self):
        self.include("fitting/a.h", "frames/a.h")
        self.expect("src/fitting/a.h:1: fitting/a must not include frames/a.h, which stands higher")

    def test_frame_includes_what_it_wraps(self):
        self.write("src/frames/frame.h", "")
        self.include("frames/tables/a.h", "frames/a.h")
        self.include("frames/tables/a.cpp", "frames/tables/a.h", "frames/frame.h", "tables/a.h", "containers/a.h",
                     "platform/a.h")
        self.expect()

    def test_frame_includes_another_part_of_the_core(self):
        self.include("frames/tables/a.h", "frames/a.h")
        self.include("frames/tables/a.cpp", "frames/tables/a.h", "statistics/a.h")
        self.expect("src/frames/tables/a.cpp:2: frames/tables/a must not include statistics/a.h: it wraps tables/a")

    def test_frame_includes_another_frame(self):
        self.include("frames/statistics/a.h", "frames/a.h")
        self.include("frames/tables/a.h", "frames/statistics/a.h")
        self.expect("src/frames/tables/a.h:1: frames/tables/a must not include frames/statistics/a.h: "
                    "it wraps tables/a")

    def test_frame_that_wraps_nothing(self):
        self.include("frames/tables/b.h", "frames/a.h")
        self.expect("src/frames/tables/b.h: there is no tables/b that it wraps")

    def test_include_that_finds_another_file_first(self):
        self.include("frames/tables/a.h", "frames/a.h")
        self.include("frames/a.cpp", "frames/a.h", "tables/a.h")
        self.expect('src/frames/a.cpp:2: "tables/a.h" finds frames/tables/a.h first')

    def test_circle_between_folders_through_sources(self):
        self.include("statistics/a.cpp", "statistics/a.h", "linalg/a.h")
        self.include("linalg/a.cpp", "linalg/a.h", "statistics/a.h")
        self.expect(
            "a circle of includes: linalg/a -> statistics/a -> linalg/a",
            "a circle of includes: statistics/a -> linalg/a -> statistics/a",
        )

    def test_circle_of_headers(self):
        self.include("tables/a.h", "tables/b.h")
        self.include("tables/b.h", "tables/a.h")
        self.expect(
            "a circle of includes: tables/a.h -> tables/b.h -> tables/a.h",
            "a circle of includes: tables/b.h -> tables/a.h -> tables/b.h",
        )

    def test_own_header_comes_first(self):
        self.write("src/linalg/a.cpp", '#include <vector>\n#include "linalg/a.h"\n')
        self.expect("src/linalg/a.cpp:1: linalg/a.cpp must include its own header first")

    def test_unknown_folder(self):
        self.include("extras/a.h", "tables/a.h")
        self.expect("src/extras/a.h:1: extras/a stands in a folder that has no layer")

    def test_include_of_nothing(self):
        self.include("tables/a.h", "tables/none.h")
        self.expect('src/tables/a.h:1: "tables/none.h" is no file below include/korvelmathtools or src')

    def test_public_header_with_a_private_one(self):
        self.write("include/korvelmathtools/tables/b.h", '#include "containers/b.h"\n')
        self.write("include/korvelmathtools/containers/b.h", '#include "platform/a.h"\n')
        self.expect("include/korvelmathtools/containers/b.h:1: a public header must not include platform/a.h, "
                    "which is not public")

    def test_tests_that_mirror(self):
        for name in ("tables/a_test", "abi/tables/a_overlap_test", "tables/tables_of_none_test", "abi/memory_test",
                     "frames/a_test", "fuzz/fuzz_test"):
            self.write(f"tests/{name}.cpp", "")
        self.write("src/frames/a.h", "")
        self.expect()

    def test_test_of_nothing(self):
        self.write("tests/tables/b_test.cpp", "")
        self.write("tests/abi/tables/ab_test.cpp", "")
        self.expect("tests/abi/tables/ab_test.cpp: tables has no topic of that name",
                    "tests/tables/b_test.cpp: tables has no topic of that name")

    def test_private_header_of_what_is_exported(self):
        self.write("src/platform/export.h", "#define KORVEL_API\n/* KORVEL_API marks. */\n")
        self.write("src/tables/a.h", "#if defined(KORVEL_API)\n#endif\nKORVEL_API int V_Sum(int n);\n")
        self.expect("src/tables/a.h:3: what is exported is declared below include/korvelmathtools")


if __name__ == "__main__":
    unittest.main()
