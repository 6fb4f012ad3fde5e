#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""The rules by which check_guide.py compares."""

import unittest

from guide import blocks, calls, is_extract, is_shown

SOURCE = "int main() {\n    Open();\n    if (isOpen) {\n        Close();\n    }\n}\n"


class Answers(unittest.TestCase):
    def test_the_same(self):
        self.assertTrue(is_shown(["a", "b"], ["a", "b"]))
        self.assertFalse(is_shown(["a"], ["a", "b"]))
        self.assertFalse(is_shown(["a", "c"], ["a", "b"]))
        self.assertFalse(is_shown([], ["a"]))

    def test_dots_stand_for_lines_between(self):
        self.assertTrue(is_shown(["a", "...", "d"], ["a", "b", "c", "d"]))
        self.assertTrue(is_shown(["...", "b", "...", "d"], ["a", "b", "c", "d"]))
        self.assertTrue(is_shown(["a", "  ..."], ["a", "b"]))

    def test_dots_stand_for_nothing_else(self):
        self.assertFalse(is_shown(["a", "...", "b"], ["a", "b"]))
        self.assertFalse(is_shown(["a", "...", "x", "...", "d"], ["a", "b", "c", "d"]))
        self.assertFalse(is_shown(["a", "...", "c"], ["a", "b", "c", "d"]))
        self.assertFalse(is_shown(["...", "c", "...", "b", "..."], ["a", "b", "x", "c", "d"]))


class Pages(unittest.TestCase):
    def test_calls_and_their_answers(self):
        block = blocks("text\n```console\n$ one\na\n$ two\n```\n", "console")[0]
        self.assertEqual([("one", ["a"]), ("two", [])], calls(block))


class Extracts(unittest.TestCase):
    def test_lines_as_they_stand(self):
        self.assertTrue(is_extract("Open();\nif (isOpen) {\n    Close();\n}\n", [SOURCE]))
        self.assertTrue(is_extract("int main() {\n    // ...\n}\n", [SOURCE]))

    def test_other_lines(self):
        self.assertFalse(is_extract("Open();\nif (isShut) {\n", [SOURCE]))
        self.assertFalse(is_extract("Open();\nClose();\n", [SOURCE]))
        self.assertFalse(is_extract("Close();\n// ...\nOpen();\n", [SOURCE]))


if __name__ == "__main__":
    unittest.main()
