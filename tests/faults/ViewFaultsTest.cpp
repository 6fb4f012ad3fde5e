// SPDX-License-Identifier: Apache-2.0

// Building each view of every layer, DIAG-COMM, job and flash of the sample while memory runs out at every point: the
// exception is passed on, nothing is lost, and existing objects do not change.

#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/tools/FindLayer.h>
#include <diagkit/tools/IdentIfView.h>
#include <diagkit/tools/OdxCategoryInfoCollection.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpBuildGlobalNegResponseView.h>
#include <diagkit/tools/OpBuildInParamIfView.h>
#include <diagkit/tools/OpBuildOutParamIfView.h>
#include <diagkit/tools/OpBuildProtocolView.h>
#include <diagkit/tools/SessionView.h>
#include <diagkit/tools/ViewHandle.h>

#include "faults/FailEverywhere.h"
#include "faults/Sample.h"
#include "tools/ParamTest.h"

namespace NTest {
namespace {

template <class View>
auto EntriesOf(View& view) {
    std::vector<std::remove_reference_t<decltype(*view.Begin())>*> entries;
    for (auto& entry : view) {
        entries.push_back(&entry);
    }
    return entries;
}

class ViewFaultsTest : public testing::Test {
protected:
    /// `build` returns a view that the caller destroys. Each run starts with links and a resolver that remember
    /// nothing.
    template <class Build>
    void Check(Build build) {
        auto const forget = [this] {
            m_sample.database.StartNewResolver();
            m_sample.database.NoteChange();
        };
        auto const view = Own(build());
        auto const before = EntriesOf(*view);
        m_failures += FailEverywhere(forget, [&] { Own(build()); });
        EXPECT_EQ(EntriesOf(*view), before) << "a view that existed";
        EXPECT_EQ(EntriesOf(*Own(build())), before) << "a view built afterwards";
    }

    /// The same with a builder that has a view already: it destroys that view, and can be used afterwards.
    template <class Builder, class View>
    void CheckBuilder(View* (Builder::*create)(NODX201::VDiagLayer&), NODX201::VDiagLayer& layer) {
        Builder builder;
        auto const before = EntriesOf(*(builder.*create)(layer));
        std::size_t after = 0;
        for (bool isDone = false; !isDone; ++after) {
            try {
                VFailingAllocations const failing(after);
                (builder.*create)(layer);
                isDone = true;
            } catch (std::bad_alloc const&) {
            }
        }
        EXPECT_GT(after, 1u);
        auto const last = Own((builder.*create)(layer));
        EXPECT_EQ(EntriesOf(*last), before);
    }

    template <class View>
    static std::unique_ptr<View> Own(View* view) {
        return std::unique_ptr<View>(view);
    }

    template <class Action>
    void ForEachDiagComm(Action action) {
        for (NODX201::VDiagLayer* const layer : m_sample.layers) {
            NDIAGKIT::VOpBuildDiagCommView builder;
            auto const view = Own(builder.CreateDiagCommView(*layer));
            for (NODX201::VDiagComm& diagComm : *view) {
                action(diagComm, *layer);
            }
        }
    }

