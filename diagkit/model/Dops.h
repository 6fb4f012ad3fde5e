// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Collections.h>
#include <diagkit/model/Reference.h>

/// The data dictionary and the ten kinds of DOP.

namespace NODX201 {

/// DIAG-DATA-DICTIONARY-SPEC
class DIAGKIT_EXPORT VDiagDataDictionarySpec : public VOdxElement {
public:
    ~VDiagDataDictionarySpec() override;
    virtual bool HasAdminData() const = 0;
    virtual VAdminData& GetAdminData() = 0;
    /// The DOPs of all kinds but ENV-DATA, in one list in document order.
    virtual VDopBaseCollection& DopBaseCollection() = 0;
    /// ENV-DATAS of the dictionary itself; an ENV-DATA-DESC has its own.
    virtual VEnvDataProxyCollection& EnvDataProxyCollection() = 0;
    virtual bool HasUnitSpec() const = 0;
    virtual VUnitSpec& GetUnitSpec() = 0;
    virtual VTableCollection& TableCollection() = 0;
};

/// Base of the ten kinds of DOP.
class DIAGKIT_EXPORT VDopBase : public VReferencable {
public:
    ~VDopBase() override;

    /// Calls back the Visit operation of the DOP's kind, exactly once.
    virtual void Accept(VDopBaseVisitor& visitor) = 0;

