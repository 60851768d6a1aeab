"""Holds the coverage of src/ to 100 % of its lines, branches and conditions.

    evaluate.py ROOT EXPORT EXEMPTIONS

EXPORT is what `llvm-cov export` says of the sources under ROOT/src. A template counts as
one: what any of its instances reaches is reached. Of a condition among several, MC/DC
asks that it was seen to decide alone how the whole comes out.

EXEMPTIONS lists what is not reached, and why; its head tells the form. An exemption that
is not needed is a failure as well.
"""

import json
import pathlib
import sys
from collections import namedtuple
from itertools import groupby

# Something that is to be seen, from one (line, column) to another.
Point = namedtuple("Point", "kind file begin end")

# Where what is known of the text changes: from here on it ran so many times.
Segment = namedtuple("Segment", "line column count has_count is_entry is_gap")

MEASURES = {
    "never run": "lines",
    "never true": "branches",
    "never false": "branches",
    "never alone": "MC/DC",
}
FUNCTION = "never called"

MCDC_BRANCH = 6  # the kind of a branch that is a condition of a decision


def lines_of(segments):
    """Which lines hold code, and whether it ran. A segment lasts until the next one."""
    ran = {}
    before = Segment(0, 0, 0, False, False, False)
    for line, group in groupby((Segment(*s) for s in segments), lambda s: s.line):
        group = list(group)
        counts = [s.count for s in group if s.has_count and s.is_entry and not s.is_gap]
        if before.has_count:
            counts.append(before.count)
            ran.update((between, before.count > 0) for between in range(before.line + 1, line))
        if counts and (group[0].has_count or not group[0].is_entry):
            ran[line] = max(counts) > 0
        before = group[-1]
    return ran


def span(region):
    return tuple(region[0:2]), tuple(region[2:4])


class Sources:
    """Every point of the sources, and whether it was seen."""

    def __init__(self, root, export):
        self.root = root
        self.texts = {}
        self.seen = {}
        self.called = {}  # (file, first line, last line) of each function
        conditions = {}
        for file in export["files"]:
            if name := self._own(file["filename"]):
                self.texts[name] = (root / name).read_text().split("\n")
                self._put_lines(name, file["segments"])
                conditions[name] = sorted(
                    {span(branch) for branch in file["branches"] if branch[8] == MCDC_BRANCH}
                )
        for function in export["functions"]:
            if name := self._own(function["filenames"][0]):
                self._put_function(name, function, conditions[name])

    def code(self, point):
        """The text of a point on one line, without a comment behind it."""
        lines = self.texts[point.file][point.begin[0] - 1 : point.end[0]]
        lines[-1] = lines[-1][: point.end[1] - 1]
        lines[0] = lines[0][point.begin[1] - 1 :]
        return " ".join(line.split("  //")[0].strip() for line in lines)

    def functions_with(self, file, code):
        return [
            place
            for place in self.called
            if place[0] == file and self.texts[file][place[1] - 1].strip() == code
        ]

    def _own(self, filename):
        path = pathlib.Path(filename)
        return str(path.relative_to(self.root)) if self.root / "src" in path.parents else None

    def _goes_on(self, file, end):
        """Whether another condition follows."""
        line, column = end
        rest = self.texts[file][line - 1][column - 1 :] + " " + self.texts[file][line]
        return rest.lstrip(" )").startswith(("&&", "||"))

    def _put(self, kind, file, place, seen):
        point = Point(kind, file, *place)
        self.seen[point] = self.seen.get(point, False) or seen

    def _put_lines(self, file, segments):
        for line, ran in lines_of(segments).items():
            text = self.texts[file][line - 1]
            if text.strip() and not text.strip().startswith("//"):
                self._put("never run", file, ((line, 1), (line, len(text) + 1)), ran)

    def _put_function(self, file, function, conditions):
        body = function["regions"][0]
        place = (file, body[0], body[2])
        self.called[place] = self.called.get(place, False) or function["count"] > 0
        for branch in function["branches"]:
            self._put("never true", file, span(branch), branch[4] > 0)
            self._put("never false", file, span(branch), branch[5] > 0)
            # The compiler leaves decisions out in which another one is nested.
            if branch[8] != MCDC_BRANCH and self._goes_on(file, span(branch)[1]):
                self._put("never alone", file, span(branch), False)
        # A condition that is a constant in this instance is no branch of it.
        varying = {span(branch) for branch in function["branches"]}
        for record in function["mcdc_records"]:
            begin, end = span(record)
            inside = [c for c in conditions if begin <= c[0] and c[1] <= end]
            if len(inside) == len(record[6]):
                for condition, alone in zip(inside, record[6]):
                    if condition in varying:
                        self._put("never alone", file, condition, alone)
            else:  # a fold over many, whose conditions stand at one place
                self._put("never alone", file, (begin, end), all(record[6]))


