#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Check that check_includes.py detects an include against the direction of dependencies."""

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
        self.allowed("diagkit/model/A.h", "<diagkit/model/B.h>")
        self.allowed("diagkit/model/A.h", "<diagkit/Export.h>")
        self.allowed("diagkit/logging/A.h", "<string>")
        self.allowed("diagkit/tools/A.cpp", "<diagkit/model/B.h>")
        self.allowed("diagkit/tools/A.cpp", "<diagkit/util/B.h>")
        self.allowed("diagkit/tools/oem/A.cpp", "<diagkit/tools/oem/B.h>")
        self.allowed("diagkit/tools/oem/A.cpp", "<diagkit/util/B.h>")
        self.allowed("diagkit/memory/A.cpp", "<diagkit/model/B.h>")
        self.allowed("diagkit/reader/A.cpp", "<expat.h>")
        self.allowed("diagkit/check/A.cpp", "<diagkit/reader/B.h>")
        self.allowed("cli/A.cpp", "<diagkit/reader/B.h>")
        self.allowed("cli/A.cpp", "<diagkit/check/B.h>")
        self.allowed("cli/A.cpp", "<fmt/format.h>")

    def test_headers_for_whole_libraries(self):
        self.allowed("diagkit/A.h", "<diagkit/query/B.h>")
        self.allowed("diagkit/A.h", "<diagkit/B.h>")
        self.refused("diagkit/A.h", "<fmt/format.h>")
        self.refused("diagkit/query/A.h", "<diagkit/B.h>")
        self.refused("cli/A.cpp", "<diagkit/B.h>")

    def test_arrows_that_run_back(self):
        self.refused("diagkit/model/A.h", "<diagkit/logging/B.h>")
        self.refused("diagkit/model/A.h", "<diagkit/memory/B.h>")
        self.refused("diagkit/logging/A.h", "<diagkit/model/B.h>")
        self.refused("diagkit/util/A.h", "<diagkit/tools/B.h>")
        self.refused("diagkit/tools/A.cpp", "<diagkit/memory/B.h>")
        self.refused("diagkit/tools/A.cpp", "<diagkit/tools/oem/B.h>")
        self.refused("diagkit/tools/oem/A.cpp", "<diagkit/tools/B.h>")
        self.refused("diagkit/tools/oem/A.cpp", "<diagkit/reader/B.h>")
        self.refused("diagkit/memory/A.cpp", "<diagkit/tools/B.h>")
        self.refused("diagkit/reader/A.cpp", "<cli/B.h>")
        self.refused("diagkit/reader/A.cpp", "<diagkit/check/B.h>")
        self.refused("diagkit/check/A.cpp", "<cli/B.h>")

    def test_libraries_and_quotes(self):
        self.refused("diagkit/tools/A.cpp", "<expat.h>")
        self.refused("diagkit/tools/A.cpp", "<fmt/format.h>")
        self.refused("diagkit/memory/A.cpp", '"Database.h"')
        self.refused("diagkit/util/A.cpp", "<unistd.h>")

    def test_the_platform(self):
        self.allowed("diagkit/util/A_win32.cpp", "<windows.h>")
        self.allowed("cli/A_posix.cpp", "<sys/stat.h>")
        self.refused("cli/A.cpp", "<windows.h>")
        self.refused("diagkit/tools/A_win32.cpp", "<windows.h>")
        self.refused("cli/A_posix.cpp", "<diagkit/nowhere/A.h>")

    def test_internal_headers(self):
        readme = "The toolkit. `A.h` holds all; `B.h` and\n`C.h` are internal. More.\n"
        for header, others in (("A", 0), ("B", 1), ("C", 1)):
            line = f"#include <diagkit/tools/{header}.h>\n"
            files = {"diagkit/tools/README.md": readme, "diagkit/tools/D.cpp": line}
            self.assertEqual(self.check(files)[0], 0)
            self.assertEqual(self.check({"diagkit/tools/README.md": readme, "cli/D.cpp": line})[0], others)

    def test_where_includes_hide(self):
        self.assertEqual(self.check({"diagkit/model/A.def": "x\n  #  include <diagkit/tools/B.h> // why\n"})[0], 1)
        self.assertEqual(self.check({"diagkit/tools/deep/A.inc": "#include <diagkit/memory/B.h>\n"})[0], 1)
        self.assertEqual(self.check({"tests/A.h": "#include <diagkit/memory/B.h>\n"})[0], 1, "no file looked at")


if __name__ == "__main__":
    unittest.main()
