#!/usr/bin/env python3
"""The checker, the JSON Schemas and the library say the same of a text.

    check_agreement_test.py KYDATA

For each form there is a text in data/whole that holds every member once. Each place that
the form's schema knows is given values of other types there, or is taken away. Then

- kydata check must find it, under its path;
- what the library makes of the text must be what the finding says: the same as of the
  text without the member, without the object that holds it, and so on;
- the schema must refuse it.

Last, texts with random changes must be refused by the library exactly where the checker
finds an error.
"""

import copy
import json
import random
import re
import subprocess
import unittest

import jsonschema

from check_support import FORMS, KYDATA, ROOT, TESTS, checked, shown

TYPE_CODES = {"wrong-type", "not-an-integer", "out-of-range"}

WRONG_VALUES = {
    "object": [[]],
    "array": [{}],
    "string": [7],
    "integer": [1.5, "7", 2**63],
}


def whole(form):
    return json.loads((TESTS / "data" / "whole" / f"{form}.json").read_text())


def schema_of(form):
    schema = json.loads((ROOT / "schemas" / f"{form}.schema.json").read_text())
    jsonschema.Draft202012Validator.check_schema(schema)
    return jsonschema.Draft202012Validator(schema)


def places(schema, value, path=()):
    """The places that a schema knows, with the steps to each of them in the text."""
    yield path, schema
    for name, below in schema.get("properties", {}).items():
        yield from places(below, value[name] if value is not None else None, (*path, name))
    for step, below in (("", schema.get("additionalProperties")), (0, schema.get("items"))):
        if below:
            step = next(iter(value)) if step == "" else step
            yield from places(below, value[step], (*path, step))


def path_text(path):
    """The path as kydata writes it."""
    text = ""
    for step in path:
        if isinstance(step, int):
            text += f"[{step}]"
        elif step and all(c.isascii() and (c.isalnum() or c == "_") for c in step):
            text += ("." if text else "") + step
        else:
            text += f'["{step}"]'
    return text


def at(value, path):
    for step in path:
        value = value[step]
    return value


def replaced(value, path, new):
    if not path:
        return new
    value = copy.deepcopy(value)
    at(value, path[:-1])[path[-1]] = new
    return value


def without(value, path):
    value = copy.deepcopy(value)
    del at(value, path[:-1])[path[-1]]
    return value


def owner(path):
    """The way to the object that holds the member."""
    return path[:-1]


