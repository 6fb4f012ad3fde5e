// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Params.h>

namespace NMemory {

VMemTableLink& VMemTableKey::SetTableRef(VReference const& reference) {
    return SetChoice<VMemTableLink>(m_link, m_choice, Inside(), reference);
}

VMemTableRowLink& VMemTableKey::SetTableRowRef(VReference const& reference) {
    return SetChoice<VMemTableRowLink>(m_link, m_choice, Inside(), reference);
}

void VMemTableKey::RemoveTableRefTableRowRefChoice() {
    m_choice = nullptr;
    m_link.reset();
}

} // namespace NMemory
