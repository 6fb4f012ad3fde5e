// SPDX-License-Identifier: Apache-2.0

// The contents of each kind of parameter, DOP and table, one level deep.

#include <diagkit/tools/Containment.h>

#include <gtest/gtest.h>

#include <diagkit/model/Params.h>
#include <diagkit/tools/OpResolveSnref.h>

#include "tools/ParamTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VContained;
using NMemory::VReference;

/// Records the contents of an element: short names, in parentheses for references, "?" where a reference does not
/// resolve, after the case of a MUX.
class VPartsPrinter : public NDIAGKIT::VContainment {
public:
    explicit VPartsPrinter(NDIAGKIT::IDopFinder& dops) : m_dops(dops) {}

    std::wstring Parts() const { return m_parts; }

protected:
    void Take(VContained const& part) override {
        NODX201::VOdxElement* const target = part.Target(m_dops);
        std::wstring const name = target != nullptr ? target->GetShortName() : L"?";
        m_parts += m_parts.empty() ? L"" : L" ";
        m_parts += part.GetCase() != nullptr ? part.GetCase()->GetShortName() + std::wstring(L":") : L"";
        m_parts += part.IsReference() ? L"(" + name + L")" : name;
        EXPECT_EQ(part.GetReference() != nullptr, part.IsReference());
    }

private:
    NDIAGKIT::IDopFinder& m_dops;
    std::wstring m_parts;
};

class ContainmentTest : public VParamTest {
protected:
    ContainmentTest() {
        m_database.SetResolverFactory([] { return std::make_unique<NDIAGKIT::VOpResolveSnref>(); });
    }

    std::wstring PartsOf(VContained::VKind kind, NODX201::VOdxElement& element) {
        VPartsPrinter printer(m_dops);
        printer.VisitPartsOf(kind, element);
        return printer.Parts();
    }
    std::wstring PartsOf(NODX201::VParam& param) { return PartsOf(VContained::VKind::Param, param); }
    std::wstring PartsOf(NODX201::VDopBase& dop) { return PartsOf(VContained::VKind::Dop, dop); }

    NMemory::VMemStructure& m_structure = m_dictionary.AddStructure(L"S");
    NMemory::VMemTable& m_table = m_dictionary.AddTable(L"T");
    NMemory::VMemTableRow& m_row = m_table.AddTableRow(L"R");
    NMemory::VMemPosResponse& m_response = PosResponse();
    NDIAGKIT::VDopsOfLayer m_dops{m_layer};
};

TEST_F(ContainmentTest, AValueContainsItsDop) {
    EXPECT_EQ(PartsOf(m_response.AddValue(L"A")), L"");
    auto& byId = m_response.AddValue(L"B");
    byId.SetDopBaseLink(m_structure);
    EXPECT_EQ(PartsOf(byId), L"(S)");
    auto& byShortName = m_response.AddValue(L"C");
    byShortName.SetDopBaseLink(VReference::ByShortName(L"S"));
    EXPECT_EQ(PartsOf(byShortName), L"(S)");
    auto& absent = m_response.AddValue(L"D");
    absent.SetDopBaseLink(VReference::ByShortName(L"Absent"));
    EXPECT_EQ(PartsOf(absent), L"(?)");
}

TEST_F(ContainmentTest, ParametersOfTablesContainWhatTheyName) {
    auto& keyOfTable = m_response.AddTableKey(L"K1");
    keyOfTable.SetTableRef(m_table);
    EXPECT_EQ(PartsOf(keyOfTable), L"(T)");
    auto& keyOfRow = m_response.AddTableKey(L"K2");
    keyOfRow.SetTableRowRef(m_row);
    EXPECT_EQ(PartsOf(keyOfRow), L"(R)");
    auto& data = m_response.AddTableStruct(L"D");
    EXPECT_EQ(PartsOf(data), L"");
    data.SetTableKeyRef(keyOfTable);
    EXPECT_EQ(PartsOf(data), L"(K1)");
    auto& entry = m_response.AddTableEntry(L"E");
    entry.SetTableRowRef(m_row);
    EXPECT_EQ(PartsOf(entry), L"(R)");
}

