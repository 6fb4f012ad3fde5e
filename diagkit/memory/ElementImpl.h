// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cwchar>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Element.h>

/// The bodies of Element.h that need the database.

namespace NMemory {

template <class Contract, NODX201::VOdxTagEnum Tag>
void VMemNamed<Contract, Tag>::SetShortName(wchar_t const* shortName) {
    bool const isRenamed = *m_shortName != L'\0';
    m_shortName = this->Store(shortName);
    if (isRenamed) {
        this->NoteRedirection();
    } else {
        this->NoteChange();
    }
}

template <class Contract, NODX201::VOdxTagEnum Tag>
VMemIdent<Contract, Tag>::~VMemIdent() {
    this->Part().Unindex(m_id, *this);
}

template <class Contract, NODX201::VOdxTagEnum Tag>
void VMemIdent<Contract, Tag>::SetId(wchar_t const* id) {
    wchar_t const* const stored = this->Store(id);
    if (std::wcscmp(stored, m_id) == 0) {
        return;
    }
    // Add the new one first: when memory runs out, the old one still finds the element.
    this->Part().Index(stored, *this);
    this->Part().Unindex(m_id, *this);
    m_id = stored;
    if constexpr (std::is_base_of_v<NODX201::VDiagLayer, Contract>) {
        this->NoteRedirection(); // PARENT-REFs may find it now, or no longer
    }
}

template <class Contract, NODX201::VOdxTagEnum Tag>
wchar_t const* VMemIdent<Contract, Tag>::EnsureId() {
    if (*m_id == L'\0') {
        SetId(this->GetDatabase().MakeId().c_str());
    }
    return m_id;
}

} // namespace NMemory
