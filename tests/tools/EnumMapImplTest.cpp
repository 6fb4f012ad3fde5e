// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/EnumMapImpl.h>

#include <string>
#include <type_traits>

#include <gtest/gtest.h>

namespace NTest {
namespace {

enum class VColour : int { Red = 0, Green, Blue, Brown = -1 };

using VColourTable = NDIAGKIT::EnumMapImpl<VColour>;

static_assert(!std::is_polymorphic_v<VColourTable>);
static_assert(std::is_copy_constructible_v<VColourTable> && std::is_copy_assignable_v<VColourTable>);

TEST(EnumMapImplTest, ATableToWhichNothingWasAddedAnswersWithAQuestionMarkAndZero) {
    VColourTable const table(L"Colour");
    EXPECT_EQ(table.GetStr(VColour::Red), std::wstring(L"?"));
    EXPECT_EQ(table.GetStr(VColour::Brown), std::wstring(L"?"));
    EXPECT_EQ(static_cast<int>(table.Get(L"RED")), 0);
    EXPECT_FALSE(table.m_isDefaultSet);
    EXPECT_TRUE(table.m_map.empty());
}

TEST(EnumMapImplTest, TheNameIsCopied) {
    wchar_t name[] = L"Colour";
    VColourTable const table(name);
    name[0] = L'X';
    EXPECT_EQ(table.m_name, L"Colour");
}

TEST(EnumMapImplTest, EachPairIsFoundBothWays) {
    VColourTable table(L"Colour");
    table.Add(L"RED", VColour::Red);
    table.Add(L"BROWN", VColour::Brown);
    EXPECT_EQ(table.Get(L"RED"), VColour::Red);
    EXPECT_EQ(table.Get(L"BROWN"), VColour::Brown);
    EXPECT_EQ(table.GetStr(VColour::Red), std::wstring(L"RED"));
    EXPECT_EQ(table.GetStr(VColour::Brown), std::wstring(L"BROWN"));
    EXPECT_EQ(table.GetStr(VColour::Blue), std::wstring(L"?"));
}

TEST(EnumMapImplTest, TheFirstPairEverAddedDefinesTheDefault) {
    VColourTable table(L"Colour");
    table.Add(L"GREEN", VColour::Green);
    table.Add(L"BLUE", VColour::Blue);
    EXPECT_TRUE(table.m_isDefaultSet);
    EXPECT_EQ(table.m_default, VColour::Green);
    EXPECT_EQ(table.Get(L"YELLOW"), VColour::Green);
}

TEST(EnumMapImplTest, ALiteralThatIsThereKeepsItsValue) {
    VColourTable table(L"Colour");
    table.Add(L"GREEN", VColour::Green);
    table.Add(L"BLUE", VColour::Blue);
    table.Add(L"BLUE", VColour::Red);
    EXPECT_EQ(table.Get(L"BLUE"), VColour::Blue);
    EXPECT_EQ(table.m_map.size(), 2u);
}

TEST(EnumMapImplTest, LiteralsCompareExactly) {
    VColourTable table(L"Colour");
    table.Add(L"GREEN", VColour::Green);
    table.Add(L"BLUE", VColour::Blue);
    for (wchar_t const* const literal : {L"blue", L" BLUE", L"BLUE ", L"BLU", L""}) {
        EXPECT_EQ(table.Get(literal), VColour::Green) << "the default for " << testing::PrintToString(literal);
    }
}

TEST(EnumMapImplTest, NullIsNoLiteralAndNoName) {
    VColourTable table(nullptr);
    EXPECT_EQ(table.m_name, L"");
    EXPECT_EQ(table.Get(nullptr), VColour()) << "of a table without literals";
    table.Add(nullptr, VColour::Blue);
    EXPECT_TRUE(table.m_map.empty());
    EXPECT_FALSE(table.m_isDefaultSet);
    table.Add(L"GREEN", VColour::Green);
    table.Add(L"", VColour::Red);
    EXPECT_EQ(table.Get(nullptr), VColour::Green) << "the default";
}

TEST(EnumMapImplTest, OfTwoLiteralsOfOneValueTheAlphabeticallySmallerIsAnswered) {
    VColourTable table(L"Colour");
    table.Add(L"ROUGE", VColour::Red);
    table.Add(L"RED", VColour::Red);
    table.Add(L"red", VColour::Red);
    EXPECT_EQ(table.GetStr(VColour::Red), std::wstring(L"RED"));
}

TEST(EnumMapImplTest, TheOrderOfLiteralsIsThatOfCodeUnitsOfUtf16) {
    VColourTable table(L"Colour");
    table.Add(L"\uFF5E", VColour::Red);
    table.Add(L"\U0001F600", VColour::Red);
    EXPECT_EQ(table.GetStr(VColour::Red), std::wstring(L"\U0001F600"));
    EXPECT_EQ(table.Get(L"\uFF5E"), VColour::Red);
}

TEST(EnumMapImplTest, LiteralsAreCopiedAndStayWhereTheyAre) {
    VColourTable table(L"Colour");
    wchar_t literal[] = L"RED";
    table.Add(literal, VColour::Red);
    literal[0] = L'X';
    wchar_t const* const text = table.GetStr(VColour::Red);
    table.Add(L"BLUE", VColour::Blue);
    EXPECT_EQ(text, std::wstring(L"RED"));
    EXPECT_EQ(text, table.GetStr(VColour::Red)) << "the same address";
}

TEST(EnumMapImplTest, ACopyIsDeep) {
    VColourTable original(L"Colour");
    original.Add(L"GREEN", VColour::Green);
    VColourTable copy(original);
    VColourTable assigned(L"Other");
    assigned.Add(L"BLUE", VColour::Blue);
    assigned = original;
    original.Add(L"RED", VColour::Red);
    for (VColourTable const* const table : {&copy, &assigned}) {
        EXPECT_EQ(table->m_name, L"Colour");
        EXPECT_EQ(table->m_map.size(), 1u);
        EXPECT_TRUE(table->m_isDefaultSet);
        EXPECT_EQ(table->Get(L"RED"), VColour::Green) << "the copied default";
        EXPECT_NE(table->GetStr(VColour::Green), original.GetStr(VColour::Green)) << "its own text";
    }
}

} // namespace
} // namespace NTest
