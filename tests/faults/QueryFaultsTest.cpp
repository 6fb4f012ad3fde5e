// SPDX-License-Identifier: Apache-2.0

// Queries about the sample while memory runs out at every point: the exception is passed on, nothing is lost, and the
// next result is correct.

#include <string>

#include <gtest/gtest.h>

#include <diagkit/query/Explain.h>
#include <diagkit/query/LayerView.h>

#include "faults/FailEverywhere.h"
#include "faults/Sample.h"

namespace NTest {
namespace {

using NQuery::VInheritedKind;

constexpr VInheritedKind kKindsOfQueries[] = {VInheritedKind::DiagComm, VInheritedKind::DiagVariable,
                                              VInheritedKind::GlobalNegResponse, VInheritedKind::Dop};

class QueryFaultsTest : public testing::Test {
protected:
    /// `ask` is a query whose result is given as numbers. Each run starts with links that remember nothing.
    template <class Ask>
    void Check(Ask ask) {
        auto const forget = [this] {
            m_sample.database.StartNewResolver();
            m_sample.database.NoteChange();
        };
        auto const before = ask();
        m_failures += FailEverywhere(forget, [&] { ask(); });
        EXPECT_EQ(ask(), before);
    }

    VSample m_sample;
    std::size_t m_failures = 0;
};

TEST_F(QueryFaultsTest, Explanations) {
    for (NODX201::VDiagLayer* const layer : m_sample.layers) {
        for (wchar_t const* const name : {L"ReadTroubleCodes", L"HardReset", L"NoSuchName"}) {
            Check([&] {
                NQuery::VExplanation const explanation =
                    NQuery::Explain(m_sample.database, *layer, VInheritedKind::DiagComm, name);
                return explanation.candidates.size() + explanation.elsewhere.size();
            });
        }
    }
    EXPECT_GT(m_failures, 500u);
}

TEST_F(QueryFaultsTest, ViewsWithReasons) {
    for (NODX201::VDiagLayer* const layer : {m_sample.layers.front(), m_sample.layers.back()}) {
        for (VInheritedKind const kind : kKindsOfQueries) {
            Check([&] {
                NQuery::VLayerView const view = NQuery::ViewOf(*layer, kind);
                return view.entries.size() + view.hidden.size() + view.excluded.size();
            });
        }
    }
    EXPECT_GT(m_failures, 500u);
}

} // namespace
} // namespace NTest