def read_exemptions(path):
    """Each paragraph as its first line's number and its (key, value) pairs."""
    paragraphs = []
    pairs = []
    for number, line in enumerate(path.read_text().split("\n") + [""], 1):
        if line.startswith("#"):
            continue
        if not line.strip():
            if pairs:
                paragraphs.append((first, pairs))
            pairs = []
        elif line[0].isspace():
            pairs[-1] = (pairs[-1][0], pairs[-1][1] + " " + line.strip())
        else:
            if not pairs:
                first = number
            key, value = line.split(": ", 1)
            pairs.append((key, value.strip()))
    return paragraphs


class Exemptions:
    """The points that are exempt, and what is wrong with the list."""

    def __init__(self, path, sources):
        self.points = set()
        self.faults = []
        for line, pairs in read_exemptions(path):
            where = f"{path.name}:{line}"
            values = dict(pairs)
            if not values.get("file") in sources.texts or not values.get("why"):
                self.faults.append(f"{where}: names no file of the sources, or no reason")
                continue
            for key, code in pairs:
                if key not in ("file", "why"):
                    fault = self._take(sources, values["file"], key, code)
                    if fault:
                        self.faults.append(f"{where}: {fault}: {key}: {code}")

    def _take(self, sources, file, key, code):
        seldom = key.startswith("seldom ")
        kind = key.replace("seldom ", "never ")
        if kind == FUNCTION:
            places = sources.functions_with(file, code)
            if len(places) != 1:
                return "stands at %d places" % len(places)
            if sources.called[places[0]]:
                return "not needed any more"
            _, first, last = places[0]
            self.points |= {
                p for p in sources.seen if p.file == file and first <= p.begin[0] <= last
            }
            return None
        if kind not in MEASURES:
            return "no kind of exemption"
        points = [
            p for p in sources.seen if (p.kind, p.file) == (kind, file) and sources.code(p) == code
        ]
        unseen = [p for p in points if not sources.seen[p]]
        if not points:
            return "stands nowhere"
        if len(unseen) > 1:
            return "stands at %d places" % len(unseen)
        if not unseen and not seldom:
            return "not needed any more"
        for point in unseen:
            # What is never true, or never false, cannot decide alone either.
            self.points |= {point, point._replace(kind="never alone")}
        return None


def percent(part, whole):
    return f"{100 * part / whole:.2f} %" if whole else "-"


def main(root, export_file, exemption_file):
    export = json.loads(pathlib.Path(export_file).read_text())["data"][0]
    sources = Sources(pathlib.Path(root).resolve(), export)
    exemptions = Exemptions(pathlib.Path(exemption_file), sources)

    unseen = sorted(point for point, seen in sources.seen.items() if not seen)
    missing = [point for point in unseen if point not in exemptions.points]
    for point in sorted(missing, key=lambda p: (p.file, p.begin)):
        print(f"{point.file}:{point.begin[0]}: {point.kind}: {sources.code(point)}")
    for fault in exemptions.faults:
        print(fault)

    print(f"{'':10}{'all':>6}{'seen':>7}{'':>10}{'exempt':>8}{'missing':>9}")
    for measure in dict.fromkeys(MEASURES.values()):
        whole, lost, left = (
            sum(MEASURES[point.kind] == measure for point in points)
            for points in (sources.seen, unseen, missing)
        )
        seen = whole - lost
        print(f"{measure:10}{whole:6}{seen:7}{percent(seen, whole):>10}{lost - left:8}{left:9}")
    return 1 if missing or exemptions.faults else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
