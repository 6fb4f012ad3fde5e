// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <diagkit/memory/DiagCommLinks.h>
#include <diagkit/memory/Params.h>
#include <diagkit/memory/Tables.h>
#include <diagkit/memory/Units.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Visitors.h>

/// The data dictionary and the ten kinds of DOP.

namespace NMemory {

/// DATA-OBJECT-PROP
class VMemDataObjectProp final
    : public VWithDiagCodedType<VWithAdminData<VMemIdent<NODX201::VDataObjectProp, Tag::DataObjectProp>>> {
public:
    using VWithDiagCodedType::VWithDiagCodedType;

    void Accept(NODX201::VDopBaseVisitor& visitor) override { visitor.VisitDataObjectProp(*this); }

    bool HasCompuMethod() const override { return m_compuMethod != nullptr; }
    VMemCompuMethod& GetCompuMethod() override { return *m_compuMethod; }
    VMemCompuMethod& MakeCompuMethod() { return MakeChild(m_compuMethod, Inside()); }
    void RemoveCompuMethod() { m_compuMethod.reset(); }

    bool HasPhysicalType() const override { return m_physicalType != nullptr; }
    VMemPhysicalType& GetPhysicalType() override { return *m_physicalType; }
    VMemPhysicalType& MakePhysicalType() { return MakeChild(m_physicalType, Inside()); }
    void RemovePhysicalType() { m_physicalType.reset(); }

    bool HasInternalConstr() const override { return m_internalConstr != nullptr; }
    VMemInternalConstr& GetInternalConstr() override { return *m_internalConstr; }
    VMemInternalConstr& MakeInternalConstr() { return MakeChild(m_internalConstr, Inside()); }
    void RemoveInternalConstr() { m_internalConstr.reset(); }

    bool HasUnitRef() const override { return m_unitRef != nullptr; } ///< UNIT-REF
    VMemUnitLink& GetUnitRef() override { return *m_unitRef; }
    VMemUnitLink& SetUnitRef(VReference const& reference) { return MakeLink(m_unitRef, Inside(), reference); }
    void RemoveUnitRef() { m_unitRef.reset(); }

private:
    std::unique_ptr<VMemCompuMethod> m_compuMethod;
    std::unique_ptr<VMemPhysicalType> m_physicalType;
    std::unique_ptr<VMemInternalConstr> m_internalConstr;
    std::unique_ptr<VMemUnitLink> m_unitRef;
};

/// DTC
class VMemDtc final : public VWithSdgs<VMemIdent<NODX201::VDtc, Tag::Dtc>> {
public:
    using VWithSdgs::VWithSdgs;

    wchar_t const* GetTroubleCode() const { return m_troubleCode; } ///< TROUBLE-CODE
    void SetTroubleCode(wchar_t const* text) { m_troubleCode = Store(text); }

    wchar_t const* GetDisplayTroubleCode() const { return m_displayTroubleCode; } ///< DISPLAY-TROUBLE-CODE
    void SetDisplayTroubleCode(wchar_t const* text) { m_displayTroubleCode = Store(text); }

    wchar_t const* GetText() const { return m_text; } ///< TEXT
    void SetText(wchar_t const* text) { m_text = Store(text); }

    wchar_t const* GetTextId() const { return m_textId; } ///< TEXT/@TI
    void SetTextId(wchar_t const* text) { m_textId = Store(text); }

    wchar_t const* GetLevel() const { return m_level; } ///< LEVEL
    void SetLevel(wchar_t const* text) { m_level = Store(text); }

private:
    wchar_t const* m_troubleCode = L"";
    wchar_t const* m_displayTroubleCode = L"";
    wchar_t const* m_text = L"";
    wchar_t const* m_textId = L"";
    wchar_t const* m_level = L"";
};

/// DTC-DOP
class VMemDtcDop final : public VWithDiagCodedType<VWithAdminData<VMemIdent<NODX201::VDtcDop, Tag::DtcDop>>> {
public:
    using VWithDiagCodedType::VWithDiagCodedType;

