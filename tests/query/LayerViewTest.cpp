// SPDX-License-Identifier: Apache-2.0

// The view of a layer with the way of each entry, and the elements left out of it.

#include <diagkit/query/LayerView.h>

#include <diagkit/model/DiagComms.h>

#include "query/PlanKinds.h"
#include "support/GraphText.h"
#include "support/RandomGraph.h"

namespace NTest {
namespace {

using NQuery::VLayerView;
using NQuery::VViewEntry;

std::wstring Print(VLayerView const& view) {
    std::wstring text;
    for (VViewEntry const& entry : view.entries) {
        text += L"\n" + IdOfElement(*entry.element) + PrintPath(view.PathOf(entry));
    }
    for (VViewEntry const& entry : view.hidden) {
        text += L"\nhidden " + IdOfElement(*entry.element) + PrintPath(view.PathOf(entry)) + L" by " +
                IdOfElement(*entry.hiddenBy);
    }
    for (VViewEntry const& entry : view.excluded) {
        text += L"\nexcluded " + IdOfElement(*entry.element) + PrintPath(view.PathOf(entry));
    }
    return text;
}

std::wstring View(std::wstring const& text, wchar_t const* layer, VPlanKind const& kind = kPlanKinds[0]) {
    auto const graph = MakeContentGraph(ParseGraph(text), kind.content);
    return Print(NQuery::ViewOf(graph->Layer(layer), kind.query));
}

TEST(LayerViewTest, EveryEntryHasTheWholeWayThatItCame) {
    EXPECT_EQ(View(L"esd Lib : Ident \n prot Uds < Lib \n base Bv : Read < Uds \n ecu Ecu < Bv", L"Ecu"), LR"(
Bv.Read<Bv
Lib.Ident<Bv<Uds<Lib)");
}

TEST(LayerViewTest, WhatIsHiddenOrExcludedIsToldOnce) {
    EXPECT_EQ(View(L"base Bv : Read Stop \n base Cv : Go Stop \n ecu Ecu : Read < Bv-Stop Cv-Go Bv-Stop", L"Ecu"), LR"(
Ecu.Read
Cv.Stop<Cv
hidden Bv.Read<Bv by Ecu.Read
excluded Bv.Stop<Bv
excluded Cv.Go<Cv)");
}

TEST(LayerViewTest, EntriesAreFoundByTheirShortNames) {
    auto const graph =
        MakeContentGraph(ParseGraph(L"base Bv : Read Stop \n base Cv : Go Stop \n ecu Ecu : Read < Bv-Stop Cv-Go"),
                         kPlanKinds[0].content);
    VLayerView const view = NQuery::ViewOf(graph->Layer(L"Ecu"), kPlanKinds[0].query);
    ASSERT_NE(view.Find(L"Read"), nullptr);
    EXPECT_EQ(&view.Find(L"Read")->From(), &graph->Layer(L"Ecu"));
    ASSERT_NE(view.FindHidden(L"Read"), nullptr);
    EXPECT_EQ(&view.FindHidden(L"Read")->From(), &graph->Layer(L"Bv"));
    ASSERT_NE(view.FindExcluded(L"Go"), nullptr);
    EXPECT_EQ(&view.FindExcluded(L"Go")->From(), &graph->Layer(L"Cv"));
    EXPECT_EQ(view.Find(L"Go"), nullptr);
    EXPECT_EQ(view.Find(L"read"), nullptr);
    EXPECT_EQ(view.FindHidden(L"Go"), nullptr);
    EXPECT_EQ(view.FindExcluded(L""), nullptr);
}

TEST(LayerViewTest, ARangeWalksWhatIsVisible) {
    auto const graph =
        MakeContentGraph(ParseGraph(L"prot Uds : Read Stop \n base Bv : Go Stop < Uds"), kPlanKinds[0].content);
    std::wstring names;
    for (VViewEntry const& entry : NQuery::ViewOf(graph->Layer(L"Bv"), kPlanKinds[0].query)) {
        names += std::wstring(entry.element->GetShortName()) + L" ";
        EXPECT_EQ(entry.As<NODX201::VDiagService>(), entry.element);
        EXPECT_EQ(entry.As<NODX201::VSingleEcuJob>(), nullptr);
    }
    EXPECT_EQ(names, L"Go Stop Read ");
}

TEST(LayerViewTest, WhatIsVisibleAfterAllIsNotLeftOut) {
    EXPECT_EQ(View(L"base Bv : Read \n ecu Ecu < Bv-Read Bv", L"Ecu"), L"\nBv.Read<Bv");
}

TEST(LayerViewTest, WhatIsTakenAndExcludedAsWellIsHidden) {
    EXPECT_EQ(View(L"base Bv : Read \n ecu Ecu : Read < Bv-Read", L"Ecu"),
              L"\nEcu.Read\nhidden Bv.Read<Bv by Ecu.Read");
}

TEST(LayerViewTest, OfOwnDopsOfOneNameTheLaterAreHiddenThere) {
    EXPECT_EQ(View(L"base Bv : Volt Volt", L"Bv", kPlanKinds[3]), L"\nBv.Volt\nhidden Bv.Volt#2 by Bv.Volt");
}

TEST(LayerViewTest, DopsComeInTheOrderOfTheirShortNames) {
    EXPECT_EQ(View(L"base Bv : a C \n ecu Ecu : b < Bv", L"Ecu", kPlanKinds[3]), L"\nBv.C<Bv\nBv.a<Bv\nEcu.b");
}

TEST(LayerViewTest, AgreesWithTheReferenceOnGraphsAtRandom) {
    for (std::uint32_t seed = 1; seed <= 200; ++seed) {
        VGraphPlan const plan = RandomGraph(seed);
        for (VPlanKind const& kind : kPlanKinds) {
            auto const graph = MakeContentGraph(plan, kind.content);
            for (VLayerPlan const& layer : plan.layers) {
                ASSERT_EQ(Print(NQuery::ViewOf(graph->Layer(layer.name), kind.query)),
                          NaiveReasons(kind.naive, plan, layer.name))
                    << layer.name << L" of\n"
                    << GraphText(plan);
            }
        }
    }
}

TEST(LayerViewTest, TheEntriesAreTheView) {
    for (std::uint32_t seed = 1; seed <= 100; ++seed) {
        VGraphPlan const plan = RandomGraph(seed);
        for (VPlanKind const& kind : kPlanKinds) {
            auto const graph = MakeContentGraph(plan, kind.content);
            for (VLayerPlan const& layer : plan.layers) {
                std::vector<NODX201::VOdxElement*> entries;
                for (VViewEntry const& entry : NQuery::ViewOf(graph->Layer(layer.name), kind.query).entries) {
                    entries.push_back(entry.element);
                }
                ASSERT_EQ(entries, NQuery::EntriesOf(graph->Layer(layer.name), kind.query)) << GraphText(plan);
            }
        }
    }
}

} // namespace
} // namespace NTest
