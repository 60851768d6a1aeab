"""What the tests of kydata check have in common. The first argument is the program."""

import functools
import json
import pathlib
import subprocess
import sys
import tempfile

KYDATA = sys.argv.pop(1)
TESTS = pathlib.Path(__file__).resolve().parent
ROOT = TESTS.parent.parent

# What check is asked with, and the command that shows what the library made of a text.
FORMS = {
    "cut": (["--form", "cut"], ["cut"]),
    "storyboard": (["--form", "storyboard"], ["storyboard"]),
    "datamap": (["--form", "datamap"], ["datamap"]),
    "highlight": (["--form", "highlight"], ["check", "--json", "--form", "highlight"]),
    "resource": (["--form", "resource"], ["resource"]),
    "report": (["--form", "report"], ["report"]),
    "record": (["--complete", "7"], ["resource", "--complete", "7"]),
    "record-stock": (["--complete", "101"], ["resource", "--complete", "101"]),
    "record-giphy": (["--complete", "106"], ["resource", "--complete", "106"]),
    "record-vcg": (["--complete", "1007"], ["resource", "--complete", "1007"]),
}


@functools.lru_cache(maxsize=None)
def shown(form, text):
    """What the library makes of a text; None where it refuses it."""
    text = text if isinstance(text, bytes) else text.encode()
    command = [KYDATA, *FORMS[form][1], "-"]
    run = subprocess.run(command, input=text, capture_output=True, check=False)
    if form == "highlight":  # no command shows one whatever it holds
        (result,) = json.loads(run.stdout)["files"]
        return result["made"] if result["accepted"] else None
    return run.stdout if run.returncode == 0 else None


def checked(form, texts):
    """What kydata check says of each of the texts."""
    with tempfile.TemporaryDirectory() as folder:
        files = [pathlib.Path(folder, str(number)) for number in range(len(texts))]
        for file, text in zip(files, texts):
            file.write_bytes(text if isinstance(text, bytes) else text.encode())
        command = [KYDATA, "check", "--json", "--limit", "0", *FORMS[form][0], *files]
        run = subprocess.run(command, capture_output=True, check=False)
    if run.returncode not in (0, 1):
        raise AssertionError(f"kydata check ended with {run.returncode}: {run.stderr}")
    return json.loads(run.stdout)["files"]
