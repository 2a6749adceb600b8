"""The pages in docs/ as Doxygen reads them: links lead to pages and functions of the site."""

import re

from .flat_headers import HEADERS, Problem
from .reference_page import escape
from .vba_module import first_sentence

# Pages for callers, below docs/; those for people who change the library stay out.
PAGES = ("guide/*.md", "worksheet.md", "names.md", "windows.md", "licences.md")
REFERENCE = "reference.md"

LINK = re.compile(r"\[([^\[\]]+)\]\(([^()\s]+)\)")
PREFIX = re.compile(r"^(?:VB_|Cpp_)?(?:[MV]_)?")
CODE = re.compile(r"`(\w+)`")


def page_label(path):
    return "index" if path.name == "index.md" else f"page_{path.stem}"


class Page:
    """Where a page stands, and what its links may lead to."""

    def __init__(self, root, path, pages, functions, problems):
        self.root = root
        self.path = path
        self.pages = pages
        self.functions = functions
        self.problems = problems

    def target(self, text, link, line):
        """What a link becomes: Markdown with a reference into the site, or the text alone when it leads out of it."""
        if re.match(r"https?://", link):
            return f"[{text}]({link})"
        file, _, anchor = link.partition("#")
        where = (self.path.parent / file).resolve() if file else self.path
        name = text.strip("`")
        if where == self.root / "docs" / REFERENCE and anchor:
            if name in self.functions and name.lower() == anchor:
                return f"[{name}](@ref {name})"
        elif where == self.root / "docs" / REFERENCE:
            return f"[{text}](@ref page_letters)"
        elif where in self.pages and not anchor:
            return f"[{text}](@ref {page_label(where)})"
        elif where.is_file() and (self.root / HEADERS) in where.parents:
            return f"[{text}](@ref {where.relative_to((self.root / HEADERS).parent).as_posix()})"
        elif where.exists() and where not in self.pages:
            return text
        self.problems.append(Problem(self.path.relative_to(self.root).as_posix(), line,
                                     f"the link to {link} from '{text}' leads nowhere"))
        return text

    def linked(self, text, line):
        """A line in which links lead into the site, and so does each name of a function that stands as code."""
        pieces = []
        rest = 0
        for found in LINK.finditer(text):
            pieces += [self.names_linked(text[rest: found.start()]), self.target(*found.groups(), line)]
            rest = found.end()
        return "".join(pieces) + self.names_linked(text[rest:])

    def names_linked(self, text):
        return CODE.sub(lambda code: f"[{code[1]}](@ref {code[1]})" if code[1] in self.functions else code[0], text)

    def read(self):
        lines = []
        in_block = False
        for number, line in enumerate(self.path.read_text(encoding="utf-8").splitlines(), 1):
            if line.startswith("```"):
                in_block = not in_block
            elif not in_block:
                line = self.linked(line, number)
            if number == 1 and page_label(self.path) != "index":
                line += f" {{#{page_label(self.path)}}}"
            lines.append(line)
        return "".join(f"{line}\n" for line in lines)


def letters(headers):
    """A page of all flat functions by the letter behind what their names have in common."""
    functions = [(PREFIX.sub("", function.name), function) for header in headers for function in header.functions]
    lines = ["# Functions by letter {#page_letters}", "", "The flat functions without the pieces `VB_`, `Cpp_`, `M_` and `V_` "
             "that their names start with."]
    last = ""
    for name, function in sorted(functions, key=lambda pair: (pair[0].upper(), pair[1].name)):
        if name[0].upper() != last:
            last = name[0].upper()
            lines += ["", f"## {last}", ""]
        lines.append(f"- [{function.name}](@ref {function.name}): {escape(first_sentence(function.doc.text))}")
    return "".join(f"{line}\n" for line in lines)


def all_pages(root, headers):
    """What Doxygen is to read of each page, as {file name: text}, and the problems found."""
    problems = []
    functions = {function.name for header in headers for function in header.functions}
    paths = [path for pattern in PAGES for path in sorted((root / "docs").glob(pattern))]
    pages = {path.name: Page(root, path, set(paths), functions, problems).read() for path in paths}
    pages["letters.md"] = letters(headers)
    return pages, problems
