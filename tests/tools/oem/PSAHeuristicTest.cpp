// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/PSAHeuristic.h>

#include <vector>

#include "tools/oem/OemTest.h"
#include "support/MockElements.h"

namespace NTest {
namespace {

using NDIAGKIT::VPSAEcuSharedDataRule;
using NDIAGKIT::VPSAHeuristic;

class PSAHeuristicTest : public VOemTest {
protected:
    NMemory::VMemEcuSharedData& AddShared(NMemory::VMemDiagLayerContainer& container,
                                          std::vector<wchar_t const*> const& functClasses = {
                                              L"DIAGNOSTIC_CONSTRUCTEUR", L"DIAGNOSTIC_REGLEMENTAIRE"}) {
        NMemory::VMemEcuSharedData& layer = container.AddEcuSharedData(L"Shared");
        for (wchar_t const* const name : functClasses) {
            layer.AddFunctClass(name);
        }
        return layer;
    }

    bool MatchesSharedWith(std::vector<wchar_t const*> const& functClasses) {
        NMemory::VMemEcuSharedData& layer = AddShared(m_container, functClasses);
        bool const answer = Matches<VPSAEcuSharedDataRule>();
        delete &layer;
        return answer;
    }
};

TEST_F(PSAHeuristicTest, WithoutBaseVariantTheRuleFails) {
    AddShared(m_container);
    m_container.AddEcuVariant(L"Variant");
    EXPECT_FALSE(Matches<VPSAEcuSharedDataRule>());
}

TEST_F(PSAHeuristicTest, WithoutEcuSharedDataTheRuleFails) {
    m_container.AddBaseVariant(L"Variant");
    EXPECT_FALSE(Matches<VPSAEcuSharedDataRule>());
}

TEST_F(PSAHeuristicTest, TheEcuSharedDataHasBothFunctClasses) {
    m_container.AddBaseVariant(L"Variant");
    EXPECT_TRUE(MatchesSharedWith({L"DIAGNOSTIC_CONSTRUCTEUR", L"DIAGNOSTIC_REGLEMENTAIRE"}));
    EXPECT_TRUE(MatchesSharedWith({L"DIAGNOSTIC_REGLEMENTAIRE", L"Third", L"DIAGNOSTIC_CONSTRUCTEUR"}));
    EXPECT_FALSE(MatchesSharedWith({}));
    EXPECT_FALSE(MatchesSharedWith({L"DIAGNOSTIC_CONSTRUCTEUR"}));
    EXPECT_FALSE(MatchesSharedWith({L"DIAGNOSTIC_CONSTRUCTEUR", L"Third"}));
    EXPECT_FALSE(MatchesSharedWith({L"DIAGNOSTIC_CONSTRUCTEUR", L"diagnostic_reglementaire"}));
    EXPECT_FALSE(MatchesSharedWith({L"DIAGNOSTIC_CONSTRUCTEUR", L"DIAGNOSTIC_REGLEMENTAIRE_2"}));
}

TEST_F(PSAHeuristicTest, TwoFunctClassesOfOneNameCountAsTheTwo) {
    m_container.AddBaseVariant(L"Variant");
    EXPECT_TRUE(MatchesSharedWith({L"DIAGNOSTIC_CONSTRUCTEUR", L"DIAGNOSTIC_CONSTRUCTEUR"}));
    EXPECT_FALSE(
        MatchesSharedWith({L"DIAGNOSTIC_CONSTRUCTEUR", L"DIAGNOSTIC_CONSTRUCTEUR", L"DIAGNOSTIC_REGLEMENTAIRE"}))
        << "three are not two";
}

TEST_F(PSAHeuristicTest, TwoEcuSharedDatasFailEvenIfBothHaveThem) {
    m_container.AddBaseVariant(L"Variant");
    AddShared(m_container);
    EXPECT_TRUE(Matches<VPSAEcuSharedDataRule>());
    AddShared(m_container);
    EXPECT_FALSE(Matches<VPSAEcuSharedDataRule>());
}

TEST_F(PSAHeuristicTest, AnotherEcuSharedDataWithoutThemFailsToo) {
    m_container.AddBaseVariant(L"Variant");
    AddShared(m_container);
    AddShared(m_container, {});
    EXPECT_FALSE(Matches<VPSAEcuSharedDataRule>());
}

TEST_F(PSAHeuristicTest, OnlyTheContainerOfTheFirstBaseVariantCounts) {
    NMemory::VMemDiagLayerContainer& other = m_database.AddDiagLayerContainer(L"Other");
    other.AddBaseVariant(L"Variant");
    AddShared(other);
    EXPECT_TRUE(Matches<VPSAEcuSharedDataRule>());
    AddShared(m_container);
    EXPECT_TRUE(Matches<VPSAEcuSharedDataRule>()) << "that of another container is not counted";
    m_container.AddBaseVariant(L"Variant");
    AddShared(m_container, {});
    EXPECT_FALSE(Matches<VPSAEcuSharedDataRule>()) << "now the first BASE-VARIANT stands here";
}

/// A BASE-VARIANT with an owner chosen by the test.
class VOwnedBaseVariant final : public VMockBaseVariant {
public:
    explicit VOwnedBaseVariant(NODX201::VOdxObject* owner) : m_owner(owner) {}
    NODX201::VOdxObject* GetOwner() const override { return m_owner; }

private:
    NODX201::VOdxObject* m_owner;
};

TEST_F(PSAHeuristicTest, AnOwnerThatIsNoLayerCollectionFails) {
    AddShared(m_container);
    for (auto const& [owner, answer] : std::initializer_list<std::pair<NODX201::VOdxObject*, bool>>{
             {nullptr, false}, {&m_container, false}, {&m_container.DiagLayerCollection(), true}}) {
        NDIAGKIT::VOemCheckContext context(Odx());
        VOwnedBaseVariant variant(owner);
        context.m_baseVariants = {&variant};
        EXPECT_EQ(VPSAEcuSharedDataRule(&context).Matches(), answer);
    }
}

TEST_F(PSAHeuristicTest, FunctClassesOfOtherLayersDoNotCount) {
    NMemory::VMemBaseVariant& variant = m_container.AddBaseVariant(L"Variant");
    variant.AddFunctClass(L"DIAGNOSTIC_CONSTRUCTEUR");
    variant.AddFunctClass(L"DIAGNOSTIC_REGLEMENTAIRE");
    AddShared(m_container, {});
    EXPECT_FALSE(Matches<VPSAEcuSharedDataRule>());
}

TEST_F(PSAHeuristicTest, TheVisitorCountsEcuSharedDataAlone) {
    NMemory::VMemEcuSharedData& shared = AddShared(m_container);
    m_container.AddProtocol(L"Protocol");
    m_container.AddFunctionalGroup(L"Group");
    m_container.AddBaseVariant(L"Variant");
    m_container.AddEcuVariant(L"Variant");
    VPSAEcuSharedDataRule::VFindEcuSharedDataVisitor visitor;
    for (NODX201::VDiagLayer& layer : m_container.DiagLayerCollection()) {
        layer.Accept(visitor);
    }
    EXPECT_EQ(visitor.GetCount(), 1);
    EXPECT_TRUE(visitor.IsFound());
    AddShared(m_container, {}).Accept(visitor);
    EXPECT_EQ(visitor.GetCount(), 2);
    EXPECT_TRUE(visitor.IsFound()) << "once found it stays so";
    shared.Accept(visitor);
    EXPECT_EQ(visitor.GetCount(), 3);
}

TEST_F(PSAHeuristicTest, ADatabaseOfPsaIsRecognised) {
    m_container.AddBaseVariant(L"Variant");
    AddShared(m_container);
    EXPECT_TRUE(HeuristicMatches<VPSAHeuristic>());
    EXPECT_EQ(Code(), 19);
    m_database.AddProcessingInstruction(L"PavonaTemplateManufacturer", L"19");
    EXPECT_EQ(Code(), 19);
    EXPECT_EQ(AskedBy<VPSAHeuristic>(), "instructions ");
    AddShared(m_container);
    EXPECT_EQ(AskedBy<VPSAHeuristic>(), "");
    EXPECT_EQ(Code(), 36);
}

} // namespace
} // namespace NTest
