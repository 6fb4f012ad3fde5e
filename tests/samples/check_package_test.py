#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Check that the sample package is up to date and that check_package.py detects when it is not."""

import filecmp
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest
import zipfile

import check_package

SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"
PACKAGE = "WiperDatabase.pdx"


class PackageTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name) / "samples"
        shutil.copytree(SAMPLES, self.folder)
        self.package = self.folder / PACKAGE

    def faults(self):
        return list(check_package.faults(self.package, self.folder))

    def make(self, *arguments):
        command = [sys.executable, self.folder / "make-package", *arguments]
        return subprocess.run(command, capture_output=True, text=True, check=False)

    def test_package_is_up_to_date(self):
        self.assertEqual(self.faults(), [])

    def test_package_is_the_same_every_time(self):
        first, second = self.folder / "first.pdx", self.folder / "second.pdx"
        self.assertEqual(self.make(first).returncode, 0)
        (self.folder / "index.xml").touch()
        self.assertEqual(self.make(second).returncode, 0)
        self.assertTrue(filecmp.cmp(first, second, shallow=False))

    def test_changed_document(self):
        with open(self.folder / "WiperJobs.odx-m", "a", encoding="utf-8") as document:
            document.write("<!-- changed -->\n")
        self.assertEqual(self.faults(), ["WiperJobs.odx-m differs from the file of the folder"])
        self.assertEqual(self.make().returncode, 0)
        self.assertEqual(self.faults(), [])

    def test_new_document(self):
        shutil.copy(self.folder / "WiperJobs.odx-m", self.folder / "RearWiperJobs.odx-m")
        self.assertEqual(self.faults(), ["RearWiperJobs.odx-m is missing"])
        self.assertEqual(self.make().returncode, 1)

    def test_removed_document(self):
        (self.folder / "WiperJobs.odx-m").unlink()
        self.assertEqual(self.faults(), ["WiperJobs.odx-m is no file of the folder"])

    def test_unlisted_member(self):
        with zipfile.ZipFile(self.package, "a") as package:
            package.write(self.folder / "README.md", "README.md")
        found = self.faults()
        self.assertIn("README.md is not deflated", found)
        self.assertIn("the members are not in name order, or one is there twice", found)
        self.assertTrue(any(message.startswith("index.xml lists") for message in found))


if __name__ == "__main__":
    unittest.main()
