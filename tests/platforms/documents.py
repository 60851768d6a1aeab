#!/usr/bin/env python3
"""Writes the documents that every platform reads: those of the tree, and made-up ones, the
same in each run, which follow the schemas of the text forms and break them.

    documents.py FOLDER

A document is the file FOLDER/KIND/NAME. The kinds, and what the first byte of a document of
some of them stands for, are those of fuzz/corpus.
"""

import base64
import json
import shutil
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]

# Each kind with the documents of the tree that are of it, besides those of fuzz/corpus.
OF_THE_TREE = {
    "cut_reply": ["examples/data/cut*.json", "examples/data/broken/cut*.json"],
    "report": ["examples/data/analysis_report.json", "examples/data/broken/report*.json"],
    "storyboard": ["examples/data/storyboard.json", "examples/data/broken/storyboard*.json"],
    "highlight": ["examples/data/highlight.json"],
    "parameters": ["examples/data/datamap.json"],
    "description": ["examples/data/*.json", "examples/data/broken/*.json", "examples/data/list/*"],
    "record": ["examples/data/*.json", "examples/data/broken/*.json"],
}

# Each kind that has a schema with its schemas, and how many documents to make up.
BY_SCHEMA = {
    "cut_reply": (["cut"], 200),
    "report": (["report"], 200),
    "storyboard": (["storyboard"], 120),
    "highlight": (["highlight"], 80),
    "parameters": (["datamap"], 80),
    "description": (["resource"], 220),
    "record": (["record", "record-stock", "record-giphy", "record-vcg"], 220),
}


class Dice:
    """Numbers that look random; those of splitmix64, so that no library can change them."""

    def __init__(self, seed):
        self.state = seed

    def below(self, bound):
        self.state = (self.state + 0x9E3779B97F4A7C15) % 2**64
        word = self.state
        word = (word ^ word >> 30) * 0xBF58476D1CE4E5B9 % 2**64
        word = (word ^ word >> 27) * 0x94D049BB133111EB % 2**64
        return (word ^ word >> 31) % bound

    def one_in(self, bound):
        return self.below(bound) == 0

    def choice(self, choices):
        return choices[self.below(len(choices))]


NAMES = ["skipper", "tess", "", "zoë", "\uff5e", "\U0001f3ac", "7", "100", "-12", "Ann", "ann"]
WORDS = ["harbour", "dawn", "caf\xe9", "\x7f", "a\0b", "\\", '"', "/", "\t\n", "\u2028",
         "\U0001f3ac", "x" * 40, "1920x1080", "16_9", "t2m", "9007199254740993"]
# Integers at the edges of what a size of word holds, and digits that take more than one look.
EDGES = [0, 1, -1, 7, 99, 255, 256, 12345678, 123456789, 99999999, 2**31 - 1, 2**31, -(2**31),
         -(2**31) - 1, 2**32 - 1, 2**32, 2**32 + 1, 2**53 + 1, 2**63 - 1, 2**63 - 2, -(2**63)]
# Numbers as they are written, which are no integers, or none that fit.
NUMBERS = ["-0", "0.0", "1.0", "1e2", "1E-400", "4.9e-324", "2.2250738585072014e-308", "1e308",
           "1.7976931348623157e308", "0.1", "0.30000000000000004", "9223372036854775808",
           "-9223372036854775809", "18446744073709551616", "123456789012345678901234567890",
           "2.5", "1.5e3", "3.4028235e38", "1e-45"]
# Bytes that are no UTF-8: lone, cut off, overlong, a surrogate, beyond the last.
NO_UTF8 = [b"\xff", b"\x80", b"\xe2\x82", b"\xc0\xaf", b"\xed\xa0\x80", b"\xf4\x90\x80\x80"]


class Members(list):
    """An object's, of which several may have one name."""


class Number:
    """A number with its characters."""

    def __init__(self, characters):
        self.characters = characters


