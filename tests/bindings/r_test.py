#!/usr/bin/env python3
"""r_test.py BUILD FOLDER: installs the library of the build folder and the R package in FOLDER, which is emptied first, and
runs with them r_test.R and, beside Python, same_from_r.R.
"""

import os
import shutil
import subprocess
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[1]
PACKAGE = ROOT / "bindings" / "r" / "korvelmathtools"


def main():
    build, folder = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    shutil.rmtree(folder, ignore_errors=True)
    library, packages = folder / "installed", folder / "library"
    packages.mkdir(parents=True)
    for component in ("runtime", "development"):
        subprocess.run(["cmake", "--install", build, "--prefix", library, "--component", component], check=True,
                       stdout=subprocess.DEVNULL)
    # R builds in the folder of the sources.
    shutil.copytree(PACKAGE, folder / "korvelmathtools")
    environment = dict(os.environ, PKG_CONFIG_PATH=str(library / "lib" / "pkgconfig"), LD_LIBRARY_PATH=str(library / "lib"),
                       R_LIBS=str(packages), LC_ALL="C.UTF-8", MAKEFLAGS="",
                       PYTHONPATH=str(ROOT / "bindings" / "python"))
    made = subprocess.run(["R", "CMD", "INSTALL", f"--library={packages}", folder / "korvelmathtools"], env=environment,
                          check=False, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, encoding="utf-8")
    if made.returncode != 0 or "arning" in made.stdout:
        print(made.stdout)
        return 1
    calls = folder / "calls.txt"
    steps = (["Rscript", "--vanilla", HERE / "r_test.R", library / "lib" / "libKORVELAutomation.so"],
             [sys.executable, HERE / "same_from_r.py", calls],
             ["Rscript", "--vanilla", HERE / "same_from_r.R", calls])
    return 0 if all(subprocess.run(step, env=environment, check=False).returncode == 0 for step in steps) else 1


if __name__ == "__main__":
    sys.exit(main())