    virtual bool HasOid() const = 0; ///< an empty @OID counts as none
    virtual wchar_t const* GetOid() const = 0;
    virtual bool HasAdminData() const = 0;
    virtual VAdminData& GetAdminData() = 0;
};

/// DATA-OBJECT-PROP
class DIAGKIT_EXPORT VDataObjectProp : public VDopBase {
public:
    ~VDataObjectProp() override;
    virtual bool HasCompuMethod() const = 0;
    virtual VCompuMethod& GetCompuMethod() = 0;
    virtual bool HasDiagCodedType() const = 0;
    virtual VDiagCodedType& GetDiagCodedType() = 0;
    virtual bool HasPhysicalType() const = 0;
    virtual VPhysicalType& GetPhysicalType() = 0;
    virtual bool HasInternalConstr() const = 0;
    virtual VInternalConstr& GetInternalConstr() = 0;
    virtual bool HasUnitRef() const = 0;
    virtual VUnitLink& GetUnitRef() = 0;
};

/// An entry of DTCS: exactly one test is true, and the entry is castable to that class.
class DIAGKIT_EXPORT IDtcProxy {
public:
    virtual bool IsDtcLink() const = 0;
    virtual bool IsDtc() const = 0;

protected:
    IDtcProxy() = default;
    ~IDtcProxy() = default;
};

/// DTC-DOP
class DIAGKIT_EXPORT VDtcDop : public VDopBase {
public:
    ~VDtcDop() override;
    virtual bool HasDiagCodedType() const = 0;
    virtual VDiagCodedType& GetDiagCodedType() = 0;
    virtual bool HasPhysicalType() const = 0;
    virtual VPhysicalType& GetPhysicalType() = 0;
    virtual bool HasCompuMethod() const = 0;
    virtual VCompuMethod& GetCompuMethod() = 0;
    virtual VDtcProxyCollection& DtcProxyCollection() = 0;
};

/// DTC
class DIAGKIT_EXPORT VDtc : public VReferencable, public IDtcProxy {
public:
    ~VDtc() override;
    bool IsDtcLink() const final { return false; }
    bool IsDtc() const final { return true; }
    virtual VSdgCollection& SdgCollection() = 0;
};

/// DTC-REF
class DIAGKIT_EXPORT VDtcLink : public VLink, public IDtcProxy {
public:
    ~VDtcLink() override;
    bool IsDtcLink() const final { return true; }
    bool IsDtc() const final { return false; }
    virtual bool HasDtc() const = 0;
    virtual VDtc& GetDtc() = 0;
};

/// Base of the DOPs that consist of several values.
class DIAGKIT_EXPORT VComplexDop : public VDopBase {
public:
    ~VComplexDop() override;
};

/// Base of STRUCTURE and ENV-DATA.
class DIAGKIT_EXPORT VBasicStructure : public VComplexDop {
public:
    ~VBasicStructure() override;
    virtual VParamCollection& ParamCollection() = 0;
};

/// STRUCTURE
class DIAGKIT_EXPORT VStructure : public VBasicStructure {
public:
    ~VStructure() override;
};

/// An entry of ENV-DATAS: exactly one test is true, and the entry is castable to that class.
class DIAGKIT_EXPORT IEnvDataProxy {
public:
    virtual bool IsEnvDataLink() const = 0;
    virtual bool IsEnvData() const = 0;

protected:
    IEnvDataProxy() = default;
    ~IEnvDataProxy() = default;
};

/// For which DTCs an ENV-DATA is valid: all of them, or those listed.
class DIAGKIT_EXPORT IAllValueDtcValuesChoice {
public:
    virtual bool IsAllValue() const = 0;  ///< castable to `VAllValue`
    virtual bool IsDtcValues() const = 0; ///< castable to `VDtcValues`

protected:
    IAllValueDtcValuesChoice() = default;
    ~IAllValueDtcValuesChoice() = default;
};

/// ALL-VALUE
class DIAGKIT_EXPORT VAllValue : public VOdxElement, public IAllValueDtcValuesChoice {
public:
    ~VAllValue() override;
    bool IsAllValue() const final { return true; }
    bool IsDtcValues() const final { return false; }
};

/// DTC-VALUES
class DIAGKIT_EXPORT VDtcValues : public VOdxElement, public IAllValueDtcValuesChoice {
public:
    ~VDtcValues() override;
    bool IsAllValue() const final { return false; }
    bool IsDtcValues() const final { return true; }
};

/// ENV-DATA
class DIAGKIT_EXPORT VEnvData : public VBasicStructure, public IEnvDataProxy {
public:
    ~VEnvData() override;
    bool IsEnvDataLink() const final { return false; }
    bool IsEnvData() const final { return true; }
    virtual bool HasAllValueDtcValuesChoice() const = 0;
    virtual IAllValueDtcValuesChoice& GetAllValueDtcValuesChoice() = 0;
};

/// ENV-DATA-REF
class DIAGKIT_EXPORT VEnvDataLink : public VLink, public IEnvDataProxy {
public:
    ~VEnvDataLink() override;
    bool IsEnvDataLink() const final { return true; }
    bool IsEnvData() const final { return false; }
    virtual bool HasEnvData() const = 0;
    virtual VEnvData& GetEnvData() = 0;
};

/// ENV-DATA-DESC
class DIAGKIT_EXPORT VEnvDataDesc : public VComplexDop {
public:
    ~VEnvDataDesc() override;
    virtual bool HasParamSnref() const = 0;
    virtual VOutParamIfLink& GetParamSnref() = 0;
    virtual VEnvDataProxyCollection& EnvDataProxyCollection() = 0;
};

/// What a field repeats: a structure or an ENV-DATA-DESC.
class DIAGKIT_EXPORT IBasicStructureEnvDataDescChoice {
public:
    virtual bool IsBasicStructureLink() const = 0; ///< castable to `VBasicStructureLink`
    virtual bool IsEnvDataDescLink() const = 0;    ///< castable to `VEnvDataDescLink`

protected:
    IBasicStructureEnvDataDescChoice() = default;
    ~IBasicStructureEnvDataDescChoice() = default;
};

/// BASIC-STRUCTURE-REF; its target is a STRUCTURE or an ENV-DATA.
class DIAGKIT_EXPORT VBasicStructureLink : public VLink, public IBasicStructureEnvDataDescChoice {
public:
    ~VBasicStructureLink() override;
    bool IsBasicStructureLink() const final { return true; }
    bool IsEnvDataDescLink() const final { return false; }
    virtual bool HasBasicStructure() const = 0;
    virtual VBasicStructure& GetBasicStructure() = 0;
};

/// ENV-DATA-DESC-REF
class DIAGKIT_EXPORT VEnvDataDescLink : public VLink, public IBasicStructureEnvDataDescChoice {
public:
    ~VEnvDataDescLink() override;
    bool IsBasicStructureLink() const final { return false; }
    bool IsEnvDataDescLink() const final { return true; }
    virtual bool HasEnvDataDesc() const = 0;
    virtual VEnvDataDesc& GetEnvDataDesc() = 0;
};

/// Base of the four kinds of field.
class DIAGKIT_EXPORT VField : public VComplexDop {
public:
    ~VField() override;
    virtual bool HasBasicStructureEnvDataDescChoice() const = 0;
    virtual IBasicStructureEnvDataDescChoice& GetBasicStructureEnvDataDescChoice() = 0;
};

/// STATIC-FIELD
class DIAGKIT_EXPORT VStaticField : public VField {
public:
    ~VStaticField() override;
};

/// DYNAMIC-LENGTH-FIELD
class DIAGKIT_EXPORT VDynamicLengthField : public VField {
public:
    ~VDynamicLengthField() override;
    virtual bool HasDetermineNumberOfItems() const = 0;
    virtual VDetermineNumberOfItems& GetDetermineNumberOfItems() = 0;
};

/// DETERMINE-NUMBER-OF-ITEMS
class DIAGKIT_EXPORT VDetermineNumberOfItems : public VOdxElement {
public:
    ~VDetermineNumberOfItems() override;
    virtual bool HasDataObjectPropRef() const = 0;
    virtual VDataObjectPropLink& GetDataObjectPropRef() = 0;
};

/// DYNAMIC-ENDMARKER-FIELD
class DIAGKIT_EXPORT VDynamicEndmarkerField : public VField {
public:
    ~VDynamicEndmarkerField() override;
    virtual bool HasDataObjectPropRef() const = 0;
    virtual VDynEndDopRef& GetDataObjectPropRef() = 0;
};

/// DATA-OBJECT-PROP-REF of a DYNAMIC-ENDMARKER-FIELD
class DIAGKIT_EXPORT VDynEndDopRef : public VLink {
public:
    ~VDynEndDopRef() override;
    virtual bool HasDopBase() const = 0;
    virtual VDopBase& GetDopBase() = 0;
};

/// END-OF-PDU-FIELD
class DIAGKIT_EXPORT VEndOfPduField : public VField {
public:
    ~VEndOfPduField() override;
};

/// MUX
class DIAGKIT_EXPORT VMux : public VComplexDop {
public:
    ~VMux() override;
    virtual bool HasSwitchKey() const = 0;
    virtual VSwitchKey& GetSwitchKey() = 0;
    virtual bool HasDefaultCase() const = 0;
    virtual VDefaultCase& GetDefaultCase() = 0;
    virtual VCaseCollection& CaseCollection() = 0;
};

/// SWITCH-KEY
class DIAGKIT_EXPORT VSwitchKey : public VOdxElement {
public:
    ~VSwitchKey() override;
    virtual bool HasDataObjectPropRef() const = 0;
    virtual VDataObjectPropLink& GetDataObjectPropRef() = 0;
};

/// DEFAULT-CASE
class DIAGKIT_EXPORT VDefaultCase : public VOdxElement {
public:
    ~VDefaultCase() override;
    virtual bool HasStructureRef() const = 0;
    virtual VStructureLink& GetStructureRef() = 0;
};

/// CASE
class DIAGKIT_EXPORT VCase : public VOdxElement {
public:
    ~VCase() override;
    virtual bool HasStructureRef() const = 0;
    virtual VStructureLink& GetStructureRef() = 0;
    virtual bool HasLowerLimit() const = 0;
    virtual VLimit& GetLowerLimit() = 0;
    virtual bool HasUpperLimit() const = 0;
    virtual VLimit& GetUpperLimit() = 0;
};

/// STRUCTURE-REF
class DIAGKIT_EXPORT VStructureLink : public VLink {
public:
    ~VStructureLink() override;
    virtual bool HasStructure() const = 0;
    virtual VStructure& GetStructure() = 0;
};

/// DOP-REF, DOP-SNREF, DOP-BASE-REF, DOP-BASE-SNREF: any kind of DOP.
class DIAGKIT_EXPORT VDopBaseLink : public VLink {
public:
    ~VDopBaseLink() override;
    /// Resolves in the context of the layer, which matters for short names.
    virtual bool HasDopBase(VDiagLayer& layer) = 0;
    virtual VDopBase& GetDopBase() = 0;
};

/// DOP-REF, DOP-SNREF, DATA-OBJECT-PROP-REF, KEY-DOP-REF where only a DATA-OBJECT-PROP is allowed.
class DIAGKIT_EXPORT VDataObjectPropLink : public VLink {
public:
    ~VDataObjectPropLink() override;
    /// Resolves in the context of the layer, which matters for short names. False for a DOP of another kind.
    virtual bool HasDataObjectProp(VDiagLayer& layer) = 0;
    virtual VDataObjectProp& GetDataObjectProp() = 0;
};

} // namespace NODX201
