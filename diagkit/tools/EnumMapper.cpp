// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/EnumMapper.h>

namespace NDIAGKIT {

// clang-format off
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VCommRelation::VCommRelationValueType>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VDiagService::VAddressing>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VPhysicalType::VPhysicalDataType>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VSessionDesc::VDirection>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VIdentValue::VIdentValueType>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VScaleConstr::VValidType>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VMinMaxLengthType::VTermination>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VTableEntry::VRowFragment>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VDataformat::VDataformatSelection>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VDiagCodedType::VDataType>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VPhysicalVehicleLink::VPhysicalLinkType>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VUnitGroup::VUnitGroupCategory>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VLimit::VIntervalType>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VProjectIdent::VProjIdentType>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VDiagComm::VDiagClassType>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VComparam::VStandardisationLevel>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VPhysicalType::VRadix>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VVehicleConnectorPin::VPinType>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VEncryptCompressMethod::VEncryptCompressMethodType>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VDiagCodedType::VEncoding>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VCompuMethod::VCompuCategory>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VDoctype>);
DIAGKIT_TEMPLATE_DEFINITION(EnumMapImpl<NODX201::VChecksumResult::VSessionSubElemType>);

namespace {

// One list of literals an enumeration; a literal's value is its place in the list.
constexpr wchar_t const* kCommRelationValueType[] = {L"CURRENT", L"STORED", L"STATIC", L"SUBSTITUTED"};
constexpr wchar_t const* kAddressing[] = {L"FUNCTIONAL", L"PHYSICAL", L"FUNCTIONAL-OR-PHYSICAL"};
constexpr wchar_t const* kPhysicalDataType[] = {L"A_INT32", L"A_UINT32", L"A_FLOAT32", L"A_FLOAT64", L"A_UNICODE2STRING", L"A_BYTEFIELD"};
constexpr wchar_t const* kDirection[] = {L"DOWNLOAD", L"UPLOAD"};
constexpr wchar_t const* kIdentValueType[] = {L"A_UINT32", L"A_BYTEFIELD", L"A_ASCIISTRING"};
constexpr wchar_t const* kValidType[] = {L"VALID", L"NOT-VALID", L"NOT-DEFINED", L"NOT-AVAILABLE"};
constexpr wchar_t const* kTermination[] = {L"END-OF-PDU", L"ZERO", L"HEX-FF"};
constexpr wchar_t const* kRowFragment[] = {L"KEY", L"STRUCT", L"KEY-AND-STRUCT"};
constexpr wchar_t const* kDataformatSelection[] = {L"INTEL-HEX", L"MOTOROLA-S", L"BINARY"};
constexpr wchar_t const* kDataType[] = {L"A_INT32", L"A_UINT32", L"A_FLOAT32", L"A_FLOAT64", L"A_ASCIISTRING", L"A_UTF8STRING", L"A_UNICODE2STRING", L"A_BYTEFIELD"};
constexpr wchar_t const* kPhysicalLinkType[] = {L"ISO_11898_2_DWCAN", L"ISO_11898_3_DWFTCAN", L"ISO_11992_1_DWCAN", L"ISO_9141_2_UART", L"ISO_14230_1_UART", L"ISO_11898_RAW", L"SAE_J1850_VPW", L"SAE_J1850_PWM", L"SAE_J2610_UART", L"SAE_J1708_UART", L"SAE_J1939_11_DWCAN", L"GMW_3089_SWCAN", L"XDE_5024_UART", L"CCD_UART"};
constexpr wchar_t const* kUnitGroupCategory[] = {L"COUNTRY", L"EQUIV-UNITS"};
constexpr wchar_t const* kIntervalType[] = {L"OPEN", L"CLOSED", L"INFINITE"};
constexpr wchar_t const* kProjIdentType[] = {L"DOC", L"PART-NO", L"TOOL"};
constexpr wchar_t const* kDiagClassType[] = {L"STARTCOMM", L"STOPCOMM", L"VARIANTIDENTIFICATION", L"READ-DYN-DEFINED-MESSAGE", L"DYN-DEF-MESSAGE", L"CLEAR-DYN-DEF-MESSAGE"};
constexpr wchar_t const* kStandardisationLevel[] = {L"STANDARD", L"OEM-SPECIFIC", L"OPTIONAL"};
constexpr wchar_t const* kRadix[] = {L"HEX", L"DEC", L"BIN", L"OCT"};
constexpr wchar_t const* kPinType[] = {L"HI", L"LOW", L"K", L"L", L"TX", L"RX", L"PLUS", L"MINUS", L"SINGLE"};
constexpr wchar_t const* kEncryptCompressMethodType[] = {L"A_UINT32", L"A_BYTEFIELD"};
constexpr wchar_t const* kEncoding[] = {L"BCD-P", L"BCD-UP", L"1C", L"2C", L"SM", L"UTF-8", L"UCS-2", L"ISO-8859-1", L"ISO-8859-2", L"WINDOWS-1252", L"NONE"};
constexpr wchar_t const* kCompuCategory[] = {L"IDENTICAL", L"LINEAR", L"SCALE-LINEAR", L"TEXTTABLE", L"COMPUCODE", L"TAB-INTP", L"RAT-FUNC", L"SCALE-RAT-FUNC"};
constexpr wchar_t const* kDoctype[] = {L"FLASH", L"CONTAINER", L"LAYER", L"MULTIPLE-ECU-JOB-SPEC", L"COMPARAM-SPEC"};
constexpr wchar_t const* kSessionSubElemType[] = {L"A_UINT32", L"A_BYTEFIELD", L"A_ASCIISTRING"};
// clang-format on

template <class T, std::size_t Size>
void Fill(EnumMapImpl<T>& table, wchar_t const* const (&literals)[Size]) {
    for (std::size_t value = 0; value < Size; ++value) {
        table.Add(literals[value], static_cast<T>(value));
    }
}

} // namespace

