// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/IdIndex.h>

#include <algorithm>

namespace NMemory {

void VIdIndex::Add(std::wstring_view id, std::uint32_t hash, NODX201::VReferencable& element) {
    VEntry& entry = m_entries.Add(id, hash, [](std::wstring_view added) { return added.data(); });
    if (entry.first == nullptr) {
        entry.first = &element;
    } else {
        entry.others.push_back(&element);
    }
}

void VIdIndex::Remove(std::wstring_view id, NODX201::VReferencable const& element) {
    VEntry* const entry = m_entries.Find(id);
    if (entry == nullptr) {
        return;
    }
    if (entry->first != &element) {
        entry->others.erase(std::remove(entry->others.begin(), entry->others.end(), &element), entry->others.end());
    } else if (entry->others.empty()) {
        entry->first = nullptr;
    } else {
        entry->first = entry->others.front();
        entry->others.erase(entry->others.begin());
    }
}

VIdIndex::VEntry const* VIdIndex::Find(std::wstring_view id) const {
    VEntry const* const entry = m_entries.Find(id);
    return entry != nullptr && entry->first != nullptr ? entry : nullptr;
}

} // namespace NMemory
