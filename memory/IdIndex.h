// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

#include <diagkit/model/OdxElement.h>

namespace NMemory {

/// The elements of a database by ID. An ID may occur several times: in several documents, and in faulty data in one.
/// The keys are texts of the database's pool.
class VIdIndex {
public:
    /// The elements of one ID in load order: the first, and the others where there are any.
    struct VEntry {
        NODX201::VReferencable* first = nullptr;
        std::vector<NODX201::VReferencable*> others;
    };

    void Add(std::wstring_view id, NODX201::VReferencable& element);
    void Remove(std::wstring_view id, NODX201::VReferencable const& element);
    VEntry const* Find(std::wstring_view id) const; ///< null when no element has the ID

    /// Calls `take` with every entry of an ID that occurs more than once, in no order.
    template <class Take>
    void ForEachRepeated(Take take) const {
        for (auto const& [id, entry] : m_entries) {
            if (!entry.others.empty()) {
                take(entry);
            }
        }
    }

private:
    std::unordered_map<std::wstring_view, VEntry> m_entries;
};

} // namespace NMemory