    void Accept(NODX201::VDopBaseVisitor& visitor) override { visitor.VisitDtcDop(*this); }

    bool IsVisible() const { return m_isVisible; } ///< @IS-VISIBLE
    void SetIsVisible(bool value) { m_isVisible = value; }

    bool HasPhysicalType() const override { return m_physicalType != nullptr; }
    VMemPhysicalType& GetPhysicalType() override { return *m_physicalType; }
    VMemPhysicalType& MakePhysicalType() { return MakeChild(m_physicalType, Inside()); }
    void RemovePhysicalType() { m_physicalType.reset(); }

    bool HasCompuMethod() const override { return m_compuMethod != nullptr; }
    VMemCompuMethod& GetCompuMethod() override { return *m_compuMethod; }
    VMemCompuMethod& MakeCompuMethod() { return MakeChild(m_compuMethod, Inside()); }
    void RemoveCompuMethod() { m_compuMethod.reset(); }

    NODX201::VDtcProxyCollection& DtcProxyCollection() override { return m_dtcProxy.Get(); } ///< DTCS
    VMemCollection<NODX201::VDtcProxyCollection>& MakeDtcProxyCollection() { return m_dtcProxy.Make(); }
    VMemDtc& AddDtc(wchar_t const* shortName) { return AddNamed<VMemDtc>(m_dtcProxy, Inside(), shortName); }
    VMemDtcLink& AddDtcRef(VReference const& reference) {
        return AddLink<VMemDtcLink>(m_dtcProxy, Inside(), reference);
    }

private:
    bool m_isVisible = false;
    std::unique_ptr<VMemPhysicalType> m_physicalType;
    std::unique_ptr<VMemCompuMethod> m_compuMethod;
    VMemMany<NODX201::VDtcProxyCollection> m_dtcProxy;
};

/// STRUCTURE
class VMemStructure final : public VWithParams<VWithAdminData<VMemIdent<NODX201::VStructure, Tag::Structure>>> {
public:
    using VWithParams::VWithParams;

    void Accept(NODX201::VDopBaseVisitor& visitor) override { visitor.VisitStructure(*this); }

    bool IsVisible() const { return m_isVisible; } ///< @IS-VISIBLE
    void SetIsVisible(bool value) { m_isVisible = value; }

    wchar_t const* GetByteSize() const { return m_byteSize; } ///< BYTE-SIZE
    void SetByteSize(wchar_t const* text) { m_byteSize = Store(text); }

private:
    bool m_isVisible = false;
    wchar_t const* m_byteSize = L"";
};

/// ALL-VALUE
class VMemAllValue final : public VMemElement<NODX201::VAllValue, Tag::AllValue> {
public:
    using VMemElement::VMemElement;
};

/// DTC-VALUES
class VMemDtcValues final : public VMemElement<NODX201::VDtcValues, Tag::DtcValues> {
public:
    using VMemElement::VMemElement;

    std::vector<wchar_t const*> const& GetValues() const { return m_values; } ///< DTC-VALUE
    void AddValue(wchar_t const* text) { m_values.push_back(Store(text)); }

private:
    std::vector<wchar_t const*> m_values;
};

/// ENV-DATA
class VMemEnvData final : public VWithParams<VWithAdminData<VMemIdent<NODX201::VEnvData, Tag::EnvData>>> {
public:
    using VWithParams::VWithParams;

    void Accept(NODX201::VDopBaseVisitor& visitor) override { visitor.VisitEnvData(*this); }

    wchar_t const* GetByteSize() const { return m_byteSize; } ///< BYTE-SIZE
    void SetByteSize(wchar_t const* text) { m_byteSize = Store(text); }

