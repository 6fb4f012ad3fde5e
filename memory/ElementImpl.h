// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Element.h>

/// The bodies of Element.h that need the database.

namespace NMemory {

template <class Contract, NODX201::VOdxTagEnum Tag>
void VMemNamed<Contract, Tag>::SetShortName(wchar_t const* shortName) {
    m_shortName = this->Store(shortName);
    this->GetDatabase().NoteChange();
}

template <class Contract, NODX201::VOdxTagEnum Tag>
VMemIdent<Contract, Tag>::~VMemIdent() {
    this->GetDatabase().Unindex(m_id, *this);
}

template <class Contract, NODX201::VOdxTagEnum Tag>
void VMemIdent<Contract, Tag>::SetId(wchar_t const* id) {
    VDatabase& database = this->GetDatabase();
    database.Unindex(m_id, *this);
    m_id = this->Store(id);
    database.Index(m_id, *this);
}

template <class Contract, NODX201::VOdxTagEnum Tag>
wchar_t const* VMemIdent<Contract, Tag>::EnsureId() {
    if (*m_id == L'\0') {
        SetId(this->GetDatabase().MakeId().c_str());
    }
    return m_id;
}

} // namespace NMemory
