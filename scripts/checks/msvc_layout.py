#!/usr/bin/env python3
"""The order of operations is the same under the object layout of Microsoft's compiler.

Clang knows that layout and tells, for a class, what its tables of virtual operations hold.
For every interface of the public headers this compares them with the table in
tests/boundary/operation_order_test.cpp, which the library's own build is held to:

  - an interface continues the table of its base, and has no other;
  - but of a virtual base, where that layout begins a table anew: there the interface's own
    operations stand in a table by themselves, in the same order, and the base has its own;
  - there is nothing else in a table, no destructor among others;
  - no two operations of an interface have one name: that layout turns their order around.

  msvc_layout.py [--self-test] [COMPILER]    COMPILER is clang++ by default
"""

import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path
from typing import NamedTuple

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "support"))
from faulty_copy import Fault, FaultyCopy  # noqa: E402

TARGETS = ["x86_64-pc-windows-msvc", "i686-pc-windows-msvc"]
HEADERS = "include/KyDataStructure"
ORDER_TEST = "tests/boundary/operation_order_test.cpp"

# In place of Microsoft's headers, all that the public headers take from the standard library.
STAND_INS = {
    "cstddef": "#include <stddef.h>\nnamespace std { using ::ptrdiff_t; using ::size_t; }\n",
    "cstdint": "#include <stdint.h>\nnamespace std { using ::int32_t; using ::uint32_t;\n"
               "using ::int64_t; using ::uint64_t; using ::uint8_t; using ::uintptr_t; }\n",
}


class Interface(NamedTuple):
    name: str
    first: int  # the place of the first operation of its own where all tables continue
    operations: list


class Misplaced(Exception):
    """The order test and the headers do not agree on where an interface's own begin."""


class Base(NamedTuple):
    name: str
    is_virtual: bool


def declared_bases(root):
    """The base of each class in the public headers, or None."""
    found = {}
    for header in sorted((root / HEADERS).glob("*.h")):
        if header.stem == "ref":  # counted pointers, which are no interfaces
            continue
        text = re.sub(r"//.*", "", header.read_text("ascii"))
        for name, virtual, base in re.findall(
                r"^class (\w+)(?:\s*:\s*public (virtual )?(\w+)[^{;]*)?\s*\{", text, re.MULTILINE):
            found[name] = Base(base, bool(virtual)) if base else None
    return found


def expected_interfaces(root):
    """The rows of the table of the order test."""
    text = (root / ORDER_TEST).read_text("ascii")
    base = re.search(r"kBehindBase = (\d+);", text).group(1)
    row = re.compile(r"interface<(?:ZOL::)?(\w+)>\(\s*(?:\"\w+\"|List::interfaceName), "
                     r"(\w+),(.*?)\}\)[,;]|list<ZOL::(\w+)>\(\)", re.DOTALL)
    found = []
    of_lists = None
    for name, first, body, list_name in row.findall(text):
        first = int(base if first == "kBehindBase" else first or 0)
        operations = re.findall(r"\{\"(\w+)\",\s*placeOf", body)
        if name == "List":
            of_lists = Interface("", first, operations)
        else:
            found.append(of_lists._replace(name=list_name) if list_name
                         else Interface(name, first, operations))
    return found


def base_of(name, bases):
    base = bases[name]
    return base_of(base.name, bases) if base and base.name == "ListInterface" else base


def places(name, interfaces, bases):
    """Its operations as one table that all bases continue has them."""
    base = base_of(name, bases)
    table = places(base.name, interfaces, bases) if base else []
    return table + own_operations(name, interfaces, bases)


def own_operations(name, interfaces, bases):
    """Those that its base does not have: a row may begin with one that returns a more special
    object, in the base's place."""
    row = interfaces[name]
    base = base_of(name, bases)
    inherited = places(base.name, interfaces, bases) if base else []
    again = len(inherited) - row.first
    if again < 0 or inherited[row.first:] != row.operations[:again]:
        raise Misplaced(f"{name}: begins at {row.first}, and its base ends at {len(inherited)}")
    return row.operations[again:]


def expected_tables(name, interfaces, bases):
    """The operations in each table of an interface, and in each of them in their order; its
    own first."""
    base = base_of(name, bases)
    own = own_operations(name, interfaces, bases)
    if not base:
        return [own]
    inherited = expected_tables(base.name, interfaces, bases)
    if not base.is_virtual:
        return [inherited[0] + own] + inherited[1:]
    return ([own] if own else []) + inherited


def told_tables(compiler, target, root, names):
    """The same as clang tells it, by the name of the interface."""
    with tempfile.TemporaryDirectory() as folder:
        for header, text in STAND_INS.items():
            (Path(folder) / header).write_text(text)
        # A class makes its tables where its constructor stands.
        source = Path(folder) / "tables.cpp"
        source.write_text("#include <KyDataStructure/KyDataStructure.h>\n" + "".join(
            f"struct Of{name} : ZOL::{name} {{ Of{name}(); }};\nOf{name}::Of{name}() {{}}\n"
            for name in names))
        done = subprocess.run(
            [compiler, f"--target={target}", "-std=c++14", "-ffreestanding", "-c", source,
             f"-I{root / 'include'}", f"-isystem{folder}",
             "-Xclang", "-emit-llvm-only", "-Xclang", "-fdump-vtable-layouts"],
            text=True, capture_output=True, check=False)
    if done.returncode != 0:
        raise SystemExit(f"the headers do not compile for {target}:\n{done.stderr}")
    found = {name: [] for name in names}
    for path, count, body in re.findall(
            r"^VFTable for (.+) \((\d+) entr(?:y|ies)\)\.\n((?:.+\n)*)", done.stdout, re.MULTILINE):
        name = path.split("'")[-2]
        if not name.startswith("Of"):
            continue
        entries = re.findall(r"^ *\d+ \| (.+)$", body, re.MULTILINE)
        if len(entries) != int(count):
            raise SystemExit(f"clang tells of {count} entries and shows {len(entries)}:\n{body}")
        operations = [re.search(r"(~?\w+)\(", entry).group(1) for entry in entries
                      if not entry.endswith(" RTTI")]
        found[name[len("Of"):]].append(operations)
    return found


