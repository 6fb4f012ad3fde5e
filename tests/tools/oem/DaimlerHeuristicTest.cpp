// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/DaimlerHeuristic.h>

#include "tools/oem/OemTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VDaimlerComparamsRule;
using NDIAGKIT::VDaimlerHeuristic;
using NDIAGKIT::VDaimlerHierarchicalIdsRule;

class DaimlerHeuristicTest : public VOemTest {
protected:
    NMemory::VMemBaseVariant& AddEngine() {
        NMemory::VMemBaseVariant& variant = m_container.AddBaseVariant(L"Engine");
        variant.SetId(L"BV.Engine");
        return variant;
    }

    NMemory::VMemProtocol& AddUds() {
        NMemory::VMemProtocol& protocol = m_container.AddProtocol(L"Uds");
        protocol.SetId(L"PT.Uds");
        return protocol;
    }

    NMemory::VMemComparamSpec& AddSpec(wchar_t const* id) {
        NMemory::VMemComparamSpec& spec = m_database.AddComparamSpec(L"Spec");
        spec.SetId(id);
        return spec;
    }

    /// IDs of the layer and of a FUNCT-CLASS that follow the path, and IDs that do not.
    template <class Layer>
    void ExpectHierarchical(Layer& layer, std::wstring const& path) {
        EXPECT_TRUE(Matches<VDaimlerHierarchicalIdsRule>());
        NMemory::VMemFunctClass& functClass = layer.AddFunctClass(L"Diag");
        functClass.SetId((path + L".FNC.Diag").c_str());
        EXPECT_TRUE(Matches<VDaimlerHierarchicalIdsRule>());
        for (std::wstring const& id : {path + L".FNC.diag", path + L".FNC.Diag2", path + L"FNC.Diag", path + L".FNC.",
                                       std::wstring(L"Diag"), std::wstring()}) {
            functClass.SetId(id.c_str());
            EXPECT_FALSE(Matches<VDaimlerHierarchicalIdsRule>()) << testing::PrintToString(id);
        }
        functClass.SetId((path + L".FNC.Diag").c_str());
        layer.AddFunctClass(L"Other").SetId(L"Other");
        EXPECT_FALSE(Matches<VDaimlerHierarchicalIdsRule>()) << "every one of them";
    }
};

TEST_F(DaimlerHeuristicTest, WithoutBaseVariantTheHierarchicalIdsFail) {
    AddUds();
    EXPECT_FALSE(Matches<VDaimlerHierarchicalIdsRule>());
}

TEST_F(DaimlerHeuristicTest, WithoutProtocolTheHierarchicalIdsFail) {
    AddEngine();
    EXPECT_FALSE(Matches<VDaimlerHierarchicalIdsRule>());
}

TEST_F(DaimlerHeuristicTest, TheIdOfABaseVariantIsBvAndItsShortName) {
    NMemory::VMemBaseVariant& variant = AddEngine();
    AddUds();
    EXPECT_TRUE(Matches<VDaimlerHierarchicalIdsRule>());
    for (wchar_t const* const id : {L"BV_Engine", L"BV.engine", L"bv.Engine", L"BV.Engine2", L"BV.", L"Engine", L""}) {
        variant.SetId(id);
        EXPECT_FALSE(Matches<VDaimlerHierarchicalIdsRule>()) << testing::PrintToString(id);
    }
}

TEST_F(DaimlerHeuristicTest, TheIdOfAProtocolIsPtAndItsShortName) {
    AddEngine();
    NMemory::VMemProtocol& protocol = AddUds();
    for (wchar_t const* const id : {L"PT_Uds", L"PT.uds", L"BV.Uds", L""}) {
        protocol.SetId(id);
        EXPECT_FALSE(Matches<VDaimlerHierarchicalIdsRule>()) << testing::PrintToString(id);
    }
}

TEST_F(DaimlerHeuristicTest, FunctClassesOfBaseVariantsHaveHierarchicalIds) {
    AddUds();
    ExpectHierarchical(AddEngine(), L"BV.Engine");
}

TEST_F(DaimlerHeuristicTest, FunctClassesOfProtocolsHaveHierarchicalIds) {
    AddEngine();
    ExpectHierarchical(AddUds(), L"PT.Uds");
}

