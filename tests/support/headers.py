"""The declarations of the public headers, as a table to compare another table with.

It reads the plain style in which the headers are written and no more of the language: a
class at the margin, one operation after another, functions behind `extern "C"`.
"""

import pathlib
import re
from typing import NamedTuple

# In the order in which the headers build on each other.
HEADERS = ["frame", "lists", "media", "params", "resource", "cutscript", "search"]


class Declaration(NamedTuple):
    header: str
    owner: str  # the class, or "" for a function
    signature: str  # as in the header, on one line

    @property
    def name(self):
        return re.search(r"([\w~]+|operator\S+)\(", self.signature).group(1)

    @property
    def result(self):
        return self.signature[: self.signature.index(self.name + "(")].strip()

    @property
    def parameters(self):
        """Pairs of a type and a name."""
        inside = self.signature[self.signature.index("(") + 1 : self.signature.rindex(")")]
        return [re.fullmatch(r"(.+?[ *&])(\w+)", part.strip()).groups()
                for part in inside.split(",") if part.strip()]


class Class(NamedTuple):
    header: str
    name: str
    body: str


def _read(include, header):
    text = (pathlib.Path(include) / "KyDataStructure" / f"{header}.h").read_text("ascii")
    return re.sub(r"//.*", "", text)


def _one_line(text):
    text = re.sub(r"\s+", " ", text).strip()
    return re.sub(r"\( ", "(", text).replace("ZOL::", "")


def classes(include):
    found = []
    for header in HEADERS:
        for name, body in re.findall(r"^class (\w+)(?:\s*:[^{;]+)? \{\n(.*?)^\};",
                                     _read(include, header), re.MULTILINE | re.DOTALL):
            found.append(Class(header, name, body))
    return found


def operations(include):
    """Each virtual operation, and each exported member of a plain class."""
    found = []
    for each in classes(include):
        public = each.body.split("\n private:")[0]
        for text in re.findall(r"virtual ([^;{}]+?) = 0;|^  (\w[^;{}]+?) override = 0;|"
                               r"KYDATASTRUCTURE_API ([^;{}]+?);", public, re.MULTILINE):
            found.append(Declaration(each.header, each.name, _one_line("".join(text))))
    return found


def functions(include):
    found = []
    for header in HEADERS:
        for block in re.findall(r'^extern "C" \{(.*?)^\}', _read(include, header),
                                re.MULTILINE | re.DOTALL):
            for text in re.findall(r"KYDATASTRUCTURE_API ([^;]+);", block):
                found.append(Declaration(header, "", _one_line(text)))
    return found


def factories(include):
    return [each for each in functions(include) if each.name.startswith("create")]
