// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include <diagkit/memory/TextTable.h>
#include <diagkit/model/OdxElement.h>

namespace NMemory {

/// The elements of a database by ID. An ID may occur several times: in several documents, and in faulty data in one.
/// The keys are texts of the database's pools.
class VIdIndex {
public:
    /// The elements of one ID in load order: the first, and the others where there are any. An entry stays where it is
    /// until an ID is added.
    struct VEntry {
        NODX201::VReferencable* first = nullptr;     ///< null when all have been removed
        std::vector<NODX201::VReferencable*> others; ///< in load order
    };

    void Add(std::wstring_view id, NODX201::VReferencable& element) { Add(id, HashOf(id), element); } ///< as its last
    void Add(std::wstring_view id, std::uint32_t hash, NODX201::VReferencable& element); ///< with what `HashOf` gives
    void Remove(std::wstring_view id, NODX201::VReferencable const& element); ///< no effect when it is not held
    VEntry const* Find(std::wstring_view id) const;                           ///< null when no element has the ID
    void MakeRoom(std::size_t more) { m_entries.Reserve(m_entries.Count() + more); } ///< for so many more IDs

    /// Calls `take` with every entry of an ID that occurs more than once, in no order.
    template <class Take>
    void ForEachRepeated(Take take) const {
        m_entries.ForEach([&take](VEntry const& entry) {
            if (!entry.others.empty()) {
                take(entry);
            }
        });
    }

private:
    VTextTable<VEntry> m_entries;
};

} // namespace NMemory
