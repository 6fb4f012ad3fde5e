// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstring>
#include <list>
#include <type_traits>

namespace NMemory {

/// The position of an element in a list of pointers, whatever their type: like a list's iterator, for elements that are
/// in lists of several types, and not larger than one. It is valid as long as the element stays in the list.
class VListPosition {
public:
    VListPosition() = default;

    template <class Iterator>
    explicit VListPosition(Iterator position) {
        if constexpr (IsPlain<Iterator>()) {
            std::memcpy(&m_position, static_cast<void const*>(&position), sizeof(position));
        } else {
            m_position = *position;
        }
    }

    /// The position in the list for which it was made.
    template <class Entry>
    typename std::list<Entry*>::iterator In(std::list<Entry*>& list) const {
        using Iterator = typename std::list<Entry*>::iterator;
        if constexpr (IsPlain<Iterator>()) {
            Iterator position;
            std::memcpy(static_cast<void*>(&position), &m_position, sizeof(position));
            return position;
        } else {
            return std::find_if(list.begin(), list.end(), [this](Entry* held) { return held == m_position; });
        }
    }

private:
    /// Used unless a library checks its iterators: there the entry is stored, and searched for.
    template <class Iterator>
    static constexpr bool IsPlain() {
        return sizeof(Iterator) == sizeof(void*) && std::is_trivially_copyable_v<Iterator>;
    }

    void* m_position = nullptr;
};

} // namespace NMemory