TEST_F(DaimlerHeuristicTest, EveryBaseVariantAndProtocolIsChecked) {
    AddEngine();
    AddUds();
    NMemory::VMemBaseVariant& other = m_container.AddBaseVariant(L"Other");
    EXPECT_FALSE(Matches<VDaimlerHierarchicalIdsRule>());
    other.SetId(L"BV.Other");
    EXPECT_TRUE(Matches<VDaimlerHierarchicalIdsRule>());
    m_container.AddProtocol(L"Other");
    EXPECT_FALSE(Matches<VDaimlerHierarchicalIdsRule>());
}

TEST_F(DaimlerHeuristicTest, IdsOfOtherLayersAreNotLookedAt) {
    AddEngine();
    AddUds();
    m_container.AddEcuVariant(L"Variant").AddFunctClass(L"Other");
    m_container.AddFunctionalGroup(L"Group");
    m_container.AddEcuSharedData(L"Shared");
    EXPECT_TRUE(Matches<VDaimlerHierarchicalIdsRule>());
}

TEST_F(DaimlerHeuristicTest, WithoutProtocolsTheComparamsRuleFails) {
    AddSpec(L"ISO_15765_3_on_ISO_15765_2");
    EXPECT_FALSE(Matches<VDaimlerComparamsRule>());
}

TEST_F(DaimlerHeuristicTest, AProtocolRefersToOneOfThreeComparamSpecs) {
    NMemory::VMemProtocol& protocol = AddUds();
    NMemory::VMemComparamSpec& spec = AddSpec(L"");
    for (wchar_t const* const id :
         {L"ISO_14230_3_on_ISO_14230_2", L"ISO_14230_3_on_ISO_15765_2", L"ISO_15765_3_on_ISO_15765_2"}) {
        spec.SetId(id);
        protocol.SetComparamSpecRef(spec);
        EXPECT_TRUE(Matches<VDaimlerComparamsRule>()) << testing::PrintToString(id);
    }
    for (wchar_t const* const id :
         {L"ISO_15765_3_on_ISO_14230_2", L"iso_15765_3_on_iso_15765_2", L"ISO_15765_3_on_ISO_15765_2_", L"Other"}) {
        spec.SetId(id);
        protocol.SetComparamSpecRef(spec);
        EXPECT_FALSE(Matches<VDaimlerComparamsRule>()) << testing::PrintToString(id);
    }
}

TEST_F(DaimlerHeuristicTest, AProtocolWithoutReferenceFails) {
    AddUds().SetComparamSpecRef(AddSpec(L"ISO_15765_3_on_ISO_15765_2"));
    EXPECT_TRUE(Matches<VDaimlerComparamsRule>());
    m_container.AddProtocol(L"Other");
    EXPECT_FALSE(Matches<VDaimlerComparamsRule>()) << "every one of them";
}

TEST_F(DaimlerHeuristicTest, AReferenceThatDoesNotResolveFails) {
    AddUds().SetComparamSpecRef(NMemory::VReference::ById(L"ISO_15765_3_on_ISO_15765_2"));
    EXPECT_FALSE(Matches<VDaimlerComparamsRule>());
    AddSpec(L"ISO_15765_3_on_ISO_15765_2");
    EXPECT_TRUE(Matches<VDaimlerComparamsRule>());
}

TEST_F(DaimlerHeuristicTest, ADatabaseOfDaimlerIsRecognised) {
    AddEngine();
    AddUds().SetComparamSpecRef(AddSpec(L"ISO_14230_3_on_ISO_14230_2"));
    EXPECT_TRUE(HeuristicMatches<VDaimlerHeuristic>());
    EXPECT_EQ(Code(), 1);
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"1");
    EXPECT_EQ(Code(), 1);
    EXPECT_EQ(AskedBy<VDaimlerHeuristic>(), "instructions ");
    m_container.AddProtocol(L"Other").SetId(L"PT.Other");
    EXPECT_EQ(AskedBy<VDaimlerHeuristic>(), "");
    EXPECT_EQ(Code(), 36);
}

} // namespace
} // namespace NTest
