#!/usr/bin/env python3
"""Makes the packages, puts each into a clean place, and builds and runs callers against it.

    packages_test.py linux|windows FOLDER    a folder for all of it, which is emptied first
"""

import hashlib
import os
import shutil
import subprocess
import sys
import unittest
import zipfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[1]
VERSION = (ROOT / "VERSION").read_text(encoding="ascii").strip()
ABI = ".".join(VERSION.split(".")[:2]) if VERSION.startswith("0.") else VERSION.split(".")[0]
PYTHON = "/usr/bin/python3"  # the one that has Debian's NumPy
WINE = "/usr/lib/wine/wine64"
STRICT_C = ["-std=c99", "-pedantic-errors", "-Wall", "-Wextra", "-Werror"]


def run(*command, **more):
    """What a command prints. Shows all of it when the command fails."""
    done = subprocess.run([str(part) for part in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          encoding="utf-8", check=False, **more)
    if done.returncode != 0:
        raise AssertionError(f"{' '.join(map(str, command))}: exit code {done.returncode}\n{done.stdout}")
    return done.stdout


def package(*options):
    return subprocess.run([ROOT / "tools" / "package", *options], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                          encoding="utf-8", check=False)


def build_callers_by_cmake(prefix, build, *options):
    """The callers in C and in C++, which know nothing of the library but its CMake package."""
    run("cmake", "-S", HERE / "installed", "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
        f"-DKORVELMathTools_DIR={prefix}/lib/cmake/KORVELMathTools", *options)
    run("cmake", "--build", build)
    run("ctest", "--test-dir", build, "--no-tests=error", "--output-on-failure")


class Packages(unittest.TestCase):
    """Made once for all tests."""

    system = ""

    @classmethod
    def setUpClass(cls):
        shutil.rmtree(SCRATCH, ignore_errors=True)
        SCRATCH.mkdir(parents=True)
        cls.dist = SCRATCH / "dist"
        done = package(f"--{cls.system}", "--to", str(cls.dist))
        if done.returncode != 0:
            raise AssertionError(done.stdout + done.stderr)

    def file(self, pattern):
        found = list(self.dist.glob(pattern))
        self.assertEqual(len(found), 1, f"{pattern}: {found}")
        return found[0]

    def check_sums(self):
        lines = (self.dist / "SHA256SUMS").read_text(encoding="ascii").splitlines()
        sums = dict(reversed(line.split()) for line in lines)
        packages = {file.name for file in self.dist.iterdir()} - {"SHA256SUMS"}
        self.assertEqual(set(sums), packages)
        for name, told in sums.items():
            self.assertEqual(hashlib.sha256((self.dist / name).read_bytes()).hexdigest(), told, name)


class LinuxPackages(Packages):
    system = "linux"

    def call_by_pkg_config(self, prefix):
        """A caller in strict C99, by pkg-config and the plain compiler."""
        there = dict(os.environ, PKG_CONFIG_LIBDIR=f"{prefix}/lib/pkgconfig")
        self.assertEqual(run("pkg-config", "--modversion", "korvelmathtools", env=there).strip(), VERSION)
        flags = run("pkg-config", "--cflags", "--libs", "korvelmathtools", env=there).split()
        program = SCRATCH / f"caller_{prefix.name}"
        run("gcc", *STRICT_C, HERE / "consumer.c", "-o", program, *flags)
        run(program, env=dict(os.environ, LD_LIBRARY_PATH=f"{prefix}/lib"))

    def build_the_example(self, prefix):
        """In each way that it names itself: by CMake, and by one line with pkg-config."""
        there = dict(os.environ, PKG_CONFIG_LIBDIR=f"{prefix}/lib/pkgconfig", LD_LIBRARY_PATH=f"{prefix}/lib")
        example, build = ROOT / "examples" / "analysis", SCRATCH / "example"
        run("cmake", "-S", example, "-B", build, "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={prefix}")
        run("cmake", "--build", build)
        run("sh", "-c", f"cc analysis.c -o {build}/by_pkg_config $(pkg-config --cflags --libs korvelmathtools)", env=there,
            cwd=example)
        run(PYTHON, ROOT / "tests" / "bindings" / "analysis_test.py", build / "by_pkg_config", build / "analysis_c",
            build / "analysis_cpp", env=there)

    def test_sums(self):
        self.check_sums()
        self.assertEqual(len(list(self.dist.iterdir())), 5)

    def test_tarball(self):
        folder = SCRATCH / "tarball"
        folder.mkdir()
        run("tar", "-xzf", self.file("*.tar.gz"), "-C", folder)
        (prefix,) = folder.iterdir()
        self.assertEqual(prefix.name, f"KORVELMathTools-{VERSION}-linux-x86_64")
        for name in ("libKORVELMathTools.so", "libKORVELAutomation.so"):
            self.assertIn(f"[{name}.{ABI}]", run("readelf", "-d", prefix / "lib" / name))
        documents = prefix / "share" / "doc" / "KORVELMathTools"
        for name in ("licences.md", "reference.md", "licences/libboost-dev.txt", "licences/rapidjson-dev.txt"):
            self.assertTrue((documents / name).is_file(), name)
        self.call_by_pkg_config(prefix)
        build_callers_by_cmake(prefix, SCRATCH / "callers_of_tarball")
        self.build_the_example(prefix)

    def test_debian_packages(self):
        libraries = self.file(f"libkorvelmathtools{ABI}_{VERSION}_*.deb")
        development = self.file(f"libkorvelmathtools-dev_{VERSION}_*.deb")
        self.assertIn(f"libkorvelmathtools{ABI} (= {VERSION})", run("dpkg-deb", "--field", development, "Depends"))
        self.assertIn("libc6", run("dpkg-deb", "--field", libraries, "Depends"))
        root = SCRATCH / "debian"
        (root / "var/lib/dpkg").mkdir(parents=True)
        (root / "var/lib/dpkg/status").touch()
        # The other packages of a system are not in the folder, and its scripts would be run in there.
        as_root = [] if os.geteuid() == 0 else ["fakeroot"]
        run(*as_root, "dpkg", f"--root={root}", f"--log={root}/log", "--force-depends", "--force-not-root",
            "--force-script-chrootless", "--install", libraries, development)
        self.call_by_pkg_config(root / "usr")
        build_callers_by_cmake(root / "usr", SCRATCH / "callers_of_debian_packages")

    def test_wheel(self):
        folder = SCRATCH / "wheel"
        run(PYTHON, "-m", "pip", "install", "--no-index", "--no-deps", "--target", folder, self.file("*.whl"))
        shown = run(PYTHON, "-c", "import korvelmathtools as kmt; texts = ['b', 'a']; kmt.VB_SortQVectorStr(texts, 2, 1, 2, 0);"
                    "print(kmt.LIBRARY_PATH, kmt.__version__, *texts)", env=dict(os.environ, PYTHONPATH=str(folder)))
        self.assertEqual(shown.split(), [f"{folder}/korvelmathtools/libKORVELMathTools.so.{ABI}", VERSION, "a", "b"])

    def test_bad_options(self):
        kept = sorted(self.dist.iterdir())
        something = SCRATCH / "something"
        something.mkdir()
        (something / "else").touch()
        for options, told in ((["--mac"], "no option '--mac'"), (["--to"], "--to needs a folder"),
                              (["--to", __file__], "is not a folder"),
                              (["--to", str(something)], "holds something else")):
            done = package(*options)
            self.assertEqual((done.returncode, done.stdout), (2, ""), options)
            self.assertEqual(done.stderr.count("\n"), 1, done.stderr)
            self.assertIn(told, done.stderr)
        self.assertEqual(sorted(self.dist.iterdir()), kept)
        self.assertEqual([file.name for file in something.iterdir()], ["else"])


class WindowsPackages(Packages):
    system = "windows"

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        (archive,) = cls.dist.glob("*.zip")
        with zipfile.ZipFile(archive) as packed:
            packed.extractall(SCRATCH / "zip")
        (cls.prefix,) = (SCRATCH / "zip").iterdir()

    def with_the_library_beside(self, program):
        """A folder with a program and the DLL, and nothing else."""
        folder = SCRATCH / f"run_{program.stem}"
        folder.mkdir()
        shutil.copy(program, folder)
        shutil.copy(self.prefix / "bin" / "KORVELMathTools.dll", folder)
        return run(WINE, folder / program.name, cwd=folder)

    def test_contents(self):
        self.check_sums()
        documents = "share/doc/KORVELMathTools/"
        for name in ("bin/KORVELMathTools.dll", "lib/libKORVELMathTools.dll.a", "lib/KORVELMathTools.lib",
                     "include/korvelmathtools/KORVELMathTools.h", "share/KORVELMathTools/vba/KORVELMathTools.bas",
                     documents + "reference.md", documents + "windows.md", documents + "guide/pitfalls.md",
                     documents + "licences/GPL-3.txt",
                     documents + "licences/gcc-mingw-w64-base.txt", documents + "licences/mingw-w64-x86-64-dev.txt"):
            self.assertTrue((self.prefix / name).is_file(), name)

    def test_loaded_by_name(self):
        program = SCRATCH / "loading.exe"
        run("x86_64-w64-mingw32-gcc-posix", *STRICT_C, "-static", HERE / "loading.c", "-o", program, "-lversion")
        self.assertEqual(self.with_the_library_beside(program).split(), ["18", VERSION])

    def test_linked_as_msvc_links(self):
        """A caller in the other compiler's object format, linked through that one's import library."""
        target = "--target=x86_64-pc-windows-msvc"
        run("clang", target, *STRICT_C, "-O1", "-ffreestanding", "-c", HERE / "msvc_caller.c", "-o", SCRATCH / "caller.obj")
        (SCRATCH / "kernel32.def").write_text("LIBRARY kernel32.dll\nEXPORTS\n    ExitProcess\n", encoding="ascii")
        dlltool = shutil.which("llvm-dlltool") or "llvm-dlltool-14"
        run(dlltool, "-m", "i386:x86-64", "-d", SCRATCH / "kernel32.def", "-l", SCRATCH / "kernel32.lib")
        program = SCRATCH / "msvc_caller.exe"
        run(shutil.which("lld-link") or "lld-link-14", "/nodefaultlib", "/entry:start", "/subsystem:console",
            f"/out:{program}", SCRATCH / "caller.obj", self.prefix / "lib" / "KORVELMathTools.lib",
            SCRATCH / "kernel32.lib")
        self.with_the_library_beside(program)

    def test_linked_by_cmake(self):
        build_callers_by_cmake(self.prefix, SCRATCH / "callers",
                               f"-DCMAKE_TOOLCHAIN_FILE={ROOT}/cmake/mingw-w64.cmake")


if __name__ == "__main__":
    SCRATCH = Path(sys.argv[2]).resolve()
    cases = {"linux": LinuxPackages, "windows": WindowsPackages}[sys.argv[1]]
    outcome = unittest.TextTestRunner().run(unittest.defaultTestLoader.loadTestsFromTestCase(cases))
    sys.exit(0 if outcome.wasSuccessful() else 1)