def difference(expected, told):
    """The tables that are not in both, each between brackets."""
    def show(tables, others):
        rest = [table for table in tables if table not in others]
        return " ".join(f"[{' '.join(table)}]" for table in rest) or "nothing"
    return f"expected {show(expected, told)}, has {show(told, expected)}"


def faults(compiler, root):
    """What is wrong, one line each; and a line with figures."""
    rows = expected_interfaces(root)
    interfaces = {row.name: row for row in rows}
    bases = declared_bases(root)
    found = []
    abstract = set(bases) - {"ListInterface", "ZolValue"}
    for name in sorted(abstract ^ set(interfaces)):
        found.append(f"{name}: not both in the headers and in the table of the order test")
    names = sorted(abstract & set(interfaces))
    try:
        expected = {name: expected_tables(name, interfaces, bases) for name in names}
    except Misplaced as misplaced:
        return [*found, str(misplaced)], ""
    for name in names:
        operations = interfaces[name].operations
        for operation in sorted({each for each in operations if operations.count(each) > 1}):
            found.append(f"{name}: several operations {operation}, whose order that layout turns")
    for target in TARGETS:
        told = told_tables(compiler, target, root, names)
        for name in names:
            if sorted(told[name]) != sorted(expected[name]):
                found.append(f"{name}, {target}: {difference(expected[name], told[name])}")
    tables = sum(map(len, expected.values()))
    operations = sum(len(interfaces[name].operations) for name in names)
    return found, f"{len(names)} interfaces, {tables} tables, {operations} operations"


FRAME = f"{HEADERS}/frame.h"
CUTS = f"{HEADERS}/cutscript.h"

# Each of them is one fault, or several changes that are one. Where the table of the order test
# is changed as well, only the layout itself can tell.
SELF_TEST = {
    "two operations changed places": [
        Fault("", FRAME, "virtual int refCount() = 0;", "virtual IReleaseHook* hook_() = 0;"),
        Fault("", FRAME, "virtual IReleaseHook* releaseHook() = 0;", "virtual int refCount() = 0;"),
        Fault("", FRAME, "virtual IReleaseHook* hook_() = 0;",
              "virtual IReleaseHook* releaseHook() = 0;"),
    ],
    "two operations of an interface with a virtual base changed places": [
        Fault("", CUTS, "virtual const char* screenText1() = 0;",
              "virtual const char* screenText() = 0;"),
        Fault("", CUTS, "virtual const char* screenText2() = 0;",
              "virtual const char* screenText1() = 0;"),
        Fault("", CUTS, "virtual const char* screenText() = 0;",
              "virtual const char* screenText2() = 0;"),
    ],
    "an operation in between": [
        Fault("", FRAME, "  virtual int refCount() = 0;\n",
              "  virtual int refCount() = 0;\n  virtual int more() = 0;\n"),
    ],
    "an operation behind the last": [
        Fault("", FRAME, "  virtual unsigned long long length() = 0;\n",
              "  virtual unsigned long long length() = 0;\n  virtual int more() = 0;\n"),
    ],
    "a virtual destructor": [
        Fault("", FRAME, "  ~IZolPChar() = default;", "  virtual ~IZolPChar() = default;"),
    ],
    "an operation that overloads another, as the order test knows": [
        Fault("", FRAME, "virtual int appendText(const char* text, long long length) = 0;",
              "virtual int setText(const char* text) = 0;"),
        Fault("", ORDER_TEST, '{"appendText", placeOf(&ZOL::IZolString::appendText)}',
              '{"setText", placeOf(&ZOL::IZolString::setText)}'),
    ],
    "a second base with operations": [
        Fault("", FRAME, "class IZolPChar : public IDmBaseObj {",
              "class IZolPChar : public IDmBaseObj, public IReleaseHook {"),
    ],
}


def self_test(compiler):
    with tempfile.TemporaryDirectory() as folder:
        copy = FaultyCopy(Path(folder) / "tree", ["include", "tests/boundary"])
        for what, changes in SELF_TEST.items():
            for change in changes:
                copy.put(change)
            found, _ = faults(compiler, copy.folder)
            if not found:
                raise SystemExit(f"msvc_layout: not seen: {what}")
            print(f"seen: {what}\n  {found[0]}")
            for change in changes:
                copy.mend(change)
        found, _ = faults(compiler, copy.folder)
        if found:
            raise SystemExit(f"msvc_layout: the copy is not whole again: {found[0]}")


def main(arguments):
    wants_self_test = arguments[:1] == ["--self-test"]
    compiler = (arguments[wants_self_test:] or ["clang++"])[0]
    if not shutil.which(compiler):
        raise SystemExit(f"msvc_layout: there is no {compiler}")
    found, figures = faults(compiler, ROOT)
    for fault in found:
        print(fault, file=sys.stderr)
    if found:
        raise SystemExit(f"msvc_layout: {len(found)} faults")
    print(f"{figures}, as in the order test, for {' and '.join(TARGETS)}")
    if wants_self_test:
        self_test(compiler)


main(sys.argv[1:])
