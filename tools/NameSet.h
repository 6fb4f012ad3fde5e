// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <unordered_set>

namespace NDIAGKIT {

/// Short names, compared code unit by code unit. It views the elements' own texts.
using VNameSet = std::unordered_set<std::wstring_view>;

/// Merges parents' views into a view by short name: what is there already wins. The names held are looked up in a set
/// that lives for one construction alone; it is filled when the first parent comes.
class VNameMerge {
public:
    /// Moves every entry of `from` whose name is neither held nor excluded to the end of `into`, in the order of
    /// `from`. `from` belongs to a temporary view that is discarded afterwards, so its nodes move instead of being made
    /// again.
    template <class List, class IsExcluded>
    void Merge(List& into, List& from, IsExcluded isExcluded) {
        if (!m_isFilled) {
            // Only here: reserving for every parent could shrink the set and make it anew each time.
            m_held.reserve(into.size() + from.size());
            for (auto* const element : into) {
                m_held.insert(element->GetShortName());
            }
            m_isFilled = true;
        }
        for (auto position = from.begin(); position != from.end();) {
            auto const entry = position++;
            wchar_t const* const shortName = (*entry)->GetShortName();
            if (!isExcluded(shortName) && m_held.insert(shortName).second) {
                into.splice(into.end(), from, entry);
            }
        }
    }

    template <class List>
    void Merge(List& into, List& from) {
        Merge(into, from, [](wchar_t const*) { return false; });
    }

private:
    VNameSet m_held;
    bool m_isFilled = false;
};

} // namespace NDIAGKIT
