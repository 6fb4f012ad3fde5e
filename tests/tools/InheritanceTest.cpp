// SPDX-License-Identifier: Apache-2.0

// One object used for many layers, compared with a naive implementation of the rules, and its results for parents.

#include <diagkit/tools/Inheritance.h>

#include <vector>

#include <gtest/gtest.h>

#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Responses.h>

#include "support/GraphText.h"
#include "support/NaiveInheritance.h"
#include "support/RandomGraph.h"
#include "tools/ContentGraph.h"

namespace NMemory {

/// A FUNCTIONAL-GROUP that claims to have no PARENT-REFS, and has some.
#include <diagkit/memory/Classes.def>
DIAGKIT_CLASS(SecretiveGroup, NODX201::VFunctionalGroup, FunctionalGroup, Ident)
ODX_LAYER
ODX_DIAG_VARIABLES
ODX_ACCESS_LEVELS
ODX_AUT_METHODS
public:
void Accept(NODX201::VDiagLayerVisitor& visitor) { visitor.VisitFunctionalGroup(*this); }
bool HasParentRefCollection() const { return false; }
ODX_END
#include <diagkit/memory/ClassesEnd.def>

VMemSecretiveGroup::VMemSecretiveGroup(VPlace const& place) : VBase(place) {}
VMemSecretiveGroup::~VMemSecretiveGroup() = default;

} // namespace NMemory

namespace NTest {
namespace {

using NDIAGKIT::ParentBy;
using NDIAGKIT::ParentRefsOf;
using NDIAGKIT::VInheritance;
using NDIAGKIT::VLayerKinds;

template <class Element>
std::wstring PrintElements(std::vector<Element*> const& elements) {
    std::wstring text;
    for (Element const* const element : elements) {
        text += (text.empty() ? L"" : L" ") + std::wstring(element->GetShortName()) + L"@" + LayerNameOf(*element);
    }
    return text;
}

/// Compares the results of one object for all layers of random graphs, each requested twice and once as a parent.
template <class Kind, class MakeGraph, class Expected>
void CompareRandomGraphs(MakeGraph makeGraph, Expected expected) {
    for (std::uint32_t seed = 1; seed <= 300; ++seed) {
        VGraphPlan const plan = RandomGraph(seed);
        std::unique_ptr<VGraph> const graph = makeGraph(plan);
        VInheritance<Kind> inheritance;
        for (int round = 0; round < 2; ++round) {
            for (VLayerPlan const& layer : plan.layers) {
                std::wstring const wanted = expected(plan, layer.name);
                ASSERT_EQ(PrintElements(inheritance.EntriesOf(graph->Layer(layer.name))), wanted) << GraphText(plan);
                ASSERT_EQ(PrintElements(inheritance.EntriesOfParent(graph->Layer(layer.name))), wanted)
                    << GraphText(plan);
            }
        }
    }
}

TEST(InheritanceTest, OneObjectShowsTheDiagCommsOfEveryLayer) {
    CompareRandomGraphs<NDIAGKIT::VInheritedDiagComms>(
        [](VGraphPlan const& plan) { return std::make_unique<VGraph>(plan); }, &NaiveDiagComms);
}

TEST(InheritanceTest, OneObjectShowsTheDiagVariablesOfEveryLayer) {
    CompareRandomGraphs<NDIAGKIT::VInheritedDiagVariables>(
        [](VGraphPlan const& plan) { return MakeContentGraph(plan, VContent::DiagVariables); }, &NaiveDiagVariables);
}

TEST(InheritanceTest, OneObjectShowsTheGlobalNegResponsesOfEveryLayer) {
    CompareRandomGraphs<NDIAGKIT::VInheritedGlobalNegResponses>(
        [](VGraphPlan const& plan) { return MakeContentGraph(plan, VContent::GlobalNegResponses); },
        &NaiveGlobalNegResponses);
}

class VInheritanceTest : public VGraphTest {
protected:
    std::wstring Entries(wchar_t const* layer) { return PrintElements(m_inheritance.EntriesOf(Layer(layer))); }

