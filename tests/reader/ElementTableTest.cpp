// SPDX-License-Identifier: Apache-2.0
#include <stdexcept>
#include <utility>

#include <gtest/gtest.h>

#include <diagkit/reader/ElementTable.h>

namespace NTest {
namespace {

NReader::VElementType Table(std::size_t rows, int choice = 0) {
    NReader::VElementType type;
    type.rows.assign(rows, NReader::VRow{"CHILD", NReader::VOccurs::Optional, choice, nullptr});
    return type;
}

TEST(ElementTable, AsManyRowsAsTheLoaderKeepsApart) {
    EXPECT_EQ(NReader::Indexed(Table(NReader::kMostRows)).names.size(), 64U);
}

TEST(ElementTable, OneRowMore) { EXPECT_THROW(NReader::Indexed(Table(NReader::kMostRows + 1)), std::length_error); }

TEST(ElementTable, ChoiceOfTheHighestNumber) { EXPECT_NO_THROW(NReader::Indexed(Table(1, 63))); }

TEST(ElementTable, ChoiceOfAHigherNumber) { EXPECT_THROW(NReader::Indexed(Table(1, 64)), std::length_error); }

} // namespace
} // namespace NTest
