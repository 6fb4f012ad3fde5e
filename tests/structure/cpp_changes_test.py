#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""The changes that scripts/mutants makes are those described by its rows, in one place each."""

import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
from cpp_changes import Unfit, changed_text  # noqa: E402

SOURCE = """\
constexpr int kTable[] = {1, 2};

VDoor::VDoor(VHouse& house) : m_house(house), m_isOpen(false) { Open(); }

VDoor::VDoor(VWall& wall) { wall.Add(*this); }

bool VDoor::Open() {
    if (auto* const lock = m_house.Lock(); lock->IsShut() && !lock->Has(Key{1})) {
        return false; // IsShut
    }
    Visit([this](VHinge& x) {
        Oil(x, kTable[0]);
    });
    m_isOpen = m_isOpen ? true : Push(1);
    return m_count < 2;
}
"""


class Changes(unittest.TestCase):
    def check(self, scope, change, old, new):
        self.assertEqual(1, SOURCE.count(old))
        self.assertEqual(SOURCE.replace(old, new), changed_text(SOURCE, scope, change))

    def check_unfit(self, scope, change, fault):
        with self.assertRaisesRegex(Unfit, fault):
            changed_text(SOURCE, scope, change)

    def test_tokens_are_replaced_whatever_stands_between(self):
        self.check("VDoor::Open", "replace m_count< 2 by true", "m_count < 2", "true")

    def test_swap(self):
        self.check("kTable", "swap 1 and 2", "{1, 2}", "{2, 1}")

    def test_statement(self):
        self.check("VDoor::Open", "drop m_isOpen #1", "m_isOpen = m_isOpen ? true : Push(1);",
                   "if (false) { m_isOpen = m_isOpen ? true : Push(1); }")

    def test_statement_inside_an_argument(self):
        self.check("VDoor::Open", "drop kTable unless isDry", "Oil(x, kTable[0]);",
                   "if (isDry) { Oil(x, kTable[0]); }")

    def test_condition_behind_an_initialisation(self):
        self.check("VDoor::Open", "never IsShut", "lock->IsShut() && !lock->Has(Key{1})",
                   "(false) && (lock->IsShut() && !lock->Has(Key{1}))")

    def test_condition_of_a_choice(self):
        self.check("VDoor::Open", "always m_isOpen #2", "= m_isOpen ?", "= true || (m_isOpen) ?")

    def test_returned_condition(self):
        self.check("VDoor::Open", "never m_count unless m_isOpen", "m_count < 2", "(m_isOpen) && (m_count < 2)")

    def test_overload(self):
        self.check("VDoor::VDoor(VHouse)", "drop Open", "Open(); }", "if (false) { Open(); } }")
        self.check_unfit("VDoor::VDoor", "drop Open", "defined 2 times")

    def test_what_does_not_fit(self):
        self.check_unfit("VDoor::Close", "drop Open", "defined 0 times")
        self.check_unfit("VDoor::Open", "drop Slam", "stands there 0 times")
        self.check_unfit("VDoor::Open", "replace 1 by 2", "stands there 2 times")
        self.check_unfit("VDoor::Open", "never Oil", "in no condition")
        self.check_unfit("VDoor::Open", "paint Open", "is no change")


if __name__ == "__main__":
    unittest.main()
