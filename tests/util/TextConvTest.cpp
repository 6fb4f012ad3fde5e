// SPDX-License-Identifier: Apache-2.0
#include <diagkit/util/TextConv.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "support/RecordedAssertions.h"
#include "util/LongText.h"

namespace NTest {
namespace {

using NPavonaUtil::AnsiToWide;
using NPavonaUtil::kConversionDone;
using NPavonaUtil::kConversionFailed;
using NPavonaUtil::kNoWideBuffer;
using NPavonaUtil::kWindows1252;
using NPavonaUtil::LastConversionError;
using NPavonaUtil::MultiByteToWide;
using NPavonaUtil::NBuffers::VCommonBuffers;

bool s_hasMemory = true;
std::size_t s_reallocations = 0;

void* Reallocate(void* memory, std::size_t bytes) {
    ++s_reallocations;
    return s_hasMemory ? std::realloc(memory, bytes) : nullptr;
}

class CommonBuffersTest : public testing::Test {
protected:
    CommonBuffersTest() {
        s_hasMemory = true;
        s_reallocations = 0;
    }

    VRecordedAssertions m_recorded;
    VCommonBuffers m_buffers{&Reallocate};
};

TEST_F(CommonBuffersTest, StartEmpty) {
    EXPECT_EQ(m_buffers.CharCapacity(), 0U);
    EXPECT_EQ(m_buffers.WideCapacity(), 0U);
    EXPECT_EQ(m_buffers.CharBuffer(0), nullptr) << "what suffices is not made";
    EXPECT_EQ(m_buffers.WideBuffer(0), nullptr);
    EXPECT_EQ(s_reallocations, 0U);
}

TEST_F(CommonBuffersTest, WhatSufficesIsReturnedUnchanged) {
    char* const narrow = m_buffers.CharBuffer(8);
    wchar_t* const wide = m_buffers.WideBuffer(8);
    EXPECT_EQ(m_buffers.CharBuffer(8), narrow);
    EXPECT_EQ(m_buffers.CharBuffer(1), narrow);
    EXPECT_EQ(m_buffers.WideBuffer(8), wide);
    EXPECT_EQ(m_buffers.WideBuffer(0), wide);
    EXPECT_EQ(m_buffers.CharCapacity(), 8U);
    EXPECT_EQ(m_buffers.WideCapacity(), 8U);
    EXPECT_EQ(s_reallocations, 2U);
}

TEST_F(CommonBuffersTest, ASmallRequestDoublesTheCapacity) {
    m_buffers.CharBuffer(8);
    m_buffers.CharBuffer(9);
    EXPECT_EQ(m_buffers.CharCapacity(), 16U);
    m_buffers.WideBuffer(8);
    m_buffers.WideBuffer(10);
    EXPECT_EQ(m_buffers.WideCapacity(), 16U);
}

TEST_F(CommonBuffersTest, ALargeRequestIsMetAtOnce) {
    m_buffers.CharBuffer(8);
    m_buffers.CharBuffer(40);
    EXPECT_EQ(m_buffers.CharCapacity(), 40U);
    m_buffers.WideBuffer(8);
    m_buffers.WideBuffer(40);
    EXPECT_EQ(m_buffers.WideCapacity(), 40U);
}

TEST_F(CommonBuffersTest, GrowingKeepsTheContents) {
    std::copy_n("contents", 9, m_buffers.CharBuffer(9));
    EXPECT_STREQ(m_buffers.CharBuffer(1000), "contents");
    std::copy_n(L"contents", 9, m_buffers.WideBuffer(9));
    EXPECT_STREQ(m_buffers.WideBuffer(1000), L"contents");
}

TEST_F(CommonBuffersTest, ManySmallRequestsCostFewReallocations) {
    for (std::uint32_t size = 1; size <= 100000; ++size) {
        m_buffers.WideBuffer(size);
    }
    EXPECT_LE(s_reallocations, 18U);
}

TEST_F(CommonBuffersTest, NoMemoryForTheNarrowBufferAssertsAndChangesNothing) {
    char* const before = m_buffers.CharBuffer(8);
    s_hasMemory = false;
    EXPECT_EQ(m_buffers.CharBuffer(9), nullptr);
    EXPECT_EQ(m_recorded.Take(), (std::vector<VRecordedAssertion>{{L"mpCharBufferStart", L"TextConv", 67}}));
    EXPECT_EQ(m_buffers.CharBuffer(8), before);
    EXPECT_EQ(m_buffers.CharCapacity(), 8U);
}

TEST_F(CommonBuffersTest, NoMemoryForTheWideBufferAssertsAndChangesNothing) {
    wchar_t* const before = m_buffers.WideBuffer(8);
    s_hasMemory = false;
    EXPECT_EQ(m_buffers.WideBuffer(9), nullptr);
    EXPECT_EQ(m_recorded.Take(), (std::vector<VRecordedAssertion>{{L"mpWideBufferStart", L"TextConv", 83}}));
    EXPECT_EQ(m_buffers.WideBuffer(8), before);
    EXPECT_EQ(m_buffers.WideCapacity(), 8U);
}

class TextConvTest : public CommonBuffersTest {
protected:
    TextConvTest() : m_before(NPavonaUtil::gpBuffers) { NPavonaUtil::gpBuffers = &m_buffers; }
    ~TextConvTest() override { NPavonaUtil::gpBuffers = m_before; }

