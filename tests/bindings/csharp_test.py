#!/usr/bin/env python3
"""csharp_test.py LIBRARY FOLDER: builds csharp_test.cs with the C# binding in FOLDER, and runs it with the library."""

import os
import subprocess
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
BINDING = HERE.parents[1] / "bindings" / "csharp"


def main():
    library, folder = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    folder.mkdir(parents=True, exist_ok=True)
    program = folder / "csharp_test.exe"
    subprocess.run(["mcs", "-langversion:6", "-warnaserror", f"-out:{program}", HERE / "csharp_test.cs",
                    BINDING / "KORVELMathTools.cs", BINDING / "Helpers.cs"], check=True)
    return subprocess.run(["mono", program], env=dict(os.environ, LD_LIBRARY_PATH=str(library.parent)), check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