    VInheritance<NDIAGKIT::VInheritedDiagComms> m_inheritance;
};

TEST_F(VInheritanceTest, AParentNamedTwiceBringsBySecondReferenceWhatTheFirstExcludes) {
    Graph(LR"(
        base Bv  : Read Start Stop
        ecu  Ecu : Own  < Bv-Read-Start Bv-Start Bv
    )");
    EXPECT_EQ(Entries(L"Ecu"), L"Own@Ecu Stop@Bv Read@Bv Start@Bv");
}

TEST_F(VInheritanceTest, WhatAParentOffersIsMadeOnce) {
    Graph(L"prot Uds : Read \n base Bv < Uds");
    auto const& uds = m_inheritance.EntriesOfParent(Layer(L"Uds"));
    EXPECT_EQ(Entries(L"Bv"), L"Read@Uds");
    EXPECT_EQ(&m_inheritance.EntriesOfParent(Layer(L"Uds")), &uds);
}

TEST_F(VInheritanceTest, OwnEntriesAreThoseOfTheLayerWithDoubles) {
    Graph(L"prot Uds : Read \n base Bv : Read Read Start < Uds");
    EXPECT_EQ(PrintElements(decltype(m_inheritance)::OwnOf(Layer(L"Bv"))), L"Read@Bv Read@Bv Start@Bv");
}

TEST_F(VInheritanceTest, ALayerIsOfTheKindThatItAccepts) {
    Graph(L"esd A \n prot B \n func C \n base D \n ecu E");
    auto const kindOf = [this](wchar_t const* layer) { return NDIAGKIT::VLayerOfKind(Layer(layer)).kind; };
    EXPECT_EQ(kindOf(L"A"), VLayerKinds::EcuSharedData);
    EXPECT_EQ(kindOf(L"B"), VLayerKinds::Protocol);
    EXPECT_EQ(kindOf(L"C"), VLayerKinds::FunctionalGroup);
    EXPECT_EQ(kindOf(L"D"), VLayerKinds::BaseVariant);
    EXPECT_EQ(kindOf(L"E"), VLayerKinds::EcuVariant);
}

TEST_F(VInheritanceTest, ALayerWithoutParentRefsHasNone) {
    Graph(L"esd A \n base D \n base P <");
    EXPECT_EQ(ParentRefsOf(Layer(L"A")), nullptr);
    EXPECT_EQ(ParentRefsOf(Layer(L"D")), nullptr);
    ASSERT_NE(ParentRefsOf(Layer(L"P")), nullptr);
    EXPECT_EQ(ParentRefsOf(Layer(L"P"))->Count(), 0u);
}

TEST_F(VInheritanceTest, ParentRefsAreAskedForInTheViewsOfDiagCommsAndGlobalNegResponsesAlone) {
    Graph(L"esd Lib : Read");
    auto& library = LayerAs<NMemory::VMemEcuSharedData>(L"Lib");
    library.AddDiagVariable(L"Speed");
    library.AddGlobalNegResponse(L"Refused");
    library.MakeDiagDataDictionarySpec().AddStructure(L"Status");
    NMemory::VMemSecretiveGroup group(m_graph->Container().Inside());
    group.AddParentRef(library);
    auto const countOf = [&group](auto kind) {
        return NDIAGKIT::VInheritance<decltype(kind)>().EntriesOf(group).size();
    };
    EXPECT_EQ(countOf(NDIAGKIT::VInheritedDiagComms()), 0u);
    EXPECT_EQ(countOf(NDIAGKIT::VInheritedGlobalNegResponses()), 0u);
    EXPECT_EQ(countOf(NDIAGKIT::VInheritedDiagVariables()), 1u);
    EXPECT_EQ(countOf(NDIAGKIT::VInheritedDops()), 1u);
}

TEST_F(VInheritanceTest, AParentIsNamedByAReferenceOfAKindThatIsAskedFor) {
    Graph(L"prot Uds \n base Bv < Uds");
    NODX201::VParentRef& parentRef = *ParentRefsOf(Layer(L"Bv"))->Begin();
    ASSERT_TRUE(ParentBy(parentRef).has_value());
    EXPECT_EQ(ParentBy(parentRef)->layer, &Layer(L"Uds"));
    EXPECT_TRUE(ParentBy(parentRef, VLayerKinds::Protocol | VLayerKinds::EcuSharedData).has_value());
    EXPECT_FALSE(ParentBy(parentRef, VLayerKinds::FunctionalGroup).has_value());
    delete &Layer(L"Uds");
    EXPECT_FALSE(ParentBy(parentRef).has_value());
}

TEST_F(VInheritanceTest, ParentsComeInTheOrderOfReferencesAndThoseOfARowPassByPass) {
    Graph(L"esd Lib \n prot Uds \n ecu Old \n base Bv < Lib Uds Bv any:Uds esd:Gone Lib");
    auto const print = [](std::vector<NDIAGKIT::VParent> const& parents) {
        std::wstring text;
        for (NDIAGKIT::VParent const& parent : parents) {
            text += (text.empty() ? L"" : L" ") + std::wstring(parent.layer.layer->GetShortName());
        }
        return text;
    };
    EXPECT_EQ(print(NDIAGKIT::ParentsOf(Layer(L"Bv"))), L"Lib Uds Lib");
    auto const passes = NDIAGKIT::VInheritedDiagComms::kRow.ParentsOf(Layer(L"Bv"));
    ASSERT_EQ(passes.size(), 2u);
    EXPECT_EQ(print(passes[0]), L"Uds");
    EXPECT_EQ(print(passes[1]), L"Lib Lib");
    EXPECT_EQ(print(NDIAGKIT::VInheritedDiagVariables::kRow.ParentsOf(Layer(L"Bv"))[0]), L"");
}

TEST(InheritanceTableTest, ALayerInheritsFromTheKindsThatAnyRowTakesFrom) {
    EXPECT_TRUE(NDIAGKIT::InheritsFrom(VLayerKinds::BaseVariant, VLayerKinds::Protocol));
    EXPECT_FALSE(NDIAGKIT::VInheritedDiagVariables::kRow.TakesFrom(VLayerKinds::BaseVariant, VLayerKinds::Protocol));
    EXPECT_FALSE(NDIAGKIT::InheritsFrom(VLayerKinds::EcuVariant, VLayerKinds::Protocol));
    EXPECT_FALSE(NDIAGKIT::InheritsFrom(VLayerKinds::EcuSharedData, VLayerKinds::EcuSharedData));
}

} // namespace
} // namespace NTest
