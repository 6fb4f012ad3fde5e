// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Node.h>

#include <diagkit/memory/Database.h>

namespace NMemory {

VMemNode::VMemNode(VPlace const& place, NODX201::VOdxTagEnum tag) : m_owner(place.owner), m_database(place.database) {
    m_database->CountIn(tag);
}

VMemNode::~VMemNode() {
    if (m_home != nullptr) {
        m_home->Forget(m_entry);
    }
}

wchar_t const* VMemNode::Store(wchar_t const* text) const { return m_database->Store(text); }

void VMemNode::ChangeTag(NODX201::VOdxTagEnum from, NODX201::VOdxTagEnum to) { m_database->ChangeTag(from, to); }

void VMemNode::NoteMove() { m_database->NoteRemoval(); }

void VMemNode::CountOut(NODX201::VOdxTagEnum tag) { m_database->CountOut(tag); }

} // namespace NMemory
