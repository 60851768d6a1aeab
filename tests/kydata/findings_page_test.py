#!/usr/bin/env python3
"""docs/findings.md tells of all that kydata check finds, and its examples are true.

    findings_page_test.py KYDATA
"""

import json
import re
import subprocess
import unittest

from check_support import FORMS, KYDATA, ROOT, checked, shown

ROW = re.compile(r"^\| `([a-z0-9-]+)` \| (\w+) \| (.*?) \| (.*?) \| `(.*?)` \| (.*?) \|$", re.M)
CODE = re.compile(r"^  ([a-z0-9-]+) +(\w+) +(.*)$", re.M)


def text_of(example):
    """An example as bytes: \\xFF is one of them, a{3} stands for aaa."""
    example = re.sub(r"(.)\{(\d+)\}", lambda many: many[1] * int(many[2]), example)
    byte = lambda digits: bytes.fromhex(digits[1].decode())
    return re.sub(rb"\\x([0-9A-F]{2})", byte, example.encode())


def codes_found(form, text):
    if form in FORMS:
        (result,) = checked(form, [text])
    else:
        command = [KYDATA, "check", "--json", "-"]
        run = subprocess.run(command, input=text, capture_output=True, check=False)
        (result,) = json.loads(run.stdout)["files"]
    return {finding["code"] for finding in result["findings"]}


class FindingsPage(unittest.TestCase):
    page = (ROOT / "docs" / "findings.md").read_text()
    rows = ROW.findall(page)

    def test_what_the_page_shows_is_what_comes_out(self):
        ((arguments, output),) = re.findall(r"^\$ kydata (.*)\n((?:.+\n)*)```", self.page, re.M)
        run = subprocess.run(
            [KYDATA, *arguments.split()], cwd=ROOT, capture_output=True, check=False
        )
        self.assertEqual(output, run.stdout.decode())

    def test_the_page_has_the_codes_of_the_program(self):
        run = subprocess.run([KYDATA, "check", "--codes"], capture_output=True, check=True)
        codes = CODE.findall(run.stdout.decode())[1:]  # behind the titles
        self.assertEqual([row[:3] for row in self.rows], codes)
        self.assertGreater(len(codes), 20)

    def test_each_code_is_found_in_its_example(self):
        for code, _, _, form, example, _ in self.rows:
            with self.subTest(code):
                self.assertIn(code, codes_found(form, text_of(example)))

    def test_each_example_is_read_as_the_page_says(self):
        for code, _, _, form, example, read_as in self.rows:
            with self.subTest(code):
                # A text of no form is shown to the command that asks for least.
                form = form if form in FORMS else "resource"
                now = shown(form, text_of(example))
                if read_as == "refused":
                    self.assertIsNone(now)
                    continue
                self.assertIsNotNone(now)
                if read_as != "as it stands":
                    self.assertEqual(now, shown(form, text_of(read_as.strip("`"))))


if __name__ == "__main__":
    unittest.main()
