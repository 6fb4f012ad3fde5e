// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/IdIndex.h>

#include <algorithm>

namespace NMemory {

void VIdIndex::Add(std::wstring_view id, std::uint32_t hash, NODX201::VReferencable& element) {
    VEntry& entry = m_entries.Add(id, hash, [](std::wstring_view added) { return added.data(); });
    if (entry.first == nullptr) {
        entry.first = &element;
        return;
    }
    auto later = entry.IsRepeated() ? nullptr : std::make_unique<std::deque<NODX201::VReferencable*>>();
    (entry.IsRepeated() ? *entry.later : *later).push_back(&element);
    if (later != nullptr) {
        entry.later = std::move(later);
    }
}

namespace {

/// Elements are mostly removed in the order in which they were added, or in the reverse order.
void Erase(std::deque<NODX201::VReferencable*>& elements, NODX201::VReferencable const& element) {
    if (elements.back() == &element) {
        elements.pop_back();
        return;
    }
    auto const found = std::find(elements.begin(), elements.end(), &element);
    if (found != elements.end()) {
        elements.erase(found);
    }
}

} // namespace

void VIdIndex::Remove(std::wstring_view id, NODX201::VReferencable const& element) {
    VEntry* const entry = m_entries.Find(id);
    if (entry == nullptr) {
        return;
    }
    if (!entry->IsRepeated()) {
        entry->first = entry->first == &element ? nullptr : entry->first;
        return;
    }
    if (entry->first == &element) {
        entry->first = entry->later->front();
        entry->later->pop_front();
    } else {
        Erase(*entry->later, element);
    }
    if (entry->later->empty()) {
        entry->later.reset();
    }
}

VIdIndex::VEntry const* VIdIndex::Find(std::wstring_view id) const {
    VEntry const* const entry = m_entries.Find(id);
    return entry != nullptr && entry->first != nullptr ? entry : nullptr;
}

} // namespace NMemory
