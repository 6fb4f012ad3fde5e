// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Node.h>

#include <diagkit/memory/Database.h>

namespace NMemory {

VMemNode::VMemNode(VPlace const& place, NODX201::VOdxTagEnum tag) : m_owner(place.owner), m_part(place.part) {
    m_part->CountIn(tag);
}

VMemNode::~VMemNode() {
    if (m_home != nullptr) {
        m_home->Forget(m_entry);
    }
}

wchar_t const* VMemNode::Store(wchar_t const* text) const { return m_part->Store(text); }

void VMemNode::ChangeTag(NODX201::VOdxTagEnum from, NODX201::VOdxTagEnum to) { m_part->ChangeTag(from, to); }

void VMemNode::NoteMove() { GetDatabase().NoteRemoval(); }

void VMemNode::CountOut(NODX201::VOdxTagEnum tag) { m_part->CountOut(tag); }

} // namespace NMemory
