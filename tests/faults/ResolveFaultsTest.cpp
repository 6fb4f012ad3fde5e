// SPDX-License-Identifier: Apache-2.0

// Resolving names and links while memory runs out at every point.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include <diagkit/check/Cycles.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/Dops.h>
#include <diagkit/tools/GuardedDiagLayerTraverser.h>
#include <diagkit/tools/OpBuildDiagCommView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpResolveSnref.h>

#include "faults/FailEverywhere.h"
#include "faults/Sample.h"

namespace NTest {
namespace {

using NDIAGKIT::VOpResolveSnref;

class ResolveFaultsTest : public testing::Test {
protected:
    template <class Action>
    std::size_t Check(Action action) {
        return FailEverywhere(
            [this] {
                m_sample.database.StartNewResolver();
                m_sample.database.NoteChange();
            },
            action);
    }

    /// One resolver for all failures: what it remembers of a failed call must not give wrong results.
    template <class Resolve>
    void CheckOneResolver(Resolve resolve) {
        VOpResolveSnref resolver;
        for (std::size_t after = 0;; ++after) {
            try {
                VFailingAllocations const failing(after);
                resolve(resolver);
                break;
            } catch (std::bad_alloc const&) {
            }
        }
        VOpResolveSnref fresh;
        auto* const answer = resolve(resolver);
        EXPECT_NE(answer, nullptr);
        EXPECT_EQ(answer, resolve(fresh));
    }

    VSample m_sample;
    NODX201::VDiagLayer& m_layer = *m_sample.layers.back();
};

TEST_F(ResolveFaultsTest, EveryKindOfNameInALayer) {
    NODX201::VDiagLayer& layer = m_layer;
    EXPECT_GT(Check([&] { VOpResolveSnref().ResolveDopBaseSnref(L"NoSuchName", layer); }), 10u);
    EXPECT_GT(Check([&] { VOpResolveSnref().ResolveDataObjectPropSnref(L"NoSuchName", layer); }), 10u);
    EXPECT_GT(Check([&] { VOpResolveSnref().ResolveDiagCommSnref(L"NoSuchName", layer); }), 10u);
    EXPECT_GT(Check([&] { VOpResolveSnref().ResolveDiagVariableSnref(L"NoSuchName", layer); }), 1u);
}

TEST_F(ResolveFaultsTest, AResolverThatRanOutOfMemoryAnswersAfterwards) {
    std::wstring dop, diagComm;
    {
        NDIAGKIT::VOpBuildDopView builder;
        std::unique_ptr<NDIAGKIT::VDopView> const dops(builder.CreateDopView(m_layer));
        dop = (*dops->Begin()).GetShortName();
    }
    {
        NDIAGKIT::VOpBuildDiagCommView builder;
        std::unique_ptr<NDIAGKIT::VDiagCommView> const diagComms(builder.CreateDiagCommView(m_layer));
        diagComm = (*diagComms->Begin()).GetShortName();
    }
    CheckOneResolver([&](VOpResolveSnref& resolver) { return resolver.ResolveDopBaseSnref(dop.c_str(), m_layer); });
    CheckOneResolver(
        [&](VOpResolveSnref& resolver) { return resolver.ResolveDiagCommSnref(diagComm.c_str(), m_layer); });
}

TEST_F(ResolveFaultsTest, WalksOfEveryLayer) {
    std::size_t failures = 0;
    for (NODX201::VDiagLayer* const layer : m_sample.layers) {
        failures += Check([&] { NDIAGKIT::VGuardedDiagLayerTraverser(*layer).TraverseDiagLayer(); });
    }
    EXPECT_GT(failures, 10u);
}

TEST_F(ResolveFaultsTest, SearchForCycles) {
    EXPECT_GT(Check([&] { NCheck::FindCycles(m_sample.database); }), 10u);
}

} // namespace
} // namespace NTest