TEST_F(ContainmentTest, OtherParametersContainNothing) {
    EXPECT_EQ(PartsOf(m_response.AddCodedConst(L"C")), L"");
    EXPECT_EQ(PartsOf(m_response.AddReserved(L"R")), L"");
    auto& constant = m_response.AddPhysConst(L"P");
    constant.SetDataObjectPropLink(m_dictionary.AddDataObjectProp(L"D"));
    EXPECT_EQ(PartsOf(constant), L"");
}

TEST_F(ContainmentTest, AStructureAndAnEnvDataContainTheirParameters) {
    m_structure.AddValue(L"A");
    m_structure.AddReserved(L"B");
    EXPECT_EQ(PartsOf(m_structure), L"A B");
    auto& envData = m_dictionary.AddEnvDataDesc(L"Desc").AddEnvData(L"Env");
    envData.AddValue(L"C");
    EXPECT_EQ(PartsOf(envData), L"C");
}

TEST_F(ContainmentTest, AnEnvDataDescContainsItsEnvDatasInOrder) {
    auto& other = m_dictionary.AddEnvDataDesc(L"Other").AddEnvData(L"Far");
    auto& desc = m_dictionary.AddEnvDataDesc(L"Desc");
    desc.AddEnvDataRef(other);
    desc.AddEnvData(L"Near");
    EXPECT_EQ(PartsOf(desc), L"(Far) Near");
}

TEST_F(ContainmentTest, AFieldContainsWhatItRepeats) {
    auto& field = m_dictionary.AddStaticField(L"F1");
    EXPECT_EQ(PartsOf(field), L"");
    field.SetBasicStructureRef(m_structure);
    EXPECT_EQ(PartsOf(field), L"(S)");
    auto& length = m_dictionary.AddDynamicLengthField(L"F2");
    length.SetBasicStructureRef(m_structure);
    EXPECT_EQ(PartsOf(length), L"(S)");
    auto& end = m_dictionary.AddEndOfPduField(L"F3");
    end.SetEnvDataDescRef(m_dictionary.AddEnvDataDesc(L"Desc"));
    EXPECT_EQ(PartsOf(end), L"(Desc)");
}

TEST_F(ContainmentTest, AFieldWithAnEndMarkerContainsThatToo) {
    auto& marker = m_dictionary.AddDataObjectProp(L"M");
    auto& field = m_dictionary.AddDynamicEndmarkerField(L"F");
    field.SetDataObjectPropRef(marker);
    EXPECT_EQ(PartsOf(field), L"(M)");
    field.SetBasicStructureRef(m_structure);
    EXPECT_EQ(PartsOf(field), L"(S) (M)");
}

TEST_F(ContainmentTest, AMuxContainsItsCasesWithTheDefaultCaseFirst) {
    auto& mux = m_dictionary.AddMux(L"M");
    EXPECT_EQ(PartsOf(mux), L"");
    mux.AddCase(L"A").SetStructureRef(m_structure);
    mux.AddCase(L"Empty");
    EXPECT_EQ(PartsOf(mux), L"A:(S)");
    mux.MakeDefaultCase(L"Default").SetStructureRef(m_dictionary.AddStructure(L"D"));
    EXPECT_EQ(PartsOf(mux), L"Default:(D) A:(S)");
}

TEST_F(ContainmentTest, ATableContainsItsRowsAndARowItsStructure) {
    EXPECT_EQ(PartsOf(VContained::VKind::TableRow, m_row), L"");
    m_row.SetStructureRef(m_structure);
    EXPECT_EQ(PartsOf(VContained::VKind::TableRow, m_row), L"(S)");
    auto& other = m_dictionary.AddTable(L"Other");
    other.AddTableRowRef(m_row);
    other.AddTableRow(L"Own");
    EXPECT_EQ(PartsOf(VContained::VKind::Table, other), L"(R) Own");
}

TEST_F(ContainmentTest, SimpleDopsContainNothing) {
    EXPECT_EQ(PartsOf(m_dictionary.AddDataObjectProp(L"D")), L"");
    EXPECT_EQ(PartsOf(m_dictionary.AddDtcDop(L"E")), L"");
}

} // namespace
} // namespace NTest
