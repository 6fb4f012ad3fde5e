#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""A database of other authors compared with an edited copy: each edit is reported once, with the layers that see it.

    diff_shared_tests.py FOLDER PROGRAM...

FOLDER contains somersault.pdx; it is not part of the project.
"""

import pathlib
import re
import sys
import tempfile
import unittest
import zipfile

from program import main, run

FOLDER = pathlib.Path(sys.argv.pop(1)) if len(sys.argv) > 2 else None
DOCUMENT = "somersault.odx-d"

DTC = '<DTC ID="{0}"><SHORT-NAME>{0}</SHORT-NAME><TROUBLE-CODE>{1}</TROUBLE-CODE><TEXT>{0}</TEXT></DTC>'
DTC_DOP = ('<DTC-DOPS><DTC-DOP ID="Codes"><SHORT-NAME>Codes</SHORT-NAME>'
           '<DIAG-CODED-TYPE xsi:type="STANDARD-LENGTH-TYPE" BASE-DATA-TYPE="A_UINT32"><BIT-LENGTH>24</BIT-LENGTH>'
           '</DIAG-CODED-TYPE><PHYSICAL-TYPE BASE-DATA-TYPE="A_UINT32"/>'
           "<COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY></COMPU-METHOD>"
           "<DTCS>" + DTC.format("Dizzy", 1) + "</DTCS></DTC-DOP></DTC-DOPS>")


def replaced(text, old, new, start=""):
    """The text with the first `old` after `start` replaced, which must be there."""
    place = text.index(old, text.index(start))
    return text[:place] + new + text[place + len(old):]


def edited(text):
    text = replaced(text, "<SHORT-NAME>tester_present<", "<SHORT-NAME>still_there<",
                    'ID="somersault.service.tester_present"')
    text = replaced(text, "<SHORT-NAME>forward_soberness_check<", "<SHORT-NAME>soberness<",
                    '<REQUEST ID="somersault.RQ.do_forward_flips"')
    text = replaced(text, "somersault.DOP.num_flips", "somersault.DOP.uint8",
                    '<REQUEST ID="somersault.RQ.do_backward_flips"')
    text = replaced(text, "<BYTE-POSITION>1<", "<BYTE-POSITION>2<",
                    '<REQUEST ID="somersault.RQ.set_operation_params"')
    text = replaced(text, "</DTCS>", DTC.format("Tired", 2) + "</DTCS>")
    variant = ('<ECU-VARIANT ID="somersault_calm"><SHORT-NAME>somersault_calm</SHORT-NAME><PARENT-REFS>'
               '<PARENT-REF ID-REF="somersault.base_variant" xsi:type="BASE-VARIANT-REF"/></PARENT-REFS></ECU-VARIANT>')
    text = replaced(text, "</ECU-VARIANTS>", variant + "</ECU-VARIANTS>")
    return re.sub(r"<SINGLE-ECU-JOB .*?</SINGLE-ECU-JOB>", "", text, count=1, flags=re.DOTALL)


class Somersault(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def package(self, name, change):
        path = self.folder / name
        with zipfile.ZipFile(FOLDER / "somersault.pdx") as source, zipfile.ZipFile(path, "w") as target:
            for member in source.namelist():
                data = source.read(member)
                if member == DOCUMENT:
                    text = data.decode("utf-8")
                    # It has no trouble codes, so one is added on both sides.
                    start = text.index("<DIAG-DATA-DICTIONARY-SPEC>", text.index("<BASE-VARIANT "))
                    text = replaced(text, "<DIAG-DATA-DICTIONARY-SPEC>", "<DIAG-DATA-DICTIONARY-SPEC>" + DTC_DOP,
                                    text[start - 40:start])
                    data = change(text).encode("utf-8")
                target.writestr(member, data)
        return path

    def test_each_edit_is_told_once_with_the_layers_that_see_it(self):
        done = run("diff", "--quiet", self.package("old.pdx", lambda text: text), self.package("new.pdx", edited))
        self.assertEqual((done.returncode, done.stderr), (1, ""))
        base, all_layers = "somersault_base_variant", "somersault_base_variant, somersault_lazy,"
        blocks = [block for block in done.stdout.split("\n\n") if block]
        self.assertEqual(len(blocks), 8, done.stdout)
        self.assertEqual(blocks[0], "added: ECU-VARIANT somersault_calm")
        seen = {block.splitlines()[0]: " ".join(block.split()) for block in blocks[1:-1]}

        def see(heading, *parts):
            found = [text for line, text in seen.items() if line.startswith(heading)]
            self.assertEqual(len(found), 1, f"{heading}: {done.stdout}")
            for part in parts:
                self.assertIn(part, found[0])

        see("renamed: DIAG-SERVICE still_there, formerly tester_present", f"seen in 3 layers: {all_layers}")
        see("changed: REQUEST do_forward_flips", "- PARAM[forward_soberness_check]", "+ PARAM[soberness]",
            f"seen in 3 layers: {all_layers}")
        see("changed: REQUEST do_backward_flips", "PARAM[num_flips]/DOP: num_flips -> uint8",
            f"seen in 2 layers: {base}, somersault_assiduous")
        see("changed: REQUEST set_operation_params", "BYTE-POSITION: 1 -> 2",
            f"seen in 2 layers: {base}, somersault_assiduous")
        see("changed: DTC-DOP Codes", "+ DTC[Tired]", f"seen in 3 layers: {all_layers}")
        see("removed: SINGLE-ECU-JOB compulsory_program", f"seen in 3 layers: {all_layers}")
        self.assertEqual(blocks[-1], "6 edits in 3 layers; 1 layer added, removed or renamed\n")

    def test_a_copy_is_equal(self):
        done = run("diff", "--quiet", self.package("old.pdx", str), self.package("new.pdx", str))
        self.assertEqual((done.returncode, done.stdout), (0, "No differences in what the layers see\n"))


if __name__ == "__main__":
    main(__doc__)
