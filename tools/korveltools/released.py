"""exports/released.txt, what the last release exports. A library of the same ABI stands for it, so it may not export less.

The first line names the ABI, the others each name a function or a core routine.
"""

NAME = "exports/released.txt"


def abi(root):
    """The number in the names of the libraries: major.minor before version 1, then major."""
    major, minor, _ = (root / "VERSION").read_text(encoding="ascii").strip().split(".")
    return f"{major}.{minor}" if major == "0" else major


def record(root, exported):
    """Makes the list say what is exported."""
    lines = [f"ABI {abi(root)}", *sorted(exported)]
    (root / NAME).write_text("".join(f"{line}\n" for line in lines), encoding="ascii", newline="\n")
    print(f"{NAME}: written")


def vanished(root, exported):
    """What a release exports and `exported` has not; nothing when there was no release with this ABI."""
    path = root / NAME
    if not path.is_file():
        return
    head, *names = path.read_text(encoding="ascii").splitlines()
    if head != f"ABI {abi(root)}":
        return
    for name in sorted(set(names) - exported):
        yield f"{NAME}: released, not exported: {name}"
