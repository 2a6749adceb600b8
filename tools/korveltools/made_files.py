"""The committed files that are made from the flat headers, as {path below the root: content}."""

from . import core_list, flat_headers, reference_page, vba_module


def names_of(headers):
    return sorted(function.name for header in headers for function in header.functions)


def flat_list(headers):
    return "".join(f"{name}\n" for name in names_of(headers))


def module_definition(headers):
    return "LIBRARY KORVELMathTools\nEXPORTS\n" + "".join(f"    {name}\n" for name in names_of(headers))


def make(root):
    """All made files, and the problems found in the headers, which make the files worthless."""
    headers, common, problems = flat_headers.read_all(root)
    if problems:
        return {}, problems

    def problem(header, function, message):
        problems.append(flat_headers.Problem(header.path, function.line, f"{function.name}: {message}"))

    made = {
        "exports/flat.txt": flat_list(headers),
        "bindings/KORVELMathTools.def": module_definition(headers),
        "bindings/vba/KORVELMathTools.bas": vba_module.make(headers, problem),
        "docs/reference.md": reference_page.make(headers, common.title),
        core_list.NAME: core_list.in_order(core_list.read(root)),
    }
    return made, problems
