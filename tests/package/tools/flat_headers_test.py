"""tools/generate: each kind of mistake in a flat header stops it."""

import unittest

from source_tree import FIRST_LINE, LIKE, OPENING, SUM, UMBRELLA, Tree


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
        for text in ("the numbers", "numbers, n of them", "m numbers", "n by m numbers", "sum(n) numbers", "max(n, m) numbers",
                     "n.nbrowsmax numbers"):
            self.broken("[in] n numbers", f"[in] {text}", 4, f"VB_Sum: @param x {self.ROOM}")

    def test_array_with_its_room(self):
        for text in ("n numbers", "n by 2 numbers", "n + 1 by n numbers", "n * (n + 1) / 2 numbers",
                     "(n + n - 1) * n numbers", "max(n, n) numbers, or more", "one number: the first"):
            self.functions(SUM.replace("[in] n numbers", f"[in] {text}"))
            self.assertEqual(self.run_tool("generate"), (0, []))

    def test_array_with_the_room_of_a_column(self):
        self.functions("/**\n * Does it.\n * @param t [in] labelled table of numbers\n"
                       " * @param x [in] t.nbrowsmax numbers\n */\n"
                       "KORVEL_FLAT void VB_A(ST_MVect* t, const double* x);\n")
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
            self.functions(SUM + LIKE.replace(old, new))
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


if __name__ == "__main__":
    unittest.main()
