#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""The questions that a new user asks in the first ten minutes: the README and --help lead to a call that answers each.

    first_questions_tests.py PROGRAM...
"""

import csv
import io
import json
import pathlib
import re
import sys
import tempfile
import unittest
import zipfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "cli"))

from program import SAMPLE, main, run  # noqa: E402

LIBRARY = ROOT / "samples" / "SharedLibraries.odx-d"


def documentation(command):
    """What a user reads before the first call of a command."""
    readme = (ROOT / "README.md").read_text(encoding="utf-8")
    return readme + run("--help").stdout + run(command, "--help").stdout


class FirstQuestions(unittest.TestCase):
    def answer(self, *call, status=0):
        """The output of a call whose command and options are documented."""
        text = documentation(call[0])
        self.assertRegex(run("--help").stdout, rf"(?m)^  {call[0]} ")
        for word in call:
            if str(word).startswith("--"):
                self.assertIn(f"{word} ", text.replace("\n", " "))
        done = run(*call)
        self.assertEqual((done.returncode, done.stderr), (status, ""))
        return done.stdout

    def test_what_is_in_this_service_of_this_layer(self):
        text = self.answer("show", "MoveWiper", SAMPLE, "--layer", "FrontWiper")
        self.assertRegex(text, r"0 +32 +ServiceAndDataIdentifier +CODED-CONST +0x2F300103")
        self.assertIn("0 = off; 1 = interval; 2 = continuous", text)
        text = self.answer("show", "ReadWiperStatus", SAMPLE, "--layer", "FrontWiper")
        self.assertLess(text.index("\nREQUEST "), text.index("\nPOS-RESPONSE ReadWiperStatusResponse"))

    def test_why_is_this_service_not_visible(self):
        text = self.answer("explain", "diag-comm", "HardReset", SAMPLE, "--layer", "BodyElectronics", status=1)
        self.assertIn("excluded in BodyElectronics", " ".join(text.splitlines()[:2]).replace("    ", ""))
        place = re.search(r"!WiperFamily\.odx-d:(\d+)", text)
        line = (ROOT / "samples" / "WiperFamily.odx-d").read_text(encoding="utf-8").splitlines()[int(place[1]) - 1]
        self.assertIn("NOT-INHERITED-DIAG-COMM", line)

    def test_where_is_anything_like_reset(self):
        text = self.answer("find", "Reset", SAMPLE)
        self.assertIn("HardReset ", text)
        self.assertIn("HardResetRequest ", text)

    def test_what_is_wrong_in_this_folder_that_was_not_in_the_last_release(self):
        with tempfile.TemporaryDirectory() as name:
            release = pathlib.Path(name, "release")
            release.mkdir()
            document = release / "wiper.odx-d"
            document.write_bytes(LIBRARY.read_bytes())
            before = self.answer("check", release, "--json", status=1)
            baseline = pathlib.Path(name, "release.json")
            baseline.write_text(before, encoding="utf-8")
            self.assertEqual(self.answer("check", release, "--baseline", baseline), "0 errors, 0 warnings\n")
            text = document.read_text(encoding="utf-8")
            changed = re.sub(r'DOP-REF ID-REF="[^"]+"', 'DOP-REF ID-REF="absent"', text, count=1)
            self.assertNotEqual(changed, text)
            document.write_text(changed, encoding="utf-8")
            new = self.answer("check", release, "--baseline", baseline, status=1)
            self.assertIn("'absent'", new)
            self.assertIn("\n1 error, 0 warnings\n", new)
            self.assertGreater(json.loads(before)["errors"], 0)

    def test_which_trouble_codes_are_there(self):
        rows = csv.DictReader(io.StringIO(self.answer("find", ".", "--regex", "--kind", "DTC", SAMPLE, "--csv")))
        found = {row["id"] for row in rows if row["matched"] == "trouble_code"}
        with zipfile.ZipFile(SAMPLE) as package:
            documents = [package.read(member).decode("utf-8") for member in package.namelist() if ".odx-" in member]
        self.assertEqual(found, {code for text in documents for code in re.findall(r'<DTC ID="([^"]+)"', text)})
        self.assertTrue(found)

    def test_a_table_of_all_services_of_a_variant_with_the_bytes_of_their_requests(self):
        table = self.answer("view", "diag-comms", SAMPLE, "--layer", "FrontWiperRainLight", "--csv", "--requests")
        requests = {row["short_name"]: row["request"] for row in csv.DictReader(io.StringIO(table))}
        view = json.loads(run("view", "diag-comms", SAMPLE, "--layer", "FrontWiperRainLight", "--json").stdout)
        self.assertEqual(list(requests), [entry["short_name"] for entry in view["entries"]])
        self.assertEqual(requests["ReadWiperStatus"], "22 20 01")  # a byte field of 24 bits
        self.assertEqual(requests["MoveWiper"], "2F 30 01 03 .. 00")  # a value, then a RESERVED byte
        self.assertEqual(requests["CalibrateParkPosition"], "")  # a job has no request


if __name__ == "__main__":
    main(__doc__)
