"""tools/check_includes: each rule of the layout."""

import unittest

from source_tree import Tree


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

    def export(self, topic):
        """A public header with its source."""
        self.write(f"include/korvelmathtools/{topic}.h", "")
        self.include(f"{topic}.cpp", f"{topic}.h")

    def test_exported_topic_without_a_test(self):
        self.export("tables/b")
        self.export("frames/tables/b")
        self.write("tests/tables/a_test.cpp", "")
        self.write("tests/abi/tables/a_b_test.cpp", "")
        self.expect("src/frames/tables/b.cpp: there is no tests/abi/tables/b_test.cpp",
                    "src/tables/b.cpp: there is no tests/tables/b_test.cpp")

    def test_frame_that_only_the_core_has_a_test_for(self):
        self.export("tables/b")
        self.export("frames/tables/b")
        self.write("tests/tables/b_test.cpp", "")
        self.expect("src/frames/tables/b.cpp: there is no tests/abi/tables/b_test.cpp")

    def test_topic_that_is_tested_through_the_library(self):
        self.export("tables/b")
        self.export("frames/tables/b")
        self.write("tests/abi/tables/b_null_test.cpp", "")
        self.expect()

    def test_private_header_of_what_is_exported(self):
        self.write("src/platform/export.h", "#define KORVEL_API\n/* KORVEL_API marks. */\n")
        self.write("src/tables/a.h", "#if defined(KORVEL_API)\n#endif\nKORVEL_API int V_Sum(int n);\n")
        self.expect("src/tables/a.h:3: what is exported is declared below include/korvelmathtools")


if __name__ == "__main__":
    unittest.main()