    bool HasAllValueDtcValuesChoice() const override { return m_allValueDtcValuesChoice != nullptr; }
    NODX201::IAllValueDtcValuesChoice& GetAllValueDtcValuesChoice() override { return *m_allValueDtcValuesChoice; }
    VMemAllValue& MakeAllValue() {
        return SetChoice<VMemAllValue>(m_allValueDtcValuesChoiceElement, m_allValueDtcValuesChoice, Inside());
    }
    VMemDtcValues& MakeDtcValues() {
        return SetChoice<VMemDtcValues>(m_allValueDtcValuesChoiceElement, m_allValueDtcValuesChoice, Inside());
    }

private:
    wchar_t const* m_byteSize = L"";
    std::unique_ptr<NODX201::VOdxElement> m_allValueDtcValuesChoiceElement;
    NODX201::IAllValueDtcValuesChoice* m_allValueDtcValuesChoice = nullptr;
};

/// ENV-DATAS, which a dictionary and an ENV-DATA-DESC have.
template <class Base>
class VWithEnvDatas : public Base {
public:
    using Base::Base;

    NODX201::VEnvDataProxyCollection& EnvDataProxyCollection() { return m_envDataProxy.Get(); } ///< ENV-DATAS
    VMemCollection<NODX201::VEnvDataProxyCollection>& MakeEnvDataProxyCollection() { return m_envDataProxy.Make(); }
    VMemEnvData& AddEnvData(wchar_t const* shortName) {
        return AddNamed<VMemEnvData>(m_envDataProxy, this->Inside(), shortName);
    }
    VMemEnvDataLink& AddEnvDataRef(VReference const& reference) {
        return AddLink<VMemEnvDataLink>(m_envDataProxy, this->Inside(), reference);
    }

private:
    VMemMany<NODX201::VEnvDataProxyCollection> m_envDataProxy;
};

/// ENV-DATA-DESC
class VMemEnvDataDesc final : public VWithEnvDatas<VWithAdminData<VMemIdent<NODX201::VEnvDataDesc, Tag::EnvDataDesc>>> {
public:
    using VWithEnvDatas::VWithEnvDatas;

    void Accept(NODX201::VDopBaseVisitor& visitor) override { visitor.VisitEnvDataDesc(*this); }

    bool HasParamSnref() const override { return m_paramSnref != nullptr; } ///< PARAM-SNREF
    VMemOutParamIfLink& GetParamSnref() override { return *m_paramSnref; }
    VMemOutParamIfLink& SetParamSnref(VReference const& reference) {
        return MakeLink(m_paramSnref, Inside(), reference);
    }
    void RemoveParamSnref() { m_paramSnref.reset(); }

private:
    std::unique_ptr<VMemOutParamIfLink> m_paramSnref;
};

/// What the four kinds of field share.
template <class Base>
class VWithField : public Base {
public:
    using Base::Base;

    bool IsVisible() const { return m_isVisible; } ///< @IS-VISIBLE
    void SetIsVisible(bool value) { m_isVisible = value; }

    bool HasBasicStructureEnvDataDescChoice() const override { return m_choice != nullptr; }
    NODX201::IBasicStructureEnvDataDescChoice& GetBasicStructureEnvDataDescChoice() override { return *m_choice; }
    VMemBasicStructureLink& SetBasicStructureRef(VReference const& reference) { ///< in place of an ENV-DATA-DESC-REF
        return SetChoice<VMemBasicStructureLink>(m_link, m_choice, this->Inside(), reference);
    }
    VMemEnvDataDescLink& SetEnvDataDescRef(VReference const& reference) { ///< in place of a BASIC-STRUCTURE-REF
        return SetChoice<VMemEnvDataDescLink>(m_link, m_choice, this->Inside(), reference);
    }
    void RemoveBasicStructureEnvDataDescChoice() {
        m_choice = nullptr;
        m_link.reset();
    }

private:
    bool m_isVisible = true;
    std::unique_ptr<NODX201::VOdxElement> m_link;
    NODX201::IBasicStructureEnvDataDescChoice* m_choice = nullptr;
};

/// STATIC-FIELD
class VMemStaticField final : public VWithField<VWithAdminData<VMemIdent<NODX201::VStaticField, Tag::StaticField>>> {
public:
    using VWithField::VWithField;

