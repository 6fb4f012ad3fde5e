// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

#include <diagkit/Export.h>
#include <diagkit/model/Comparams.h>
#include <diagkit/model/Compu.h>
#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Flash.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Reference.h>
#include <diagkit/model/Units.h>
#include <diagkit/model/VehicleInfo.h>
#include <diagkit/tools/EnumMapImpl.h>

namespace NDIAGKIT {

// clang-format off
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VCommRelation::VCommRelationValueType>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VDiagService::VAddressing>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VPhysicalType::VPhysicalDataType>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VSessionDesc::VDirection>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VIdentValue::VIdentValueType>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VScaleConstr::VValidType>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VMinMaxLengthType::VTermination>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VTableEntry::VRowFragment>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VDataformat::VDataformatSelection>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VDiagCodedType::VDataType>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VPhysicalVehicleLink::VPhysicalLinkType>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VUnitGroup::VUnitGroupCategory>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VLimit::VIntervalType>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VProjectIdent::VProjIdentType>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VDiagComm::VDiagClassType>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VComparam::VStandardisationLevel>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VPhysicalType::VRadix>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VVehicleConnectorPin::VPinType>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VEncryptCompressMethod::VEncryptCompressMethodType>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VDiagCodedType::VEncoding>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VCompuMethod::VCompuCategory>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VDoctype>);
DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::VChecksumResult::VSessionSubElemType>);
// clang-format on

/// The tables of the 23 ODX enumerations, and a pair of look-ups for each: `GetX` from a literal to its value,
/// `GetXStr` back. An unknown literal gives value 0, an unknown value the text "?"; matching is exact.
///
/// After construction everything only reads and may be used from any thread.
class DIAGKIT_EXPORT VEnumTables {
public:
    VEnumTables(VEnumTables const& other);
    VEnumTables& operator=(VEnumTables const& other);
    virtual ~VEnumTables();

