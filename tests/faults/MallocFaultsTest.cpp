// SPDX-License-Identifier: Apache-2.0

// Loading the sample while a single allocation fails, including those of the XML and the zip library: it is never
// reported as bad data, and no part of the data is missing.

#include <new>
#include <string>

#include <gtest/gtest.h>

#include "faults/FailingMalloc.h"
#include "faults/Sample.h"

namespace NTest {
namespace {

/// The contents of a result, one item per line.
std::string Told(NReader::VReadResult const& result) {
    std::string told = std::to_string(result.elements.size()) + " elements\n";
    for (NReader::VDiagnostic const& diagnostic : result.diagnostics) {
        told += NReader::FormatDiagnostic(diagnostic) + '\n';
    }
    return told;
}

NReader::VReadResult Load(std::string const& file) {
    NReader::VReadOptions options;
    options.keepsElements = true;
    options.threads = 1; // allocations fail in this one
    return NReader::ReadOdx({file}, options);
}

/// Loads the file with each allocation failing in turn. Returns how many failures reached the caller; code that does
/// not need the block continues, and then nothing is missing.
std::size_t LoadWithEachFailing(std::string const& file) {
    std::string const expected = Told(Load(file));
    std::size_t thrown = 0;
    for (std::size_t after = 0;; ++after) {
        NReader::VReadResult result;
        bool hasFailed = false;
        bool isThrown = false;
        {
            VFailingMalloc const failing(after);
            try {
                result = Load(file);
            } catch (std::bad_alloc const&) {
                isThrown = true;
            }
            hasFailed = failing.HasFailed();
        }
        thrown += isThrown;
        if (!isThrown) {
            EXPECT_EQ(Told(result), expected) << "after " << after;
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
