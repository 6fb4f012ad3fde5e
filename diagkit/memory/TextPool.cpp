// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/TextPool.h>

#include <algorithm>

namespace NMemory {
namespace {

constexpr std::size_t kLongestShared = 96; // longer texts rarely repeat
constexpr std::size_t kBlockSize = 16 * 1024;

} // namespace

wchar_t const* VTextPool::Store(std::wstring_view text) {
    if (text.empty()) {
        return L"";
    }
    if (text.size() > kLongestShared) {
        return Copy(text);
    }
    return m_shared.Add(text, HashOf(text), [this](std::wstring_view added) { return Copy(added); }).text;
}

wchar_t const* VTextPool::Copy(std::wstring_view text) {
    std::size_t const needed = text.size() + 1;
    wchar_t* target = nullptr;
    if (needed > kBlockSize / 4) {
        m_blocks.push_back(std::unique_ptr<wchar_t[]>(new wchar_t[needed]));
        target = m_blocks.back().get();
    } else {
        if (needed > m_left) {
            m_blocks.push_back(std::unique_ptr<wchar_t[]>(new wchar_t[kBlockSize]));
            m_next = m_blocks.back().get();
            m_left = kBlockSize;
        }
        target = m_next;
        m_next += needed;
        m_left -= needed;
    }
    *std::copy(text.begin(), text.end(), target) = L'\0';
    return target;
}

} // namespace NMemory
