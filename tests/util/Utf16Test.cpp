// SPDX-License-Identifier: Apache-2.0
#include <diagkit/util/Utf16.h>

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace NTest {
namespace {

using NPavonaUtil::FirstUtf16Unit;
using NPavonaUtil::IsLessInUtf16;
using NPavonaUtil::SecondUtf16Unit;
using NPavonaUtil::Utf16Length;

/// A text in UTF-16, as the encoding is defined.
std::u16string Encoded(std::u32string const& text) {
    std::u16string encoded;
    for (char32_t const character : text) {
        if (character <= 0xFFFF) {
            encoded += static_cast<char16_t>(character);
        } else {
            encoded += static_cast<char16_t>(0xD800 | ((character - 0x10000) / 0x400));
            encoded += static_cast<char16_t>(0xDC00 | ((character - 0x10000) % 0x400));
        }
    }
    return encoded;
}

/// All texts of up to three of these characters; among them are unpaired surrogates, also adjacent ones.
std::vector<std::u32string> Texts() {
    std::u32string const characters{U'A', 0xD7FF, 0xD83D, 0xDE00, 0xE000, 0xFFFF, 0x10000, 0x1F600, 0x10FFFF};
    std::vector<std::u32string> texts{U""};
    for (std::size_t text = 0; texts[text].size() < 3; ++text) {
        for (char32_t const character : characters) {
            texts.push_back(texts[text] + character);
        }
    }
    return texts;
}

TEST(Utf16Test, TheOrderIsThatOfTheTextsInUtf16) {
    std::vector<std::u32string> const texts = Texts();
    ASSERT_EQ(texts.size(), 820u);
    std::vector<std::u16string> encoded;
    for (std::u32string const& text : texts) {
        encoded.push_back(Encoded(text));
    }
    std::size_t faults = 0;
    for (std::size_t left = 0; left < texts.size(); ++left) {
        for (std::size_t right = 0; right < texts.size(); ++right) {
            bool const isLess = encoded[left] < encoded[right];
            bool const isLessIn32 = IsLessInUtf16<char32_t>(texts[left], texts[right]);
            bool const isLessIn16 = IsLessInUtf16<char16_t>(encoded[left], encoded[right]);
            faults += isLessIn32 == isLess && isLessIn16 == isLess ? 0 : 1;
        }
    }
    EXPECT_EQ(faults, 0u);
}

TEST(Utf16Test, LengthsAndUnitsOfCharacters) {
    EXPECT_EQ(Utf16Length(U'A'), 1);
    EXPECT_EQ(Utf16Length(char32_t{0xFFFF}), 1);
    EXPECT_EQ(Utf16Length(char32_t{0x10000}), 2);
    EXPECT_EQ(Utf16Length(char32_t{0x10FFFF}), 2);
    EXPECT_EQ(Utf16Length(char32_t{0x110000}), 1) << "no character";
    EXPECT_EQ(Utf16Length(char16_t{0xD83D}), 1) << "texts of 16 bits are in UTF-16";
    EXPECT_EQ(FirstUtf16Unit(U'A'), U'A');
    EXPECT_EQ(FirstUtf16Unit(char32_t{0x1F600}), char32_t{0xD83D});
    EXPECT_EQ(SecondUtf16Unit(char32_t{0x1F600}), char32_t{0xDE00});
    EXPECT_EQ(FirstUtf16Unit(char32_t{0x10FFFF}), char32_t{0xDBFF});
    EXPECT_EQ(SecondUtf16Unit(char32_t{0x10FFFF}), char32_t{0xDFFF});
}

TEST(Utf16Test, NumbersThatAreNoCharactersComeLast) {
    std::u32string const none(1, 0x110000);
    EXPECT_TRUE(IsLessInUtf16<char32_t>(U"\uFFFF", none));
    EXPECT_TRUE(IsLessInUtf16<char32_t>(U"\U0010FFFF", none));
    EXPECT_FALSE(IsLessInUtf16<char32_t>(none, none));
}

TEST(Utf16Test, MapsOfWideTexts) {
    std::map<std::wstring, int, NPavonaUtil::VUtf16Less> map{
        {L"a", 1}, {L"\U0001F600", 2}, {L"\uFF5E", 3}, {L"", 0}, {L"ab", 1}};
    std::wstring order;
    for (auto const& [text, number] : map) {
        order += std::to_wstring(number);
    }
    EXPECT_EQ(order, L"01123") << "what lies above U+FFFF comes before U+FF5E";
    EXPECT_EQ(map.find(std::wstring_view(L"ab"))->second, 1);
}

} // namespace
} // namespace NTest
