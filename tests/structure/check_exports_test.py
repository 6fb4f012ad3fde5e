#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Check that check_exports.py reads symbols correctly and detects wrong exports."""

import unittest

from check_exports import faults, listed_names, names_in_export_table, owner_of, without_type_information

LIST_ITERATOR = "std::_List_iterator<NODX201::VDiagComm*>, NODX201::VDiagComm&"


class OwnerTest(unittest.TestCase):
    def test_owners(self):
        for symbol, owner in [
            ("NDIAGKIT::VDiagCommView::Find(wchar_t const*)", "NDIAGKIT::VDiagCommView"),
            ("NDIAGKIT::VDiagCommView::~VDiagCommView()", "NDIAGKIT::VDiagCommView"),
            ("NDIAGKIT::VDopView::Begin[abi:cxx11]()", "NDIAGKIT::VDopView"),
            ("vtable for NODX201::VDiagComm", "NODX201::VDiagComm"),
            ("typeinfo name for NODX201::VDiagComm", "NODX201::VDiagComm"),
            ("non-virtual thunk to NODX201::VDtc::~VDtc()", "NODX201::VDtc"),
            (f"NDIAGKIT::VExternalIterator<{LIST_ITERATOR}>::operator++()", "NDIAGKIT::VExternalIterator"),
            (f"typeinfo for NDIAGKIT::VExternalIterator<{LIST_ITERATOR}>", "NDIAGKIT::VExternalIterator"),
            (f"NDIAGKIT::VExternalIterator<{LIST_ITERATOR}>::operator==(A<B> const&) const",
             "NDIAGKIT::VExternalIterator"),
            ("NDIAGKIT::VListView<NDIAGKIT::VTraits>::operator!=(A const&) const", "NDIAGKIT::VListView"),
            ("void NDIAGKIT::VDiagCommView::Pass<NODX201::VProtocolRef, NODX201::VProtocol>(int&)",
             "NDIAGKIT::VDiagCommView"),
            ("std::pair<A, B> NMemory::Make<int>(int)", "std::pair"),
            ("void NMemory::Make<int>(int)", "NMemory::Make"),
            ("NPavonaUtil::SetAssertionHandler(void (*)(NPavonaUtil::VAssertion const&))",
             "NPavonaUtil::SetAssertionHandler"),
            ("main", "main"),
        ]:
            self.assertEqual(owner_of(symbol), owner)


class FaultsTest(unittest.TestCase):
    MEANT = {"NDIAGKIT::VView", "NODX201::VDtc"}
    SYMBOLS = ["NDIAGKIT::VView::Count() const", "vtable for NODX201::VDtc", "std::vector<int>::clear()"]

    def test_agreement(self):
        self.assertEqual(faults(self.SYMBOLS, self.MEANT), [])

    def test_something_internal(self):
        self.assertEqual(
            faults(self.SYMBOLS + ["NDIAGKIT::VNameSet::Add()"], self.MEANT),
            ["exported and not meant to be: NDIAGKIT::VNameSet (by NDIAGKIT::VNameSet::Add())"],
        )

    def test_another_room(self):
        self.assertEqual(len(faults(self.SYMBOLS + ["vtable for NMemory::VDatabase"], self.MEANT)), 1)

    def test_something_missing(self):
        self.assertEqual(faults(self.SYMBOLS[1:], self.MEANT), ["meant to be exported and is not: NDIAGKIT::VView"])

    def test_type_information_alone_is_no_export(self):
        symbols = ["typeinfo for NDIAGKIT::VRule"] + self.SYMBOLS
        self.assertEqual(faults(without_type_information(symbols), self.MEANT), [])
        symbols = ["typeinfo for NDIAGKIT::VView"] + self.SYMBOLS[1:]
        self.assertEqual(len(faults(without_type_information(symbols), self.MEANT)), 1)

    def test_export_tables_of_both_forms(self):
        for row in ("\t[   0] ", "\t[   0] +base[   1]  0000 "):
            dump = f"\t[   0] +base[   1] 4dc0 Export RVA\n[Ordinal/Name Pointer] Table\n{row}_ZN1A1BE\n{row}_ZN1CD1Ev\n\nx\n"
            self.assertEqual(names_in_export_table(dump), ["_ZN1A1BE", "_ZN1CD1Ev"])

    def test_list(self):
        self.assertEqual(listed_names(["# title", "", "A::B", "C::D  # why"]), {"A::B", "C::D"})


if __name__ == "__main__":
    unittest.main()
