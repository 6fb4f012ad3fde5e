// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace NMemory {

std::uint32_t HashOf(std::wstring_view text); ///< the same on every call in a process

/// A hash table keyed by texts with stable addresses, such as those of a pool: all entries are in one array, so that a
/// look-up costs one cache miss. Entries move when another one is added; none is removed.
template <class Value>
class VTextTable {
public:
    /// A text and what belongs to it.
    struct VEntry : Value {
        wchar_t const* text = nullptr; ///< not zero-terminated; null in a place that is free
        std::uint32_t size = 0;        ///< of the text, in characters
        std::uint32_t hash = 0;        ///< what `HashOf` gives for the text
    };

    /// Null when there is none.
    VEntry const* Find(std::wstring_view text) const {
        return m_entries.empty() ? nullptr : Occupied(m_entries[Place(text, HashOf(text))]);
    }
    /// Null when there is none.
    VEntry* Find(std::wstring_view text) {
        return m_entries.empty() ? nullptr : Occupied(m_entries[Place(text, HashOf(text))]);
    }

    /// The entry of the text; a new one refers to the result of `store`, which may throw.
    template <class Store>
    VEntry& Add(std::wstring_view text, std::uint32_t hash, Store store) {
        Reserve(m_count + 1);
        VEntry& entry = m_entries[Place(text, hash)];
        if (entry.text != nullptr) {
            return entry;
        }
        entry.text = store(text);
        entry.size = static_cast<std::uint32_t>(text.size());
        entry.hash = hash;
        ++m_count;
        return entry;
    }

    /// Makes room for that many entries in all.
    void Reserve(std::size_t count) {
        std::size_t places = m_entries.empty() ? kFewest : m_entries.size();
        while (places - places / 4 < count) {
            places *= 2;
        }
        if (places == m_entries.size()) {
            return;
        }
        std::vector<VEntry> before(places);
        before.swap(m_entries);
        for (VEntry& entry : before) {
            if (entry.text != nullptr) {
                m_entries[FreePlace(entry.hash)] = std::move(entry);
            }
        }
    }

    std::size_t Count() const { return m_count; } ///< of entries
    /// Removes all entries and frees their memory.
    void Clear() {
        m_entries = {};
        m_count = 0;
    }

    /// Calls `take` with every entry, in unspecified order.
    template <class Take>
    void ForEach(Take take) const {
        for (VEntry const& entry : m_entries) {
            if (entry.text != nullptr) {
                take(entry);
            }
        }
    }

private:
    static constexpr std::size_t kFewest = 16; // a power of two, like every capacity

    static VEntry* Occupied(VEntry& entry) { return entry.text != nullptr ? &entry : nullptr; }
    static VEntry const* Occupied(VEntry const& entry) { return entry.text != nullptr ? &entry : nullptr; }

    static bool IsOf(VEntry const& entry, std::wstring_view text, std::uint32_t hash) {
        return entry.hash == hash && entry.size == text.size() &&
               (entry.text == text.data() || std::wstring_view(entry.text, entry.size) == text);
    }

    /// The place of the text, or the free place where it belongs.
    std::size_t Place(std::wstring_view text, std::uint32_t hash) const {
        std::size_t const mask = m_entries.size() - 1;
        std::size_t place = hash & mask;
        while (m_entries[place].text != nullptr && !IsOf(m_entries[place], text, hash)) {
            place = (place + 1) & mask;
        }
        return place;
    }

    std::size_t FreePlace(std::uint32_t hash) const {
        std::size_t const mask = m_entries.size() - 1;
        std::size_t place = hash & mask;
        while (m_entries[place].text != nullptr) {
            place = (place + 1) & mask;
        }
        return place;
    }

    std::vector<VEntry> m_entries;
    std::size_t m_count = 0;
};

} // namespace NMemory
