"""The exported symbols of a built library, in one spelling for all systems."""

import re
import shutil
import subprocess


def string_class(character):
    return f"std::__cxx11::basic_string<{character}, std::char_traits<{character}>, std::allocator<{character}> >"


class ToolMissing(Exception):
    pass


def run(*candidates, arguments, text=None):
    """Runs the first of the candidate programs that is installed."""
    for candidate in candidates:
        if shutil.which(candidate):
            command = [candidate, *arguments]
            return subprocess.run(command, input=text, capture_output=True, text=True, check=True).stdout
    raise ToolMissing(f"none of these programs is installed: {', '.join(candidates)}")


def is_windows(library):
    with open(library, "rb") as file:
        return file.read(2) == b"MZ"


def windows_tables(library):
    return run("x86_64-w64-mingw32-objdump", "objdump", arguments=["-p", str(library)])


def raw_exports(library):
    """Linker names of everything that the library exports."""
    if is_windows(library):
        table = windows_tables(library).partition("[Ordinal/Name Pointer] Table")[2]
        names = re.findall(r"^\s+\[\s*\d+\]\s+(?:\+base\[\s*\d+\]\s+)?(?:[0-9a-f]+\s+)?(\S+)$", table, re.MULTILINE)
        if not names:
            raise ToolMissing(f"no export table could be read from {library}")
        return set(names)
    listing = run("nm", arguments=["-D", "--defined-only", "--format=posix", str(library)])
    return {line.split()[0].partition("@")[0] for line in listing.splitlines() if line}


def imported_libraries(library):
    return re.findall(r"^\s*DLL Name:\s*(\S+)\s*$", windows_tables(library), re.MULTILINE)


def core_spelling(demangled):
    """The spelling of the list: as the compiler off Windows has it, with short names for the classes of texts."""
    same = demangled.replace(string_class("char16_t"), "text").replace(string_class("char"), "std::string")
    same = same.replace("wchar_t", "char16_t")
    same = re.sub(r"\blong long\b", "long", same)
    return same.replace(" >", ">")


def is_class_data(demangled):
    """Tables that a compiler makes for a class of ours; which of them it exports differs from system to system."""
    found = re.match(r"(?:vtable|VTT|typeinfo|typeinfo name) for (.*)", demangled)
    return bool(found) and not found.group(1).startswith(("std::", "__gnu_cxx::", "__cxxabiv1::", "boost::"))


def exports(library):
    """(flat names, core signatures) that the library exports."""
    names = sorted(raw_exports(library))
    mangled = [name for name in names if name.startswith("_Z")]
    demangled = run("c++filt", "x86_64-w64-mingw32-c++filt", arguments=[], text="\n".join(mangled)).splitlines()
    flat = {name for name in names if not name.startswith("_Z")}
    core = {core_spelling(name) for name in demangled if not is_class_data(name)}
    return flat, core
