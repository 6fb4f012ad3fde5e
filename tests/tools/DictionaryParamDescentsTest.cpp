// SPDX-License-Identifier: Apache-2.0

// Parameters, tables, and references from DOPs to others.

#include "tools/DictionaryDescentsTest.h"

namespace NTest {
namespace {

TEST_F(DictionaryDescentsTest, SwitchKey) {
    NMemory::VMemSwitchKey& key = m_dictionary.AddMux(L"Mux").MakeSwitchKey();
    key.SetDataObjectPropRef(Dop(L"Key"));
    m_recorder.VisitSwitchKey(key);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        SwitchKey
          DataObjectProp Key
        )"));
}

TEST_F(DictionaryDescentsTest, LengthKey) {
    NMemory::VMemLengthKey& param = Structure(L"Holder").AddLengthKey(L"Length");
    param.SetDataObjectPropLink(Dop(L"Bits"));
    m_recorder.VisitLengthKey(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        LengthKey Length
          DataObjectProp Bits
        )"));
}

TEST_F(DictionaryDescentsTest, PhysConst) {
    NMemory::VMemPhysConst& param = Structure(L"Holder").AddPhysConst(L"Constant");
    param.SetDataObjectPropLink(Dop(L"Number"));
    m_recorder.VisitPhysConst(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        PhysConst Constant
          DataObjectProp Number
        )"));
}

TEST_F(DictionaryDescentsTest, System) {
    NMemory::VMemSystem& param = Structure(L"Holder").AddSystem(L"Tester");
    param.SetDataObjectPropLink(Dop(L"Number"));
    m_recorder.VisitSystem(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        System Tester
          DataObjectProp Number
        )"));
}

TEST_F(DictionaryDescentsTest, DetermineNumberOfItems) {
    NMemory::VMemDetermineNumberOfItems& items =
        m_dictionary.AddDynamicLengthField(L"Rows").MakeDetermineNumberOfItems();
    items.SetDataObjectPropRef(Dop(L"Count"));
    m_recorder.VisitDetermineNumberOfItems(items);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DetermineNumberOfItems
          DataObjectProp Count
        )"));
}

TEST_F(DictionaryDescentsTest, DefaultCase) {
    NMemory::VMemDefaultCase& defaultCase = m_dictionary.AddMux(L"Mux").MakeDefaultCase(L"Default");
    defaultCase.SetStructureRef(Structure(L"Content"));
    m_recorder.VisitDefaultCase(defaultCase);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        DefaultCase Default
          Structure Content
        )"));
}

TEST_F(DictionaryDescentsTest, TableRow) {
    NMemory::VMemTableRow& row = m_dictionary.AddTable(L"Table").AddTableRow(L"Row");
    row.SetStructureRef(Structure(L"Content"));
    m_recorder.VisitTableRow(row);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        TableRow Row
          Structure Content
        )"));
}

TEST_F(DictionaryDescentsTest, Case) {
    NMemory::VMemCase& muxCase = m_dictionary.AddMux(L"Mux").AddCase(L"Case");
    muxCase.MakeUpperLimit();
    muxCase.MakeLowerLimit();
    muxCase.SetStructureRef(Structure(L"Content"));
    m_recorder.VisitCase(muxCase);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Case Case
          Structure Content
          Limit LOWER-LIMIT
          Limit UPPER-LIMIT
        )"));
}

TEST_F(DictionaryDescentsTest, ValueDispatchesItsDop) {
    NMemory::VMemStructure& holder = Structure(L"Holder");
    NMemory::VMemValue& number = holder.AddValue(L"Number");
    NMemory::VMemValue& rows = holder.AddValue(L"Rows");
    number.SetDopBaseLink(Dop(L"Volts"));
    rows.SetDopBaseLink(m_dictionary.AddStaticField(L"Field"));
    m_recorder.VisitValue(number);
    m_recorder.VisitValue(rows);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Value Number
          DataObjectProp Volts
        Value Rows
          StaticField Field
        )"));
}

