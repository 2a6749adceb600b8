"""exports/core.txt, the committed list of the core routines that the library exports."""

from . import symbols

NAME = "exports/core.txt"


def read(root):
    """The names on the list; none when there is no list yet."""
    path = root / NAME
    return path.read_text(encoding="ascii").splitlines() if path.is_file() else []


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
