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

#define ODX_ENUMERATION(name, place, ...) DIAGKIT_TEMPLATE_DECLARATION(EnumMapImpl<NODX201::place>);
#include <diagkit/model/facts/Enumerations.def>

/// The tables of the 23 ODX enumerations, and two operations for each: `GetX` converts a literal to its value,
/// `GetXStr` a value to its literal. An unknown literal gives value 0, an unknown value the text "?"; matching is
/// exact.
///
/// All operations only read, except construction, and may be called from any thread.
class DIAGKIT_EXPORT VEnumTables {
public:
    VEnumTables(VEnumTables const& other);
    VEnumTables& operator=(VEnumTables const& other);
    virtual ~VEnumTables();

    // clang-format off
    NODX201::VCommRelation::VCommRelationValueType GetCommRelationValueType(wchar_t const* literal) const { return m_CommRelationValueType.Get(literal); }
    wchar_t const* GetCommRelationValueTypeStr(NODX201::VCommRelation::VCommRelationValueType value) const { return m_CommRelationValueType.GetStr(value); }
    NODX201::VDiagService::VAddressing GetAddressing(wchar_t const* literal) const { return m_Addressing.Get(literal); }
    wchar_t const* GetAddressingStr(NODX201::VDiagService::VAddressing value) const { return m_Addressing.GetStr(value); }
    NODX201::VPhysicalType::VPhysicalDataType GetPhysicalDataType(wchar_t const* literal) const { return m_PhysicalDataType.Get(literal); }
    wchar_t const* GetPhysicalDataTypeStr(NODX201::VPhysicalType::VPhysicalDataType value) const { return m_PhysicalDataType.GetStr(value); }
    NODX201::VSessionDesc::VDirection GetDirection(wchar_t const* literal) const { return m_Direction.Get(literal); }
    wchar_t const* GetDirectionStr(NODX201::VSessionDesc::VDirection value) const { return m_Direction.GetStr(value); }
    NODX201::VIdentValue::VIdentValueType GetIdentValueType(wchar_t const* literal) const { return m_IdentValueType.Get(literal); }
    wchar_t const* GetIdentValueTypeStr(NODX201::VIdentValue::VIdentValueType value) const { return m_IdentValueType.GetStr(value); }
    NODX201::VScaleConstr::VValidType GetValidType(wchar_t const* literal) const { return m_ValidType.Get(literal); }
    wchar_t const* GetValidTypeStr(NODX201::VScaleConstr::VValidType value) const { return m_ValidType.GetStr(value); }
    NODX201::VMinMaxLengthType::VTermination GetTermination(wchar_t const* literal) const { return m_Termination.Get(literal); }
    wchar_t const* GetTerminationStr(NODX201::VMinMaxLengthType::VTermination value) const { return m_Termination.GetStr(value); }
    NODX201::VTableEntry::VRowFragment GetRowFragment(wchar_t const* literal) const { return m_RowFragment.Get(literal); }
    wchar_t const* GetRowFragmentStr(NODX201::VTableEntry::VRowFragment value) const { return m_RowFragment.GetStr(value); }
    NODX201::VDataformat::VDataformatSelection GetDataformatSelection(wchar_t const* literal) const { return m_DataformatSelection.Get(literal); }
    wchar_t const* GetDataformatSelectionStr(NODX201::VDataformat::VDataformatSelection value) const { return m_DataformatSelection.GetStr(value); }
    NODX201::VDiagCodedType::VDataType GetDataType(wchar_t const* literal) const { return m_DataType.Get(literal); }
    wchar_t const* GetDataTypeStr(NODX201::VDiagCodedType::VDataType value) const { return m_DataType.GetStr(value); }
    NODX201::VPhysicalVehicleLink::VPhysicalLinkType GetPhysicalLinkType(wchar_t const* literal) const { return m_PhysicalLinkType.Get(literal); }
    wchar_t const* GetPhysicalLinkTypeStr(NODX201::VPhysicalVehicleLink::VPhysicalLinkType value) const { return m_PhysicalLinkType.GetStr(value); }
    NODX201::VUnitGroup::VUnitGroupCategory GetUnitGroupCategory(wchar_t const* literal) const { return m_UnitGroupCategory.Get(literal); }
    wchar_t const* GetUnitGroupCategoryStr(NODX201::VUnitGroup::VUnitGroupCategory value) const { return m_UnitGroupCategory.GetStr(value); }
    NODX201::VLimit::VIntervalType GetIntervalType(wchar_t const* literal) const { return m_IntervalType.Get(literal); }
    wchar_t const* GetIntervalTypeStr(NODX201::VLimit::VIntervalType value) const { return m_IntervalType.GetStr(value); }
    NODX201::VProjectIdent::VProjIdentType GetProjIdentType(wchar_t const* literal) const { return m_ProjIdentType.Get(literal); }
    wchar_t const* GetProjIdentTypeStr(NODX201::VProjectIdent::VProjIdentType value) const { return m_ProjIdentType.GetStr(value); }
    NODX201::VDiagComm::VDiagClassType GetDiagClassType(wchar_t const* literal) const { return m_DiagClassType.Get(literal); }
    wchar_t const* GetDiagClassTypeStr(NODX201::VDiagComm::VDiagClassType value) const { return m_DiagClassType.GetStr(value); }
    NODX201::VComparam::VStandardisationLevel GetStandardisationLevel(wchar_t const* literal) const { return m_StandardisationLevel.Get(literal); }
    wchar_t const* GetStandardisationLevelStr(NODX201::VComparam::VStandardisationLevel value) const { return m_StandardisationLevel.GetStr(value); }
    NODX201::VPhysicalType::VRadix GetRadix(wchar_t const* literal) const { return m_Radix.Get(literal); }
    wchar_t const* GetRadixStr(NODX201::VPhysicalType::VRadix value) const { return m_Radix.GetStr(value); }
    NODX201::VVehicleConnectorPin::VPinType GetPinType(wchar_t const* literal) const { return m_PinType.Get(literal); }
    wchar_t const* GetPinTypeStr(NODX201::VVehicleConnectorPin::VPinType value) const { return m_PinType.GetStr(value); }
    NODX201::VEncryptCompressMethod::VEncryptCompressMethodType GetEncryptCompressMethodType(wchar_t const* literal) const { return m_EncryptCompressMethodType.Get(literal); }
    wchar_t const* GetEncryptCompressMethodTypeStr(NODX201::VEncryptCompressMethod::VEncryptCompressMethodType value) const { return m_EncryptCompressMethodType.GetStr(value); }
    NODX201::VDiagCodedType::VEncoding GetEncoding(wchar_t const* literal) const { return m_Encoding.Get(literal); }
    wchar_t const* GetEncodingStr(NODX201::VDiagCodedType::VEncoding value) const { return m_Encoding.GetStr(value); }
    NODX201::VCompuMethod::VCompuCategory GetCompuCategory(wchar_t const* literal) const { return m_CompuCategory.Get(literal); }
    wchar_t const* GetCompuCategoryStr(NODX201::VCompuMethod::VCompuCategory value) const { return m_CompuCategory.GetStr(value); }
    NODX201::VDoctype GetDoctype(wchar_t const* literal) const { return m_Doctype.Get(literal); }
    wchar_t const* GetDoctypeStr(NODX201::VDoctype value) const { return m_Doctype.GetStr(value); }
    NODX201::VChecksumResult::VSessionSubElemType GetSessionSubElemType(wchar_t const* literal) const { return m_SessionSubElemType.Get(literal); }
    wchar_t const* GetSessionSubElemTypeStr(std::size_t value) const { return m_SessionSubElemType.GetStr(static_cast<NODX201::VChecksumResult::VSessionSubElemType>(value)); } // Deliberate: takes a number (SessionSubElemTypeStrTakesANumber)
    // clang-format on

protected:
    VEnumTables();

private:
    void InitMappingTables();

#define ODX_ENUMERATION(name, place, ...) EnumMapImpl<NODX201::place> m_##name{L## #name};
#include <diagkit/model/facts/Enumerations.def>
};

/// The tables, one object per process, created by the first call of `Instance()`; that first call must not race.
class DIAGKIT_EXPORT VEnumMapper : public VEnumTables {
public:
    static VEnumMapper& Instance(); ///< the object of the process
    ~VEnumMapper() override;
    VEnumMapper(VEnumMapper const& other);
    VEnumMapper& operator=(VEnumMapper const& other);

private:
    VEnumMapper();
};

/// The same tables under another name; both mappers give the same results.
class DIAGKIT_EXPORT VEnumStringMapper : public VEnumTables {
public:
    static VEnumStringMapper& Instance(); ///< the object of the process
    ~VEnumStringMapper() override;
    VEnumStringMapper(VEnumStringMapper const& other);
    VEnumStringMapper& operator=(VEnumStringMapper const& other);

private:
    VEnumStringMapper();
};

} // namespace NDIAGKIT
