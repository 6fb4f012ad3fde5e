// SPDX-License-Identifier: Apache-2.0

// Why a name has its meaning in a layer: the rules one by one, and compared with the reference implementation on random
// graphs.

#include <diagkit/query/Explain.h>

#include <diagkit/model/ParentRefs.h>

#include "query/PlanKinds.h"
#include "support/GraphText.h"
#include "support/RandomGraph.h"

namespace NTest {
namespace {

using NQuery::VExplanation;

std::wstring Print(NDIAGKIT::VWay const& way) {
    static constexpr wchar_t const* kFates[] = {L"visible", L"hidden", L"excluded", L"no pass"};
    std::wstring text = L"\n" + IdOfElement(*way.element) + PrintPath(way.path);
    text += std::wstring(L" ") + kFates[static_cast<int>(way.fate)];
    text += way.at != nullptr ? std::wstring(L" in ") + way.at->GetShortName() : L"";
    text += way.by != nullptr ? L" by " + IdOfElement(*way.by) : L"";
    return text;
}

std::wstring Candidates(VExplanation const& explanation) {
    std::wstring text;
    for (NDIAGKIT::VWay const& way : explanation.candidates) {
        text += Print(way);
    }
    return text;
}

std::wstring Elsewhere(VExplanation const& explanation) {
    std::wstring text;
    for (NODX201::VOdxElement const* const element : explanation.elsewhere) {
        text += L"\n" + IdOfElement(*element);
    }
    return text;
}

class ExplainTest : public testing::Test {
protected:
    void Graph(std::wstring const& text, VContent content = VContent::DiagComms) {
        m_graph = MakeContentGraph(ParseGraph(text), content);
    }

    VExplanation Explain(wchar_t const* layer, wchar_t const* name = L"Read", std::size_t most = 1000,
                         NQuery::VInheritedKind kind = NQuery::VInheritedKind::DiagComm) {
        return NQuery::Explain(m_graph->Database(), m_graph->Layer(layer), kind, name, most);
    }

    VExplanation ExplainAs(NQuery::VInheritedKind kind, wchar_t const* layer) {
        return Explain(layer, L"Read", 1000, kind);
    }

