#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""The reference is not made from headers with missing descriptions.

    check_reference_test.py DOXYGEN DOXYFILE FOLDER
"""

import pathlib
import subprocess
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
HEADER = """\
#include <diagkit/model/OdxElement.h>

/// Doors.

namespace NODX201 {

/// A door
class VDoor : public VOdxElement {
public:
    virtual bool HasDiagCommRef() const = 0;
    virtual VLink& GetDiagCommRef() = 0;
    virtual VParamCollection& ParamCollection() = 0;
    virtual bool HasLongName() const = 0;
    virtual VText& GetLongName() = 0;
    OPERATION
};

} // namespace NODX201
"""
DESCRIBED = "virtual void Open() = 0; ///< wide"


def make(header):
    # Doxygen is called for a header that is not in the tree; absolute paths stay as they are.
    folder = pathlib.Path(sys.argv[3]).resolve()
    folder.mkdir(parents=True, exist_ok=True)
    path = folder / "Door.h"
    path.write_text(header, encoding="utf-8")
    command = [sys.executable, "-B", ROOT / "docs" / "reference" / "make-reference", "--check", *sys.argv[1:3]]
    done = subprocess.run([*command, folder / "made", path], capture_output=True, encoding="utf-8")
    return done.returncode, done.stderr


class Reference(unittest.TestCase):
    def test_described_header_passes(self):
        self.assertEqual((0, ""), make(HEADER.replace("OPERATION", DESCRIBED)))

    def test_undescribed_operation_fails(self):
        status, said = make(HEADER.replace("OPERATION", "virtual void Open() = 0;"))
        self.assertEqual(1, status)
        self.assertIn("Open", said)

    def test_undescribed_class_fails(self):
        status, said = make(HEADER.replace("OPERATION", DESCRIBED).replace("/// A door\n", ""))
        self.assertEqual(1, status)
        self.assertIn("VDoor", said)

    def test_unknown_command_fails(self):
        status, said = make(HEADER.replace("OPERATION", DESCRIBED + r" \unknown"))
        self.assertEqual(1, status)
        self.assertIn("unknown", said)

    def test_attributes_of_odx_are_no_commands(self):
        self.assertEqual((0, ""), make(HEADER.replace("OPERATION", DESCRIBED + " @DOCREF")))

    def test_comment_in_front_of_the_namespace_is_about_the_file(self):
        make(HEADER.replace("OPERATION", DESCRIBED))
        made = pathlib.Path(sys.argv[3], "made", "headers", "Door.h").read_text(encoding="utf-8")
        self.assertIn("/// @file\n/// Doors.", made)
        self.assertEqual(HEADER.count("\n"), made.count("\n"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
