// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string_view>

#include <diagkit/memory/TextTable.h>
#include <diagkit/model/OdxElement.h>

namespace NMemory {

/// The elements of a database by ID. An ID may occur several times: in several documents, and in faulty data several
/// times in one. The keys are texts of the database's pools.
class VIdIndex {
public:
    /// The elements of one ID. An entry stays at its address until an ID is added.
    struct VEntry {
        NODX201::VReferencable* first = nullptr;                    ///< in load order; null when all have been removed
        std::unique_ptr<std::deque<NODX201::VReferencable*>> later; ///< in load order; null where there are none

        bool IsRepeated() const { return later != nullptr; }
        std::size_t Count() const { return 1 + (IsRepeated() ? later->size() : 0); }

        /// The first element in load order for which the test holds, or null.
        template <class Test>
        NODX201::VReferencable* FirstOf(Test test) const {
            if (test(*first)) {
                return first;
            }
            for (std::size_t index = 0; index + 1 < Count(); ++index) {
                if (test(*(*later)[index])) {
                    return (*later)[index];
                }
            }
            return nullptr;
        }

        /// Calls `take` with every element, in load order.
        template <class Take>
        void ForEach(Take take) const {
            FirstOf([&take](NODX201::VReferencable& element) {
                take(element);
                return false;
            });
        }
    };

    void Add(std::wstring_view id, NODX201::VReferencable& element) { Add(id, HashOf(id), element); } ///< as its last
    void Add(std::wstring_view id, std::uint32_t hash, NODX201::VReferencable& element); ///< with what `HashOf` gives
    void Remove(std::wstring_view id, NODX201::VReferencable const& element); ///< no effect when it is not in the index
    VEntry const* Find(std::wstring_view id) const;                           ///< null when no element has the ID
    void MakeRoom(std::size_t more) { m_entries.Reserve(m_entries.Count() + more); } ///< for that many more IDs

    /// Calls `take` with every entry of an ID that occurs more than once, in unspecified order.
    template <class Take>
    void ForEachRepeated(Take take) const {
        m_entries.ForEach([&take](VEntry const& entry) {
            if (entry.IsRepeated()) {
                take(entry);
            }
        });
    }

private:
    VTextTable<VEntry> m_entries;
};

} // namespace NMemory
