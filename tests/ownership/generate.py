"""Turns the rows of docs/ownership.md into a source that drives them.

Called with the page, the folder of the public headers, and the source to write. Each row
through which something passes becomes one statement; what cannot be called by a pointer
alone is left to the rows that are driven by hand.
"""

import pathlib
import sys

sys.path.append(str(pathlib.Path(__file__).parents[1] / "support"))
import headers  # noqa: E402
import table  # noqa: E402

# The lists that stand for those of their kind.
LISTS = {
    "counted objects": ["ZOLBaseObjectList", "IZolTextInfoList", "IZolBGRDataList"],
    "texts": ["ZOLPCharList"],
    "values": ["ZOLIntList", "ZolValueList", "PropertyList"],
}

# What no pointer to a member or no argument of a general kind can show.
BY_HAND = ["ZolValue", "IDmBaseObj", "ListInterface of raw memory"]

FRAME = """// Made from docs/ownership.md; not to be changed by hand.

#include "ownership/drive.h"

namespace {

constexpr Written kWritten[] = {
%s
};

}  // namespace

void addRows(Rows& rows) {
%s
}
"""


def null(row, name, taken):
    if name in row.null_refused:
        return "refused"
    return "taken" if taken.may_be_null else "forbidden"


def written(row, owner, declaration):
    names = "".join(f'"{name}", ' for _, name in declaration.parameters)
    takes = "".join(
        f'{{"{name}", Word::{taken.word}, Word::{taken.elements or "nothing"}, '
        f"Null::{null(row, name, taken)}}}, " for name, taken in row.takes.items())
    always = "true" if row.refused == ["always"] else "false"
    return (f'    {{"{owner}", "{declaration.name}", "{row.signature}", {{{names}nullptr}}, '
            f"Word::{row.gives or 'nothing'}, {always}, {{{takes}{{}}}}}},")


def sections(rows, declarations):
    """The two lists that fill the frame: what is written, and what adds it."""
    texts, calls = [], []
    for row in rows:
        declaration = declarations[(row.owner, row.signature)]
        title = f"{row.owner} of {row.kind}" if row.kind else row.owner
        if row.by_value:
            continue
        if title in BY_HAND:
            calls.append(f'  rows.byHand("{title}: {row.signature}");')
            continue
        for owner in LISTS[row.kind] if row.kind else [row.owner]:
            made = owner.removesuffix("Internal")
            add, pointer = (
                (f"operation<ZOL::{owner}, ZOL::{made}>", f"&ZOL::{owner}::{declaration.name}")
                if owner else ("function", f"&::{declaration.name}"))
            calls.append(f"  rows.{add}(kWritten[{len(texts)}], {pointer});")
            texts.append(written(row, owner, declaration))
    return "\n".join(texts), "\n".join(calls)


def main():
    page, include, source = sys.argv[1:]
    declarations = {(each.owner, each.signature): each
                    for each in headers.operations(include) + headers.functions(include)}
    pathlib.Path(source).write_text(FRAME % sections(table.rows(page), declarations), "ascii")


if __name__ == "__main__":
    sys.exit(main())