def some_time(dice):
    fields = [str(dice.choice([0, 1, 9, 59, 60, 61, 99, 596, 597, 35791, 2**31, 2**32 + 1]))
              for _ in range(3)]
    if dice.one_in(9):
        fields[dice.below(3)] = dice.choice(["", " 7", "-3", "+4", "x", "0x10", "007"])
    if dice.one_in(9):
        del fields[dice.below(4):]
    return ":".join(fields) + ("Z" if dice.below(4) else "")


def some_span(dice):
    return some_time(dice) + dice.choice(["-"] * 9 + ["", "--", " - "]) + some_time(dice)


def some_base64(dice):
    text = base64.b64encode(bytes(dice.below(256) for _ in range(dice.below(70)))).decode()
    if text and dice.one_in(3):
        at = dice.below(len(text))
        text = text[:at] + dice.choice(["\r\n", "=", " ", "-", "\xe9", "=="]) + text[at:]
    return text


def some_text(dice, schema):
    if "examples" in schema and dice.below(5):
        return dice.choice(schema["examples"])
    if schema.get("contentEncoding") == "base64":
        return some_base64(dice)
    if "Z?" in schema.get("pattern", ""):
        return some_span(dice)
    return " ".join(dice.choice(WORDS) for _ in range(dice.below(4)))


def some_integer(dice, schema):
    low, high = schema.get("minimum", -(2**63)), schema.get("maximum", 2**63 - 1)
    fitting = [edge for edge in EDGES if low <= edge <= high]
    return dice.choice(fitting or EDGES) if dice.one_in(3) else dice.below(100000)


def something(dice):
    """A value of any type, as where another was expected."""
    return dice.choice([None, True, False, "", "12", [], {}, [1, [2]], {"a": {"b": []}}, -5,
                        Number(dice.choice(NUMBERS)), dice.choice(EDGES), dice.choice(WORDS)])


def value_of(schema, dice, odd):
    """A value that the schema describes; about one in `odd` is any other."""
    if dice.one_in(odd) or "type" not in schema:
        return something(dice)
    if schema["type"] == "string":
        return some_text(dice, schema)
    if schema["type"] == "integer":
        return some_integer(dice, schema)
    if schema["type"] == "array":
        return [value_of(schema["items"], dice, odd) for _ in range(dice.below(5))]
    members = []
    required = schema.get("required", [])
    for name, member in schema.get("properties", {}).items():
        if name in required or dice.below(4):
            members.append((name, value_of(member, dice, odd)))
    if "additionalProperties" in schema:
        named = schema["additionalProperties"]
        counted = "propertyNames" in schema or "score" in named.get("description", "")
        names = [str(edge) for edge in EDGES[:-6]] if counted and dice.below(9) else NAMES
        for _ in range(dice.below(6)):
            members.append((dice.choice(names), value_of(named, dice, odd)))
    while dice.one_in(4):
        members.append((dice.choice(WORDS), something(dice)))
    if members and dice.one_in(6):
        members.append((dice.choice(members)[0], something(dice)))
    if dice.one_in(3):
        members.insert(0, members.pop() if members else ("", None))
    return Members(members)


def written(value, dice, noisy):
    """The JSON text, with what a tolerant reader takes besides if it is to be noisy."""
    gap = dice.choice(["", "", "", " ", "\n\t", "/* a */", "// b\n"]) if noisy else ""
    comma = "," if noisy and dice.one_in(4) else ""
    if isinstance(value, Number):
        return gap + value.characters
    if isinstance(value, (Members, dict)):
        pairs = value if isinstance(value, Members) else value.items()
        inside = [f"{written(n, dice, noisy)}{gap}:{written(v, dice, noisy)}" for n, v in pairs]
        return gap + "{" + ",".join(inside) + (comma if inside else "") + "}"
    if isinstance(value, list):
        inside = [written(v, dice, noisy) for v in value]
        return gap + "[" + ",".join(inside) + (comma if inside else "") + "]"
    return gap + json.dumps(value, ensure_ascii=dice.one_in(2))


