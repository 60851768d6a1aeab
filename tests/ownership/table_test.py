"""The table of docs/ownership.md has a row for each declaration of the headers, and no other.

Called with the page and the folder of the public headers.
"""

import pathlib
import re
import sys

sys.path.append(str(pathlib.Path(__file__).parents[1] / "support"))
import headers  # noqa: E402
import table  # noqa: E402


def declared(include):
    return headers.operations(include) + headers.functions(include)


def missing_and_surplus(rows, declarations):
    in_headers = [(each.header, each.owner, each.signature) for each in declarations]
    for kind in sorted({row.kind for row in rows}):
        of_kind = [(row.header, row.owner, row.signature) for row in rows if row.kind == kind]
        # A class with a section for each kind of element has all its operations in each.
        owners = {owner for _, owner, _ in of_kind}
        wanted = [each for each in in_headers if each[1] in owners]
        yield from (f"missing: {owner or header}: {signature}"
                    for header, owner, signature in wanted
                    if (header, owner, signature) not in of_kind)
        yield from (f"twice: {owner or header}: {signature}"
                    for header, owner, signature in sorted(set(of_kind))
                    if of_kind.count((header, owner, signature)) > 1)
    named = [(row.header, row.owner, row.signature) for row in rows]
    yield from (f"not in the headers: {owner or header}: {signature}"
                for header, owner, signature in named
                if (header, owner, signature) not in in_headers)
    covered = {row.owner for row in rows}
    yield from (f"no section: {owner}"
                for owner in sorted({each.owner for each in declarations} - covered))


def passes_by_pointer(kind):
    return "*" in kind or "&" in kind


def wrong_cells(row, declaration):
    """What cannot be right for an operation of that type."""
    where = f"{row.owner or row.header}: {row.signature}"
    names = [name for _, name in declaration.parameters]
    yield from (f"{where}: has no argument '{name}'"
                for name in [*row.takes, *row.null_refused] if name not in names)
    if row.kind or row.owner == "ZolValue":
        return  # what passes depends on the element, or on the kind of the value
    pointers = [name for kind, name in declaration.parameters if passes_by_pointer(kind)]
    yield from (f"{where}: says nothing of '{name}'" for name in pointers if name not in row.takes)
    yield from (f"{where}: '{name}' is a value" for name in row.takes if name not in pointers)
    if passes_by_pointer(declaration.result) != bool(row.gives):
        yield f"{where}: gives '{row.gives}' as {declaration.result}"
    if row.by_value and (pointers or passes_by_pointer(declaration.result)):
        yield f"{where}: not by value"
    lists = [name for kind, name in declaration.parameters if re.match(r"\w+List\*", kind)]
    yield from (f"{where}: '{name}' has no elements"
                for name, taken in row.takes.items() if taken.elements and name not in lists)


def main():
    page, include = sys.argv[1:]
    rows = table.rows(page)
    declarations = declared(include)
    faults = list(missing_and_surplus(rows, declarations))
    by_name = {(each.owner, each.signature): each for each in declarations}
    for row in rows:
        if declaration := by_name.get((row.owner, row.signature)):
            faults += wrong_cells(row, declaration)
    print(*faults, f"{len(rows)} rows for {len(declarations)} declarations", sep="\n")
    return 1 if faults or len(declarations) < 500 else 0


if __name__ == "__main__":
    sys.exit(main())
