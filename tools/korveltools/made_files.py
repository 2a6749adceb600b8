"""The committed files that are made from the flat headers and from VERSION, as {path below the root: content}."""

from . import (calc_files, core_list, csharp_class, flat_headers, python_module, r_package, records, reference_page, released,
               vba_module)


def names_of(headers):
    return sorted(function.name for header in headers for function in header.functions)


def flat_list(headers):
    return "".join(f"{name}\n" for name in names_of(headers))


def module_definition(headers):
    return "LIBRARY KORVELMathTools\nEXPORTS\n" + "".join(f"    {name}\n" for name in names_of(headers))


def version_of(root):
    return (root / "VERSION").read_text(encoding="ascii").strip()


def version_header(version):
    """The C header that says what VERSION says."""
    major, minor, patch = map(int, version.split("."))
    return f"""\
/**
 * @file
 * The version of the library, made from VERSION by tools/generate: edit that instead.
 */
#ifndef KORVEL_PLATFORM_VERSION_H
#define KORVEL_PLATFORM_VERSION_H

/** The version as a text. */
#define KORVEL_VERSION "{version}"
/** The first number of the version. */
#define KORVEL_VERSION_MAJOR {major}
/** The second number of the version. */
#define KORVEL_VERSION_MINOR {minor}
/** The third number of the version. */
#define KORVEL_VERSION_PATCH {patch}

/** 10000 times the major number, plus 100 times the minor one, plus the patch. */
#define KORVEL_VERSION_NUMBER {10000 * major + 100 * minor + patch}

#endif
"""


def make(root):
    """All made files, and the problems found in the headers, which make the files worthless."""
    headers, common, problems = flat_headers.read_all(root)
    layouts = records.read_records(root, problems)
    if problems:
        return {}, problems

    def problem(header, function, message):
        problems.append(flat_headers.Problem(header.path, function.line, f"{function.name}: {message}"))

    missing = records.read_missing(root)
    made = {
        "exports/flat.txt": flat_list(headers),
        "bindings/KORVELMathTools.def": module_definition(headers),
        "bindings/vba/KORVELMathTools.bas": vba_module.make(headers, layouts, missing, problem),
        "bindings/csharp/KORVELMathTools.cs": csharp_class.make(headers, layouts, missing, version_of(root)),
        "bindings/python/korvelmathtools/_declarations.py":
            python_module.make(headers, version_of(root), released.abi(root)),
        "docs/reference.md": reference_page.make(headers, common.title),
        f"{flat_headers.HEADERS}/platform/version.h": version_header(version_of(root)),
        core_list.NAME: core_list.in_order(core_list.read(root)),
    }
    made |= r_package.make(headers, version_of(root))
    made |= calc_files.make(root, headers, version_of(root), problems)
    return made, problems
