// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include <diagkit/memory/TextTable.h>

namespace NMemory {

/// Stores texts: each once, zero-terminated, at an address that stays valid until the pool is destroyed. Nothing is
/// freed earlier.
class VTextPool {
public:
    /// The stored copy of `text`. Short texts (names, IDs, literals) that are equal share one copy; the empty text is
    /// always "".
    wchar_t const* Store(std::wstring_view text);

    /// Texts stored so far are not shared with later ones, which saves the memory for the table of texts.
    void ForgetShared() { m_shared.Clear(); }

private:
    struct VNothing {};

    wchar_t const* Copy(std::wstring_view text);

    VTextTable<VNothing> m_shared;
    std::vector<std::unique_ptr<wchar_t[]>> m_blocks;
    wchar_t* m_next = nullptr;
    std::size_t m_left = 0;
};

} // namespace NMemory
