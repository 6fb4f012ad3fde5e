// SPDX-License-Identifier: Apache-2.0

// Loading the sample while memory runs out at every point.

#include <gtest/gtest.h>

#include <diagkit/check/Check.h>
#include <diagkit/query/Uses.h>

#include "faults/FailEverywhere.h"
#include "faults/Sample.h"

namespace NTest {
namespace {

NReader::VReadOptions OneThread() {
    NReader::VReadOptions options;
    options.keepsElements = true;
    options.threads = 1; // blocks are counted for one thread
    return options;
}

TEST(LoadFaultsTest, TheSampleForTheFirstTime) {
    // Objects that the process makes once and keeps may be made in any of the runs, so blocks are not counted here.
    std::size_t failures = 0;
    for (bool isDone = false; !isDone; ++failures) {
        try {
            VFailingAllocations const failing(failures);
            isDone = NReader::ReadOdx({kSample}, OneThread()).database != nullptr;
            ASSERT_TRUE(isDone) << "refused where memory ran out after " << failures << " allocations";
        } catch (std::bad_alloc const&) {
        }
    }
    EXPECT_GT(failures, 1000u);
    EXPECT_TRUE(NReader::ReadOdx({kSample}).diagnostics.empty());
}

TEST(LoadFaultsTest, TheSampleAgain) {
    VSample warm;
    std::size_t const failures = FailEverywhere([&] {
        ASSERT_NE(NReader::ReadOdx({kSample}, OneThread()).database, nullptr) << "refused where memory ran out";
    });
    EXPECT_GT(failures, 1000u);
    EXPECT_EQ(VSample().layers.size(), warm.layers.size());
}

TEST(LoadFaultsTest, CheckingTheSample) {
    NReader::VReadResult result = NReader::ReadOdx({kSample}, OneThread());
    auto const before = NCheck::CheckDatabase(result).size();
    std::size_t const failures =
        FailEverywhere([&] { result.database->StartNewResolver(); }, [&] { NCheck::CheckDatabase(result); });
    EXPECT_GT(failures, 1000u);
    EXPECT_EQ(NCheck::CheckDatabase(result).size(), before);
}

TEST(LoadFaultsTest, FindingTheUsesInTheSample) {
    NReader::VReadResult const result = NReader::ReadOdx({kSample}, OneThread());
    NODX201::VOdxElement const& element = *result.elements.back();
    auto const ask = [&] {
        NQuery::VUses const uses(*result.database, result.elements);
        return std::make_pair(uses.Of(element).size(), uses.Unused().size());
    };
    auto const before = ask();
    std::size_t const failures = FailEverywhere([&] { result.database->StartNewResolver(); }, [&] { ask(); });
    EXPECT_GT(failures, 1000u);
    EXPECT_EQ(ask(), before);
}

} // namespace
} // namespace NTest