    void Accept(NODX201::VDopBaseVisitor& visitor) override { visitor.VisitStaticField(*this); }

    wchar_t const* GetFixedNumberOfItems() const { return m_fixedNumberOfItems; } ///< FIXED-NUMBER-OF-ITEMS
    void SetFixedNumberOfItems(wchar_t const* text) { m_fixedNumberOfItems = Store(text); }

    wchar_t const* GetItemByteSize() const { return m_itemByteSize; } ///< ITEM-BYTE-SIZE
    void SetItemByteSize(wchar_t const* text) { m_itemByteSize = Store(text); }

private:
    wchar_t const* m_fixedNumberOfItems = L"";
    wchar_t const* m_itemByteSize = L"";
};

/// A value of a DOP at its own place, which decides on what follows.
template <class Base>
class VWithPositionedDop : public Base {
public:
    using Base::Base;

    wchar_t const* GetBytePosition() const { return m_bytePosition; } ///< BYTE-POSITION
    void SetBytePosition(wchar_t const* text) { m_bytePosition = this->Store(text); }

    wchar_t const* GetBitPosition() const { return m_bitPosition; } ///< BIT-POSITION
    void SetBitPosition(wchar_t const* text) { m_bitPosition = this->Store(text); }

    bool HasDataObjectPropRef() const override { return m_dataObjectPropRef != nullptr; } ///< DATA-OBJECT-PROP-REF
    VMemDataObjectPropLink& GetDataObjectPropRef() override { return *m_dataObjectPropRef; }
    VMemDataObjectPropLink& SetDataObjectPropRef(VReference const& reference) {
        return MakeLink(m_dataObjectPropRef, this->Inside(), reference);
    }
    void RemoveDataObjectPropRef() { m_dataObjectPropRef.reset(); }

private:
    wchar_t const* m_bytePosition = L"";
    wchar_t const* m_bitPosition = L"";
    std::unique_ptr<VMemDataObjectPropLink> m_dataObjectPropRef;
};

/// DETERMINE-NUMBER-OF-ITEMS
class VMemDetermineNumberOfItems final
    : public VWithPositionedDop<VMemElement<NODX201::VDetermineNumberOfItems, Tag::DetermineNumberOfItems>> {
public:
    using VWithPositionedDop::VWithPositionedDop;
};

/// DYNAMIC-LENGTH-FIELD
class VMemDynamicLengthField final
    : public VWithField<VWithAdminData<VMemIdent<NODX201::VDynamicLengthField, Tag::DynamicLengthField>>> {
public:
    using VWithField::VWithField;

    void Accept(NODX201::VDopBaseVisitor& visitor) override { visitor.VisitDynamicLengthField(*this); }

    wchar_t const* GetOffset() const { return m_offset; } ///< OFFSET
    void SetOffset(wchar_t const* text) { m_offset = Store(text); }

    bool HasDetermineNumberOfItems() const override { return m_determineNumberOfItems != nullptr; }
    VMemDetermineNumberOfItems& GetDetermineNumberOfItems() override { return *m_determineNumberOfItems; }
    VMemDetermineNumberOfItems& MakeDetermineNumberOfItems() { return MakeChild(m_determineNumberOfItems, Inside()); }
    void RemoveDetermineNumberOfItems() { m_determineNumberOfItems.reset(); }

private:
    wchar_t const* m_offset = L"";
    std::unique_ptr<VMemDetermineNumberOfItems> m_determineNumberOfItems;
};

/// DYNAMIC-ENDMARKER-FIELD
class VMemDynamicEndmarkerField final
    : public VWithField<VWithAdminData<VMemIdent<NODX201::VDynamicEndmarkerField, Tag::DynamicEndmarkerField>>> {
public:
    using VWithField::VWithField;

    void Accept(NODX201::VDopBaseVisitor& visitor) override { visitor.VisitDynamicEndmarkerField(*this); }

    bool HasDataObjectPropRef() const override { return m_dataObjectPropRef != nullptr; } ///< DATA-OBJECT-PROP-REF
    VMemDynEndDopRef& GetDataObjectPropRef() override { return *m_dataObjectPropRef; }
    VMemDynEndDopRef& SetDataObjectPropRef(VReference const& reference) {
        return MakeLink(m_dataObjectPropRef, Inside(), reference);
    }
    void RemoveDataObjectPropRef() { m_dataObjectPropRef.reset(); }

private:
    std::unique_ptr<VMemDynEndDopRef> m_dataObjectPropRef;
};

/// END-OF-PDU-FIELD
class VMemEndOfPduField final
    : public VWithField<VWithAdminData<VMemIdent<NODX201::VEndOfPduField, Tag::EndOfPduField>>> {
public:
    using VWithField::VWithField;

    void Accept(NODX201::VDopBaseVisitor& visitor) override { visitor.VisitEndOfPduField(*this); }

    wchar_t const* GetMaxNumberOfItems() const { return m_maxNumberOfItems; } ///< MAX-NUMBER-OF-ITEMS
    void SetMaxNumberOfItems(wchar_t const* text) { m_maxNumberOfItems = Store(text); }

    wchar_t const* GetMinNumberOfItems() const { return m_minNumberOfItems; } ///< MIN-NUMBER-OF-ITEMS
    void SetMinNumberOfItems(wchar_t const* text) { m_minNumberOfItems = Store(text); }

private:
    wchar_t const* m_maxNumberOfItems = L"";
    wchar_t const* m_minNumberOfItems = L"";
};

/// SWITCH-KEY
class VMemSwitchKey final : public VWithPositionedDop<VMemElement<NODX201::VSwitchKey, Tag::SwitchKey>> {
public:
    using VWithPositionedDop::VWithPositionedDop;
};

/// What the cases of a MUX share.
template <class Base>
class VWithStructureRef : public Base {
public:
    using Base::Base;

