"""tools/check_exports: the exports of real libraries beside the lists."""

import os
import shutil
import subprocess
import tempfile
import textwrap
import unittest
from pathlib import Path
from unittest import mock

from source_tree import SUM, Tree, load

COMPILER = os.environ.get("KORVEL_CXX", "g++")


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

    def test_released_routine_that_vanished(self):
        self.lists(["VB_One"], self.CORE)
        self.write("VERSION", "0.3.1\n")
        self.assertEqual(self.run_tool("check_exports", "--release", self.library), (0, []))
        recorded = (self.root / "exports/released.txt").read_text(encoding="ascii")
        self.assertEqual(recorded.splitlines(), ["ABI 0.3", *sorted(["VB_One", *self.CORE])])
        self.assertEqual(self.run_tool("check_exports", self.library), (0, []))

        self.write("exports/released.txt", recorded + "VB_Two\n")
        self.assertEqual(self.differences(), ["exports/released.txt: released, not exported: VB_Two"])
        self.write("VERSION", "0.3.9\n")
        self.assertEqual(self.differences(), ["exports/released.txt: released, not exported: VB_Two"])
        for next_abi in ("0.4.0", "1.3.0"):
            self.write("VERSION", f"{next_abi}\n")
            self.assertEqual(self.run_tool("check_exports", self.library), (0, []))

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


if __name__ == "__main__":
    unittest.main()
