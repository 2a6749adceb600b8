"""tools/generate: what it makes of good headers."""

import textwrap
import unittest

from source_tree import LIKE, SUM, Tree


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
                "' Sums a vector, e.g. of weights.",
                "'   x: in, n numbers",
                "'   n: their number",
                "'   flags (Integer, or ByVal KORVEL_NULL): in, n flags; Null: none is set",
                "'   returns the sum",
                'Public Declare PtrSafe Function VB_Sum Lib "KORVELMathTools.dll" ( _',
                "    ByRef x As Double, ByVal n As Long, ByRef flags As Any) As Double",
            ],
        )

    def test_knows_what_may_be_null(self):
        for text in ("n flags. Null: none is", "n flags; may be null", "n flags; null: none is"):
            self.functions(SUM.replace("n flags;\n *              Null: none is set", text))
            self.make()
            self.assertIn("ByRef flags As Any", self.declarations()[-1])
            self.assertIn("`flags` [in, may be null]", self.read("docs/reference.md"))
        self.functions(SUM.replace("n flags;\n *              Null: none is set", "n flags; not null unless n is 0"))
        self.make()
        self.assertIn("ByRef flags As Integer", self.declarations()[-1])
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
            " ".join(line.strip(" _") for line in self.declarations() if not line.startswith("'")),
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
                "'   nextValue: a word of the language",
                "'   k: a name",
                "'   K2: the same name, cases being the same",
                "'   returns a block",
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

    def test_visual_basic_records(self):
        self.functions(SUM)
        self.make()
        module = self.read("bindings/vba/KORVELMathTools.bas").replace("\r\n", "\n")
        self.assertIn("Public Const KORVEL_MISSING_DBL As Double = -1.5E+308\n", module)
        self.assertIn("Public Const KORVEL_MISSING_LNG As Long = -7 - 1\n", module)
        for type_ in (
            "Public Type ST_Vect\n    Count As Long    ' Its cells.\n    Label As String    ' Its name.\n"
            "    Vect() As Double    ' The column.\nEnd Type\n",
            "    Vect() As String    ' The column.\nEnd Type\n",
            "Public Type ST_MVectStr\n    nbrows() As Long    ' int: row counts.\n"
            "    Vectors() As ST_VectStr    ' ST_Vect records.\nEnd Type\n",
            "Public Type ST_QualiInfo\n    SumW As Double    ' Sum.\n    withSort As Integer    ' -1: sorted.\n"
            "    CatNames As ST_MVectStr    ' Texts.\n    CatFreq As ST_MVect    ' double.\nEnd Type\n",
        ):
            self.assertIn(type_, module)

    def test_says_which_records_cannot_be_read(self):
        self.functions(SUM)
        self.write(
            "include/korvelmathtools/containers/caller_records.h",
            "/** One. */\ntypedef struct One {\n    long Count; /**< Its cells. */\n} One;\ntypedef struct Two {\n} Two;\n",
        )
        code, errors = self.run_tool("generate")
        self.assertEqual(code, 1)
        self.assertEqual([error.split("caller_records.h:")[1] for error in errors],
                         ["3: One: cannot read this field", "1: a record that cannot be read"])

    def csharp(self, functions):
        """The C# file made of these functions, without the blanks at the start of its lines."""
        self.functions(functions)
        self.make()
        return [line.strip() for line in self.read("bindings/csharp/KORVELMathTools.cs").splitlines()]

    def part(self, lines, first, last):
        start = lines.index(first)
        return lines[start : lines.index(last, start)]

    def test_csharp_methods_and_declarations(self):
        made = self.csharp(SUM)
        start = "/// <summary>Sums a vector, e.g. of weights. Adds upwards.</summary>"
        self.assertEqual(
            self.part(made, start, "}"),
            [
                start,
                '/// <param name="x">in, n numbers</param>',
                '/// <param name="n">their number</param>',
                '/// <param name="flags">in, n flags; Null: none is set</param>',
                "/// <returns>the sum</returns>",
                "public static double VB_Sum(double[] x, int n, short[] flags)",
                "{",
                'Room.Check("VB_Sum", "x", x, (long)n, 1);',
                'Room.Check("VB_Sum", "flags", flags, (long)n, 1, true);',
                "return Native.VB_Sum(x, n, flags);",
            ],
        )
        self.assertEqual(self.part(made, "[DllImport(Library)]", "}")[1:],
                         ["internal static extern double VB_Sum(double[] x, int n, short[] flags);"])
        for constant in ("double KORVEL_MISSING_DBL = -1.5e308", "int KORVEL_MISSING_LNG = -7 - 1", 'string Version = "1.20.3"'):
            self.assertIn(f"public const {constant};", made)
        self.assertEqual(
            [line for line in self.part(made, "public struct ST_Vect", "}") if line.startswith("public")],
            ["public struct ST_Vect", "public int Count;", "public IntPtr Label;", "public IntPtr Vect;"],
        )

    def test_csharp_types(self):
        made = self.csharp(
            """\
/**
 * Takes a < b.
 *
 * @param in [in] one integer
 * @param c [out] one flag
 * @param n [inout] one integer: a count
 * @param d [inout] 2 by n texts
 * @param e [in] one text
 * @param f [in] host array of Double
 * @param i [in] chunks; may be null
 * @param k [in] record
 * @param m [in] one cell
 * @param label [in] label
 * @return a text
 */
KORVEL_FLAT OLECHAR* VB_All(const int* in, short int* c, int* n, OLECHAR** d, const OLECHAR* e, SAFEARRAY** f,
                            Hostarray** i, ST_MVect* k, const VARIANT* m, const char* label);
"""
        )
        self.assertIn("/// <summary>Takes a &lt; b.</summary>", made)
        text = " ".join(made)
        self.assertIn("public static string VB_All(int @in, out short c, ref int n, string[] d, string e, HostArray f, "
                      "HostArray i, ref ST_MVect k, IntPtr m, string label)", text)
        self.assertIn("internal static extern IntPtr VB_All(ref int @in, out short c, ref int n, IntPtr[] d, IntPtr e, "
                      "IntPtr[] f, IntPtr[] i, ref ST_MVect k, IntPtr m, string label);", text)
        self.assertIn(
            'Room.Check("VB_All", "d", d, 2, (long)n); using (var dTexts = new Texts("VB_All", "d", d)) '
            'using (var eTexts = new Texts("VB_All", "e", new[] { e })) { string answer = Texts.Take(Native.VB_All(ref @in, '
            "out c, ref n, dTexts.Cells, eTexts.Cells[0], HostArray.Of(f), HostArray.Of(i), ref k, m, label)); "
            "dTexts.CopyTo(d); return answer; }",
            text,
        )

    def test_csharp_rooms(self):
        made = self.csharp(
            """\
/**
 * Rooms.
 *
 * @param n rows
 * @param p columns; 0 counts as 1
 * @param counts [in] n integers
 * @param mode 1 or 2
 * @param a [in] n by (p + 1) / 2 numbers
 * @param b [in] max(n, p) by sum(counts) numbers, or n numbers when mode is 2
 * @param c [in] max(counts) * n numbers
 * @param k [in] record
 * @param d [in] k.nbrowsmax by p numbers
 */
KORVEL_FLAT void VB_Rooms(int n, int p, const int* counts, int mode, const double* a, const double* b, const double* c,
                          ST_MVect* k, const double* d);
"""
        )
        one = "(p == 0 ? 1L : p)"
        self.assertEqual(
            [line.split(", ", 3)[3] for line in made if line.startswith("Room.Check")],
            [
                "(long)n, 1);",
                f"(long)n, ({one} + 1) / 2);",
                f"mode == 2 ? (long)n : Math.Max((long)n, {one}), mode == 2 ? 1 : Room.PositiveSum(counts));",
                "Room.Largest(counts) * (long)n, 1);",
                f"k.nbrowsmax, {one});",
            ],
        )

    def test_r_package(self):
        self.functions(SUM)
        self.make()
        package = "bindings/r/korvelmathtools/"
        self.assertIn("\nVersion: 1.20.3\n", self.read(f"{package}DESCRIPTION"))
        self.assertEqual(
            self.read(f"{package}R/declarations.R").splitlines()[2:],
            [
                ".functions <- list(",
                'VB_Sum = list("d", list(',
                '    .p("x", "D", FALSE, FALSE, FALSE, 0, NULL, list(quote(n), 1)),',
                '    .p("n", "i", FALSE, FALSE, FALSE, 0, NULL),',
                '    .p("flags", "S", FALSE, FALSE, TRUE, 0, NULL, list(quote(n), 1))',
                "))",
                ")",
            ],
        )
        self.assertEqual(
            self.read(f"{package}src/calls.c").splitlines()[3:],
            [
                "static void call_VB_Sum(const korvel_slot* a, korvel_slot* r)",
                "{",
                "    r->number = VB_Sum(a[0].numbers, a[1].integer, a[2].flags);",
                "}",
                "",
                "const korvel_function korvel_functions[] = {",
                '    {"VB_Sum", "DiS", "d", call_VB_Sum},',
                "};",
                "",
                "const size_t korvel_function_count = 1;",
            ],
        )

    def test_r_knows_what_is_written_and_other_rooms(self):
        self.functions(
            """\
/**
 * 50 % of {a}.
 *
 * @param n rows; 0 counts as 1
 * @param mode 1 or 2
 * @param a [inout] n by 2 * n numbers, or n numbers when mode is 2
 * @param b [out] one integer
 * @param c [in] host array of Boolean
 */
KORVEL_FLAT void VB_Rooms(int n, int mode, double* a, int* b, SAFEARRAY** c);
"""
        )
        self.make()
        package = "bindings/r/korvelmathtools/"
        self.assertEqual(
            [line.strip() for line in self.read(f"{package}R/declarations.R").splitlines()[4:-2]],
            [
                '.p("n", "i", FALSE, FALSE, FALSE, 1, NULL),',
                '.p("mode", "i", FALSE, FALSE, FALSE, 0, NULL),',
                '.p("a", "D", TRUE, FALSE, FALSE, 0, NULL, list(quote(n), quote(2 * n)), list(quote(n), 1, "mode", 2)),',
                '.p("b", "I", TRUE, TRUE, FALSE, 0, NULL, list(1, 1)),',
                '.p("c", "A", FALSE, FALSE, FALSE, 0, "Boolean")',
            ],
        )
        self.assertIn("    VB_Rooms(a[0].integer, a[1].integer, a[2].numbers, a[3].integers, a[4].array);\n    (void)r;\n",
                      self.read(f"{package}src/calls.c"))
        page = self.read(f"{package}man/sample.Rd")
        self.assertIn("\\alias{VB_Rooms}\n\\title{samples}\n", page)
        self.assertIn("\\section{VB_Rooms}{\n\\code{VB_Rooms(n, mode, a, b, c)}\n\n50 \\% of \\{a\\}.\n", page)
        self.assertIn("\\item{b}{out, one integer}\n", page)

    def test_keeps_to_the_limits_of_visual_basic(self):
        self.many_parameters(40)
        self.make()
        lines = [line for line in self.declarations() if not line.startswith("'")]
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

    def test_takes_over_what_another_function_says(self):
        self.functions(SUM + LIKE)
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

    def test_python_declarations(self):
        self.functions(SUM)
        self.make()
        made = {}
        exec(self.read("bindings/python/korvelmathtools/_declarations.py"), made)
        result, parameters, text = made["FUNCTIONS"]["VB_Sum"]
        self.assertEqual(result, "double")
        self.assertEqual(parameters[0], ("x", "double*", "in", False, (("n", "1", None),), 0))
        self.assertEqual(parameters[1], ("n", "int", "", False, (), 0))
        self.assertEqual(parameters[2], ("flags", "short int*", "in", True, (("n", "1", None),), 0))
        self.assertEqual(
            "".join(text).splitlines(),
            [
                "double VB_Sum(const double* x, int n, const short int* flags);",
                "",
                "Sums a vector, e.g. of weights. Adds upwards.",
                "",
                "x: in, n numbers",
                "n: their number",
                "flags: in, n flags; Null: none is set",
                "returns the sum",
            ],
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
                    "bindings/csharp/KORVELMathTools.cs",
                    "bindings/python/korvelmathtools/_declarations.py",
                    "docs/reference.md",
                    "bindings/r/korvelmathtools/R/declarations.R",
                    "bindings/r/korvelmathtools/src/calls.c",
                    "bindings/r/korvelmathtools/man/sample.Rd",
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


if __name__ == "__main__":
    unittest.main()