    // clang-format off
    NODX201::VCommRelation::VCommRelationValueType GetCommRelationValueType(wchar_t const* literal) const { return m_commRelationValueType.Get(literal); }
    wchar_t const* GetCommRelationValueTypeStr(NODX201::VCommRelation::VCommRelationValueType value) const { return m_commRelationValueType.GetStr(value); }
    NODX201::VDiagService::VAddressing GetAddressing(wchar_t const* literal) const { return m_addressing.Get(literal); }
    wchar_t const* GetAddressingStr(NODX201::VDiagService::VAddressing value) const { return m_addressing.GetStr(value); }
    NODX201::VPhysicalType::VPhysicalDataType GetPhysicalDataType(wchar_t const* literal) const { return m_physicalDataType.Get(literal); }
    wchar_t const* GetPhysicalDataTypeStr(NODX201::VPhysicalType::VPhysicalDataType value) const { return m_physicalDataType.GetStr(value); }
    NODX201::VSessionDesc::VDirection GetDirection(wchar_t const* literal) const { return m_direction.Get(literal); }
    wchar_t const* GetDirectionStr(NODX201::VSessionDesc::VDirection value) const { return m_direction.GetStr(value); }
    NODX201::VIdentValue::VIdentValueType GetIdentValueType(wchar_t const* literal) const { return m_identValueType.Get(literal); }
    wchar_t const* GetIdentValueTypeStr(NODX201::VIdentValue::VIdentValueType value) const { return m_identValueType.GetStr(value); }
    NODX201::VScaleConstr::VValidType GetValidType(wchar_t const* literal) const { return m_validType.Get(literal); }
    wchar_t const* GetValidTypeStr(NODX201::VScaleConstr::VValidType value) const { return m_validType.GetStr(value); }
    NODX201::VMinMaxLengthType::VTermination GetTermination(wchar_t const* literal) const { return m_termination.Get(literal); }
    wchar_t const* GetTerminationStr(NODX201::VMinMaxLengthType::VTermination value) const { return m_termination.GetStr(value); }
    NODX201::VTableEntry::VRowFragment GetRowFragment(wchar_t const* literal) const { return m_rowFragment.Get(literal); }
    wchar_t const* GetRowFragmentStr(NODX201::VTableEntry::VRowFragment value) const { return m_rowFragment.GetStr(value); }
    NODX201::VDataformat::VDataformatSelection GetDataformatSelection(wchar_t const* literal) const { return m_dataformatSelection.Get(literal); }
    wchar_t const* GetDataformatSelectionStr(NODX201::VDataformat::VDataformatSelection value) const { return m_dataformatSelection.GetStr(value); }
    NODX201::VDiagCodedType::VDataType GetDataType(wchar_t const* literal) const { return m_dataType.Get(literal); }
    wchar_t const* GetDataTypeStr(NODX201::VDiagCodedType::VDataType value) const { return m_dataType.GetStr(value); }
    NODX201::VPhysicalVehicleLink::VPhysicalLinkType GetPhysicalLinkType(wchar_t const* literal) const { return m_physicalLinkType.Get(literal); }
    wchar_t const* GetPhysicalLinkTypeStr(NODX201::VPhysicalVehicleLink::VPhysicalLinkType value) const { return m_physicalLinkType.GetStr(value); }
    NODX201::VUnitGroup::VUnitGroupCategory GetUnitGroupCategory(wchar_t const* literal) const { return m_unitGroupCategory.Get(literal); }
    wchar_t const* GetUnitGroupCategoryStr(NODX201::VUnitGroup::VUnitGroupCategory value) const { return m_unitGroupCategory.GetStr(value); }
    NODX201::VLimit::VIntervalType GetIntervalType(wchar_t const* literal) const { return m_intervalType.Get(literal); }
    wchar_t const* GetIntervalTypeStr(NODX201::VLimit::VIntervalType value) const { return m_intervalType.GetStr(value); }
    NODX201::VProjectIdent::VProjIdentType GetProjIdentType(wchar_t const* literal) const { return m_projIdentType.Get(literal); }
    wchar_t const* GetProjIdentTypeStr(NODX201::VProjectIdent::VProjIdentType value) const { return m_projIdentType.GetStr(value); }
    NODX201::VDiagComm::VDiagClassType GetDiagClassType(wchar_t const* literal) const { return m_diagClassType.Get(literal); }
    wchar_t const* GetDiagClassTypeStr(NODX201::VDiagComm::VDiagClassType value) const { return m_diagClassType.GetStr(value); }
    NODX201::VComparam::VStandardisationLevel GetStandardisationLevel(wchar_t const* literal) const { return m_standardisationLevel.Get(literal); }
    wchar_t const* GetStandardisationLevelStr(NODX201::VComparam::VStandardisationLevel value) const { return m_standardisationLevel.GetStr(value); }
    NODX201::VPhysicalType::VRadix GetRadix(wchar_t const* literal) const { return m_radix.Get(literal); }
    wchar_t const* GetRadixStr(NODX201::VPhysicalType::VRadix value) const { return m_radix.GetStr(value); }
    NODX201::VVehicleConnectorPin::VPinType GetPinType(wchar_t const* literal) const { return m_pinType.Get(literal); }
    wchar_t const* GetPinTypeStr(NODX201::VVehicleConnectorPin::VPinType value) const { return m_pinType.GetStr(value); }
    NODX201::VEncryptCompressMethod::VEncryptCompressMethodType GetEncryptCompressMethodType(wchar_t const* literal) const { return m_encryptCompressMethodType.Get(literal); }
    wchar_t const* GetEncryptCompressMethodTypeStr(NODX201::VEncryptCompressMethod::VEncryptCompressMethodType value) const { return m_encryptCompressMethodType.GetStr(value); }
    NODX201::VDiagCodedType::VEncoding GetEncoding(wchar_t const* literal) const { return m_encoding.Get(literal); }
    wchar_t const* GetEncodingStr(NODX201::VDiagCodedType::VEncoding value) const { return m_encoding.GetStr(value); }
    NODX201::VCompuMethod::VCompuCategory GetCompuCategory(wchar_t const* literal) const { return m_compuCategory.Get(literal); }
    wchar_t const* GetCompuCategoryStr(NODX201::VCompuMethod::VCompuCategory value) const { return m_compuCategory.GetStr(value); }
    NODX201::VDoctype GetDoctype(wchar_t const* literal) const { return m_doctype.Get(literal); }
    wchar_t const* GetDoctypeStr(NODX201::VDoctype value) const { return m_doctype.GetStr(value); }
    NODX201::VChecksumResult::VSessionSubElemType GetSessionSubElemType(wchar_t const* literal) const { return m_sessionSubElemType.Get(literal); }
    wchar_t const* GetSessionSubElemTypeStr(std::size_t value) const { return m_sessionSubElemType.GetStr(static_cast<NODX201::VChecksumResult::VSessionSubElemType>(value)); } // Deliberate: takes a number (SessionSubElemTypeStrTakesANumber)
    // clang-format on

protected:
    VEnumTables();

private:
    void InitMappingTables();

