"""Whether each export is documented, by the tag file that Doxygen writes beside a site."""

import re
import xml.etree.ElementTree

from . import core_list

# Types that are spelled in one way in a header and in another by the linker.
SPELLINGS = {
    r"\bshort int\b": "short",
    r"\b(?:std::)?basic_string ?< ?char16_t ?>": "text",
    r"\btagSAFEARRAY\b": "SAFEARRAY",
    r"\bOLECHAR\b": "char16_t",
    r"\bBSTR\b": "char16_t*",
    r",? ?std::allocator ?< ?bool ?>": "",
}


# Members that callers cannot name, exported for the members that are inline.
PRIVATE = ("matrix::fillable of 0", "matrix::writeBackToHostArray of 0")


def split_parameters(inside):
    """What stands between the commas that are in no bracket."""
    pieces, depth = [""], 0
    for character in inside:
        depth += (character in "<(") - (character in ">)")
        if character == "," and depth == 0:
            pieces.append("")
        else:
            pieces[-1] += character
    return [piece.strip() for piece in pieces if piece.strip() not in ("", "void")]


def type_of(parameter):
    """The type of a parameter, in one spelling and without its name."""
    words = parameter.partition("=")[0].strip()
    for spelling, same in SPELLINGS.items():
        words = re.sub(spelling, same, words)
    words = re.sub(r"(?<=[*&>\w]) ?(?<![\w:])(?!(?:int|double|short|bool|char|text|char16_t|const)\b)\w+(\[\])?$", "", words)
    words = re.sub(r"^const ((?:[\w:]+)(?:<.*>)?)", r"\1 const", words.strip())
    return re.sub(r"\s+", "", words)


def signature(name, arglist):
    inside = arglist[arglist.index("(") + 1: arglist.rindex(")")]
    return f"{name}({','.join(map(type_of, split_parameters(inside)))})"


def documented(tags):
    """(names, signatures) of the functions in a tag file; a member's name has that of its class before it."""
    names, signatures = set(), set()
    for compound in xml.etree.ElementTree.parse(tags).getroot():
        scope = compound.findtext("name") + "::" if compound.get("kind") in ("class", "struct") else ""
        for member in compound.findall("member"):
            if member.get("kind") == "function":
                name = scope + member.findtext("name")
                arglist = member.findtext("arglist")
                names.add(name)
                signatures.add(f"{name} of {len(split_parameters(arglist[1: arglist.rindex(')')]))}" if scope
                               else signature(name, arglist))
    return names, signatures


def core_key(export):
    """How a core export stands among what is documented: an instance of a template by its name; a member by its name and
    the number of its parameters, because the headers have it once for all element types."""
    path, _, rest = export.partition("(")
    instance = re.fullmatch(r".* (\w+)<.*>", path)
    if instance:
        return instance.group(1)
    path = re.sub(r"<[^()]*>(?=::)|\[abi:\w+\]", "", path)
    types = split_parameters(rest[: rest.rindex(")")])
    return f"{path} of {len(types)}" if "::" in path else f"{path}({','.join(map(type_of, types))})"


def undocumented(root, tags):
    """The exports that are in no page."""
    names, signatures = documented(tags)
    missing = [name for name in (root / "exports" / "flat.txt").read_text(encoding="ascii").split() if name not in names]
    known = {*signatures, *names, *PRIVATE}
    for export in core_list.read(root):
        # A compiler assigns as it copies.
        if "(" in export and "operator=" not in export and core_key(export) not in known:
            missing.append(export)
    return missing
