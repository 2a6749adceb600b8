"""exports/core.txt, the committed list of the core routines that the library exports."""

from . import symbols

NAME = "exports/core.txt"


def read(root):
    return (root / NAME).read_text(encoding="ascii").splitlines()


def in_order(names):
    """The content of the list; a merge may have left it unsorted."""
    return "".join(f"{name}\n" for name in sorted(set(names)))


def update(root, library):
    """Makes the list say what the library exports."""
    _, core = symbols.exports(library)
    content = in_order(core)
    path = root / NAME
    if not path.is_file() or path.read_text(encoding="ascii") != content:
        path.write_text(content, encoding="ascii", newline="\n")
        print(f"{NAME}: written")
