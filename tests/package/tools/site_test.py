"""What tools/site makes of headers and pages before Doxygen reads them, and its list of what is documented."""

import textwrap
import unittest

from source_tree import LIKE, SUM, Tree
from korveltools import documented, flat_headers, site_headers, site_pages


class Headers(Tree):
    def made(self, name):
        flat, _, problems = flat_headers.read_all(self.root)
        self.assertEqual(problems, [])
        return site_headers.all_headers(self.root, flat)[f"korvelmathtools/{name}"]

    def test_docs_of_flat_functions_are_written_out(self):
        self.functions(SUM + LIKE)
        self.assertIn(textwrap.dedent("""\
            /**
             * Sums integers.
             *
             * @param[in] x (Not null) n integers
             * @param n length of x
             * @param[in] flags (May be null) n flags; Null: none is set
             * @return the sum
             */
            KORVEL_FLAT double VB_SumLng(const int* x, int n, const short int* flags);
            """), self.made("frames/sample.h"))

    def test_files_are_told_by_their_path(self):
        self.functions(SUM)
        self.assertIn(" * @file korvelmathtools/frames/sample.h\n", self.made("frames/sample.h"))

    def test_a_doc_is_that_of_all_functions_below_it(self):
        self.functions(SUM)
        self.write("include/korvelmathtools/core.h", textwrap.dedent("""\
            /** Both. */
            KORVEL_API int f(int a,
                             int b);
            KORVEL_API int f(double a);

            KORVEL_API int g();
            """))
        self.assertEqual(self.made("core.h"), textwrap.dedent("""\
            /** Both. */
            KORVEL_API int f(int a,
                             int b);
            /** Both. */
            KORVEL_API int f(double a);

            KORVEL_API int g();
            """))

    def test_members_of_the_compiler_are_left_out(self):
        self.functions(SUM)
        self.write("include/korvelmathtools/core.h", "class c {\n    c(const c&) = delete;\n    /** Empty. */\n    c() = default;\n};\n")
        self.assertEqual(self.made("core.h"), "class c {\n    /** Empty. */\n    c() = default;\n};\n")


class Pages(Tree):
    def setUp(self):
        super().setUp()
        self.functions(SUM)
        self.write("docs/guide/index.md", "# Start\n")
        self.write("docs/reference.md", "")

    def pages(self):
        flat, _, _ = flat_headers.read_all(self.root)
        made, problems = site_pages.all_pages(self.root, flat)
        return made, [str(problem) for problem in problems]

    def test_links_lead_into_the_site(self):
        self.write("docs/names.md", "# Names\n\n[a](guide/index.md), [VB_Sum](reference.md#vb_sum), `VB_Sum`, `other`, "
                                    "[s](../include/korvelmathtools/frames/sample.h), [v](../VERSION)\n\n```c\n`VB_Sum`\n```\n")
        made, problems = self.pages()
        self.assertEqual(problems, [])
        self.assertEqual(made["names.md"], "# Names {#page_names}\n\n[a](@ref index), [VB_Sum](@ref VB_Sum), "
                                           "[VB_Sum](@ref VB_Sum), `other`, [s](@ref korvelmathtools/frames/sample.h), v\n\n"
                                           "```c\n`VB_Sum`\n```\n")
        self.assertEqual(made["index.md"], "# Start\n")

    def test_a_link_to_nothing_is_refused(self):
        for link in ("[x](nothing.md)", "[x](reference.md#vb_sum)", "[VB_Gone](reference.md#vb_gone)",
                     "[VB_Sum](reference.md#vb_other)", "[x](guide/index.md#part)"):
            self.write("docs/names.md", f"# Names\n\n{link}\n")
            problems = self.pages()[1]
            self.assertEqual(len(problems), 1, link)
            self.assertIn("docs/names.md:3: ", problems[0])

    def test_functions_stand_by_letter(self):
        self.functions(SUM + SUM.replace("VB_Sum", "Cpp_M_Add") + SUM.replace("VB_Sum", "Zeta"))
        self.assertEqual(self.pages()[0]["letters.md"].splitlines()[3:], [
            "", "## A", "", "- [Cpp_M_Add](@ref Cpp_M_Add): Sums a vector, e.g. of weights.",
            "", "## S", "", "- [VB_Sum](@ref VB_Sum): Sums a vector, e.g. of weights.",
            "", "## Z", "", "- [Zeta](@ref Zeta): Sums a vector, e.g. of weights."])


TAGS = """\
<tagfile>
  <compound kind="file"><name>a.h</name>
    <member kind="function"><name>VB_Sum</name><arglist>(const double *x, int n)</arglist></member>
    <member kind="function"><name>V_Sum</name><arglist>(const matrix&lt; double &gt; &amp;x, short int n=0)</arglist></member>
    <member kind="function"><name>fill</name><arglist>(matrix&lt; T &gt; *x)</arglist></member>
  </compound>
  <compound kind="class"><name>matrix</name>
    <member kind="function"><name>Redim</name><arglist>(int rows, int cols)</arglist></member>
  </compound>
</tagfile>
"""


class Documented(Tree):
    def undocumented(self, flat, core):
        self.write("tags.xml", TAGS)
        self.write("exports/flat.txt", flat)
        self.write("exports/core.txt", core)
        return documented.undocumented(self.root, self.root / "tags.xml")

    def test_exports_are_found(self):
        self.assertEqual(self.undocumented("VB_Sum\n", "V_Sum(matrix<double> const&, short)\nmatrix<text>::Redim(int, int)\n"
                                                       "void fill<int>(matrix<int>*)\nmatrix<int>::operator=(int)\n"), [])

    def test_what_is_missing_is_told(self):
        core = ["V_Sum(matrix<double>&, short)", "V_Sum(matrix<int> const&, short)", "V_Sum(matrix<double> const&)",
                "matrix<text>::Redim(int)", "matrix<text>::Other(int, int)", "void empty<int>(matrix<int>*)"]
        self.assertEqual(self.undocumented("VB_Sum\nVB_Gone\n", "".join(f"{name}\n" for name in core)), ["VB_Gone", *core])


if __name__ == "__main__":
    unittest.main()