def damaged(text, dice):
    """Bytes of which some were lost, doubled or replaced."""
    at = dice.below(len(text) + 1)
    return dice.choice([text[:at], text[:at] + text[at + 1:], text[:at] + text[at - 1:],
                        text[:at] + dice.choice(NO_UTF8) + text[at:],
                        text[:at] + bytes([dice.below(256)]) + text[at + 1:],
                        b"\xef\xbb\xbf" + text, text + b"\0}"])


def by_schema(schema, dice):
    value = value_of(schema, dice, dice.choice([6, 20, 1000]))
    text = written(value, dice, dice.one_in(3)).encode()
    return damaged(text, dice) if dice.one_in(4) else text


def description_lists(dice, descriptions):
    for _ in range(30):
        texts = [dice.choice(descriptions) for _ in range(dice.below(6))]
        yield b"\n".join(text.replace(b"\n", b" ") for text in texts)


def value_texts(dice):
    others = ["inf", "-nan", "0x1p-1074", "1e999", "-1e999"]
    for text in [str(edge) for edge in EDGES] + NUMBERS + others:
        for form in ("{}", "  {}", "+{}", "{}x", "{}.5"):
            yield b"\2" + form.format(text).encode()
    # A double of every magnitude, halves between two, and six decimals that end in a five.
    for power in range(-330, 310, 7):
        yield b"\2" + f"{dice.below(10)}.{dice.below(10**17):017d}e{power}".encode()
    for whole in range(40):
        yield b"\2" + f"{whole}.{dice.below(10**6):06d}5".encode()
        yield b"\2" + str(2**53 + 2 * whole + 1).encode()
        yield b"\2" + f"{2**24 + 2 * whole + 1}.{'0' * whole}1".encode()
    for word in WORDS:
        yield b"\7" + word.encode()


def made_up(dice):
    descriptions = []
    for kind, (schemas, count) in BY_SCHEMA.items():
        files = [ROOT / "schemas" / f"{schema}.schema.json" for schema in schemas]
        read = [json.loads(file.read_text()) for file in files]
        for _ in range(count):
            text = by_schema(dice.choice(read), dice)
            if kind == "description":
                descriptions.append(text)
            yield kind, (bytes([dice.below(20)]) if kind == "record" else b"") + text
    for text in description_lists(dice, descriptions):
        yield "description_list", text
    for text in value_texts(dice):
        yield "value_text", text
    for _ in range(80):
        yield "base64", some_base64(dice).encode()
        yield "time_text", some_span(dice).encode()
        # Keys in the order of their bytes, whatever a char's sign.
        keys = [dice.choice(NAMES + WORDS).encode() for _ in range(dice.below(9))]
        yield "keys", b"\n".join(keys + [dice.choice(NO_UTF8)]).replace(b"\0", b"")


def of_the_tree():
    for kind in sorted((ROOT / "fuzz" / "corpus").iterdir()):
        for file in sorted(kind.iterdir()):
            yield kind.name, file.name, file.read_bytes()
    for kind, patterns in OF_THE_TREE.items():
        for pattern in patterns:
            for file in sorted(ROOT.glob(pattern)):
                first = b"\0" if kind == "record" else b""
                yield kind, f"{file.parent.name}_{file.name}", first + file.read_bytes()


def main():
    folder = Path(sys.argv[1])
    shutil.rmtree(folder, ignore_errors=True)
    count = 0

    def write(kind, name, text):
        nonlocal count
        (folder / kind).mkdir(parents=True, exist_ok=True)
        (folder / kind / name).write_bytes(text)
        count += 1

    for kind, name, text in of_the_tree():
        if kind != "lists":  # operations, no texts
            write(kind, name, text)
    for number, (kind, text) in enumerate(made_up(Dice(1))):
        write(kind, f"made_up_{number:04}", text)
    print(f"{count} documents")


if __name__ == "__main__":
    main()
