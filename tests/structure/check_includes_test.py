#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""See that check_includes.py notices an include that runs against the arrows."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).resolve().parent / "check_includes.py"


class IncludesTest(unittest.TestCase):
    def check(self, files):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                path = pathlib.Path(folder, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            run = subprocess.run([sys.executable, CHECK, folder], capture_output=True, text=True)
        return run.returncode, run.stdout.splitlines()[:-1]

    def allowed(self, name, included):
        self.assertEqual(self.check({name: f"#include {included}\n"}), (0, []))

    def refused(self, name, included):
        room = name.rpartition("/")[0]
        expected = [f"{name}:1: {room} does not include {included}"]
        self.assertEqual(self.check({name: f"#include {included}\n"}), (1, expected))

    def test_arrows_that_run_down(self):
        self.allowed("model/A.h", "<diagkit/model/B.h>")
        self.allowed("model/A.h", "<diagkit/Export.h>")
        self.allowed("logging/A.h", "<string>")
        self.allowed("tools/A.cpp", "<diagkit/model/B.h>")
        self.allowed("tools/A.cpp", "<diagkit/util/B.h>")
        self.allowed("tools/oem/A.cpp", "<diagkit/tools/oem/B.h>")
        self.allowed("tools/oem/A.cpp", "<diagkit/util/B.h>")
        self.allowed("memory/A.cpp", "<diagkit/model/B.h>")
        self.allowed("reader/A.cpp", "<expat.h>")
        self.allowed("check/A.cpp", "<diagkit/reader/B.h>")
        self.allowed("cli/A.cpp", "<diagkit/reader/B.h>")
        self.allowed("cli/A.cpp", "<diagkit/check/B.h>")
        self.allowed("cli/A.cpp", "<fmt/format.h>")

    def test_arrows_that_run_back(self):
        self.refused("model/A.h", "<diagkit/logging/B.h>")
        self.refused("model/A.h", "<diagkit/memory/B.h>")
        self.refused("logging/A.h", "<diagkit/model/B.h>")
        self.refused("util/A.h", "<diagkit/tools/B.h>")
        self.refused("tools/A.cpp", "<diagkit/memory/B.h>")
        self.refused("tools/A.cpp", "<diagkit/tools/oem/B.h>")
        self.refused("tools/oem/A.cpp", "<diagkit/tools/B.h>")
        self.refused("tools/oem/A.cpp", "<diagkit/reader/B.h>")
        self.refused("memory/A.cpp", "<diagkit/tools/B.h>")
        self.refused("reader/A.cpp", "<diagkit/cli/B.h>")
        self.refused("reader/A.cpp", "<diagkit/check/B.h>")
        self.refused("check/A.cpp", "<diagkit/cli/B.h>")

    def test_libraries_and_quotes(self):
        self.refused("tools/A.cpp", "<expat.h>")
        self.refused("tools/A.cpp", "<fmt/format.h>")
        self.refused("memory/A.cpp", '"Database.h"')
        self.refused("util/A.cpp", "<unistd.h>")

    def test_the_platform(self):
        self.allowed("util/A_win32.cpp", "<windows.h>")
        self.allowed("cli/A_posix.cpp", "<sys/stat.h>")
        self.refused("cli/A.cpp", "<windows.h>")
        self.refused("tools/A_win32.cpp", "<windows.h>")
        self.refused("cli/A_posix.cpp", "<diagkit/nowhere/A.h>")

    def test_where_includes_hide(self):
        self.assertEqual(self.check({"model/A.def": "x\n  #  include <diagkit/tools/B.h> // why\n"})[0], 1)
        self.assertEqual(self.check({"tools/deep/A.inc": "#include <diagkit/memory/B.h>\n"})[0], 1)
        self.assertEqual(self.check({"tests/A.h": "#include <diagkit/memory/B.h>\n"})[0], 1, "no file looked at")


if __name__ == "__main__":
    unittest.main()
