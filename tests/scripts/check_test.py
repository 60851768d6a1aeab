#!/usr/bin/env python3
"""scripts/check lists the programs in scripts/checks and runs them."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
DRIVER = ROOT / "scripts" / "check"


def run(driver, *arguments):
    return subprocess.run([driver, *arguments], text=True, capture_output=True, check=False)


class Driver(unittest.TestCase):
    """With checks of its own, two of which fail."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.driver = Path(folder.name) / "check"
        self.checks = Path(folder.name) / "checks"
        self.checks.mkdir()
        shutil.copy(DRIVER, self.driver)
        self.write("broad", "# check: that it says its arguments | 1 s", 'echo "broad got $*"')
        self.write("deep", "# check: that a | b | 20 min", "echo deep; exit 3")
        self.write("flat", "# check: nothing | 1 s", "exit 1")
        self.write("helper.sh", "", "exit 1")

    def write(self, name, line, body):
        path = self.checks / name
        path.write_text(f"#!/bin/sh\n{line}\n{body}\n")
        path.chmod(0o755)

    def test_lists_what_each_proves_and_costs(self):
        done = run(self.driver)
        self.assertEqual(0, done.returncode, done.stderr)
        lines = [line.split(maxsplit=1) for line in done.stdout.splitlines()]
        self.assertEqual(["broad", "deep", "flat"], [name for name, _ in lines])
        self.assertRegex(lines[0][1], r"^1 s +that it says its arguments$")
        self.assertRegex(lines[1][1], r"^20 min +that a \| b$")

    def test_one_without_its_line_is_named(self):
        self.write("mute", "# no line", "exit 0")
        done = run(self.driver)
        self.assertEqual(1, done.returncode)
        self.assertIn("checks/mute does not say", done.stderr)

    def test_help_tells_the_usage_and_the_list(self):
        done = run(self.driver, "--help")
        self.assertEqual(0, done.returncode, done.stderr)
        self.assertIn("scripts/check NAME [ARGUMENT]...", done.stdout)
        self.assertIn("broad", done.stdout)

    def test_an_unknown_name_is_refused(self):
        for name in ("unknown", "helper.sh", "br.ad", "../check", "-x"):
            with self.subTest(name):
                done = run(self.driver, name)
                self.assertEqual((2, ""), (done.returncode, done.stdout))
                self.assertIn(f'no check "{name}"; there are: broad deep flat', done.stderr)

    def test_one_gets_its_arguments_and_gives_its_status(self):
        done = run(self.driver, "broad", "--renew", "a b")
        self.assertEqual((0, "broad got --renew a b\n"), (done.returncode, done.stdout))
        self.assertEqual(3, run(self.driver, "deep").returncode)

    def test_all_go_on_behind_a_failure_and_name_it(self):
        done = run(self.driver, "all")
        self.assertEqual(1, done.returncode)
        self.assertIn("==== flat", done.stdout)
        self.assertEqual("check: failed: deep flat", done.stderr.strip())
        (self.checks / "deep").unlink()
        (self.checks / "flat").unlink()
        self.assertEqual(0, run(self.driver, "all").returncode)
        self.assertEqual(2, run(self.driver, "all", "--renew").returncode)


class Checks(unittest.TestCase):
    """Those that stand in the tree."""

    names = sorted(
        path.name for path in (ROOT / "scripts" / "checks").iterdir() if "." not in path.name
    )

    def test_each_is_listed(self):
        done = run(DRIVER)
        self.assertEqual(0, done.returncode, done.stderr)
        self.assertEqual(self.names, [line.split()[0] for line in done.stdout.splitlines()])
        self.assertGreater(len(self.names), 0)

    def test_each_can_be_run(self):
        for name in self.names:
            self.assertTrue(os.access(ROOT / "scripts" / "checks" / name, os.X_OK), name)

    def test_each_names_its_packages(self):
        for name in self.names:
            with self.subTest(name):
                text = (ROOT / "scripts" / "checks" / name).read_text()
                self.assertRegex(text, rf"install-needs[\"', ]+check-{name}\b")
                rows = (ROOT / "scripts" / "install-needs").read_text()
                self.assertRegex(rows, rf"\bcheck-{name}\b")


if __name__ == "__main__":
    unittest.main()
