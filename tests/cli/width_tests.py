#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""How wide the text for people is.

    width_tests.py PROGRAM...
"""

import os
import re
import subprocess
import unittest

from program import DATA, IS_POSIX, PROGRAM, SAMPLE, is_for_windows, main, run

SAMPLES = SAMPLE.parent
LAYERS = ("UdsOnCan", "SessionLibrary", "BodyElectronics", "FrontWiper", "FrontWiperRainLight")
PARAMS = ("--layer", "FrontWiper", "--diag-comm", "ReadWiperStatus")


def calls():
    """Everything that these commands say of the sample, by its relative path: paths in headings are as they are."""
    yield from (["info"], ["layers"], ["uses", "--unused"])
    for kind in ("diag-comms", "diag-variables", "global-neg-responses", "dops"):
        yield from (["view", kind, "--layer", layer] for layer in LAYERS)
    yield from (["view", "in-params", *PARAMS], ["view", "out-params", *PARAMS])
    yield from (["view", kind, "--flash", "WiperFlash"] for kind in ("idents", "sessions"))
    yield from (["view", "protocols", "--layer", "FrontWiper"], ["uses", "FrontWiper.TroubleCode"])
    yield from (["uses", "UdsOnCan.DataObject.TroubleCode"], ["uses", "PartNumber", "--kind", "PARAM"])
    for layer in LAYERS:
        yield from (["explain", "diag-comm", name, "--layer", layer] for name in ("ReadTroubleCodes", "HardReset"))
        yield ["explain", "diag-variable", "SupplyVoltage", "--layer", layer]
    yield from (["find", word] for word in ("wiper", "e", "0x"))


class Widths(unittest.TestCase):
    def text(self, call, *options):
        place = 3 if call[0] == "explain" else 2 if len(call) > 1 and call[0] != "uses" else len(call)
        words = [*call[:place], "WiperDatabase.pdx", *call[place:], *options, "--quiet"]
        done = subprocess.run([*PROGRAM, *words], cwd=SAMPLES, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              encoding="utf-8")
        self.assertIn(done.returncode, (0, 1), words)
        self.assertNotEqual(done.stdout, "", words)
        return done.stdout

    def test_no_line_is_wider_than_80_columns(self):
        for call in calls():
            for line in self.text(call).splitlines():
                if call[0] == "find" and re.search(r", .*!.* \(\d+\)$", line):
                    continue  # headings with the path of a file, which is whole
                self.assertLessEqual(len(line), 80, (call, line))

    def test_wide_text_leaves_nothing_out(self):
        for call in calls():
            self.assertNotIn("…", self.text(call, "--wide"), call)

    def test_every_name_and_id_that_is_shown_narrow_is_a_part_of_what_is_shown_wide(self):
        for call in calls():
            wide = self.text(call, "--wide")
            for word in re.sub(r" and \d+ more\n", "\n", self.text(call)).split():
                for piece in word.split("…"):
                    self.assertIn(piece, wide, call)

    def test_an_id_that_is_the_short_name_is_not_repeated(self):
        self.assertRegex(self.text(["layers"], "--wide"), r"(?m)^  UdsOnCan +PROTOCOL +in BodyProtocols$")
        self.assertTrue(self.text(["view", "dops", "--layer", "FrontWiper"]).startswith("DOPs of BASE-VARIANT "
                                                                                         "FrontWiper\n"))

    def test_what_fits_stays_whole(self):
        self.assertNotIn("…", self.text(["layers"]))
        self.assertIn("BodyLibrary.Variable.SupplyVoltage",
                      self.text(["explain", "diag-variable", "SupplyVoltage", "--layer", "FrontWiper"]))

    def test_ids_are_shortened_in_the_middle_and_paths_at_their_start(self):
        self.assertRegex(self.text(["view", "dops", "--layer", "FrontWiper"]), r"Kwp2000\w*…[\w.]*TroubleCodeRecord\n")
        self.assertRegex(self.text(["info"]), r"ODX 2\.0\.1  …\S+WiperFamily\.odx-d\n")

    def test_text_of_other_forms_is_not_shortened(self):
        for form in ("--json", "--csv"):
            self.assertNotIn("…", run("view", "dops", SAMPLE, "--layer", "FrontWiper", form).stdout)


@unittest.skipUnless(IS_POSIX, "needs pseudo terminals")
class WidthsOfTerminals(unittest.TestCase):
    def setUp(self):
        if is_for_windows():
            self.skipTest("Wine draws a console on the terminal itself")

    def lengths(self, columns, *options):
        """Of the lines that a terminal of so many columns gets, without escape sequences."""
        import fcntl
        import pty
        import struct
        import termios

        outer, inner = pty.openpty()
        fcntl.ioctl(inner, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
        child = subprocess.Popen([*PROGRAM, "view", "dops", SAMPLE, "--layer", "FrontWiper", *options], cwd=DATA,
                                 stdin=subprocess.DEVNULL, stdout=inner, stderr=subprocess.DEVNULL)
        os.close(inner)
        written = b""
        try:
            while block := os.read(outer, 65536):
                written += block
        except OSError:  # the other end is closed
            pass
        os.close(outer)
        self.assertEqual(child.wait(), 0)
        text = re.sub(r"\x1b\[\d*m", "", written.decode("utf-8"))
        return [len(line) for line in text.splitlines() if line.startswith("  ")]

    def test_the_width_of_a_terminal_counts(self):
        self.assertLessEqual(max(self.lengths(60)), 60)
        self.assertGreater(max(self.lengths(200)), 80)
        self.assertEqual(self.lengths(200), self.lengths(60, "--wide"))

    def test_a_terminal_that_does_not_say_its_width_has_80_columns(self):
        self.assertEqual(max(self.lengths(0)), 80)

    def test_nothing_is_laid_out_for_less_than_40_columns(self):
        self.assertEqual(self.lengths(40), self.lengths(5))


if __name__ == "__main__":
    main(__doc__)
