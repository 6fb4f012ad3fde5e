// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/memory/Dops.h>
#include <diagkit/model/Comparams.h>

/// Communication parameters.

namespace NMemory {

/// COMPARAM-SPEC-REF
class VMemComparamSpecLink final
    : public VMemLink<NODX201::VComparamSpecLink, Tag::ComparamSpecRef, NODX201::VComparamSpec> {
public:
    using VMemLink::VMemLink;
    bool HasComparamSpec() const override { return FindById(); }
    NODX201::VComparamSpec& GetComparamSpec() override { return Found(); }
};

/// COMPARAM-REF
class VMemComparamRef final : public VMemLink<NODX201::VComparamRef, Tag::ComparamRef, NODX201::VComparam> {
public:
    using VMemLink::VMemLink;
    bool HasComparam() const { return FindById(); }
    NODX201::VComparam& GetComparam() { return Found(); }

    wchar_t const* GetValue() const { return m_value; } ///< VALUE
    void SetValue(wchar_t const* text) { m_value = Store(text); }

    wchar_t const* GetDesc() const { return m_desc; } ///< DESC
    void SetDesc(wchar_t const* markup) { m_desc = Store(markup); }

    bool HasProtocolSnref() const { return m_protocolSnref != nullptr; }
    VMemProtocolSnref& GetProtocolSnref() { return *m_protocolSnref; }
    VMemProtocolSnref& SetProtocolSnref(VReference const& reference) {
        return MakeLink(m_protocolSnref, Inside(), reference);
    }
    void RemoveProtocolSnref() { m_protocolSnref.reset(); }

private:
    wchar_t const* m_value = L"";
    wchar_t const* m_desc = L"";
    std::unique_ptr<VMemProtocolSnref> m_protocolSnref;
};

/// Adds COMPARAM-REFS to a layer or DIAG-COMM.
template <class Base>
class VWithComparamRefs : public Base {
public:
    using Base::Base;

    NODX201::VComparamRefCollection& ComparamRefCollection() { return m_comparamRef.Get(); } ///< COMPARAM-REFS
    VMemCollection<NODX201::VComparamRefCollection>& MakeComparamRefCollection() { return m_comparamRef.Make(); }
    VMemComparamRef& AddComparamRef(VReference const& reference) {
        return AddLink<VMemComparamRef>(m_comparamRef, this->Inside(), reference);
    }

private:
    VMemMany<NODX201::VComparamRefCollection> m_comparamRef;
};

/// COMPARAM
class VMemComparam final : public VMemIdent<NODX201::VComparam, Tag::Comparam> {
public:
    using VMemIdent::VMemIdent;

    wchar_t const* GetParamClass() const { return m_paramClass; } ///< @PARAM-CLASS
    void SetParamClass(wchar_t const* text) { m_paramClass = Store(text); }

    wchar_t const* GetCptype() const { return m_cptype; } ///< @CPTYPE
    void SetCptype(wchar_t const* text) { m_cptype = Store(text); }

    wchar_t const* GetDisplayLevel() const { return m_displayLevel; } ///< @DISPLAY-LEVEL
    void SetDisplayLevel(wchar_t const* text) { m_displayLevel = Store(text); }

    wchar_t const* GetPduApiIndex() const { return m_pduApiIndex; } ///< @PDU-API-INDEX
    void SetPduApiIndex(wchar_t const* text) { m_pduApiIndex = Store(text); }

    wchar_t const* GetPhysicalDefaultValue() const { return m_physicalDefaultValue; } ///< PHYSICAL-DEFAULT-VALUE
    void SetPhysicalDefaultValue(wchar_t const* text) { m_physicalDefaultValue = Store(text); }

    bool HasDataObjectPropRef() const { return m_dataObjectPropRef != nullptr; } ///< DATA-OBJECT-PROP-REF
    VMemDataObjectPropLink& GetDataObjectPropRef() { return *m_dataObjectPropRef; }
    VMemDataObjectPropLink& SetDataObjectPropRef(VReference const& reference) {
        return MakeLink(m_dataObjectPropRef, Inside(), reference);
    }
    void RemoveDataObjectPropRef() { m_dataObjectPropRef.reset(); }

private:
    wchar_t const* m_paramClass = L"";
    wchar_t const* m_cptype = L"";
    wchar_t const* m_displayLevel = L"";
    wchar_t const* m_pduApiIndex = L"";
    wchar_t const* m_physicalDefaultValue = L"";
    std::unique_ptr<VMemDataObjectPropLink> m_dataObjectPropRef;
};

class VDataObjectPropCollection : public NODX201::VElementCollection<VMemDataObjectProp> {};

/// COMPARAM-SPEC, and the COMPARAM-SUBSET of later versions
class VMemComparamSpec final
    : public VWithCompanyDatas<VWithAdminData<VMemIdent<NODX201::VComparamSpec, Tag::ComparamSpec>>> {
public:
    using VWithCompanyDatas::VWithCompanyDatas;

    NODX201::VComparamCollection& ComparamCollection() override { return m_comparam.Get(); } ///< COMPARAMS
    VMemCollection<NODX201::VComparamCollection>& MakeComparamCollection() { return m_comparam.Make(); }
    VMemComparam& AddComparam(wchar_t const* shortName) {
        return AddNamed<VMemComparam>(m_comparam, Inside(), shortName);
    }

    VDataObjectPropCollection& DataObjectPropCollection() {
        return m_dataObjectProp.Get();
    } ///< DATA-OBJECT-PROPS, which belong to no dictionary
    VMemCollection<VDataObjectPropCollection>& MakeDataObjectPropCollection() { return m_dataObjectProp.Make(); }
    VMemDataObjectProp& AddDataObjectProp(wchar_t const* shortName) {
        return AddNamed<VMemDataObjectProp>(m_dataObjectProp, Inside(), shortName);
    }

    bool HasUnitSpec() const { return m_unitSpec != nullptr; } ///< UNIT-SPEC
    VMemUnitSpec& GetUnitSpec() { return *m_unitSpec; }
    VMemUnitSpec& MakeUnitSpec() { return MakeChild(m_unitSpec, Inside()); }
    void RemoveUnitSpec() { m_unitSpec.reset(); }

private:
    VMemMany<NODX201::VComparamCollection> m_comparam;
    VMemMany<VDataObjectPropCollection> m_dataObjectProp;
    std::unique_ptr<VMemUnitSpec> m_unitSpec;
};

} // namespace NMemory
