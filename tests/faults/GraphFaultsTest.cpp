// SPDX-License-Identifier: Apache-2.0

// Writing the graph of the sample while memory runs out at every point.

#include <gtest/gtest.h>

#include <diagkit/query/InheritanceGraph.h>

#include "faults/FailEverywhere.h"
#include "faults/Sample.h"

namespace NTest {
namespace {

TEST(GraphFaultsTest, TheGraphAndItsParts) {
    VSample sample;
    NQuery::VInheritanceGraph const graph = NQuery::InheritanceGraphOf(sample.database);
    std::size_t const failures = FailEverywhere([&] { NQuery::InheritanceGraphOf(sample.database); });
    EXPECT_GT(failures, 20u);
    for (NODX201::VDiagLayer* const layer : sample.layers) {
        EXPECT_GT(FailEverywhere([&] { NQuery::PartAround(graph, *layer); }), 5u);
    }
    EXPECT_EQ(NQuery::InheritanceGraphOf(sample.database).edges.size(), graph.edges.size());
}

} // namespace
} // namespace NTest
