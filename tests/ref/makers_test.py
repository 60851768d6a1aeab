"""ref.h has a maker for each factory of the headers. Called with their folder."""

import pathlib
import re
import sys

sys.path.append(str(pathlib.Path(__file__).parents[1] / "support"))
import headers  # noqa: E402


def differences(name, found, wanted):
    for each in sorted(set(wanted) - set(found)):
        yield f"{name} lacks {each}"
    for each in sorted(set(found) - set(wanted)):
        yield f"{name} has {each}, which no header declares"
    for each in sorted({each for each in found if found.count(each) > 1}):
        yield f"{name} has {each} twice"


def main():
    include = sys.argv[1]
    text = (pathlib.Path(include) / "KyDataStructure" / "ref.h").read_text("ascii")
    table = re.search(r"using Factories = Table<(.*?)>;", text, re.DOTALL).group(1)
    makers = re.findall(r"Maker<&::(create\w+)>\s+(make\w+)\{\}", text)

    factories = headers.factories(include)
    names = [each.name for each in factories]
    results = [each.result for each in factories]
    shared = [each.name for each in factories if results.count(each.result) > 1]

    faults = [
        *differences("the table", re.findall(r"&::(\w+)", table), names),
        *differences("the list of named makers", [factory for factory, _ in makers], shared),
        *(f"{maker} is not named after {factory}" for factory, maker in makers
          if maker != factory.replace("create", "make", 1)),
    ]
    print(*faults, f"{len(names)} factories, {len(shared)} of them with a named maker", sep="\n")
    return 1 if faults or len(factories) < 95 else 0


if __name__ == "__main__":
    sys.exit(main())
