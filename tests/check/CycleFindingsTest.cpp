// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <random>
#include <set>

#include <diagkit/check/Cycles.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/tools/OpResolveSnref.h>

#include "check/CheckTest.h"

namespace NTest {
namespace {

std::string Related(std::string const& id) {
    return "<RELATED-DIAG-COMM-REFS>\n<RELATED-DIAG-COMM-REF ID-REF=\"" + id +
           "\"><RELATION-TYPE>r</RELATION-TYPE></RELATED-DIAG-COMM-REF></RELATED-DIAG-COMM-REFS>";
}

std::string Table(std::string const& structure) {
    return "<TABLES>" +
           Xml("TABLE", "T", Xml("TABLE-ROW", "R", "<KEY>1</KEY>\n<STRUCTURE-REF ID-REF=\"" + structure + "\"/>")) +
           "</TABLES>";
}

std::string TableKey(std::string const& content) {
    return "<PARAM xsi:type=\"TABLE-KEY\" ID=\"K\"><SHORT-NAME>K</SHORT-NAME>\n" + content + "</PARAM>";
}

std::wstring Names(NCheck::VCycle const& cycle) {
    std::wstring names;
    for (NODX201::VReferencable const* const element : cycle.elements) {
        names += std::wstring(names.empty() ? L"" : L" ") + element->GetShortName();
    }
    if (cycle.layers == nullptr) {
        return names;
    }
    names += L" in";
    for (NODX201::VDiagLayer const* const layer : *cycle.layers) {
        names += std::wstring(L" ") + layer->GetShortName();
    }
    return names;
}

bool IsIn(NCheck::VCycle const& cycle, NODX201::VDiagLayer const* layer) {
    return cycle.layers == nullptr ||
           std::find(cycle.layers->begin(), cycle.layers->end(), layer) != cycle.layers->end();
}

using VCycleFindingsTest = VCheckTest;

TEST_F(VCycleFindingsTest, RelatedDiagComms) {
    Check(LayerXml("BASE-VARIANT", "L", DiagComms(Service("A", Related("B")) + Service("B", Related("A")))));
    EXPECT_EQ(Finding(),
              "5:1 warning related-diag-comm-cycle: DIAG-SERVICE 'A' is related to itself by this reference; "
              "programs that follow references may not terminate: DIAG-SERVICE 'A', DIAG-SERVICE 'B'");
}

TEST_F(VCycleFindingsTest, DiagCommRelatedToItself) {
    Check(LayerXml("BASE-VARIANT", "L", DiagComms(Service("A", Related("A")))));
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 warning related-diag-comm-cycle");
}

TEST_F(VCycleFindingsTest, RelatedDiagCommsInALineAreNone) {
    Check(LayerXml("BASE-VARIANT", "L",
                   DiagComms(Service("A", Related("D")) + Service("B", Related("D")) + Service("D"))));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VCycleFindingsTest, TableKeyOfTheTableThatLeadsHere) {
    Check(LayerXml("BASE-VARIANT", "L",
                   InDictionary(Structure("S", TableKey("<TABLE-REF ID-REF=\"T\"/>") +
                                                   "<PARAM xsi:type=\"TABLE-STRUCT\"><SHORT-NAME>D</SHORT-NAME>"
                                                   "<TABLE-KEY-REF ID-REF=\"K\"/></PARAM>") +
                                Table("S"))));
    EXPECT_EQ(Finding(),
              "5:1 warning table-row-cycle: STRUCTURE 'S' contains itself through a table by this reference; "
              "programs that follow references may not terminate: STRUCTURE 'S', TABLE 'T', TABLE-ROW 'R'");
}

TEST_F(VCycleFindingsTest, TableKeyOfTheRowThatLeadsHere) {
    Check(LayerXml("BASE-VARIANT", "L",
                   InDictionary(Structure("S", TableKey("<TABLE-ROW-REF ID-REF=\"R\"/>")) + Table("S"))));
    EXPECT_EQ(Diagnostics(), "test.odx:5:1 warning table-row-cycle");
}

TEST_F(VCycleFindingsTest, TableEntryOfTheRowThatLeadsHere) {
    Check(LayerXml("BASE-VARIANT", "L",
                   InDictionary(Structure("S", "<PARAM xsi:type=\"TABLE-ENTRY\"><SHORT-NAME>E</SHORT-NAME><TARGET>KEY"
                                               "</TARGET>\n<TABLE-ROW-REF ID-REF=\"R\"/></PARAM>") +
                                Table("S"))));
    EXPECT_EQ(Diagnostics(), "test.odx:5:1 warning table-row-cycle");
}

TEST_F(VCycleFindingsTest, TableOfStructuresWithoutTablesIsNone) {
    Check(
        LayerXml("BASE-VARIANT", "L",
                 InDictionary("<STRUCTURES>" +
                              Xml("STRUCTURE", "S", "<PARAMS>" + TableKey("<TABLE-REF ID-REF=\"T\"/>") + "</PARAMS>") +
                              Xml("STRUCTURE", "U", "<PARAMS/>") + "</STRUCTURES>" + Table("U"))));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VCycleFindingsTest, TableThatAShortNameClosesInOneLayerOnly) {
    // The row's structure contains "X", which is a plain DOP in the first variant and leads to the table in the second.
    std::string const shared = InDictionary(Structure("S", Value("P", "\n<DOP-SNREF SHORT-NAME=\"X\"/>")) + Table("S"));
    std::string const parents = ParentRefs({{"BASE-VARIANT", "B"}});
    Check(LayerXml("BASE-VARIANT", "B", shared) + LayerXml("ECU-VARIANT", "V1", InDictionary(Dops("X")) + parents) +
          LayerXml("ECU-VARIANT", "V2", InDictionary(Structure("X", TableKey("<TABLE-REF ID-REF=\"T\"/>"))) + parents));
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 warning short-name-not-everywhere\ntest.odx:4:1 warning table-row-cycle");
    EXPECT_EQ(Message(1),
              "STRUCTURE 'X' contains itself through a table by this reference in the layer 'V2'; programs that "
              "follow references may not terminate: STRUCTURE 'X', TABLE 'T', TABLE-ROW 'R', STRUCTURE 'S'");
    std::vector<NCheck::VCycle> const cycles = NCheck::FindCycles(Database());
    ASSERT_EQ(cycles.size(), 1U);
    EXPECT_EQ(cycles[0].kind, NCheck::VCycleKind::TableRows);
    EXPECT_EQ(Names(cycles[0]), L"X T R S in V2");
}

TEST_F(VCycleFindingsTest, ContainmentIsReportedByTheReaderAlone) {
    Check(LayerXml("BASE-VARIANT", "L", InDictionary(Structure("S", Value("P", "\n<DOP-REF ID-REF=\"S\"/>")))));
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 error containment-cycle");
    EXPECT_TRUE(NCheck::FindCycles(Database()).empty());
}

/// A database made by hand, in which nothing was severed.
class VFindCyclesTest : public testing::Test {
protected:
    VFindCyclesTest() {
        m_database.SetResolverFactory([] { return std::make_unique<NDIAGKIT::VOpResolveSnref>(); });
    }

    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_container = m_database.AddDiagLayerContainer(L"C");
};

TEST_F(VFindCyclesTest, NoneInAnEmptyDatabase) { EXPECT_TRUE(NCheck::FindCycles(m_database).empty()); }

TEST_F(VFindCyclesTest, ContainmentById) {
    auto& dictionary = m_container.AddBaseVariant(L"L").MakeDiagDataDictionarySpec();
    auto& outer = dictionary.AddStructure(L"Outer");
    auto& inner = dictionary.AddStructure(L"Inner");
    outer.AddValue(L"P").SetDopBaseLink(inner);
    auto& back = inner.AddValue(L"P").SetDopBaseLink(outer);
    std::vector<NCheck::VCycle> const cycles = NCheck::FindCycles(m_database);
    ASSERT_EQ(cycles.size(), 1U);
    EXPECT_EQ(cycles[0].kind, NCheck::VCycleKind::Containment);
    EXPECT_EQ(Names(cycles[0]), L"Outer Inner");
    EXPECT_EQ(cycles[0].reference, &back);
    EXPECT_EQ(cycles[0].layers, nullptr);
    EXPECT_TRUE(back.ResolvesById()) << "asking changes nothing";
}

TEST_F(VFindCyclesTest, ContainmentByShortNameIsGivenOnceForTheLayersWithIt) {
    auto& base = m_container.AddBaseVariant(L"B");
    auto& structure = base.MakeDiagDataDictionarySpec().AddStructure(L"S");
    structure.AddValue(L"P").SetDopBaseLink(NMemory::VReference::ByShortName(L"S"));
    m_container.AddEcuVariant(L"V1").AddParentRef(base);
    auto& other = m_container.AddEcuVariant(L"V2");
    other.AddParentRef(base);
    other.MakeDiagDataDictionarySpec().AddStructure(L"S"); // the target of the name there
    std::vector<NCheck::VCycle> const cycles = NCheck::FindCycles(m_database);
    ASSERT_EQ(cycles.size(), 1U);
    EXPECT_EQ(Names(cycles[0]), L"S in B V1");
}

/// Whether a walk from a structure that leaves out these references returns to an element it is inside.
bool ComesBack(NODX201::VStructure& structure, NODX201::VDiagLayer& layer,
               std::set<NODX201::VLink const*> const& leftOut, std::set<NODX201::VDopBase const*>& above) {
    if (!above.insert(&structure).second) {
        return true;
    }
    for (NODX201::VParam& param : structure.ParamCollection()) {
        NODX201::VDopBaseLink& link = As<NODX201::VValue>(param).GetDopBaseLink();
        if (leftOut.count(&link) == 0 && link.HasDopBase(layer) &&
            ComesBack(As<NODX201::VStructure>(link.GetDopBase()), layer, leftOut, above)) {
            return true;
        }
    }
    above.erase(&structure);
    return false;
}

TEST(FindCycles, WalksThatFollowNoneOfThemComeToTheirEnd) {
    std::mt19937 random(20112);
    std::size_t found = 0;
    for (int round = 0; round < 200; ++round) {
        NMemory::VDatabase database;
        database.SetResolverFactory([] { return std::make_unique<NDIAGKIT::VOpResolveSnref>(); });
        auto& container = database.AddDiagLayerContainer(L"C");
        auto& base = container.AddBaseVariant(L"B");
        auto& variant = container.AddEcuVariant(L"V");
        variant.AddParentRef(base);
        std::vector<NMemory::VMemStructure*> structures;
        std::wstring const names[] = {L"S0", L"S1", L"S2", L"S3", L"S4"};
        for (std::wstring const& name : names) {
            structures.push_back(&base.MakeDiagDataDictionarySpec().AddStructure(name.c_str()));
        }
        structures.push_back(&variant.MakeDiagDataDictionarySpec().AddStructure(names[random() % 5].c_str()));
        for (NMemory::VMemStructure* const structure : structures) {
            structure->AddValue(L"P").SetDopBaseLink(*structures[random() % structures.size()]);
            structure->AddValue(L"Q").SetDopBaseLink(NMemory::VReference::ByShortName(names[random() % 5].c_str()));
        }
        std::vector<NCheck::VCycle> const cycles = NCheck::FindCycles(database);
        found += cycles.size();
        for (NODX201::VDiagLayer* const layer : std::initializer_list<NODX201::VDiagLayer*>{&base, &variant}) {
            std::set<NODX201::VLink const*> leftOut;
            for (NCheck::VCycle const& cycle : cycles) {
                if (IsIn(cycle, layer)) {
                    leftOut.insert(cycle.reference);
                }
            }
            for (NMemory::VMemStructure* const structure : structures) {
                std::set<NODX201::VDopBase const*> above;
                ASSERT_FALSE(ComesBack(*structure, *layer, leftOut, above)) << "round " << round;
            }
        }
    }
    EXPECT_GT(found, 200U);
}

TEST_F(VFindCyclesTest, RelatedDiagComms) {
    auto& layer = m_container.AddBaseVariant(L"L");
    auto& first = layer.AddDiagService(L"A");
    auto& second = layer.AddDiagService(L"B");
    first.AddRelatedDiagCommRef(second);
    second.AddRelatedDiagCommRef(first);
    std::vector<NCheck::VCycle> const cycles = NCheck::FindCycles(m_database);
    ASSERT_EQ(cycles.size(), 1U);
    EXPECT_EQ(cycles[0].kind, NCheck::VCycleKind::RelatedDiagComms);
    EXPECT_EQ(Names(cycles[0]), L"A B");
}

} // namespace
} // namespace NTest