TEST_F(DictionaryDescentsTest, OutputParamDispatchesItsDop) {
    NMemory::VMemSingleEcuJob& job = m_layer.AddSingleEcuJob(L"Job");
    NMemory::VMemOutputParam& number = job.AddOutputParam(L"Number");
    NMemory::VMemOutputParam& code = job.AddOutputParam(L"Code");
    number.SetDopBaseRef(Dop(L"Volts"));
    code.SetDopBaseRef(m_dictionary.AddDtcDop(L"TroubleCodes"));
    m_recorder.VisitOutputParam(number);
    m_recorder.VisitOutputParam(code);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        OutputParam Number
          DataObjectProp Volts
        OutputParam Code
          DtcDop TroubleCodes
        )"));
}

TEST_F(DictionaryDescentsTest, CodedConst) {
    NMemory::VMemCodedConst& param = Structure(L"Holder").AddCodedConst(L"ServiceId");
    param.MakeMinMaxLengthType();
    m_recorder.VisitCodedConst(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        CodedConst ServiceId
          DiagCodedType
        )"));
}

TEST_F(DictionaryDescentsTest, Reserved) {
    NMemory::VMemReserved& param = Structure(L"Holder").AddReserved(L"Gap");
    param.MakeParamLengthInfoType();
    m_recorder.VisitReserved(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Reserved Gap
          DiagCodedType
        )"));
}

TEST_F(DictionaryDescentsTest, TableKeyOfATable) {
    NMemory::VMemTableKey& param = Structure(L"Holder").AddTableKey(L"Key");
    param.SetTableRef(m_dictionary.AddTable(L"Table"));
    m_recorder.VisitTableKey(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        TableKey Key
          Table Table
        )"));
}

TEST_F(DictionaryDescentsTest, TableKeyOfATableRow) {
    NMemory::VMemTableKey& param = Structure(L"Holder").AddTableKey(L"Key");
    param.SetTableRowRef(m_dictionary.AddTable(L"Table").AddTableRow(L"Row"));
    m_recorder.VisitTableKey(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        TableKey Key
          TableRow Row
        )"));
}

TEST_F(DictionaryDescentsTest, TableStruct) {
    NMemory::VMemStructure& holder = Structure(L"Holder");
    NMemory::VMemTableStruct& param = holder.AddTableStruct(L"Content");
    param.SetTableKeyRef(holder.AddTableKey(L"Key"));
    m_recorder.VisitTableStruct(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        TableStruct Content
          TableKey Key
        )"));
}

TEST_F(DictionaryDescentsTest, TableEntry) {
    NMemory::VMemTableEntry& param = Structure(L"Holder").AddTableEntry(L"Entry");
    param.SetTableRowRef(m_dictionary.AddTable(L"Table").AddTableRow(L"Row"));
    m_recorder.VisitTableEntry(param);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        TableEntry Entry
          TableRow Row
        )"));
}

TEST_F(DictionaryDescentsTest, Table) {
    NMemory::VMemTable& other = m_dictionary.AddTable(L"Other");
    NMemory::VMemTable& table = m_dictionary.AddTable(L"Table");
    table.AddTableRow(L"First");
    table.AddTableRowRef(other.AddTableRow(L"Referenced"));
    table.AddTableRowRef(Nowhere());
    table.AddTableRow(L"Last");
    table.SetKeyDopRef(Dop(L"Key"));
    table.MakeAdminData();
    m_recorder.VisitTable(table);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Table Table
          AdminData
          DataObjectProp Key
          TableRow First
          TableRow Referenced
          TableRow Last
        )"));
}

TEST_F(DictionaryDescentsTest, ATableRowReachedFromItsTableAndFromATableEntryIsVisitedTwice) {
    NMemory::VMemTable& table = m_dictionary.AddTable(L"Table");
    Structure(L"Holder").AddTableEntry(L"Entry").SetTableRowRef(table.AddTableRow(L"Row"));
    m_recorder.TraverseDiagDataDictionarySpec(m_dictionary);
    EXPECT_EQ(m_recorder.TakeTranscript(), Text(LR"(
        Structure Holder
          TableEntry Entry
            TableRow Row
        Table Table
          TableRow Row
        )"));
}

} // namespace
} // namespace NTest