    bool HasStructureRef() const override { return m_structureRef != nullptr; } ///< STRUCTURE-REF
    VMemStructureLink& GetStructureRef() override { return *m_structureRef; }
    VMemStructureLink& SetStructureRef(VReference const& reference) {
        return MakeLink(m_structureRef, this->Inside(), reference);
    }
    void RemoveStructureRef() { m_structureRef.reset(); }

private:
    std::unique_ptr<VMemStructureLink> m_structureRef;
};

/// DEFAULT-CASE
class VMemDefaultCase final : public VWithStructureRef<VMemNamed<NODX201::VDefaultCase, Tag::DefaultCase>> {
public:
    using VWithStructureRef::VWithStructureRef;
};

/// CASE
class VMemCase final : public VWithStructureRef<VWithLimits<VMemNamed<NODX201::VCase, Tag::Case>>> {
public:
    using VWithStructureRef::VWithStructureRef;
};

/// MUX
class VMemMux final : public VWithAdminData<VMemIdent<NODX201::VMux, Tag::Mux>> {
public:
    using VWithAdminData::VWithAdminData;

    void Accept(NODX201::VDopBaseVisitor& visitor) override { visitor.VisitMux(*this); }

    bool IsVisible() const { return m_isVisible; } ///< @IS-VISIBLE
    void SetIsVisible(bool value) { m_isVisible = value; }

    wchar_t const* GetBytePosition() const { return m_bytePosition; } ///< BYTE-POSITION
    void SetBytePosition(wchar_t const* text) { m_bytePosition = Store(text); }

    bool HasSwitchKey() const override { return m_switchKey != nullptr; }
    VMemSwitchKey& GetSwitchKey() override { return *m_switchKey; }
    VMemSwitchKey& MakeSwitchKey() { return MakeChild(m_switchKey, Inside()); }
    void RemoveSwitchKey() { m_switchKey.reset(); }

    bool HasDefaultCase() const override { return m_defaultCase != nullptr; }
    VMemDefaultCase& GetDefaultCase() override { return *m_defaultCase; }
    VMemDefaultCase& MakeDefaultCase(wchar_t const* shortName) {
        return MakeNamedChild(m_defaultCase, Inside(), shortName);
    }
    void RemoveDefaultCase() { m_defaultCase.reset(); }

