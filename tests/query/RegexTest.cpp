// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/Regex.h>

#include <chrono>
#include <random>
#include <regex>
#include <string>

#include <gtest/gtest.h>

#include <diagkit/query/Find.h>
#include <diagkit/reader/Utf8.h>

namespace NTest {
namespace {

/// The text with what fits first in brackets; "-" where nothing does.
std::string Matched(std::wstring const& pattern, std::wstring text) {
    auto const found = NQuery::VRegexSearch(NQuery::ParseRegex(pattern)).FirstIn(text);
    if (!found.has_value()) {
        return "-";
    }
    text.insert(found->start + found->length, L"]").insert(found->start, L"[");
    return NReader::ToUtf8(text);
}

std::string WrongWith(std::wstring const& pattern) {
    try {
        NQuery::ParseRegex(pattern);
    } catch (NQuery::VPatternError const& error) {
        return error.what();
    }
    return "nothing";
}

std::wstring Times(std::wstring const& text, std::size_t times) {
    std::wstring repeated;
    for (std::size_t count = 0; count < times; ++count) {
        repeated += text;
    }
    return repeated;
}

TEST(RegexTest, CharactersStandForThemselvesWhateverTheirCase) {
    EXPECT_EQ(Matched(L"wiper", L"FrontWiper"), "Front[Wiper]");
    EXPECT_EQ(Matched(L"\u00FCber", L"\u00DCBER"), "[\u00DCBER]");
    EXPECT_EQ(Matched(L"a", L"b"), "-");
}

TEST(RegexTest, TheFirstPlaceWinsAndThereWhatIsPreferred) {
    EXPECT_EQ(Matched(L"b|ab", L"aab"), "a[ab]");
    EXPECT_EQ(Matched(L"a|ab", L"ab"), "[a]b");
    EXPECT_EQ(Matched(L"a*", L"aab"), "[aa]b");
    EXPECT_EQ(Matched(L"a*?b", L"aab"), "[aab]");
    EXPECT_EQ(Matched(L"a+?", L"aab"), "[a]ab");
    EXPECT_EQ(Matched(L"ba??", L"ba"), "[b]a");
    EXPECT_EQ(Matched(L"x*", L"ab"), "[]ab");
}

TEST(RegexTest, CountsRepeat) {
    EXPECT_EQ(Matched(L"a{2}", L"aaa"), "[aa]a");
    EXPECT_EQ(Matched(L"a{2,}b", L"abaaab"), "ab[aaab]");
    EXPECT_EQ(Matched(L"(ab){1,2}", L"ababab"), "[abab]ab");
    EXPECT_EQ(Matched(L"a{0}b", L"ab"), "a[b]");
    EXPECT_EQ(Matched(L"a{3}", L"aa"), "-");
}

TEST(RegexTest, SetsAndClassesFitWhateverTheCase) {
    EXPECT_EQ(Matched(L"[A-C]+", L"xabcd"), "x[abc]d");
    EXPECT_EQ(Matched(L"[a-c]+", L"xABCD"), "x[ABC]D");
    EXPECT_EQ(Matched(L"[^a]", L"Ab"), "A[b]");
    EXPECT_EQ(Matched(L"[a\\-\\]]+", L"x-]a"), "x[-]a]");
    EXPECT_EQ(Matched(L"[-a]+", L"x-a"), "x[-a]");
    EXPECT_EQ(Matched(L"\\d+", L"U0155"), "U[0155]");
    EXPECT_EQ(Matched(L"[\\D]+", L"12ab"), "12[ab]");
    EXPECT_EQ(Matched(L"\\w+", L"- a_1 "), "- [a_1] ");
    EXPECT_EQ(Matched(L"\\W+", L"a - b"), "a[ - ]b");
    EXPECT_EQ(Matched(L"\\S+\\s\\S", L"a bc"), "[a b]c");
    EXPECT_EQ(Matched(L"[]a", L"a"), "-");
    EXPECT_EQ(Matched(L"[^]a", L"xa"), "[xa]");
    EXPECT_EQ(Matched(L".+", L"\nab\n"), "\n[ab]\n");
}

TEST(RegexTest, PlacesTakeNoCharacter) {
    EXPECT_EQ(Matched(L"^b", L"ab"), "-");
    EXPECT_EQ(Matched(L"a$", L"aa"), "a[a]");
    EXPECT_EQ(Matched(L"^$", L""), "[]");
    EXPECT_EQ(Matched(L"\\bb", L"ab b"), "ab [b]");
    EXPECT_EQ(Matched(L"\\Bb", L"b ab"), "b a[b]");
}

TEST(RegexTest, EscapedCharactersStandForThemselvesOrAreNamed) {
    EXPECT_EQ(Matched(L"\\.\\*\\(", L"a.*("), "a[.*(]");
    EXPECT_EQ(Matched(L"\\x41\\u00df\\t", L"A\u00DF\t"), "[A\u00DF\t]");
    EXPECT_EQ(Matched(L"}]", L"}]"), "[}]]");
}

TEST(RegexTest, WhatIsWrongIsSaidWithItsPlace) {
    EXPECT_EQ(WrongWith(L"a(b"), "a '(' has no ')', at character 3");
    EXPECT_EQ(WrongWith(L"a)"), "a ')' has no '(', at character 1");
    EXPECT_EQ(WrongWith(L"[a"), "a '[' has no ']', at character 2");
    EXPECT_EQ(WrongWith(L"*a"), "there is nothing to repeat, at character 1");
    EXPECT_EQ(WrongWith(L"a**"), "a repetition is repeated; put it into a group, at character 3");
    EXPECT_EQ(WrongWith(L"a{2,1}"), "a count has its larger number first, at character 6");
    EXPECT_EQ(WrongWith(L"a{x}"), "a '{' starts no count such as {2,3}; \\{ stands for itself, at character 2");
    EXPECT_EQ(WrongWith(L"a{1001}"), "a count is more than 1000, at character 6");
    EXPECT_EQ(WrongWith(L"[b-a]"), "a range has its larger character first, at character 4");
    EXPECT_EQ(WrongWith(L"(?=a)"),
              "looking ahead and named groups are not supported, of (?...) only (?:...) is, at character 2");
    EXPECT_EQ(WrongWith(L"(a)\\1"), "back-references are not supported, at character 5");
    EXPECT_EQ(WrongWith(L"\\q"), "'\\q' stands for nothing, at character 2");
    EXPECT_EQ(WrongWith(L"\\u12"), "it ends in the middle, at character 4");
    EXPECT_EQ(WrongWith(L"\\x1g"), "a character in hexadecimal is \\x with 2 digits or \\u with 4, at character 4");
    EXPECT_EQ(WrongWith(L"a\\"), "it ends in the middle, at character 2");
}

TEST(RegexTest, WhatWouldFillAMachineIsNoExpression) {
    EXPECT_EQ(WrongWith(L"((a{100}){100}){100}"), "it is longer than 2000 steps with what it repeats, at character 14");
    EXPECT_EQ(WrongWith(Times(L"(", 100'000)), "groups stand more than 100 deep in each other, at character 101");
    EXPECT_EQ(WrongWith(Times(L"ab", 100'000)), "it is longer than 2000 steps with what it repeats, at character 2001");
    EXPECT_EQ(WrongWith(Times(L"a|", 100'000)), "it is longer than 2000 steps with what it repeats, at character 1335");
}

TEST(RegexTest, NoExpressionTakesLongerThanItsLengthTimesThatOfTheText) {
    std::wstring const text = Times(L"a", 100'000);
    auto const start = std::chrono::steady_clock::now();
    for (wchar_t const* const pattern : {L"(a+)+b", L"(a|a)*b", L"(a*)*b", L"(.*)*x", L"((a?){30}){10}b"}) {
        EXPECT_EQ(Matched(pattern, text), "-");
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::minutes(1));
}

/// A pattern of these rules: a character, a set, a group, a repetition, alternatives.
std::wstring RandomPattern(std::mt19937& random, int depth) {
    std::wstring pattern;
    for (unsigned count = 1 + random() % 3; count > 0; --count) {
        constexpr wchar_t const* kAtoms[] = {L"a", L"b", L".", L"[ab]", L"[^a]", L"c", L"\\b", L"^", L"$"};
        constexpr wchar_t const* kCounts[] = {L"", L"", L"*", L"+", L"?", L"{2}", L"{0,2}", L"{1,}", L"*?", L"+?"};
        unsigned const atom = random() % 12;
        bool const isGroup = atom >= 9 && depth > 0;
        pattern += isGroup ? L"(" + RandomPattern(random, depth - 1) + L")" : kAtoms[atom % 9];
        pattern += isGroup || atom % 9 < 6 ? kCounts[random() % 10] : L"";
    }
    return random() % 4 == 0 ? pattern + L"|" + RandomPattern(random, 0) : pattern;
}

TEST(RegexTest, FitsWhereTheStandardLibraryFinds) {
    std::mt19937 random(1);
    for (int round = 0; round < 250; ++round) {
        std::wstring const pattern = RandomPattern(random, 2);
        std::wregex const expected(pattern);
        NQuery::VRegexSearch search(NQuery::ParseRegex(pattern));
        for (int count = 0; count < 5; ++count) {
            std::wstring text;
            for (unsigned length = random() % 7; length > 0; --length) {
                text += L"abc "[random() % 4];
            }
            std::wsmatch match;
            bool const isFound = std::regex_search(text, match, expected);
            auto const found = search.FirstIn(text);
            ASSERT_EQ(found.has_value(), isFound) << NReader::ToUtf8(pattern + L" in " + text);
            ASSERT_TRUE(!isFound || static_cast<std::ptrdiff_t>(found->start) == match.position())
                << NReader::ToUtf8(pattern + L" in " + text);
        }
    }
}

} // namespace
} // namespace NTest
