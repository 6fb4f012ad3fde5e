// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Node.h>

#include <stdexcept>

#include <diagkit/memory/Database.h>

namespace NMemory {

VMemNode::VMemNode(VPlace const& place, NODX201::VOdxTagEnum tag) : m_owner(place.owner), m_part(place.part) {
    m_part->CountIn(tag);
}

VMemNode::~VMemNode() {
    if (m_home != nullptr) {
        m_home->Forget(m_place);
    }
}

wchar_t const* VMemNode::Store(wchar_t const* text) const { return m_part->Store(text); }

void VMemNode::ChangeTag(NODX201::VOdxTagEnum from, NODX201::VOdxTagEnum to) { m_part->ChangeTag(from, to); }

void VMemNode::RequireMoveTo(VMemNode const& to, NODX201::VOdxObject const& owner,
                             NODX201::VOdxObject const& self) const {
    if (m_home == nullptr) {
        throw std::invalid_argument("an element that is the only one of its kind where it stands does not move");
    }
    if (&to.GetDatabase() != &GetDatabase()) {
        throw std::invalid_argument("an element moves within its database");
    }
    if (m_part->IsDetached() != to.m_part->IsDetached() || (m_part->IsDetached() && m_part != to.m_part)) {
        throw std::invalid_argument("an element of a part that is detached moves within that part");
    }
    for (NODX201::VOdxObject const* around = &owner; around != nullptr; around = around->GetOwner()) {
        if (around == &self) {
            throw std::invalid_argument("an element does not move into itself");
        }
    }
}

void VMemNode::NoteChange() { m_part->NoteChange(); }

void VMemNode::NoteRedirection() { m_part->NoteRedirection(); }

void VMemNode::CountOut(NODX201::VOdxTagEnum tag) { m_part->CountOut(tag); }

} // namespace NMemory