    VSample m_sample;
    std::size_t m_failures = 0;
};

TEST_F(ViewFaultsTest, DiagCommViews) {
    for (NODX201::VDiagLayer* const layer : m_sample.layers) {
        Check([&] { return NDIAGKIT::VOpBuildDiagCommView().CreateDiagCommView(*layer); });
        CheckBuilder(&NDIAGKIT::VOpBuildDiagCommView::CreateDiagCommView, *layer);
    }
    EXPECT_GT(m_failures, 100u);
}

TEST_F(ViewFaultsTest, DiagVariableViews) {
    for (NODX201::VDiagLayer* const layer : m_sample.layers) {
        Check([&] { return NDIAGKIT::VOpBuildDiagVariableView().CreateDiagVariableView(*layer); });
        CheckBuilder(&NDIAGKIT::VOpBuildDiagVariableView::CreateDiagVariableView, *layer);
    }
    EXPECT_GT(m_failures, 10u);
}

TEST_F(ViewFaultsTest, GlobalNegResponseViews) {
    using NDIAGKIT::VOpBuildGlobalNegResponseView;
    for (NODX201::VDiagLayer* const layer : m_sample.layers) {
        Check([&] { return VOpBuildGlobalNegResponseView().CreateGlobalNegResponseView(*layer); });
        CheckBuilder(&VOpBuildGlobalNegResponseView::CreateGlobalNegResponseView, *layer);
    }
    EXPECT_GT(m_failures, 10u);
}

TEST_F(ViewFaultsTest, DopViews) {
    for (NODX201::VDiagLayer* const layer : m_sample.layers) {
        Check([&] { return NDIAGKIT::VOpBuildDopView().CreateDopView(*layer); });
        CheckBuilder(&NDIAGKIT::VOpBuildDopView::CreateDopView, *layer);
    }
    EXPECT_GT(m_failures, 100u);
}

TEST_F(ViewFaultsTest, ProtocolViews) {
    for (NODX201::VDiagLayerContainer& container : m_sample.database.GetOdx().DiagLayerContainerCollection()) {
        Check([&] { return NDIAGKIT::VOpBuildProtocolView().CreateProtocolView(container); });
    }
    for (NODX201::VDiagLayer* const layer : m_sample.layers) {
        if (auto* const baseVariant = dynamic_cast<NODX201::VBaseVariant*>(layer)) {
            Check([&] { return new NDIAGKIT::VProtocolView(*baseVariant); });
        }
    }
    EXPECT_GT(m_failures, 5u);
}

TEST_F(ViewFaultsTest, InParamViews) {
    ForEachDiagComm([&](NODX201::VDiagComm& diagComm, NODX201::VDiagLayer&) {
        Check([&] { return VConcreteBuilder<NDIAGKIT::VOpBuildInParamIfView>().CreateInParamIfView(diagComm); });
    });
    EXPECT_GT(m_failures, 100u);
}

TEST_F(ViewFaultsTest, OutParamViewsAndTheirSearch) {
    ForEachDiagComm([&](NODX201::VDiagComm& diagComm, NODX201::VDiagLayer& layer) {
        for (int range = 0; range <= 5; ++range) {
            Check([&] {
                auto view = Own(VConcreteBuilder<NDIAGKIT::VOpBuildOutParamIfView>().CreateOutParamIfView(
                    diagComm, static_cast<NODX201::VSearchRange>(range)));
                view->FindParam(L"WipeSpeed", layer);
                view->FindParam(L"NoSuchName", layer);
                return view.release();
            });
        }
    });
    EXPECT_GT(m_failures, 1000u);
}

TEST_F(ViewFaultsTest, ViewsOfMultipleEcuJobs) {
    for (auto& spec : m_sample.database.MultipleEcuJobSpecCollection()) {
        for (NODX201::VMultipleEcuJob& job : spec.MultipleEcuJobCollection()) {
            Check([&] { return VConcreteBuilder<NDIAGKIT::VOpBuildInParamIfView>().CreateInParamIfView(job); });
            Check([&] { return VConcreteBuilder<NDIAGKIT::VOpBuildOutParamIfView>().CreateOutParamIfView(job); });
        }
    }
    EXPECT_GE(m_failures, 4u);
}

TEST_F(ViewFaultsTest, IdentAndSessionViews) {
    for (NODX201::VFlash& flash : m_sample.database.FlashCollection()) {
        Check([&] { return new NDIAGKIT::VIdentIfView(flash); });
        Check([&] { return new NDIAGKIT::VSessionView(flash); });
    }
    EXPECT_GT(m_failures, 2u);
}

TEST(CategoryListFaultsTest, ACopyIsWholeOrNotThereAndTheOriginalStays) {
    NDIAGKIT::VOdxCategoryInfoCollection list;
    for (wchar_t const* const name : {L"a file of quite a long name.odx-d", L"another file of a long name.odx-d"}) {
        auto info = std::make_unique<NDIAGKIT::VOdxCategoryInfo>();
        info->SetFileName(name);
        list.Append(*info);
        info.release();
    }
    std::size_t const allocations =
        FailEverywhere([&] { std::unique_ptr<NDIAGKIT::VOdxCategoryInfoCollection>(&list.Clone()); });
    EXPECT_GE(allocations, 7u); // the list; of each entry the record, its text and its node
    EXPECT_EQ(list.Count(), 2u);
    EXPECT_NE(list.Find(L"another file of a long name.odx-d"), list.End());
}

TEST_F(ViewFaultsTest, ViewsInHandles) {
    for (NODX201::VDiagLayer* const layer : m_sample.layers) {
        Check([&] { return NDIAGKIT::MakeDiagCommView(*layer).release(); });
        Check([&] { return NDIAGKIT::MakeDopView(*layer).release(); });
    }
    EXPECT_GT(m_failures, 100u);
}

TEST_F(ViewFaultsTest, FindingLayers) {
    auto const before = NDIAGKIT::LayersOf(m_sample.database);
    auto const find = [this] { NDIAGKIT::FindLayers(m_sample.database, L"FrontWiper"); };
    EXPECT_GT(FailEverywhere([] {}, [this] { NDIAGKIT::LayersOf(m_sample.database); }), 1u);
    EXPECT_GT(FailEverywhere([] {}, find), 0u);
    EXPECT_EQ(NDIAGKIT::LayersOf(m_sample.database), before);
}

} // namespace
} // namespace NTest