    /// Converts, and returns what was written.
    std::wstring Converted(std::string const& text, std::uint32_t capacity, std::uint32_t codePage = kWindows1252) {
        m_written =
            MultiByteToWide(codePage, text.data(), static_cast<std::uint32_t>(text.size()), &m_result, capacity);
        return m_result != nullptr ? std::wstring(m_result, m_written) : L"(null)";
    }

    wchar_t* m_result = nullptr;
    std::uint32_t m_written = 0;

private:
    NPavonaUtil::IBuffers* m_before;
};

TEST_F(TextConvTest, TheEuroSignOfCode80IsU20AC) {
    EXPECT_STREQ(AnsiToWide("\x80"), L"\x20AC");
    EXPECT_EQ(LastConversionError(), kConversionDone);
    EXPECT_EQ(Converted(std::string("\x80\0", 2), 2), std::wstring(L"\x20AC\0", 2));
    EXPECT_EQ(m_written, 2U);
}

TEST_F(TextConvTest, AnEmptyTextConvertsToAnEmptyText) {
    EXPECT_STREQ(AnsiToWide(""), L"");
    EXPECT_EQ(LastConversionError(), kConversionDone);
    EXPECT_EQ(Converted(std::string(1, '\0'), 1), std::wstring(1, L'\0'));
    EXPECT_EQ(m_written, 1U);
}

TEST_F(TextConvTest, TheTerminatorIsConvertedOnlyWhereTheLengthCountsIt) {
    EXPECT_EQ(Converted("ab", 9), L"ab");
    EXPECT_EQ(m_written, 2U);
}

/// The 32 codes that differ from their Unicode values, as in the code page; the five unassigned codes map to
/// themselves.
constexpr wchar_t kUpperControls[] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                      0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

TEST_F(TextConvTest, EveryCodeOfWindows1252) {
    for (unsigned code = 1; code < 256; ++code) {
        wchar_t const expected = code >= 0x80 && code < 0xA0 ? kUpperControls[code - 0x80] : static_cast<wchar_t>(code);
        char const text[] = {static_cast<char>(code), '\0'};
        EXPECT_EQ(std::wstring(AnsiToWide(text)), std::wstring(1, expected)) << std::hex << code;
    }
}

TEST_F(TextConvTest, TheFiveOpenCodesMapToThemselves) {
    EXPECT_STREQ(AnsiToWide("\x81\x8D\x8F\x90\x9D"), L"\x81\x8D\x8F\x90\x9D");
}

TEST_F(TextConvTest, TheResultLiesInTheSharedBufferUntilTheNextConversion) {
    wchar_t const* const first = AnsiToWide("first");
    EXPECT_EQ(AnsiToWide("two"), first);
    EXPECT_STREQ(first, L"two");
    EXPECT_EQ(m_buffers.WideCapacity(), 6U) << "the length with its terminator, and never shrunk";
}

TEST_F(TextConvTest, TheCapacityIsAskedOfTheBuffers) {
    EXPECT_EQ(Converted("ab", 40), L"ab");
    EXPECT_EQ(m_buffers.WideCapacity(), 40U);
}

TEST_F(TextConvTest, NoWideBuffer) {
    s_hasMemory = false;
    EXPECT_EQ(Converted("ab", 2), L"(null)");
    EXPECT_EQ(m_written, 0U);
    EXPECT_EQ(LastConversionError(), kNoWideBuffer);
    EXPECT_EQ(LastConversionError(), 0x20000001U);
    EXPECT_EQ(AnsiToWide("ab"), nullptr);
    EXPECT_EQ(m_recorded.Take().size(), 2U);
    s_hasMemory = true;
    EXPECT_STREQ(AnsiToWide("ab"), L"ab");
    EXPECT_EQ(LastConversionError(), 0U) << "each conversion sets it anew";
}

TEST_F(TextConvTest, AFailedConversionGivesNullAndSaysSo) {
    wchar_t mark = L'x';
    m_result = &mark;
    EXPECT_EQ(Converted("abc", 2), L"(null)") << "the capacity does not suffice";
    EXPECT_EQ(m_written, 0U);
    EXPECT_EQ(LastConversionError(), kConversionFailed);
    EXPECT_EQ(LastConversionError(), 0x2000000AU);
    EXPECT_EQ(Converted("", 2), L"(null)") << "there is nothing to convert";
    EXPECT_EQ(Converted("abc", 3, 99999), L"(null)") << "no such code page";
    EXPECT_EQ(LastConversionError(), kConversionFailed);
}

TEST_F(TextConvTest, MoreThanThePlatformCanCountDoesNotConvert) {
    wchar_t* result = nullptr;
    EXPECT_EQ(MultiByteToWide(kWindows1252, "", 0x80000000U, &result, 1), 0U);
    EXPECT_EQ(result, nullptr);
    EXPECT_EQ(LastConversionError(), kConversionFailed);
}

#if defined(__linux__) || defined(_WIN32)
TEST_F(TextConvTest, AnAnsiTextLongerThanThePlatformCanCountDoesNotConvert) {
    VLongText const text;
    EXPECT_EQ(AnsiToWide(text.Get()), nullptr);
    EXPECT_EQ(LastConversionError(), kConversionFailed);
    EXPECT_EQ(m_buffers.WideCapacity(), 0U) << "no memory is asked for";
}
#endif

TEST_F(TextConvTest, NoCapacityAsksForTheLength) {
    AnsiToWide("make a buffer");
    wchar_t* result = nullptr;
    EXPECT_EQ(MultiByteToWide(kWindows1252, "abc", 3, &result, 0), 3U);
    EXPECT_STREQ(result, L"make a buffer") << "nothing is written";
}

TEST_F(TextConvTest, ANullStringAsserts) {
    wchar_t* result = nullptr;
    EXPECT_EQ(MultiByteToWide(kWindows1252, nullptr, 2, &result, 2), 0U);
    EXPECT_EQ(result, nullptr);
    EXPECT_EQ(LastConversionError(), kConversionFailed);
    EXPECT_EQ(m_recorded.Take(), (std::vector<VRecordedAssertion>{{L"pString", L"TextConv", 190}}));
}

TEST_F(TextConvTest, ANullAnsiStringAsserts) {
    EXPECT_EQ(AnsiToWide(nullptr), nullptr);
    EXPECT_EQ(LastConversionError(), kConversionFailed);
    EXPECT_EQ(m_recorded.Take(), (std::vector<VRecordedAssertion>{{L"pANSIString", L"TextConv", 239}}));
}

TEST(CommonBuffersOfTheProcessTest, ConvertWithoutFurtherAdo) { EXPECT_STREQ(AnsiToWide("Gr\xFC\xDF"), L"Gr\xFC\xDF"); }

} // namespace
} // namespace NTest
