// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/TextPool.h>

#include <string>

#include <gtest/gtest.h>

namespace NTest {
namespace {

TEST(TextPoolTest, TheStoredCopyIsTheTextZeroTerminated) {
    NMemory::VTextPool pool;
    std::wstring text = L"Read";
    wchar_t const* const stored = pool.Store(text);
    text = L"????";
    EXPECT_STREQ(stored, L"Read");
    EXPECT_STREQ(pool.Store(std::wstring_view(L"ReadAll").substr(0, 4)), L"Read") << "a view need not end in zero";
}

TEST(TextPoolTest, EqualShortTextsShareOneCopy) {
    NMemory::VTextPool pool;
    std::wstring const text = L"Read";
    wchar_t const* const stored = pool.Store(text);
    EXPECT_EQ(pool.Store(std::wstring(L"Re") + L"ad"), stored);
    EXPECT_NE(pool.Store(L"read"), stored);
}

TEST(TextPoolTest, TheEmptyTextIsEmpty) {
    NMemory::VTextPool pool;
    EXPECT_STREQ(pool.Store(L""), L"");
    EXPECT_STREQ(pool.Store(std::wstring_view()), L"");
    EXPECT_EQ(pool.Store(L""), pool.Store(std::wstring_view()));
}

TEST(TextPoolTest, AddressesStayValidWhateverIsStoredLater) {
    NMemory::VTextPool pool;
    std::vector<std::pair<std::wstring, wchar_t const*>> stored;
    for (int number = 0; number < 5000; ++number) {
        std::wstring const text = L"text " + std::to_wstring(number);
        stored.emplace_back(text, pool.Store(text));
    }
    for (auto const& [text, address] : stored) {
        ASSERT_EQ(text, address);
        ASSERT_EQ(pool.Store(text), address);
    }
}

TEST(TextPoolTest, TextsOfAnyLengthAreStored) {
    NMemory::VTextPool pool;
    std::vector<std::pair<std::wstring, wchar_t const*>> stored;
    for (std::size_t const length : {1u, 95u, 96u, 97u, 4094u, 4095u, 4096u, 4097u, 16383u, 16384u, 16385u, 100000u}) {
        std::wstring const text(length, static_cast<wchar_t>(L'a' + length % 26));
        stored.emplace_back(text, pool.Store(text));
        stored.emplace_back(L"between", pool.Store(L"between"));
    }
    for (auto const& [text, address] : stored) {
        EXPECT_EQ(text, address) << text.size();
    }
}

TEST(TextPoolTest, ATextWithAZeroInsideIsStoredWhole) {
    NMemory::VTextPool pool;
    std::wstring const text(L"a\0b", 3);
    wchar_t const* const stored = pool.Store(text);
    EXPECT_EQ(std::wstring(stored, 4), std::wstring(L"a\0b\0", 4));
    EXPECT_NE(pool.Store(L"a"), stored);
}

} // namespace
} // namespace NTest
