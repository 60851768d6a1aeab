"""The rows of docs/ownership.md."""

import pathlib
import re
from typing import NamedTuple

WORDS = ["lent", "owned", "kept", "copied"]


class Taken(NamedTuple):
    word: str
    elements: str  # of a list; "" where they do not pass on
    may_be_null: bool


class Row(NamedTuple):
    header: str
    owner: str  # the class, or "" for a function
    kind: str  # of a list's elements, where a class has a section for each
    signature: str
    gives: str
    takes: dict  # argument -> Taken
    refused: list
    by_value: bool

    @property
    def null_refused(self):
        return [match.group(1) for each in self.refused
                if (match := re.fullmatch(r"null `(\w+)`", each))]


def _taken(text, where):
    match = re.fullmatch(r"`(\w+)` (\w+)(?:, elements (\w+))?(, not null)?", text)
    words = [word for word in match.groups()[1:3] if word] if match else []
    if not match or not set(words) <= set(WORDS):
        raise ValueError(f"{where}: what is '{text}'?")
    name, word, elements, not_null = match.groups()
    return name, Taken(word, elements or "", not not_null)


def _row(header, owner, kind, line):
    cells = [cell.strip() for cell in line.strip("|").split("|")]
    if len(cells) != 4 or not re.fullmatch(r"`[^`]+`", cells[0]):
        raise ValueError(f"not a row of four cells: {line}")
    if cells[1] not in ["", *WORDS]:
        raise ValueError(f"{cells[0]}: what is '{cells[1]}'?")
    takes = dict(_taken(each.strip(), cells[0]) for each in cells[2].split(";") if each.strip())
    refused = [each.strip() for each in cells[3].split(",") if each.strip()]
    return Row(header, owner, kind, cells[0].strip("`"), cells[1], takes, refused, False)


def rows(path):
    """In the order of the page."""
    found = []
    header = owner = kind = ""
    # The names of operations by value run over several lines.
    text = re.sub(r"^By value:(.*?)\.$", lambda each: each.group(0).replace("\n", " "),
                  pathlib.Path(path).read_text("ascii"), flags=re.MULTILINE | re.DOTALL)
    for line in text.splitlines():
        if match := re.fullmatch(r"## (\w+)\.h", line):
            header = match.group(1)
        elif match := re.fullmatch(r"### (\w+)(?: of (.+))?", line):
            owner, kind = match.group(1), match.group(2) or ""
            owner = "" if owner == "Functions" else owner
        elif line.startswith("| `"):
            found.append(_row(header, owner, kind, line))
        elif line.startswith("By value:"):
            found += [Row(header, owner, kind, signature, "", {}, [], True)
                      for signature in re.findall(r"`([^`]+)`", line)]
    return found