    NODX201::VCaseCollection& CaseCollection() override { return m_case.Get(); } ///< CASES
    VMemCollection<NODX201::VCaseCollection>& MakeCaseCollection() { return m_case.Make(); }
    VMemCase& AddCase(wchar_t const* shortName) { return AddNamed<VMemCase>(m_case, Inside(), shortName); }

private:
    bool m_isVisible = false;
    wchar_t const* m_bytePosition = L"";
    std::unique_ptr<VMemSwitchKey> m_switchKey;
    std::unique_ptr<VMemDefaultCase> m_defaultCase;
    VMemMany<NODX201::VCaseCollection> m_case;
};

/// DIAG-DATA-DICTIONARY-SPEC
class VMemDiagDataDictionarySpec final
    : public VWithEnvDatas<VWithAdminData<VMemElement<NODX201::VDiagDataDictionarySpec, Tag::DiagDataDictionarySpec>>> {
public:
    using VWithEnvDatas::VWithEnvDatas;

    NODX201::VDopBaseCollection& DopBaseCollection() override { return m_dopBase.Get(); } ///< all kinds but ENV-DATA
    VMemCollection<NODX201::VDopBaseCollection>& MakeDopBaseCollection() { return m_dopBase.Make(); }
    VMemDtcDop& AddDtcDop(wchar_t const* shortName) { return AddNamed<VMemDtcDop>(m_dopBase, Inside(), shortName); }
    VMemEnvDataDesc& AddEnvDataDesc(wchar_t const* shortName) {
        return AddNamed<VMemEnvDataDesc>(m_dopBase, Inside(), shortName);
    }
    VMemDataObjectProp& AddDataObjectProp(wchar_t const* shortName) {
        return AddNamed<VMemDataObjectProp>(m_dopBase, Inside(), shortName);
    }
    VMemStructure& AddStructure(wchar_t const* shortName) {
        return AddNamed<VMemStructure>(m_dopBase, Inside(), shortName);
    }
    VMemStaticField& AddStaticField(wchar_t const* shortName) {
        return AddNamed<VMemStaticField>(m_dopBase, Inside(), shortName);
    }
    VMemDynamicLengthField& AddDynamicLengthField(wchar_t const* shortName) {
        return AddNamed<VMemDynamicLengthField>(m_dopBase, Inside(), shortName);
    }
    VMemDynamicEndmarkerField& AddDynamicEndmarkerField(wchar_t const* shortName) {
        return AddNamed<VMemDynamicEndmarkerField>(m_dopBase, Inside(), shortName);
    }
    VMemEndOfPduField& AddEndOfPduField(wchar_t const* shortName) {
        return AddNamed<VMemEndOfPduField>(m_dopBase, Inside(), shortName);
    }
    VMemMux& AddMux(wchar_t const* shortName) { return AddNamed<VMemMux>(m_dopBase, Inside(), shortName); }

    bool HasUnitSpec() const override { return m_unitSpec != nullptr; } ///< UNIT-SPEC
    VMemUnitSpec& GetUnitSpec() override { return *m_unitSpec; }
    VMemUnitSpec& MakeUnitSpec() { return MakeChild(m_unitSpec, Inside()); }
    void RemoveUnitSpec() { m_unitSpec.reset(); }

    NODX201::VTableCollection& TableCollection() override { return m_table.Get(); } ///< TABLES
    VMemCollection<NODX201::VTableCollection>& MakeTableCollection() { return m_table.Make(); }
    VMemTable& AddTable(wchar_t const* shortName) { return AddNamed<VMemTable>(m_table, Inside(), shortName); }

private:
    VMemMany<NODX201::VDopBaseCollection> m_dopBase;
    std::unique_ptr<VMemUnitSpec> m_unitSpec;
    VMemMany<NODX201::VTableCollection> m_table;
};

} // namespace NMemory
