// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/ElementTexts.h>

#include "tools/oem/OemTest.h"

namespace NTest {
namespace {

using namespace NDIAGKIT;

TEST(ElementTextsTest, OnlyAsciiLettersAreFolded) {
    for (wchar_t character = 0; character < 0x500; ++character) {
        bool const isUpper = character >= L'A' && character <= L'Z';
        bool const isLower = character >= L'a' && character <= L'z';
        EXPECT_EQ(ToLower(character), isUpper ? character + 32 : character);
        EXPECT_EQ(ToUpper(character), isLower ? character - 32 : character);
    }
}

TEST(ElementTextsTest, EqualityIsThatOfTheWholeText) {
    EXPECT_TRUE(EqualsIgnoringCase(L"", L""));
    EXPECT_TRUE(EqualsIgnoringCase(L"aBc_1", L"AbC_1"));
    EXPECT_FALSE(EqualsIgnoringCase(L"abc", L"abcd"));
    EXPECT_FALSE(EqualsIgnoringCase(L"abcd", L"abc"));
    EXPECT_FALSE(EqualsIgnoringCase(L"\xC4", L"\xE4"));
    EXPECT_FALSE(EqualsIgnoringCase(L"[", L"{")) << "32 apart, and no letters";
}

TEST(ElementTextsTest, StartsAndParts) {
    EXPECT_TRUE(StartsWithIgnoringCase(L"ABCdef", L"abC"));
    EXPECT_TRUE(StartsWithIgnoringCase(L"abc", L"ABC"));
    EXPECT_FALSE(StartsWithIgnoringCase(L"ab", L"abc"));
    EXPECT_FALSE(StartsWithIgnoringCase(L"xabc", L"abc"));
    EXPECT_TRUE(ContainsIgnoringCase(L"xABCx", L"abc"));
    EXPECT_TRUE(ContainsIgnoringCase(L"aabc", L"ABC"));
    EXPECT_TRUE(ContainsIgnoringCase(L"", L""));
    EXPECT_FALSE(ContainsIgnoringCase(L"ab c", L"abc"));
}

TEST(ElementTextsTest, JoinedTexts) {
    EXPECT_TRUE(IsJoined(L"BV.Engine.FNC.Diag", L"BV.Engine", L".FNC.", L"Diag"));
    EXPECT_TRUE(IsJoined(L"ID", L"ID", L""));
    EXPECT_TRUE(IsJoined(L"", L"", L""));
    EXPECT_FALSE(IsJoined(L"ID7x", L"ID", L"7"));
    EXPECT_FALSE(IsJoined(L"ID", L"ID", L"7"));
    EXPECT_FALSE(IsJoined(L"7ID", L"ID", L"7"));
    EXPECT_FALSE(IsJoined(L"id7", L"ID", L"7"));
}

} // namespace
} // namespace NTest
