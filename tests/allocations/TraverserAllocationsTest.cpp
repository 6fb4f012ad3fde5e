// SPDX-License-Identifier: Apache-2.0

// The allocations of walks: the copies of texts that their hooks receive, and nothing else.

#include <string>

#include <gtest/gtest.h>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/tools/GuardedDiagLayerTraverser.h>

#include "allocations/CountedAllocations.h"

namespace NTest {
namespace {

/// Counts the elements and texts of a walk.
template <class Traverser>
class VCounting : public Traverser {
public:
    explicit VCounting(NODX201::VDiagLayer& layer) : Traverser(layer) {}

    std::size_t m_elements = 0;
    std::size_t m_texts = 0;

protected:
    void DefaultVisit(NODX201::VOdxElement&) override { ++m_elements; }
    void PreProcessRole(std::wstring&) override { ++m_texts; }
    void PreProcessAutMethod(std::wstring&) override { ++m_texts; }
};

/// Some of everything that walks visit: references, choices, collections, a cycle where the walk is guarded.
class TraverserAllocationsTest : public testing::Test {
protected:
    TraverserAllocationsTest() {
        NMemory::VMemDiagDataDictionarySpec& dictionary = m_layer.MakeDiagDataDictionarySpec();
        NMemory::VMemDataObjectProp& dop = dictionary.AddDataObjectProp(L"Dop");
        dop.MakeStandardLengthType();
        dop.MakeCompuMethod().MakeCompuInternalToPhys().MakeCompuScales().AddCompuScale().MakeCompuConst().MakeVt();
        dop.SetUnitRef(dictionary.MakeUnitSpec().AddUnit(L"Unit"));
        m_content.AddValue(L"Value").SetDopBaseLink(dop);
        dictionary.AddTable(L"Table").AddTableRow(L"Row").SetStructureRef(m_content);
        dictionary.AddMux(L"Mux").AddCase(L"Case").SetStructureRef(m_content);
        dictionary.AddStaticField(L"Field").SetBasicStructureRef(m_content);
        dictionary.AddEnvDataDesc(L"Environment").AddEnvData(L"Always").MakeAllValue();
        dictionary.AddDtcDop(L"DtcDop").AddDtc(L"Dtc").AddSdg().AddSd(L"text");
        NMemory::VMemRequest& request = m_layer.AddRequest(L"Request");
        request.AddValue(L"Value").SetDopBaseLink(dop);
        m_service.SetRequestRef(request);
        m_layer.AddSingleEcuJob(L"Job").AddRelatedDiagCommRef(m_service);
        m_layer.AddEcuVariantPattern().AddMatchingParameter().SetDiagCommSnref(m_service);
        m_layer.AddAccessLevel().SetDiagCommSnref(m_service);
        m_layer.AddDiagVariable(L"Variable").AddCommRelation().SetDiagCommLink(m_service);
    }

    /// Texts too long to be stored inside a string object, so that each copy uses a block.
    void AddTexts() {
        std::wstring const text(100, L'x');
        NMemory::VMemCompanyData& company = m_layer.AddCompanyData(L"Company");
        company.AddRole(text.c_str());
        company.AddTeamMember(L"Member").AddRole(text.c_str());
        m_layer.AddAutMethod(text.c_str());
    }

    /// The number of blocks that a walk allocates, after one that let the links find their targets.
    template <class Traverser>
    std::size_t AllocationsOfAWalk() {
        Traverser(m_layer).TraverseDiagLayer();
        VCounting<Traverser> traverser(m_layer);
        std::size_t const before = AllocationCount();
        traverser.TraverseDiagLayer();
        std::size_t const allocations = AllocationCount() - before;
        EXPECT_GT(traverser.m_elements, 50u) << "or hardly anything was walked";
        m_texts = traverser.m_texts;
        return allocations;
    }

    NMemory::VDatabase m_database;
    NMemory::VMemDiagLayerContainer& m_container = m_database.AddDiagLayerContainer(L"Container");
    NMemory::VMemEcuVariant& m_layer = m_container.AddEcuVariant(L"Layer");
    NMemory::VMemStructure& m_content =
        m_container.AddEcuSharedData(L"Library").MakeDiagDataDictionarySpec().AddStructure(L"Content");
    NMemory::VMemDiagService& m_service = m_layer.AddDiagService(L"Service");
    std::size_t m_texts = 0;
};

TEST_F(TraverserAllocationsTest, AWalkWithoutTextsAllocatesNothing) {
    EXPECT_EQ(AllocationsOfAWalk<NDIAGKIT::VDiagLayerTraverser>(), 0u);
    EXPECT_EQ(m_texts, 0u);
}

TEST_F(TraverserAllocationsTest, ATextIsCopiedOnceForItsHooks) {
    AddTexts();
    EXPECT_EQ(AllocationsOfAWalk<NDIAGKIT::VDiagLayerTraverser>(), 3u);
    EXPECT_EQ(m_texts, 3u);
}

TEST_F(TraverserAllocationsTest, TheGuardAllocatesNothing) {
    m_content.AddValue(L"Again").SetDopBaseLink(m_content);
    m_service.AddRelatedDiagCommRef(m_service);
    EXPECT_EQ(AllocationsOfAWalk<NDIAGKIT::VGuardedDiagLayerTraverser>(), 0u);
}

} // namespace
} // namespace NTest
