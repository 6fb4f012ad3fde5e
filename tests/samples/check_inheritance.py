#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Every database of samples/inheritance has its answers and its row on the page, and the page has no other; and a
program with missing or different answers is reported as wrong.

    check_inheritance.py FOLDER
"""

import pathlib
import re
import subprocess
import sys
import unittest

FOLDER = pathlib.Path(sys.argv.pop())
RUN = [sys.executable, str(FOLDER / "run.py")]


class Inheritance(unittest.TestCase):
    def test_every_database_has_its_answers_and_its_row(self):
        databases = sorted(path.stem for path in FOLDER.glob("*.odx-d"))
        self.assertGreaterEqual(len(databases), 40)
        self.assertEqual(sorted(path.stem for path in FOLDER.glob("*.json")), databases)
        rows = re.findall(r"^\| `([\w-]+)` \|", (FOLDER / "README.md").read_text(encoding="utf-8"), re.MULTILINE)
        self.assertEqual(sorted(rows), databases)

    def test_a_program_that_answers_nothing_is_wrong(self):
        done = subprocess.run([*RUN, sys.executable, "-c", ""], capture_output=True, check=False)
        self.assertEqual(done.returncode, 1)

    def test_a_program_that_answers_something_else_is_wrong(self):
        answer = 'print(\'{"entries": [], "hidden": [], "excluded": []}\')'
        done = subprocess.run([*RUN, sys.executable, "-c", answer], capture_output=True, check=False)
        self.assertEqual(done.returncode, 1)


if __name__ == "__main__":
    unittest.main()
