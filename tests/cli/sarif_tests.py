#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""The output of `diagkit check --format sarif`, checked against the requirements of SARIF 2.1.0 for a log.

    sarif_tests.py PROGRAM...
"""

import json
import pathlib
import re
import tempfile
import unittest
import zipfile

from program import DATA, is_for_windows, main, run

LEVELS = {"none", "note", "warning", "error"}
# RFC 3986: the characters of a URI reference without a colon in its first segment.
URI = re.compile(r"(?:file:///?)?(?:[A-Za-z0-9._~!$&'()*+,;=@/-]|%[0-9A-F]{2})+")


def absolute(path):
    """The path as the program must name it; Wine shows the root of this machine as a drive."""
    return f"Z:{path}" if is_for_windows() and path.as_posix().startswith("/") else path


def log_of(*files, status):
    done = run("check", "--format", "sarif", *files)
    assert done.returncode == status, (done.returncode, done.stderr)
    assert done.stderr == "", done.stderr
    return json.loads(done.stdout)


class Structure(unittest.TestCase):
    """The members that the standard requires, and the kinds of their values."""

    def see_text(self, message):
        self.assertIsInstance(message["text"], str)
        self.assertNotEqual(message["text"], "")

    def see_rule(self, rule):
        self.assertRegex(rule["id"], r"\A[a-z]+(-[a-z]+)*\Z")
        self.see_text(rule["shortDescription"])
        self.assertIn(rule["defaultConfiguration"]["level"], LEVELS)

    def see_result(self, result, rules):
        self.see_text(result["message"])
        self.assertIn(result["level"], LEVELS)
        self.assertEqual(rules[result["ruleIndex"]]["id"], result["ruleId"])
        self.assertEqual(len(result["locations"]), 1)
        physical = result["locations"][0]["physicalLocation"]
        self.assertRegex(physical["artifactLocation"]["uri"], rf"\A{URI.pattern}\Z")
        if "region" in physical:
            for member in ("startLine", "startColumn"):
                self.assertIsInstance(physical["region"][member], int)
                self.assertGreaterEqual(physical["region"][member], 1)

    def see_log(self, log):
        self.assertEqual(log["version"], "2.1.0")
        self.assertRegex(log["$schema"], r"sarif.*2\.1\.0")
        self.assertEqual(len(log["runs"]), 1)
        run = log["runs"][0]
        driver = run["tool"]["driver"]
        self.assertEqual(driver["name"], "diagkit")
        self.assertRegex(driver["version"], r"\A\d+\.\d+\.\d+\Z")
        self.assertEqual(run["columnKind"], "unicodeCodePoints")
        rules = driver["rules"]
        self.assertGreater(len(rules), 30)
        self.assertEqual(len({rule["id"] for rule in rules}), len(rules))
        for rule in rules:
            self.see_rule(rule)
        for result in run["results"]:
            self.see_result(result, rules)
        return run["results"]

    def test_findings(self):
        results = self.see_log(log_of("faulty.odx-d", status=1))
        seen = [
            (
                result["ruleId"],
                result["level"],
                result["locations"][0]["physicalLocation"]["artifactLocation"]["uri"],
                result["locations"][0]["physicalLocation"]["region"],
            )
            for result in results
        ]
        self.assertEqual(
            seen,
            [
                ("short-name-characters", "warning", "faulty.odx-d", {"startLine": 10, "startColumn": 11}),
                ("unresolved-short-name", "error", "faulty.odx-d", {"startLine": 15, "startColumn": 17}),
            ],
        )

    def test_a_note(self):
        results = self.see_log(log_of("notes.odx-d", status=0))
        self.assertEqual([(result["ruleId"], result["level"]) for result in results], [("overlapping-params", "note")])

    def test_nothing_found_is_an_empty_list(self):
        self.assertEqual(self.see_log(log_of("comparams.odx-c", "protocols.odx-d", "gates.odx-d", status=0)), [])

    def test_every_finding_of_odd_data(self):
        self.assertGreater(len(self.see_log(log_of("odd.odx-d", status=1))), 5)

    def test_package_members_and_absolute_paths(self):
        with tempfile.TemporaryDirectory() as folder:
            package = pathlib.Path(folder).resolve() / "Seat 1#ü.pdx"
            with zipfile.ZipFile(package, "w") as made:
                made.write(DATA / "faulty.odx-d", "sub/faulty 2.odx-d")
            results = self.see_log(log_of(absolute(package), status=1))
        uri = results[0]["locations"][0]["physicalLocation"]["artifactLocation"]["uri"]
        self.assertTrue(uri.startswith("file:///"), uri)
        self.assertTrue(uri.endswith("/Seat%201%23%C3%BC.pdx!sub/faulty%202.odx-d"), uri)

    def test_braces_in_messages_are_doubled(self):
        with tempfile.TemporaryDirectory() as folder:
            document = pathlib.Path(folder).resolve() / "braces.odx-f"
            flash = '<FLASH ID="F"><SHORT-NAME>Seat_{0}</SHORT-NAME></FLASH>'
            document.write_text(f'<ODX MODEL-VERSION="2.0.1">{flash}</ODX>', encoding="utf-8")
            results = self.see_log(log_of(absolute(document), status=0))
        self.assertEqual([result["ruleId"] for result in results], ["short-name-characters"])
        self.assertIn("'Seat_{{0}}'", results[0]["message"]["text"])

    def test_what_has_no_position_has_no_region(self):
        with tempfile.TemporaryDirectory() as folder:
            package = pathlib.Path(folder).resolve() / "Seat.pdx"
            with zipfile.ZipFile(package, "w") as made:
                made.write(DATA / "warned.odx-d", "warned.odx-d")
                made.writestr("empty.odx-d", "")
            results = self.see_log(log_of(package, status=1))
        empty = [result for result in results if result["ruleId"] == "empty"]
        self.assertEqual(len(empty), 1)
        self.assertNotIn("region", empty[0]["locations"][0]["physicalLocation"])


if __name__ == "__main__":
    main(__doc__)
