// SPDX-License-Identifier: Apache-2.0

// The ways of elements to a layer, and what happens to those that do not reach it.

#include <diagkit/tools/InheritanceNotes.h>

#include <algorithm>
#include <unordered_set>

#include <gtest/gtest.h>

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/tools/DopView.h>

#include "support/GraphTest.h"
#include "support/GraphText.h"
#include "support/RandomGraph.h"
#include "tools/ContentGraph.h"

namespace NTest {
namespace {

using NDIAGKIT::VCandidate;
using NDIAGKIT::VFate;
using NDIAGKIT::VParent;
using NDIAGKIT::VWay;

std::wstring Named(NODX201::VOdxElement const& element) {
    return std::wstring(element.GetShortName()) + L"@" + LayerNameOf(element);
}

std::wstring Print(std::vector<VParent> const& path) {
    std::wstring text;
    for (VParent const& step : path) {
        text += std::wstring(L"<") + step.layer.layer->GetShortName();
    }
    return text;
}

/// "Read@Uds<Uds", and why it is not visible: "hidden by Read@Bv", "excluded".
std::wstring Print(VCandidate const& candidate) {
    std::wstring text = Named(*candidate.element);
    text += candidate.parent.has_value() ? Print({*candidate.parent}) + std::to_wstring(candidate.pass) : L"";
    text += candidate.isVisible ? L"" : L" -";
    text += candidate.hiddenBy != nullptr ? L" hidden by " + Named(*candidate.hiddenBy->element) : L"";
    text += candidate.exclusion != nullptr ? L" excluded" : L"";
    return text;
}

std::wstring Print(VWay const& way) {
    static constexpr wchar_t const* kFates[] = {L"visible", L"hidden", L"excluded", L"no pass"};
    std::wstring text = Named(*way.element) + Print(way.path) + L" " + kFates[static_cast<int>(way.fate)];
    text += way.at != nullptr ? std::wstring(L" in ") + way.at->GetShortName() : L"";
    text += way.by != nullptr ? L" by " + Named(*way.by) : L"";
    return text;
}

template <class Things>
std::wstring Lines(Things const& things) {
    std::wstring text;
    for (auto const& thing : things) {
        text += L"\n" + Print(thing);
    }
    return text;
}

class VInheritanceNotesTest : public VGraphTest {
protected:
    std::wstring Candidates(wchar_t const* layer) { return Lines(m_notes.CandidatesOf(Layer(layer))); }
    std::wstring Ways(wchar_t const* layer, wchar_t const* name) {
        return Lines(m_notes.WaysOf(Layer(layer), name).ways);
    }

