#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""The reference is not made of headers that leave something undescribed, and its own sentences are about what they say.

    check_reference_test.py DOXYGEN DOXYFILE FOLDER
"""

import pathlib
import subprocess
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "docs" / "reference"))
from describe import describe  # noqa: E402

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
    # Doxygen is asked about a header that is not in the tree; paths that are absolute stay as they are.
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

    def test_sentences_say_the_names_of_odx(self):
        made = describe(HEADER)
        self.assertIn("/** Whether there is a DIAG-COMM-REF. */ virtual bool HasDiagCommRef() const = 0;", made)
        self.assertIn("/** The DIAG-COMM-REF. REQUIRES: `HasDiagCommRef` is true. */", made)
        self.assertIn("/** The LONG-NAME. REQUIRES: `HasLongName` is true. */", made)
        self.assertIn("/** Each PARAM, in document order; empty when there is none. */", made)

    def test_lines_stay_where_they_are(self):
        self.assertEqual(HEADER.count("\n"), describe(HEADER).count("\n"))
        self.assertIn("/// @file\n/// Doors.", describe(HEADER))

    def test_a_comment_is_not_replaced(self):
        commented = HEADER.replace("    virtual bool Has", "    /// Broken.\n    virtual bool Has")
        self.assertNotIn("Whether there is", describe(commented))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
