// SPDX-License-Identifier: Apache-2.0
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

#include <diagkit/reader/ElementTable.h>

namespace NTest {
namespace {

NReader::VElementType Table(std::size_t rows, int choice = 0) {
    std::vector<NReader::VFact> const facts(
        rows, NReader::VFact{NReader::VFact::VWhat::Child, "CHILD", {NReader::Optional, choice}});
    return NReader::TableOf(facts.data(), facts.size());
}

TEST(ElementTable, AsManyRowsAsTheLoaderKeepsApart) { EXPECT_EQ(Table(NReader::kMostRows).names.size(), 64U); }

TEST(ElementTable, OneRowMore) { EXPECT_THROW(Table(NReader::kMostRows + 1), std::length_error); }

TEST(ElementTable, ChoiceOfTheHighestNumber) { EXPECT_NO_THROW(Table(1, 63)); }

TEST(ElementTable, ChoiceOfAHigherNumber) { EXPECT_THROW(Table(1, 64), std::length_error); }

} // namespace
} // namespace NTest