    NDIAGKIT::VInheritance<NDIAGKIT::VInheritedDiagComms> m_inheritance;
    NDIAGKIT::VInheritanceNotes<NDIAGKIT::VInheritedDiagComms> m_notes{m_inheritance};
};

TEST_F(VInheritanceNotesTest, CandidatesComeInTheOrderInWhichTheMergeLooks) {
    Graph(LR"(
        esd  Lib : Ident
        prot Uds : Read Stop
        base Bv  : Read < Lib Uds
    )");
    EXPECT_EQ(Candidates(L"Bv"), LR"(
Read@Bv
Read@Uds<Uds1 - hidden by Read@Bv
Stop@Uds<Uds1
Ident@Lib<Lib2)");
}

TEST_F(VInheritanceNotesTest, AnExclusionIsTheElementOfThePARENTREFThatItStandsIn) {
    Graph(L"base Bv : Read Stop \n ecu Ecu < Bv-Read");
    EXPECT_EQ(Candidates(L"Ecu"), L"\nRead@Bv<Bv1 - excluded\nStop@Bv<Bv1");
    VCandidate const& excluded = m_notes.CandidatesOf(Layer(L"Ecu")).front();
    auto& list = excluded.parent->parentRef->NotInheritedDiagCommCollection();
    EXPECT_EQ(excluded.exclusion, &*list.Begin());
}

TEST_F(VInheritanceNotesTest, WhatIsHiddenMayBeExcludedAsWell) {
    Graph(L"base Bv : Read \n ecu Ecu : Read < Bv-Read");
    EXPECT_EQ(Candidates(L"Ecu"), L"\nRead@Ecu\nRead@Bv<Bv1 - hidden by Read@Ecu excluded");
}

TEST_F(VInheritanceNotesTest, OwnDoublesAreVisibleAndHaveTheFirstBeforeThem) {
    Graph(L"base Bv : Read Read");
    EXPECT_EQ(Candidates(L"Bv"), L"\nRead@Bv\nRead@Bv hidden by Read@Bv");
}

TEST_F(VInheritanceNotesTest, AParentNamedAgainOffersWhatItDidNotBringBefore) {
    Graph(L"base Bv : Read Stop Own \n ecu Ecu : Own < Bv-Read Bv");
    EXPECT_EQ(Candidates(L"Ecu"), LR"(
Own@Ecu
Read@Bv<Bv1 - excluded
Stop@Bv<Bv1
Own@Bv<Bv1 - hidden by Own@Ecu
Read@Bv<Bv1
Own@Bv<Bv1 - hidden by Own@Ecu)");
}

TEST_F(VInheritanceNotesTest, ThePathOfAnEntryNamesEveryLayerThatItComesThrough) {
    Graph(L"esd Lib : Ident \n prot Uds < Lib \n func Fg < Uds \n base Bv < Fg \n ecu Ecu < Bv");
    VCandidate const& entry = m_notes.CandidatesOf(Layer(L"Ecu")).front();
    EXPECT_EQ(Print(m_notes.PathOf(entry)), L"<Bv<Fg<Uds<Lib");
    EXPECT_EQ(m_notes.PathOf(entry).front().parentRef, &*NDIAGKIT::ParentRefsOf(Layer(L"Ecu"))->Begin());
}

TEST_F(VInheritanceNotesTest, AWayEndsWhereAnElementIsStoppedFirst) {
    Graph(LR"(
        esd  Lib : Read
        prot Uds : Read < Lib
        prot Kwp : Read < Lib
        base Bv         < Uds-Read Kwp
        ecu  Ecu : Read < Bv
    )");
    EXPECT_EQ(Ways(L"Ecu", L"Read"), LR"(
Read@Ecu visible
Read@Uds<Bv<Uds excluded in Bv
Read@Lib<Bv<Uds<Lib hidden in Uds by Read@Uds
Read@Kwp<Bv<Kwp hidden in Ecu by Read@Ecu
Read@Lib<Bv<Kwp<Lib hidden in Kwp by Read@Kwp)");
}

TEST_F(VInheritanceNotesTest, AnElementThatComesOnTwoWaysHidesItself) {
    Graph(LR"(
        esd  Lib : Read
        prot Uds < Lib
        prot Kwp < Lib
        base Bv  < Uds Kwp Uds
    )");
    EXPECT_EQ(Ways(L"Bv", L"Read"), LR"(
Read@Lib<Uds<Lib visible
Read@Lib<Kwp<Lib hidden in Bv by Read@Lib
Read@Lib<Uds<Lib hidden in Bv by Read@Lib)");
}

TEST_F(VInheritanceNotesTest, WaysThatNoPassTakesComeLast) {
    Graph(LR"(
        prot Uds : Read
        ecu  Old : Read
        ecu  Ecu < Uds Bv Old
        base Bv  : Read < Uds
    )");
    EXPECT_EQ(Ways(L"Ecu", L"Read"), LR"(
Read@Bv<Bv visible
Read@Uds<Bv<Uds hidden in Bv by Read@Bv
Read@Uds<Uds no pass in Ecu)");
    EXPECT_EQ(m_notes.WaysOf(Layer(L"Ecu"), L"Read").ways.back().decidedBy,
              &*NDIAGKIT::ParentRefsOf(Layer(L"Ecu"))->Begin());
}

TEST_F(VInheritanceNotesTest, NoWayEntersALayerTwice) {
    Graph(L"prot A : Read < B \n prot B : Read < A");
    EXPECT_EQ(Ways(L"A", L"Read"), L"\nRead@A visible\nRead@B<B no pass in A");
}

TEST_F(VInheritanceNotesTest, AnElementThatALayerListsTwiceIsOneWay) {
    Graph(L"base Bv : Read Read ->Bv.Read");
    EXPECT_EQ(Ways(L"Bv", L"Read"), L"\nRead@Bv visible\nRead@Bv hidden in Bv by Read@Bv");
}

/// On random graphs: the visible candidates are the view; each has its path and, of its name, one visible way.
template <class Kind, class MakeGraph>
void CompareWithViews(MakeGraph makeGraph) {
    for (std::uint32_t seed = 1; seed <= 200; ++seed) {
        VGraphPlan const plan = RandomGraph(seed);
        std::unique_ptr<VGraph> const graph = makeGraph(plan);
        NDIAGKIT::VInheritance<Kind> inheritance;
        NDIAGKIT::VInheritanceNotes<Kind> notes(inheritance);
        for (VLayerPlan const& layer : plan.layers) {
            std::vector<NODX201::VOdxElement*> visible;
            for (VCandidate const& candidate : notes.CandidatesOf(graph->Layer(layer.name))) {
                if (!candidate.isVisible || candidate.hiddenBy != nullptr) {
                    continue;
                }
                visible.push_back(candidate.element);
                std::vector<VWay> ways = notes.WaysOf(graph->Layer(layer.name), candidate.element->GetShortName()).ways;
                ways.erase(std::remove_if(ways.begin(), ways.end(),
                                          [](VWay const& way) { return way.fate != VFate::Visible; }),
                           ways.end());
                ASSERT_EQ(ways.size(), 1u) << GraphText(plan);
                ASSERT_EQ(ways.front().element, candidate.element) << GraphText(plan);
                ASSERT_EQ(Print(ways.front().path), Print(notes.PathOf(candidate))) << GraphText(plan);
            }
            auto entries = inheritance.EntriesOf(graph->Layer(layer.name));
            std::unordered_set<std::wstring> names;
            entries.erase(std::remove_if(entries.begin(), entries.end(),
                                         [&](auto* entry) { return !names.insert(entry->GetShortName()).second; }),
                          entries.end());
            ASSERT_EQ(visible, std::vector<NODX201::VOdxElement*>(entries.begin(), entries.end())) << GraphText(plan);
        }
    }
}

TEST(InheritanceNotesTest, TheVisibleDiagCommsAreTheView) {
    CompareWithViews<NDIAGKIT::VInheritedDiagComms>(
        [](VGraphPlan const& plan) { return std::make_unique<VGraph>(plan); });
}

TEST(InheritanceNotesTest, TheVisibleDiagVariablesAreTheView) {
    CompareWithViews<NDIAGKIT::VInheritedDiagVariables>(
        [](VGraphPlan const& plan) { return MakeContentGraph(plan, VContent::DiagVariables); });
}

TEST(InheritanceNotesTest, TheVisibleGlobalNegResponsesAreTheView) {
    CompareWithViews<NDIAGKIT::VInheritedGlobalNegResponses>(
        [](VGraphPlan const& plan) { return MakeContentGraph(plan, VContent::GlobalNegResponses); });
}

TEST(InheritanceNotesTest, TheVisibleDopsAreTheView) {
    CompareWithViews<NDIAGKIT::VInheritedDops>(
        [](VGraphPlan const& plan) { return MakeContentGraph(plan, VContent::Dops); });
}

} // namespace
} // namespace NTest