    std::unique_ptr<VGraph> m_graph;
};

TEST_F(ExplainTest, TheVisibleOneIsToldWithItsWay) {
    Graph(L"prot Uds : Read \n base Bv < Uds \n ecu Ecu < Bv");
    ASSERT_TRUE(Explain(L"Ecu").visible.has_value());
    EXPECT_EQ(Print(*Explain(L"Ecu").visible), L"\nUds.Read<Bv<Uds visible");
}

TEST_F(ExplainTest, NothingIsVisibleWhereNothingHasTheName) {
    Graph(L"base Bv : Stop");
    VExplanation const explanation = Explain(L"Bv");
    EXPECT_FALSE(explanation.visible.has_value());
    EXPECT_EQ(Candidates(explanation) + Elsewhere(explanation), L"");
    EXPECT_EQ(explanation.leftOut, 0U);
}

TEST_F(ExplainTest, OwnOnesComeFirstThenTheParentsInTheOrderOfThePasses) {
    Graph(L"esd Lib : Read \n prot Uds : Read \n base Bv : Read < Lib Uds");
    EXPECT_EQ(Candidates(Explain(L"Bv")), LR"(
Bv.Read visible
Uds.Read<Uds hidden in Bv by Bv.Read
Lib.Read<Lib hidden in Bv by Bv.Read)");
}

TEST_F(ExplainTest, AnElementOnTwoWaysIsTwoCandidates) {
    Graph(L"esd Lib : Read \n prot Uds < Lib \n prot Kwp < Lib \n base Bv < Uds Kwp");
    EXPECT_EQ(Candidates(Explain(L"Bv")), LR"(
Lib.Read<Uds<Lib visible
Lib.Read<Kwp<Lib hidden in Bv by Lib.Read)");
}

TEST_F(ExplainTest, TheFirstThatStopsAnElementOnItsWayFromItsOwnerIsTold) {
    Graph(L"esd Lib : Read \n prot Uds : Read < Lib \n base Bv < Uds-Read \n ecu Ecu : Read < Bv");
    EXPECT_EQ(Candidates(Explain(L"Ecu")), LR"(
Ecu.Read visible
Uds.Read<Bv<Uds excluded in Bv
Lib.Read<Bv<Uds<Lib hidden in Uds by Uds.Read)");
}

TEST_F(ExplainTest, WhatIsTakenAlreadyAndExcludedAsWellIsHidden) {
    Graph(L"base Bv : Read \n ecu Ecu : Read < Bv-Read");
    EXPECT_EQ(Candidates(Explain(L"Ecu")), L"\nEcu.Read visible\nBv.Read<Bv hidden in Ecu by Ecu.Read");
}

TEST_F(ExplainTest, WhatDecidesIsTheExclusionOrThePARENTREFWithoutAPass) {
    Graph(L"prot Uds : Read \n base Bv < Uds-Read \n ecu Ecu < Bv Uds");
    VExplanation const explanation = Explain(L"Ecu");
    ASSERT_EQ(Candidates(explanation), L"\nUds.Read<Bv<Uds excluded in Bv\nUds.Read<Uds no pass in Ecu");
    auto& toUds = *NDIAGKIT::ParentRefsOf(m_graph->Layer(L"Bv"))->Begin();
    EXPECT_EQ(explanation.candidates[0].decidedBy, &*toUds.NotInheritedDiagCommCollection().Begin());
    EXPECT_EQ(explanation.candidates[1].decidedBy, explanation.candidates[1].path.front().parentRef);
}

TEST_F(ExplainTest, AReferenceCountsAsTheLayersOwnAndIsNotToldElsewhere) {
    Graph(L"prot Kwp : Read \n base Bv < \n ecu Ecu : ->Kwp.Read < Bv");
    VExplanation const explanation = Explain(L"Ecu");
    EXPECT_EQ(Candidates(explanation), L"\nKwp.Read visible");
    EXPECT_EQ(Elsewhere(explanation), L"");
}

TEST_F(ExplainTest, TheWayOfAReferenceEndsAtTheLayerThatHoldsIt) {
    Graph(L"prot Kwp : Read \n base Bv : ->Kwp.Read \n ecu Ecu < Bv");
    EXPECT_EQ(Candidates(Explain(L"Ecu")), L"\nKwp.Read<Bv visible");
}

TEST_F(ExplainTest, OfSeveralOwnOnesTheFirstCountsAndHidesTheOthersThere) {
    Graph(L"base Bv : Read Read \n ecu Ecu < Bv");
    EXPECT_EQ(Candidates(Explain(L"Ecu")), L"\nBv.Read<Bv visible\nBv.Read#2<Bv hidden in Bv by Bv.Read");
}

TEST_F(ExplainTest, WhatALayerListsTwiceIsOneCandidate) {
    Graph(L"base Bv : Read ->Bv.Read");
    EXPECT_EQ(Candidates(Explain(L"Bv")), L"\nBv.Read visible");
}

TEST_F(ExplainTest, APARENTREFWithoutATargetOrOfAnotherKindThanItsTargetLeadsNowhere) {
    Graph(L"prot Uds : Read \n base Bv < prot:Gone func:Uds any:Uds");
    VExplanation const explanation = Explain(L"Bv");
    EXPECT_EQ(Candidates(explanation), L"");
    EXPECT_EQ(Elsewhere(explanation), L"\nUds.Read");
}

TEST_F(ExplainTest, ElsewhereIsInDocumentOrder) {
    Graph(L"ecu B : Read \n base Bv : Read \n esd A : Read Read \n ecu Ecu < Bv");
    EXPECT_EQ(Elsewhere(Explain(L"Ecu")), L"\nB.Read\nA.Read\nA.Read#2");
}

TEST_F(ExplainTest, ANoPassIsToldAtTheStepNearestToTheOwnerWhereTheElementStillCounted) {
    Graph(L"prot A : Read \n prot B < A \n prot C < B \n prot D : Read < C");
    EXPECT_EQ(Candidates(Explain(L"D")), L"\nD.Read visible\nA.Read<C<B<A no pass in B");
    Graph(L"esd Lib : Read \n prot A : Read < Lib \n prot B < A");
    EXPECT_EQ(Candidates(Explain(L"B")), L"\nA.Read<A no pass in B\nLib.Read<A<Lib hidden in A by A.Read");
}

TEST_F(ExplainTest, AWayWithoutAPassAnywhereComesAfterAllOthers) {
    Graph(L"prot Uds : Read \n base Bv : Read < Uds \n ecu Ecu < Uds Bv");
    EXPECT_EQ(Candidates(Explain(L"Ecu")), LR"(
Bv.Read<Bv visible
Uds.Read<Bv<Uds hidden in Bv by Bv.Read
Uds.Read<Uds no pass in Ecu)");
}

TEST_F(ExplainTest, NoWayEntersALayerTwice) {
    Graph(L"prot A : Read < B C \n prot B : Read < A C B \n prot C : Read < B");
    EXPECT_EQ(Candidates(Explain(L"A")), LR"(
A.Read visible
B.Read<B no pass in A
C.Read<B<C no pass in B
C.Read<C no pass in A
B.Read<C<B no pass in C)");
    EXPECT_EQ(Explain(L"A").leftOut, 0U);
}

TEST_F(ExplainTest, DiagVariablesDoNotComeFromAPROTOCOL) {
    Graph(L"func Fg : Read \n prot Uds < \n base Bv < Uds Fg", VContent::DiagVariables);
    EXPECT_EQ(Candidates(ExplainAs(NQuery::VInheritedKind::DiagVariable, L"Bv")), L"\nFg.Read<Fg visible");
}

TEST_F(ExplainTest, ExclusionsHoldForDiagCommsAlone) {
    Graph(L"base Bv : Read \n ecu Ecu < Bv-Read", VContent::Dops);
    EXPECT_EQ(Candidates(ExplainAs(NQuery::VInheritedKind::Dop, L"Ecu")), L"\nBv.Read<Bv visible");
}

TEST_F(ExplainTest, TheEmptyNameIsANameLikeOthers) {
    Graph(L"base Bv : \"\" Read \n ecu Ecu < Bv");
    EXPECT_EQ(Candidates(Explain(L"Ecu", L"")), L"\nBv.<Bv visible");
}

TEST_F(ExplainTest, WhatIsLeftOutIsCountedAndTheVisibleOneToldAllTheSame) {
    Graph(L"prot Uds : Read \n base Bv < Uds-Read Uds-Read Uds");
    VExplanation const explanation = Explain(L"Bv", L"Read", 1);
    EXPECT_EQ(Candidates(explanation), L"\nUds.Read<Uds excluded in Bv");
    EXPECT_EQ(explanation.leftOut, 2U);
    ASSERT_TRUE(explanation.visible.has_value());
    EXPECT_EQ(Print(*explanation.visible), L"\nUds.Read<Uds visible");
}

TEST_F(ExplainTest, NoCandidateNeedBeTold) {
    Graph(L"prot Uds : Read \n base Bv : Read < Uds");
    VExplanation const explanation = Explain(L"Bv", L"Read", 0);
    EXPECT_EQ(Candidates(explanation), L"");
    EXPECT_EQ(explanation.leftOut, 2U);
}

/// Levels of two BASE-VARIANTs each, every one with both of the level above as parents; the topmost have the name.
std::wstring Lattice(int levels, std::wstring const& more = L"") {
    std::wstring text = L"base L0A : Read \n base L0B : Read \n";
    for (int level = 1; level < levels; ++level) {
        std::wstring const above = L"L" + std::to_wstring(level - 1);
        for (wchar_t const* const side : {L"A", L"B"}) {
            text += L"base L" + std::to_wstring(level) + side + L" < " + above + L"A " + above + L"B" +
                    (level == 1 ? more : L"") + L" \n";
        }
    }
    return text;
}

TEST_F(ExplainTest, WaysAreCountedWithoutBeingGone) {
    Graph(Lattice(31));
    VExplanation const explanation = Explain(L"L30A");
    EXPECT_EQ(explanation.candidates.size(), 1000U);
    EXPECT_EQ(explanation.leftOut, (1ULL << 30U) - 1000U);
}

TEST_F(ExplainTest, ACountGoesNoHigherThanWhatEveryReaderOfJsonKeeps) {
    Graph(Lattice(80));
    EXPECT_EQ(Explain(L"L79A").leftOut, (1ULL << 53U) - 1);
}

TEST_F(ExplainTest, WhereParentsRunInCirclesTheRestIsNotCounted) {
    Graph(Lattice(31, L" L5A"));
    VExplanation const explanation = Explain(L"L30A");
    EXPECT_EQ(explanation.candidates.size(), 1000U);
    EXPECT_FALSE(explanation.leftOut.has_value());
}

TEST_F(ExplainTest, DeadEndsInCirclesAreNotGone) {
    // From every layer to every other, and from one of them to the name.
    std::wstring text = L"base Top : Read \n";
    for (int layer = 0; layer < 14; ++layer) {
        text += L"base C" + std::to_wstring(layer) + L" <";
        for (int other = 0; other < 14; ++other) {
            text += L" C" + std::to_wstring(other);
        }
        text += layer == 1 ? L" Top \n" : L" \n";
    }
    Graph(text);
    VExplanation const explanation = Explain(L"C0", L"Read", 10);
    EXPECT_EQ(explanation.candidates.size(), 10U);
    EXPECT_FALSE(explanation.leftOut.has_value());
}

TEST_F(ExplainTest, WaysOfManyStepsAreFewer) {
    std::wstring text = L"base L0 : Read \n";
    for (int level = 1; level <= 3000; ++level) {
        std::wstring const above = L"L" + std::to_wstring(level - 1);
        text += L"base L" + std::to_wstring(level) + L" < " + above + (level == 1 ? L" " + above : L"") + L" \n";
    }
    Graph(text + L"base End < L3000 L3000");
    VExplanation const explanation = Explain(L"End", L"Read", 10);
    EXPECT_EQ(explanation.candidates.size(), 1U);
    EXPECT_EQ(explanation.leftOut, 3U);
}

TEST_F(ExplainTest, AgreesWithTheReferenceOnGraphsAtRandom) {
    std::size_t compared = 0;
    for (std::uint32_t seed = 1; seed <= 150; ++seed) {
        VGraphPlan const plan = RandomGraph(seed);
        for (VPlanKind const& kind : kPlanKinds) {
            m_graph = MakeContentGraph(plan, kind.content);
            for (VLayerPlan const& layer : plan.layers) {
                for (wchar_t const* const name : {L"a", L"B", L""}) {
                    VExplanation const explanation =
                        NQuery::Explain(m_graph->Database(), m_graph->Layer(layer.name), kind.query, name, 100000);
                    std::wstring const ways = NaiveWays(kind.naive, plan, layer.name, name);
                    ASSERT_EQ(Candidates(explanation), ways) << layer.name << L" of\n" << GraphText(plan);
                    ASSERT_EQ(Elsewhere(explanation), NaiveElsewhere(kind.naive, plan, layer.name, name))
                        << layer.name << L" of\n"
                        << GraphText(plan);
                    ASSERT_EQ(explanation.leftOut, 0U);
                    ASSERT_EQ(explanation.visible.has_value(), ways.find(L" visible") != std::wstring::npos);
                    compared += explanation.candidates.size();
                }
            }
        }
    }
    EXPECT_GT(compared, 5000U);
}

TEST_F(ExplainTest, TheFirstOfAllCandidatesAreGivenAndTheRestIsCounted) {
    for (std::uint32_t seed = 1; seed <= 150; ++seed) {
        VGraphPlan const plan = RandomGraph(seed);
        m_graph = MakeContentGraph(plan, VContent::DiagComms);
        for (VLayerPlan const& layer : plan.layers) {
            std::wstring const all = Candidates(Explain(layer.name.c_str(), L"a", 100000));
            std::size_t const count = Explain(layer.name.c_str(), L"a", 100000).candidates.size();
            VExplanation const some = Explain(layer.name.c_str(), L"a", 2);
            ASSERT_EQ(Candidates(some), all.substr(0, Candidates(some).size())) << GraphText(plan);
            ASSERT_EQ(some.candidates.size(), std::min<std::size_t>(count, 2)) << GraphText(plan);
            if (some.leftOut.has_value()) {
                ASSERT_EQ(*some.leftOut, count - some.candidates.size()) << GraphText(plan);
            }
        }
    }
}

} // namespace
} // namespace NTest
