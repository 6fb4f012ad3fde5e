// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/IdIndex.h>

#include <algorithm>

namespace NMemory {

void VIdIndex::Add(std::wstring_view id, NODX201::VReferencable& element) {
    VEntry& entry = m_entries[id];
    if (entry.first == nullptr) {
        entry.first = &element;
    } else {
        entry.others.push_back(&element);
    }
}

void VIdIndex::Remove(std::wstring_view id, NODX201::VReferencable const& element) {
    auto const found = m_entries.find(id);
    if (found == m_entries.end()) {
        return;
    }
    VEntry& entry = found->second;
    if (entry.first != &element) {
        entry.others.erase(std::remove(entry.others.begin(), entry.others.end(), &element), entry.others.end());
    } else if (entry.others.empty()) {
        m_entries.erase(found);
    } else {
        entry.first = entry.others.front();
        entry.others.erase(entry.others.begin());
    }
}

VIdIndex::VEntry const* VIdIndex::Find(std::wstring_view id) const {
    auto const found = m_entries.find(id);
    return found != m_entries.end() ? &found->second : nullptr;
}

} // namespace NMemory