void VEnumTables::InitMappingTables() {
    Fill(m_commRelationValueType, kCommRelationValueType);
    Fill(m_addressing, kAddressing);
    Fill(m_physicalDataType, kPhysicalDataType);
    Fill(m_direction, kDirection);
    Fill(m_identValueType, kIdentValueType);
    Fill(m_validType, kValidType);
    Fill(m_termination, kTermination);
    Fill(m_rowFragment, kRowFragment);
    Fill(m_dataformatSelection, kDataformatSelection);
    Fill(m_dataType, kDataType);
    Fill(m_physicalLinkType, kPhysicalLinkType);
    Fill(m_unitGroupCategory, kUnitGroupCategory);
    Fill(m_intervalType, kIntervalType);
    Fill(m_projIdentType, kProjIdentType);
    Fill(m_diagClassType, kDiagClassType);
    Fill(m_standardisationLevel, kStandardisationLevel);
    Fill(m_radix, kRadix);
    Fill(m_pinType, kPinType);
    Fill(m_encryptCompressMethodType, kEncryptCompressMethodType);
    Fill(m_encoding, kEncoding);
    Fill(m_compuCategory, kCompuCategory);
    Fill(m_doctype, kDoctype);
    Fill(m_sessionSubElemType, kSessionSubElemType);
}

VEnumTables::VEnumTables() { InitMappingTables(); }
VEnumTables::VEnumTables(VEnumTables const& other) = default;
VEnumTables& VEnumTables::operator=(VEnumTables const& other) = default;
VEnumTables::~VEnumTables() = default;

VEnumMapper::VEnumMapper() = default;
VEnumMapper::VEnumMapper(VEnumMapper const& other) = default;
VEnumMapper& VEnumMapper::operator=(VEnumMapper const& other) = default;
VEnumMapper::~VEnumMapper() = default;

VEnumMapper& VEnumMapper::Instance() {
    static VEnumMapper instance;
    return instance;
}

VEnumStringMapper::VEnumStringMapper() = default;
VEnumStringMapper::VEnumStringMapper(VEnumStringMapper const& other) = default;
VEnumStringMapper& VEnumStringMapper::operator=(VEnumStringMapper const& other) = default;
VEnumStringMapper::~VEnumStringMapper() = default;

VEnumStringMapper& VEnumStringMapper::Instance() {
    static VEnumStringMapper instance;
    return instance;
}

} // namespace NDIAGKIT
