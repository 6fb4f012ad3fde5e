// SPDX-License-Identifier: Apache-2.0

// The memory model keeps the promises, whatever its contents.

#include <filesystem>

#include <gtest/gtest.h>

#include <diagkit/conformance/Reference.h>

#include "ConformanceTest.h"

namespace NTest {
namespace {

NReader::VReadResult Read(std::string const& path) {
    NReader::VReadResult read = NReader::ReadOdx({path});
    EXPECT_NE(read.database, nullptr) << path;
    return read;
}

TEST(MemoryModelTest, SamplesConform) {
    NReader::VReadResult const read = Read(DIAGKIT_SAMPLES "/WiperDatabase.pdx");
    EXPECT_EQ(Lines(CheckModel(ModelOf(read))), "");
}

TEST(MemoryModelTest, ReferenceConforms) {
    NReader::VReadResult const read = Read(DIAGKIT_CONFORMANCE "/reference.odx-d");
    EXPECT_EQ(Lines(CheckReference(ModelOf(read))), "");
    EXPECT_GT(NConformance::ReferenceAnswers().size(), 100u);
}

#ifdef DIAGKIT_SHARED_SAMPLES
TEST(MemoryModelTest, ForeignSamplesConform) {
    int count = 0;
    for (auto const& file : std::filesystem::recursive_directory_iterator(DIAGKIT_SHARED_SAMPLES)) {
        if (!file.is_regular_file()) {
            continue;
        }
        NReader::VReadResult const read = NReader::ReadOdx({file.path().string()});
        if (read.database == nullptr) {
            continue;
        }
        ++count;
        EXPECT_EQ(Lines(CheckModel(ModelOf(read))), "") << file.path();
    }
    EXPECT_GT(count, 3);
}
#endif

} // namespace
} // namespace NTest