class Agreement(unittest.TestCase):
    maxDiff = None

    def assertEffect(self, form, sample, path, changed, effect):
        """What the library makes of the changed text is what the effect says."""
        now = shown(form, json.dumps(changed))
        if effect == "refused":
            self.assertIsNone(now)
            return
        instead = {
            "ignored": lambda: without(sample, path),
            "owner-ignored": lambda: without(sample, owner(path)),
            "empty-object": lambda: replaced(sample, path, {}),
            "none": lambda: changed,
        }[effect]()
        self.assertIsNotNone(now)
        self.assertEqual(now, shown(form, json.dumps(instead)))

    def test_whole_texts_are_clean(self):
        for form in FORMS:
            with self.subTest(form):
                (result,) = checked(form, [json.dumps(whole(form))])
                self.assertTrue(result["accepted"])
                self.assertEqual((result["errors"], result["warnings"]), (0, 0), result)
                schema_of(form).validate(whole(form))

    def test_a_value_of_another_type_is_found_and_has_the_effect_that_is_told(self):
        for form in FORMS:
            sample, validator = whole(form), schema_of(form)
            cases = []
            for path, schema in places(validator.schema, sample):
                kinds = schema.get("type", [])
                if kinds == ["integer", "string"]:
                    cases += [(path, wrong) for wrong in (1.5, None, [], 2**63)]
                    continue
                self.assertIsInstance(kinds, (str, list))
                wrong_values = list(WRONG_VALUES[kinds]) if kinds else []
                if kinds == "integer" and schema.get("maximum") == 2**31 - 1:
                    wrong_values += [2**31]
                cases += [(path, wrong) for wrong in wrong_values]
            texts = [json.dumps(replaced(sample, path, wrong)) for path, wrong in cases]
            for (path, wrong), result in zip(cases, checked(form, texts)):
                with self.subTest(form=form, path=path_text(path), value=wrong):
                    changed = replaced(sample, path, wrong)
                    found = [
                        finding
                        for finding in result["findings"]
                        if finding["path"] == path_text(path) and finding["code"] in TYPE_CODES
                    ]
                    self.assertEqual(len(found), 1, result)
                    self.assertEffect(form, sample, path, changed, found[0]["effect"])
                    self.assertFalse(validator.is_valid(changed))

    def test_a_missing_member_is_found_where_the_schema_asks_for_it(self):
        for form in FORMS:
            sample, validator = whole(form), schema_of(form)
            cases = []
            for path, schema in places(validator.schema, sample):
                for name in schema.get("properties", {}):
                    cases.append(((*path, name), name in schema.get("required", [])))
            texts = [json.dumps(without(sample, path)) for path, _ in cases]
            for (path, is_required), result in zip(cases, checked(form, texts)):
                with self.subTest(form=form, path=path_text(path)):
                    changed = without(sample, path)
                    found = [
                        finding
                        for finding in result["findings"]
                        if (finding["path"], finding["code"]) == (path_text(path), "missing-member")
                    ]
                    self.assertEqual(len(found), 1 if is_required else 0, result)
                    self.assertEqual(validator.is_valid(changed), not is_required)
                    if found:
                        self.assertEffect(form, sample, path, changed, found[0]["effect"])

    def test_texts_of_the_tree_are_judged_alike(self):
        texts = sorted([*ROOT.glob("examples/data/**/*.json"), *TESTS.glob("data/**/*.json")])
        self.assertGreater(len(texts), 40)
        for form in FORMS:
            validator = schema_of(form)
            for text, result in zip(texts, checked(form, [file.read_bytes() for file in texts])):
                if "unreadable" in result:
                    continue
                with self.subTest(form=form, text=text.name):
                    self.assertConsistent(form, result)
                    self.assertSchemaAgrees(validator, text.read_bytes(), result)

    def test_a_text_that_is_shown_without_a_command_is_told_to_be_of_that_form(self):
        for text in sorted(ROOT.glob("examples/data/**/*.json")):
            run = subprocess.run([KYDATA, text], capture_output=True, check=False)
            command = [KYDATA, "check", "--json", text]
            check = subprocess.run(command, capture_output=True, check=False)
            (result,) = json.loads(check.stdout)["files"]
            with self.subTest(text.name):
                self.assertEqual(run.returncode == 0, result.get("accepted", False), result)

    def test_labels_that_are_scores_are_judged_alike(self):
        labels = ["90", "90 of 100", " 7", "\t\v\f7", "+7", "-7", "+-7", "- 7", "0x10"]
        labels += ["", "x", "."]
        labels += ["2147483647", "2147483648", "-2147483648", "-2147483649", "1" * 30, "5\0", "\0"]
        spans = ["0:0:1Z-0:0:2Z", "no span"]
        texts = [
            json.dumps({"total": {"labels": {label: [span]}}}) for label in labels for span in spans
        ]
        for text, result in zip(texts, checked("report", texts)):
            with self.subTest(text):
                self.assertConsistent("report", result)

    def test_names_that_are_no_plain_ids_are_told_with_the_id_that_they_stand_for(self):
        names = ["7", "-7", "0", "-0", "07", " 7", "+7", "7a", "x", "", "2147483647", "-2147483648"]
        texts = [json.dumps({"dataMap": {name: "t"}}) for name in names]
        for name, text, result in zip(names, texts, checked("datamap", texts)):
            with self.subTest(name):
                (row,) = re.findall(r"^ +(-?\d+)  t$", shown("datamap", text).decode(), re.M)
                told = [finding["message"].rsplit(" ", 1)[1] for finding in result["findings"]]
                self.assertEqual(told, [] if row == name else [row])

    def test_random_changes_are_judged_alike(self):
        dice = random.Random(7)
        for form in FORMS:
            text = json.dumps(whole(form))
            texts = [changed_values(dice, whole(form)) for _ in range(60)]
            texts += [changed_letters(dice, text) for _ in range(120)]
            validator = schema_of(form)
            for text, result in zip(texts, checked(form, texts)):
                with self.subTest(form=form, text=text):
                    self.assertConsistent(form, result)
                    self.assertSchemaAgrees(validator, text.encode(), result)

    def assertConsistent(self, form, result):
        """An error is found exactly where the library refuses a text."""
        self.assertEqual(result["accepted"], result["errors"] == 0, result)
        # Of a description alone the members do not tell everything.
        if form not in ("resource", "record", "record-vcg"):
            codes = {finding["code"] for finding in result["findings"]}
            self.assertNotIn("refused", codes, result)

    def assertSchemaAgrees(self, validator, text, result):
        """Wherever a type is wrong or a member missing, the schema refuses the text."""
        found = {f["code"] for f in result["findings"]}
        if found & {"syntax", "duplicate-name", "comment", "trailing-comma", "text-behind"}:
            return
        # To a schema 1.0 is an integer, to the library it is none.
        value = json.loads(text.decode("utf-8-sig", errors="replace"), parse_float=lambda _: 0.5)
        if found & (TYPE_CODES | {"missing-member", "no-span", "empty-value"}):
            self.assertFalse(validator.is_valid(value), result)
        elif result["errors"] + result["warnings"] == 0:
            self.assertTrue(validator.is_valid(value), result)


def changed_values(dice, value):
    """A text with some of its values taken away, doubled or made others."""
    for _ in range(dice.randint(1, 4)):
        spots = [path for path in spots_of(value) if path]
        if not spots:
            break
        path = dice.choice(spots)
        if dice.random() < 0.3:
            value = without(value, path)
        else:
            others = [0, -1, 5, 1.5, 2**31, 2**63, None, True, [], {}]
            others += ["", "7", "0:0:1Z-0:0:2Z", "x"]
            others.append(at(value, dice.choice(spots)))
            value = replaced(value, path, copy.deepcopy(dice.choice(others)))
    return json.dumps(value)


def spots_of(value, path=()):
    yield path
    if isinstance(value, (dict, list)):
        for step, below in value.items() if isinstance(value, dict) else enumerate(value):
            yield from spots_of(below, (*path, step))


def changed_letters(dice, text):
    """A text with some of its characters taken away, doubled or made others."""
    for _ in range(dice.randint(1, 3)):
        place = dice.randrange(len(text))
        new = dice.choice(["", *'{}[],:"\\/*0-.eE\n\t', "\x00", "\\u0000", "//", "/**/", "\x1a"])
        text = text[:place] + new + text[place + dice.randint(0, 1) :]
    return text


if __name__ == "__main__":
    unittest.main()
