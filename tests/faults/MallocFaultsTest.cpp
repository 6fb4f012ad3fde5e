// SPDX-License-Identifier: Apache-2.0

// Loading the sample while a single allocation fails, those of the XML and the zip library included: it is never taken
// for bad data, and no part of the data is missing.

#include <new>

#include <gtest/gtest.h>

#include "faults/FailingMalloc.h"
#include "faults/Sample.h"

namespace NTest {
namespace {

/// Loads the file with each allocation failing in turn. Gives how many there were.
std::size_t LoadWithEachFailing(std::string const& file) {
    std::size_t const elements = [&] {
        NReader::VReadOptions options;
        options.keepsElements = true;
        return NReader::ReadOdx({file}, options).elements.size();
    }();
    std::size_t thrown = 0;
    for (std::size_t after = 0;; ++after) {
        NReader::VReadResult result;
        bool hasFailed = false;
        bool isThrown = false;
        {
            VFailingMalloc const failing(after);
            try {
                NReader::VReadOptions options;
                options.keepsElements = true;
                result = NReader::ReadOdx({file}, options);
            } catch (std::bad_alloc const&) {
                isThrown = true;
            }
            hasFailed = failing.HasFailed();
        }
        thrown += isThrown;
        if (!isThrown) {
            // What can do without the block goes on, and then nothing is missing.
            EXPECT_NE(result.database, nullptr) << "refused after " << after;
            EXPECT_EQ(result.elements.size(), elements) << "after " << after;
            for (NReader::VDiagnostic const& diagnostic : result.diagnostics) {
                ADD_FAILURE() << "after " << after << ": " << NReader::FormatDiagnostic(diagnostic);
            }
        }
        if (testing::Test::HasFailure() || !hasFailed) {
            return thrown;
        }
    }
}

TEST(MallocFaultsTest, APackage) { EXPECT_GT(LoadWithEachFailing(kSample), 1000u); }

TEST(MallocFaultsTest, ADocument) {
    EXPECT_GT(LoadWithEachFailing(std::string(DIAGKIT_SAMPLES) + "/SharedLibraries.odx-d"), 100u);
}

} // namespace
} // namespace NTest
