#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Tests of `diagkit check` in a CI job: what counts, what was there before, and complete answers.

    check_tests.py PROGRAM...
"""

import json
import pathlib
import tempfile
import unittest

from program import main, run

FILES = ["faulty.odx-d", "warned.odx-d"]


def findings(*arguments):
    """Status, and the codes of the findings in the files."""
    done = run("check", *FILES, "--json", *arguments)
    return done.returncode, [finding["code"] for finding in json.loads(done.stdout)["diagnostics"]]


class WhatCounts(unittest.TestCase):
    def test_all_without_an_option(self):
        codes = ["short-name-characters", "unresolved-short-name", "short-name-characters"]
        self.assertEqual(findings(), (1, codes))

    def test_notes_do_not(self):
        for arguments in ([], ["--fail-on", "warning"], ["--strict"]):
            done = run("check", "notes.odx-d", "--json", *arguments)
            answer = json.loads(done.stdout)
            self.assertEqual((done.returncode, answer["errors"], answer["warnings"]), (0, 0, 0), arguments)
            self.assertEqual([finding["severity"] for finding in answer["diagnostics"]], ["note"])

    def test_references_into_missing_documents_count_once_each_or_all(self):
        for arguments, count in (([], 3), (["--verbose"], 5)):
            arguments = ["check", "doors.odx-d", "--only", "unresolved-reference", *arguments]
            self.assertEqual(json.loads(run(*arguments, "--json").stdout)["errors"], count)
            results = json.loads(run(*arguments, "--format", "sarif").stdout)["runs"][0]["results"]
            self.assertEqual(len(results), count)

    def test_ignored_codes_do_not(self):
        self.assertEqual(findings("--ignore", "short-name-characters"), (1, ["unresolved-short-name"]))
        self.assertEqual(findings("--ignore", "unresolved-short-name", "--ignore", "short-name-characters"), (0, []))

    def test_only_the_codes_asked_for_do(self):
        self.assertEqual(findings("--only", "unresolved-short-name"), (1, ["unresolved-short-name"]))
        self.assertEqual(findings("--only", "duplicate-id", "--only", "short-name-characters")[1].count("duplicate-id"), 0)
        self.assertEqual(findings("--only", "short-name-characters")[0], 0)

    def test_ignore_goes_before_only(self):
        self.assertEqual(findings("--only", "unresolved-short-name", "--ignore", "unresolved-short-name"), (0, []))

    def test_warnings_fail_when_asked_to(self):
        self.assertEqual(findings("--only", "short-name-characters", "--fail-on", "warning")[0], 1)
        self.assertEqual(findings("--only", "duplicate-id", "--fail-on", "warning")[0], 0)

    def test_unknown_codes_are_wrong_usage(self):
        for option in ("--ignore", "--only"):
            done = run("check", *FILES, option, "duplicate-ids")
            self.assertEqual((done.returncode, done.stdout), (2, ""))
            self.assertIn("unknown code 'duplicate-ids'; similar names: duplicate-id, duplicate-key;", done.stderr)


class Baselines(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def write(self, name, content):
        path = self.folder / name
        path.write_text(content, encoding="utf-8")
        return str(path)

    def answer(self, *arguments):
        return self.write("baseline", run("check", *arguments).stdout)

    def test_what_was_there_no_longer_counts(self):
        for format in ("json", "sarif"):
            baseline = self.answer(*FILES, "--format", format)
            self.assertEqual(findings("--baseline", baseline, "--fail-on", "warning"), (0, []))

    def test_what_is_new_does(self):
        for format in ("json", "sarif"):
            baseline = self.answer("warned.odx-d", "--format", format)
            self.assertEqual(findings("--baseline", baseline), (1, ["short-name-characters", "unresolved-short-name"]))

    def test_lines_in_messages_and_counts_of_references_do_not_matter(self):
        document = """<ODX MODEL-VERSION="2.2.0">{}<DIAG-LAYER-CONTAINER ID="C"><SHORT-NAME>C</SHORT-NAME><BASE-VARIANTS>
            <BASE-VARIANT ID="B"><SHORT-NAME>B</SHORT-NAME><FUNCT-CLASSS><FUNCT-CLASS ID="F"><SHORT-NAME>F</SHORT-NAME>
            </FUNCT-CLASS><FUNCT-CLASS ID="F"><SHORT-NAME>G</SHORT-NAME></FUNCT-CLASS></FUNCT-CLASSS><DIAG-COMMS>{}
            </DIAG-COMMS></BASE-VARIANT></BASE-VARIANTS></DIAG-LAYER-CONTAINER></ODX>"""
        reference = '<DIAG-COMM-REF ID-REF="X{}" DOCREF="Far" DOCTYPE="LAYER"/>'
        name = self.write("base.odx-d", document.format("", reference.format(1) + reference.format(2)))
        for format in ("json", "sarif"):
            baseline = self.answer(name, "--format", format)
            self.assertIn("at line 2", pathlib.Path(baseline).read_text(encoding="utf-8"))
            self.assertIn("2 references lead into Far", pathlib.Path(baseline).read_text(encoding="utf-8"))
            self.write("base.odx-d", document.format("\n\n", reference.format(1)))
            done = run("check", name, "--baseline", baseline)
            self.assertEqual((done.returncode, done.stdout), (0, "0 errors, 0 warnings\n"))
            self.write("base.odx-d", document.format("", reference.format(1) + reference.format(2)))

    def test_lines_do_not_matter(self):
        for format in ("json", "sarif"):
            baseline = self.answer(*FILES, "--format", format)
            text = pathlib.Path(baseline).read_text(encoding="utf-8")
            for line in ("10", "15", "4"):
                text = text.replace(f'"line": {line},', '"line": 7,').replace(f'"startLine": {line},', '"startLine": 7,')
            self.assertEqual(findings("--baseline", self.write("moved", text)), (0, []))

    def test_each_finding_covers_one(self):
        document = '<ODX MODEL-VERSION="2.2.0">%s</ODX>'
        container = '<DIAG-LAYER-CONTAINER ID="C%s"><SHORT-NAME>A-B</SHORT-NAME></DIAG-LAYER-CONTAINER>'
        path = self.write("d.odx-d", document % (container % 1))
        self.assertEqual(json.loads(run("check", path, "--json").stdout)["warnings"], 1)
        baseline = self.answer(path, "--json", "--only", "short-name-characters")
        self.write("d.odx-d", document % (container % 1 + container % 2))
        done = run("check", path, "--json", "--only", "short-name-characters", "--baseline", baseline)
        self.assertEqual(json.loads(done.stdout)["warnings"], 1)

    def test_what_is_none_is_said_to_be_none(self):
        for content in ("", "{", "[]", "{}", "7", '{"diagnostics": 3}', '{"diagnostics": {}}', '{"diagnostics": null}', '{"runs": []}', '{"diagnostics": [{}]}'):
            done = run("check", *FILES, "--baseline", self.write("none", content))
            self.assertEqual((done.returncode, done.stdout), (3, ""), content)
            self.assertRegex(done.stderr, r"\Adiagkit: '.*none' is not a baseline: .*\n\Z")
        for path in (self.folder / "absent", self.folder):
            done = run("check", *FILES, "--baseline", str(path))
            self.assertEqual((done.returncode, done.stdout), (3, ""))
            self.assertRegex(done.stderr, r"\Adiagkit: the baseline '.*' cannot be read\n\Z")


class RefusedFiles(unittest.TestCase):
    def test_are_a_finding_of_a_whole_answer(self):
        done = run("check", "absent.odx-d", "--json")
        answer = json.loads(done.stdout)
        self.assertEqual((done.returncode, done.stderr, answer["errors"]), (3, "", 1))
        self.assertEqual(answer["diagnostics"][0]["code"], "no-file")

    def test_are_a_result_of_a_whole_log(self):
        done = run("check", "absent.odx-d", "--format", "sarif")
        results = json.loads(done.stdout)["runs"][0]["results"]
        self.assertEqual((done.returncode, done.stderr), (3, ""))
        self.assertEqual([result["ruleId"] for result in results], ["no-file"])

    def test_leave_out_what_does_not_count_all_the_same(self):
        done = run("check", "warned.odx-d", "absent.odx-d", "--json", "--ignore", "short-name-characters")
        codes = [finding["code"] for finding in json.loads(done.stdout)["diagnostics"]]
        self.assertEqual((done.returncode, codes), (3, ["no-file"]))

    def test_are_told_on_standard_error_in_text(self):
        done = run("check", "absent.odx-d")
        self.assertEqual((done.returncode, done.stdout), (3, ""))
        self.assertIn("[no-file]", done.stderr)


if __name__ == "__main__":
    main(__doc__)
