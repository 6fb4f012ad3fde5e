// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/AdminData.h>
#include <diagkit/memory/DiagCommLinks.h>
#include <diagkit/model/DiagVariables.h>

/// Diagnostic variables.

namespace NMemory {

/// VARIABLE-GROUP-REF
class VMemVariableGroupLink final
    : public VMemLink<NODX201::VVariableGroupLink, Tag::VariableGroupRef, NODX201::VVariableGroup> {
public:
    using VMemLink::VMemLink;
    bool HasVariableGroup() const override { return FindById(); }
    NODX201::VVariableGroup& GetVariableGroup() override { return Found(); }
};

/// VARIABLE-GROUP
class VMemVariableGroup final : public VMemIdent<NODX201::VVariableGroup, Tag::VariableGroup> {
public:
    using VMemIdent::VMemIdent;
};

/// SW-VARIABLE
class VMemSwVariable final : public VMemNamed<NODX201::VSwVariable, Tag::SwVariable> {
public:
    using VMemNamed::VMemNamed;

    wchar_t const* GetOid() const { return m_oid; } ///< @OID
    void SetOid(wchar_t const* text) { m_oid = Store(text); }

    wchar_t const* GetOrigin() const { return m_origin; } ///< ORIGIN
    void SetOrigin(wchar_t const* text) { m_origin = Store(text); }

private:
    wchar_t const* m_oid = L"";
    wchar_t const* m_origin = L"";
};

/// COMM-RELATION
class VMemCommRelation final : public VMemElement<NODX201::VCommRelation, Tag::CommRelation> {
public:
    using VMemElement::VMemElement;

    wchar_t const* GetValueType() const { return m_valueType; } ///< @VALUE-TYPE, "" when unset
    void SetValueType(wchar_t const* text) { m_valueType = Store(text); }

    wchar_t const* GetDesc() const { return m_desc; } ///< DESC
    void SetDesc(wchar_t const* text) { m_desc = Store(text); }

    wchar_t const* GetRelationType() const { return m_relationType; } ///< RELATION-TYPE
    void SetRelationType(wchar_t const* text) { m_relationType = Store(text); }

    bool HasDiagCommLink() const override { return m_diagCommLink != nullptr; } ///< DIAG-COMM-REF or DIAG-COMM-SNREF
    VMemDiagCommLink& GetDiagCommLink() override { return *m_diagCommLink; }
    VMemDiagCommLink& SetDiagCommLink(VReference const& reference) {
        return MakeLink(m_diagCommLink, Inside(), reference);
    }
    void RemoveDiagCommLink() { m_diagCommLink.reset(); }

    bool HasInParamIfSnref() const { return m_inParamIfSnref != nullptr; } ///< IN-PARAM-IF-SNREF
    VMemInParamIfLink& GetInParamIfSnref() { return *m_inParamIfSnref; }
    VMemInParamIfLink& SetInParamIfSnref(VReference const& reference) {
        return MakeLink(m_inParamIfSnref, Inside(), reference);
    }
    void RemoveInParamIfSnref() { m_inParamIfSnref.reset(); }

    bool HasOutParamIfSnref() const { return m_outParamIfSnref != nullptr; } ///< OUT-PARAM-IF-SNREF
    VMemOutParamIfLink& GetOutParamIfSnref() { return *m_outParamIfSnref; }
    VMemOutParamIfLink& SetOutParamIfSnref(VReference const& reference) {
        return MakeLink(m_outParamIfSnref, Inside(), reference);
    }
    void RemoveOutParamIfSnref() { m_outParamIfSnref.reset(); }

private:
    wchar_t const* m_valueType = L"";
    wchar_t const* m_desc = L"";
    wchar_t const* m_relationType = L"";
    std::unique_ptr<VMemDiagCommLink> m_diagCommLink;
    std::unique_ptr<VMemInParamIfLink> m_inParamIfSnref;
    std::unique_ptr<VMemOutParamIfLink> m_outParamIfSnref;
};

/// DIAG-VARIABLE
class VMemDiagVariable final : public VWithAdminData<VMemIdent<NODX201::VDiagVariable, Tag::DiagVariable>> {
public:
    using VWithAdminData::VWithAdminData;

    bool IsReadBeforeWrite() const { return m_isReadBeforeWrite; } ///< @IS-READ-BEFORE-WRITE
    void SetIsReadBeforeWrite(bool value) { m_isReadBeforeWrite = value; }

    bool HasVariableGroupRef() const override { return m_variableGroupRef != nullptr; } ///< VARIABLE-GROUP-REF
    VMemVariableGroupLink& GetVariableGroupRef() override { return *m_variableGroupRef; }
    VMemVariableGroupLink& SetVariableGroupRef(VReference const& reference) {
        return MakeLink(m_variableGroupRef, Inside(), reference);
    }
    void RemoveVariableGroupRef() { m_variableGroupRef.reset(); }

    NODX201::VSwVariableCollection& SwVariableCollection() override { return m_swVariable.Get(); } ///< SW-VARIABLES
    VMemCollection<NODX201::VSwVariableCollection>& MakeSwVariableCollection() { return m_swVariable.Make(); }
    VMemSwVariable& AddSwVariable(wchar_t const* shortName) {
        return AddNamed<VMemSwVariable>(m_swVariable, Inside(), shortName);
    }

    NODX201::VCommRelationCollection& CommRelationCollection() override {
        return m_commRelation.Get();
    } ///< COMM-RELATIONS
    VMemCollection<NODX201::VCommRelationCollection>& MakeCommRelationCollection() { return m_commRelation.Make(); }
    VMemCommRelation& AddCommRelation() { return AddPlain<VMemCommRelation>(m_commRelation, Inside()); }

private:
    bool m_isReadBeforeWrite = false;
    std::unique_ptr<VMemVariableGroupLink> m_variableGroupRef;
    VMemMany<NODX201::VSwVariableCollection> m_swVariable;
    VMemMany<NODX201::VCommRelationCollection> m_commRelation;
};

} // namespace NMemory