    // clang-format off
    EnumMapImpl<NODX201::VCommRelation::VCommRelationValueType> m_commRelationValueType{L"CommRelationValueType"};
    EnumMapImpl<NODX201::VDiagService::VAddressing> m_addressing{L"Addressing"};
    EnumMapImpl<NODX201::VPhysicalType::VPhysicalDataType> m_physicalDataType{L"PhysicalDataType"};
    EnumMapImpl<NODX201::VSessionDesc::VDirection> m_direction{L"Direction"};
    EnumMapImpl<NODX201::VIdentValue::VIdentValueType> m_identValueType{L"IdentValueType"};
    EnumMapImpl<NODX201::VScaleConstr::VValidType> m_validType{L"ValidType"};
    EnumMapImpl<NODX201::VMinMaxLengthType::VTermination> m_termination{L"Termination"};
    EnumMapImpl<NODX201::VTableEntry::VRowFragment> m_rowFragment{L"RowFragment"};
    EnumMapImpl<NODX201::VDataformat::VDataformatSelection> m_dataformatSelection{L"DataformatSelection"};
    EnumMapImpl<NODX201::VDiagCodedType::VDataType> m_dataType{L"DataType"};
    EnumMapImpl<NODX201::VPhysicalVehicleLink::VPhysicalLinkType> m_physicalLinkType{L"PhysicalLinkType"};
    EnumMapImpl<NODX201::VUnitGroup::VUnitGroupCategory> m_unitGroupCategory{L"UnitGroupCategory"};
    EnumMapImpl<NODX201::VLimit::VIntervalType> m_intervalType{L"IntervalType"};
    EnumMapImpl<NODX201::VProjectIdent::VProjIdentType> m_projIdentType{L"ProjIdentType"};
    EnumMapImpl<NODX201::VDiagComm::VDiagClassType> m_diagClassType{L"DiagClassType"};
    EnumMapImpl<NODX201::VComparam::VStandardisationLevel> m_standardisationLevel{L"StandardisationLevel"};
    EnumMapImpl<NODX201::VPhysicalType::VRadix> m_radix{L"Radix"};
    EnumMapImpl<NODX201::VVehicleConnectorPin::VPinType> m_pinType{L"PinType"};
    EnumMapImpl<NODX201::VEncryptCompressMethod::VEncryptCompressMethodType> m_encryptCompressMethodType{L"EncryptCompressMethodType"};
    EnumMapImpl<NODX201::VDiagCodedType::VEncoding> m_encoding{L"Encoding"};
    EnumMapImpl<NODX201::VCompuMethod::VCompuCategory> m_compuCategory{L"CompuCategory"};
    EnumMapImpl<NODX201::VDoctype> m_doctype{L"Doctype"};
    EnumMapImpl<NODX201::VChecksumResult::VSessionSubElemType> m_sessionSubElemType{L"SessionSubElemType"};
    // clang-format on
};

/// The tables, one object a process, made at the first call of `Instance()`; that first call must not race.
class DIAGKIT_EXPORT VEnumMapper : public VEnumTables {
public:
    static VEnumMapper& Instance(); ///< the one of the process
    ~VEnumMapper() override;
    VEnumMapper(VEnumMapper const& other);
    VEnumMapper& operator=(VEnumMapper const& other);

private:
    VEnumMapper();
};

/// The same tables under another name; both mappers answer alike.
class DIAGKIT_EXPORT VEnumStringMapper : public VEnumTables {
public:
    static VEnumStringMapper& Instance(); ///< the one of the process
    ~VEnumStringMapper() override;
    VEnumStringMapper(VEnumStringMapper const& other);
    VEnumStringMapper& operator=(VEnumStringMapper const& other);

private:
    VEnumStringMapper();
};

} // namespace NDIAGKIT
