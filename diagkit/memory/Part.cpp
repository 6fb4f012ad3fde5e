// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Part.h>

#include <algorithm>

#include <diagkit/memory/Database.h>

namespace NMemory {
namespace {

std::size_t& CountOf(std::vector<std::size_t>& counts, NODX201::VOdxTagEnum tag) {
    auto const index = static_cast<std::size_t>(tag);
    if (index >= counts.size()) {
        counts.resize(index + 1);
    }
    return counts[index];
}

} // namespace

void VPart::Index(wchar_t const* id, NODX201::VReferencable& element) {
    if (!m_isDetached) {
        m_database.Index(id, element);
    } else if (*id != L'\0') {
        m_ids.push_back({id, &element, HashOf(id)});
    }
}

void VPart::Unindex(wchar_t const* id, NODX201::VReferencable const& element) {
    if (!m_isDetached) {
        m_database.Unindex(id, element);
    } else if (*id != L'\0' && !m_isClosing) {
        // Elements that are removed while reading were added recently.
        auto const found = std::find_if(m_ids.rbegin(), m_ids.rend(), [&element, id](VId const& held) {
            return held.element == &element && held.id.data() == id;
        });
        if (found != m_ids.rend()) {
            m_ids.erase(std::next(found).base());
        }
    }
}

void VPart::NoteChange() {
    if (!m_isDetached) {
        m_database.NoteChange();
    }
}

void VPart::NoteRedirection() {
    if (!m_isDetached) {
        m_database.NoteRedirection();
    }
}

void VPart::CountIn(NODX201::VOdxTagEnum tag) {
    ++CountOf(m_isDetached ? m_counts : m_database.m_counts, tag);
    NoteChange();
}

void VPart::CountOut(NODX201::VOdxTagEnum tag) {
    --CountOf(m_isDetached ? m_counts : m_database.m_counts, tag);
    NoteRedirection();
}

void VPart::ChangeTag(NODX201::VOdxTagEnum from, NODX201::VOdxTagEnum to) {
    CountIn(to);
    --CountOf(m_isDetached ? m_counts : m_database.m_counts, from);
}

} // namespace NMemory
