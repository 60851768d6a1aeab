"""Faults that are put into a copy of the tree, to see that a check finds them."""

import shutil
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


@dataclass
class Fault:
    """What is wrong afterwards, and the change that makes it so."""

    name: str
    file: str
    old: str
    new: str


class FaultyCopy:
    """A copy of some folders and files of the tree, without faults to begin with. Its files
    are new ones, so that what was built of an earlier copy is built again."""

    def __init__(self, folder, parts):
        self.folder = Path(folder)
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir(parents=True)
        for part in parts:
            if (ROOT / part).is_dir():
                shutil.copytree(ROOT / part, self.folder / part, copy_function=shutil.copy)
            else:
                shutil.copy(ROOT / part, self.folder / part)

    def put(self, fault):
        """Puts the fault in; it must fit in one place and no other."""
        path = self.folder / fault.file
        text = path.read_text()
        if text.count(fault.old) != 1:
            raise SystemExit(f"{fault.file} has not one place for: {fault.name}")
        path.write_text(text.replace(fault.old, fault.new))

    def mend(self, fault):
        (self.folder / fault.file).write_text((ROOT / fault.file).read_text())
