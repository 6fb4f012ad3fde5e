// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/memory/DopLinks.h>
#include <diagkit/memory/TableLinks.h>
#include <diagkit/model/Tables.h>

/// Tables and their rows.

namespace NMemory {

/// TABLE-ROW
class VMemTableRow final : public VMemIdent<NODX201::VTableRow, Tag::TableRow> {
public:
    using VMemIdent::VMemIdent;

    wchar_t const* GetKey() const { return m_key; } ///< KEY
    void SetKey(wchar_t const* text) { m_key = Store(text); }

    bool HasStructureRef() const override { return m_structureRef != nullptr; } ///< STRUCTURE-REF
    VMemStructureLink& GetStructureRef() override { return *m_structureRef; }
    VMemStructureLink& SetStructureRef(VReference const& reference) {
        return MakeLink(m_structureRef, Inside(), reference);
    }
    void RemoveStructureRef() { m_structureRef.reset(); }

private:
    wchar_t const* m_key = L"";
    std::unique_ptr<VMemStructureLink> m_structureRef;
};

/// TABLE
class VMemTable final : public VWithAdminData<VMemIdent<NODX201::VTable, Tag::Table>> {
public:
    using VWithAdminData::VWithAdminData;

    wchar_t const* GetSemantic() const { return m_semantic; } ///< @SEMANTIC
    void SetSemantic(wchar_t const* text) { m_semantic = Store(text); }

    wchar_t const* GetKeyLabel() const { return m_keyLabel; } ///< KEY-LABEL
    void SetKeyLabel(wchar_t const* text) { m_keyLabel = Store(text); }

    wchar_t const* GetStructLabel() const { return m_structLabel; } ///< STRUCT-LABEL
    void SetStructLabel(wchar_t const* text) { m_structLabel = Store(text); }

    bool HasKeyDopRef() const override { return m_keyDopRef != nullptr; } ///< KEY-DOP-REF
    VMemDataObjectPropLink& GetKeyDopRef() override { return *m_keyDopRef; }
    VMemDataObjectPropLink& SetKeyDopRef(VReference const& reference) {
        return MakeLink(m_keyDopRef, Inside(), reference);
    }
    void RemoveKeyDopRef() { m_keyDopRef.reset(); }

    NODX201::VRowWrapperCollection& RowWrapperCollection() override {
        return m_rowWrapper.Get();
    } ///< TABLE-ROW and TABLE-ROW-REF
    VMemCollection<NODX201::VRowWrapperCollection>& MakeRowWrapperCollection() { return m_rowWrapper.Make(); }
    VMemTableRow& AddTableRow(wchar_t const* shortName) {
        return AddNamed<VMemTableRow>(m_rowWrapper, Inside(), shortName);
    }
    VMemTableRowLink& AddTableRowRef(VReference const& reference) {
        return AddLink<VMemTableRowLink>(m_rowWrapper, Inside(), reference);
    }

private:
    wchar_t const* m_semantic = L"";
    wchar_t const* m_keyLabel = L"";
    wchar_t const* m_structLabel = L"";
    std::unique_ptr<VMemDataObjectPropLink> m_keyDopRef;
    VMemMany<NODX201::VRowWrapperCollection> m_rowWrapper;
};

} // namespace NMemory
