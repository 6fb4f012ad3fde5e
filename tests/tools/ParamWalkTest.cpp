// SPDX-License-Identifier: Apache-2.0

// Walks below parameters: what they find in which order, and on which way.

#include <diagkit/tools/OutParamIfView.h>
#include <diagkit/tools/ParamWalk.h>

#include <gtest/gtest.h>

#include <diagkit/model/Params.h>
#include <diagkit/model/SearchRange.h>

#include "tools/ParamTest.h"

namespace NTest {
namespace {

using NMemory::VReference;

/// Records the way to every VALUE parameter.
class VWayPrinter : public NDIAGKIT::VParamWalk {
public:
    explicit VWayPrinter(NDIAGKIT::IDopFinder& dops, std::wstring const& last = L"") : VParamWalk(dops), m_last(last) {}

    std::wstring Ways() const { return m_ways; }

protected:
    void VisitValue(NODX201::VValue& param) override {
        m_ways += m_ways.empty() ? L"" : L" ";
        bool isFirst = true;
        for (NODX201::VOdxElement const* const step : Path()) {
            m_ways += (isFirst ? L"" : L">") + std::wstring(step->GetShortName());
            isFirst = false;
        }
        if (m_last == param.GetShortName()) {
            End();
        } else {
            WalkBelow(param);
        }
    }

private:
    std::wstring m_last;
    std::wstring m_ways;
};

class ParamWalkTest : public VParamTest {
protected:
    /// The ways to all VALUEs below the parameters of the response, up to the one with this name.
    std::wstring Ways(std::wstring const& last = L"") {
        VWayPrinter printer(m_dops, last);
        for (NODX201::VParam& param : m_response.ParamCollection()) {
            if (printer.Walk(param)) {
                break;
            }
        }
        return printer.Ways();
    }

    NMemory::VMemStructure& Structure(wchar_t const* name) { return m_dictionary.AddStructure(name); }

    NMemory::VMemPosResponse& m_response = PosResponse();
    NDIAGKIT::VDopsOfLayer m_dops{m_layer};
};

TEST_F(ParamWalkTest, StructuresAreWalkedDepthFirstInDocumentOrder) {
    auto& inner = Structure(L"Inner");
    inner.AddValue(L"C");
    auto& outer = Structure(L"Outer");
    outer.AddValue(L"A");
    outer.AddValue(L"B").SetDopBaseLink(inner);
    outer.AddValue(L"D");
    m_response.AddValue(L"Root").SetDopBaseLink(outer);
    m_response.AddValue(L"Last");
    EXPECT_EQ(Ways(), L"Root Root>Outer>A Root>Outer>B Root>Outer>B>Inner>C Root>Outer>D Last");
}

TEST_F(ParamWalkTest, AStructureIsEnteredOnce) {
    auto& shared = Structure(L"Shared");
    shared.AddValue(L"A");
    m_response.AddValue(L"One").SetDopBaseLink(shared);
    m_response.AddValue(L"Two").SetDopBaseLink(shared);
    EXPECT_EQ(Ways(), L"One One>Shared>A Two");
}

TEST_F(ParamWalkTest, AStructureThatContainsItselfEndsTheWay) {
    auto& circle = Structure(L"Circle");
    circle.AddValue(L"A").SetDopBaseLink(circle);
    circle.AddValue(L"B");
    m_response.AddValue(L"Root").SetDopBaseLink(circle);
    EXPECT_EQ(Ways(), L"Root Root>Circle>A Root>Circle>B");
}

TEST_F(ParamWalkTest, AMuxIsWalkedCaseByCaseWithTheDefaultCaseFirst) {
    auto& mux = m_dictionary.AddMux(L"Mux");
    for (wchar_t const* const name : {L"A", L"B"}) {
        auto& structure = Structure(name);
        structure.AddValue(name);
        mux.AddCase((std::wstring(L"In") + name).c_str()).SetStructureRef(structure);
    }
    auto& other = Structure(L"Else");
    other.AddValue(L"C");
    mux.MakeDefaultCase(L"Default").SetStructureRef(other);
    m_response.AddValue(L"Root").SetDopBaseLink(mux);
    EXPECT_EQ(Ways(), L"Root Root>Mux>Default>Else>C Root>Mux>InA>A>A Root>Mux>InB>B>B");
}

TEST_F(ParamWalkTest, ATableStructLeadsToTheRowsOfTheTableThatItsKeyNames) {
    auto& table = m_dictionary.AddTable(L"Table");
    for (wchar_t const* const name : {L"A", L"B"}) {
        auto& structure = Structure(name);
        structure.AddValue(name);
        table.AddTableRow((std::wstring(L"Row") + name).c_str()).SetStructureRef(structure);
    }
    auto& key = m_response.AddTableKey(L"Key");
    key.SetTableRef(table);
    m_response.AddTableStruct(L"Data").SetTableKeyRef(key);
    EXPECT_EQ(Ways(), L"Data>Table>RowA>A>A Data>Table>RowB>B>B");
}

TEST_F(ParamWalkTest, ATableKeyAndATableEntryLeadNowhereByThemselves) {
    auto& structure = Structure(L"A");
    structure.AddValue(L"A");
    auto& table = m_dictionary.AddTable(L"Table");
    auto& row = table.AddTableRow(L"Row");
    row.SetStructureRef(structure);
    m_response.AddTableKey(L"Key").SetTableRef(table);
    m_response.AddTableEntry(L"Entry").SetTableRowRef(row);
    EXPECT_EQ(Ways(), L"");
}

TEST_F(ParamWalkTest, TheEndMarkerOfAFieldIsNoPartOfWhatItRepeats) {
    auto& marker = Structure(L"Marker");
    marker.AddValue(L"M");
    auto& repeated = Structure(L"Repeated");
    repeated.AddValue(L"A");
    auto& field = m_dictionary.AddDynamicEndmarkerField(L"Field");
    field.SetBasicStructureRef(repeated);
    field.SetDataObjectPropRef(marker);
    m_response.AddValue(L"Root").SetDopBaseLink(field);
    EXPECT_EQ(Ways(), L"Root Root>Field>Repeated>A");
}

TEST_F(ParamWalkTest, AWalkThatIsEndedGoesNoFurther) {
    auto& structure = Structure(L"S");
    structure.AddValue(L"A");
    structure.AddValue(L"B");
    structure.AddValue(L"C");
    m_response.AddValue(L"Root").SetDopBaseLink(structure);
    m_response.AddValue(L"Last");
    EXPECT_EQ(Ways(L"B"), L"Root Root>S>A Root>S>B");
}

TEST_F(ParamWalkTest, AWalkTakesNoMoreOfTheStackHoweverDeep) {
    constexpr int kDepth = 200'000;
    NMemory::VMemStructure* inner = &Structure(L"Last");
    inner->AddValue(L"Found");
    for (int depth = 0; depth < kDepth; ++depth) {
        auto& outer = Structure(L"S");
        outer.AddValue(L"P").SetDopBaseLink(*inner);
        inner = &outer;
    }
    m_response.AddValue(L"Root").SetDopBaseLink(*inner);
    NDIAGKIT::VOutParamIfView view(m_service, NODX201::VSearchRange::PosResponses);
    EXPECT_NE(view.FindParam(L"Found", m_layer), nullptr);
    EXPECT_EQ(view.FindParam(L"Absent", m_layer), nullptr);
}

} // namespace
} // namespace NTest
