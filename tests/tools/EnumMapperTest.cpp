// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/EnumMapper.h>

#include <functional>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

namespace NTest {
namespace {

using NDIAGKIT::VEnumMapper;
using NDIAGKIT::VEnumStringMapper;
using NDIAGKIT::VEnumTables;
using VLiterals = std::vector<std::wstring>;

static_assert(std::has_virtual_destructor_v<VEnumMapper> && std::has_virtual_destructor_v<VEnumStringMapper>);
static_assert(!std::is_default_constructible_v<VEnumMapper> && !std::is_default_constructible_v<VEnumStringMapper>);
static_assert(std::is_copy_constructible_v<VEnumMapper> && std::is_copy_assignable_v<VEnumMapper>);
static_assert(std::is_copy_constructible_v<VEnumStringMapper> && std::is_copy_assignable_v<VEnumStringMapper>);
static_assert(sizeof(VEnumMapper) == sizeof(VEnumStringMapper));

struct VTable {
    std::wstring name;
    VLiterals literals; ///< a literal's value is its place
    std::function<int(VEnumTables const&, wchar_t const*)> get;
    std::function<wchar_t const*(VEnumTables const&, int)> getStr;
};

template <class Enum>
VTable Table(std::wstring name, Enum (VEnumTables::*get)(wchar_t const*) const,
             wchar_t const* (VEnumTables::*getStr)(Enum) const, VLiterals literals) {
    static_assert(std::is_enum_v<Enum>);
    return {
        std::move(name), std::move(literals),
        [get](VEnumTables const& tables, wchar_t const* literal) { return static_cast<int>((tables.*get)(literal)); },
        [getStr](VEnumTables const& tables, int value) { return (tables.*getStr)(static_cast<Enum>(value)); }};
}

// clang-format off
std::vector<VTable> Tables() {
    using T = VEnumTables;
    return {
        Table<NODX201::VCommRelation::VCommRelationValueType>(L"CommRelationValueType", &T::GetCommRelationValueType, &T::GetCommRelationValueTypeStr, {L"CURRENT", L"STORED", L"STATIC", L"SUBSTITUTED"}),
        Table<NODX201::VDiagService::VAddressing>(L"Addressing", &T::GetAddressing, &T::GetAddressingStr, {L"FUNCTIONAL", L"PHYSICAL", L"FUNCTIONAL-OR-PHYSICAL"}),
        Table<NODX201::VPhysicalType::VPhysicalDataType>(L"PhysicalDataType", &T::GetPhysicalDataType, &T::GetPhysicalDataTypeStr, {L"A_INT32", L"A_UINT32", L"A_FLOAT32", L"A_FLOAT64", L"A_UNICODE2STRING", L"A_BYTEFIELD"}),
        Table<NODX201::VSessionDesc::VDirection>(L"Direction", &T::GetDirection, &T::GetDirectionStr, {L"DOWNLOAD", L"UPLOAD"}),
        Table<NODX201::VIdentValue::VIdentValueType>(L"IdentValueType", &T::GetIdentValueType, &T::GetIdentValueTypeStr, {L"A_UINT32", L"A_BYTEFIELD", L"A_ASCIISTRING"}),
        Table<NODX201::VScaleConstr::VValidType>(L"ValidType", &T::GetValidType, &T::GetValidTypeStr, {L"VALID", L"NOT-VALID", L"NOT-DEFINED", L"NOT-AVAILABLE"}),
        Table<NODX201::VMinMaxLengthType::VTermination>(L"Termination", &T::GetTermination, &T::GetTerminationStr, {L"END-OF-PDU", L"ZERO", L"HEX-FF"}),
        Table<NODX201::VTableEntry::VRowFragment>(L"RowFragment", &T::GetRowFragment, &T::GetRowFragmentStr, {L"KEY", L"STRUCT", L"KEY-AND-STRUCT"}),
        Table<NODX201::VDataformat::VDataformatSelection>(L"DataformatSelection", &T::GetDataformatSelection, &T::GetDataformatSelectionStr, {L"INTEL-HEX", L"MOTOROLA-S", L"BINARY"}),
        Table<NODX201::VDiagCodedType::VDataType>(L"DataType", &T::GetDataType, &T::GetDataTypeStr, {L"A_INT32", L"A_UINT32", L"A_FLOAT32", L"A_FLOAT64", L"A_ASCIISTRING", L"A_UTF8STRING", L"A_UNICODE2STRING", L"A_BYTEFIELD"}),
        Table<NODX201::VPhysicalVehicleLink::VPhysicalLinkType>(L"PhysicalLinkType", &T::GetPhysicalLinkType, &T::GetPhysicalLinkTypeStr, {L"ISO_11898_2_DWCAN", L"ISO_11898_3_DWFTCAN", L"ISO_11992_1_DWCAN", L"ISO_9141_2_UART", L"ISO_14230_1_UART", L"ISO_11898_RAW", L"SAE_J1850_VPW", L"SAE_J1850_PWM", L"SAE_J2610_UART", L"SAE_J1708_UART", L"SAE_J1939_11_DWCAN", L"GMW_3089_SWCAN", L"XDE_5024_UART", L"CCD_UART"}),
        Table<NODX201::VUnitGroup::VUnitGroupCategory>(L"UnitGroupCategory", &T::GetUnitGroupCategory, &T::GetUnitGroupCategoryStr, {L"COUNTRY", L"EQUIV-UNITS"}),
        Table<NODX201::VLimit::VIntervalType>(L"IntervalType", &T::GetIntervalType, &T::GetIntervalTypeStr, {L"OPEN", L"CLOSED", L"INFINITE"}),
        Table<NODX201::VProjectIdent::VProjIdentType>(L"ProjIdentType", &T::GetProjIdentType, &T::GetProjIdentTypeStr, {L"DOC", L"PART-NO", L"TOOL"}),
        Table<NODX201::VDiagComm::VDiagClassType>(L"DiagClassType", &T::GetDiagClassType, &T::GetDiagClassTypeStr, {L"STARTCOMM", L"STOPCOMM", L"VARIANTIDENTIFICATION", L"READ-DYN-DEFINED-MESSAGE", L"DYN-DEF-MESSAGE", L"CLEAR-DYN-DEF-MESSAGE"}),
        Table<NODX201::VComparam::VStandardisationLevel>(L"StandardisationLevel", &T::GetStandardisationLevel, &T::GetStandardisationLevelStr, {L"STANDARD", L"OEM-SPECIFIC", L"OPTIONAL"}),
        Table<NODX201::VPhysicalType::VRadix>(L"Radix", &T::GetRadix, &T::GetRadixStr, {L"HEX", L"DEC", L"BIN", L"OCT"}),
        Table<NODX201::VVehicleConnectorPin::VPinType>(L"PinType", &T::GetPinType, &T::GetPinTypeStr, {L"HI", L"LOW", L"K", L"L", L"TX", L"RX", L"PLUS", L"MINUS", L"SINGLE"}),
        Table<NODX201::VEncryptCompressMethod::VEncryptCompressMethodType>(L"EncryptCompressMethodType", &T::GetEncryptCompressMethodType, &T::GetEncryptCompressMethodTypeStr, {L"A_UINT32", L"A_BYTEFIELD"}),
        Table<NODX201::VDiagCodedType::VEncoding>(L"Encoding", &T::GetEncoding, &T::GetEncodingStr, {L"BCD-P", L"BCD-UP", L"1C", L"2C", L"SM", L"UTF-8", L"UCS-2", L"ISO-8859-1", L"ISO-8859-2", L"WINDOWS-1252", L"NONE"}),
        Table<NODX201::VCompuMethod::VCompuCategory>(L"CompuCategory", &T::GetCompuCategory, &T::GetCompuCategoryStr, {L"IDENTICAL", L"LINEAR", L"SCALE-LINEAR", L"TEXTTABLE", L"COMPUCODE", L"TAB-INTP", L"RAT-FUNC", L"SCALE-RAT-FUNC"}),
        Table<NODX201::VDoctype>(L"Doctype", &T::GetDoctype, &T::GetDoctypeStr, {L"FLASH", L"CONTAINER", L"LAYER", L"MULTIPLE-ECU-JOB-SPEC", L"COMPARAM-SPEC"}),
        {L"SessionSubElemType", {L"A_UINT32", L"A_BYTEFIELD", L"A_ASCIISTRING"},
         [](T const& tables, wchar_t const* literal) { return static_cast<int>(tables.GetSessionSubElemType(literal)); },
         [](T const& tables, int value) { return tables.GetSessionSubElemTypeStr(static_cast<std::size_t>(value)); }},
    };
}
// clang-format on

/// Both mappers in turn.
class EnumMapperTest : public testing::TestWithParam<std::string> {
protected:
    static VEnumTables& Mapper(std::string const& name) {
        if (name == "EnumMapper") {
            return VEnumMapper::Instance();
        }
        return VEnumStringMapper::Instance();
    }

    VEnumTables& m_mapper = Mapper(GetParam());
};

TEST_P(EnumMapperTest, EveryLiteralIsFoundBothWays) {
    std::set<std::wstring> names;
    std::size_t pairs = 0;
    for (VTable const& table : Tables()) {
        names.insert(table.name);
        pairs += table.literals.size();
        for (std::size_t value = 0; value < table.literals.size(); ++value) {
            EXPECT_EQ(table.get(m_mapper, table.literals[value].c_str()), static_cast<int>(value)) << table.name;
            EXPECT_EQ(table.getStr(m_mapper, static_cast<int>(value)), table.literals[value]) << table.name;
        }
    }
    EXPECT_EQ(names.size(), 23u);
    EXPECT_EQ(pairs, 112u);
}

TEST_P(EnumMapperTest, ATableHoldsNoOtherLiteral) {
    std::set<std::wstring> all;
    for (VTable const& table : Tables()) {
        all.insert(table.literals.begin(), table.literals.end());
    }
    for (VTable const& table : Tables()) {
        std::set<std::wstring> const own(table.literals.begin(), table.literals.end());
        ASSERT_EQ(own.size(), table.literals.size()) << table.name;
        for (std::wstring const& literal : all) {
            if (own.count(literal) == 0) {
                EXPECT_EQ(table.get(m_mapper, literal.c_str()), 0) << table.name << " of " << literal;
            }
        }
    }
}

TEST_P(EnumMapperTest, AnUnknownValueIsAQuestionMark) {
    for (VTable const& table : Tables()) {
        int const count = static_cast<int>(table.literals.size());
        for (int const value : {-1, count, count + 1, 1000}) {
            EXPECT_EQ(table.getStr(m_mapper, value), std::wstring(L"?")) << table.name << " of " << value;
        }
    }
}

TEST_P(EnumMapperTest, AnUnknownLiteralIsTheFirstEnumerator) {
    for (VTable const& table : Tables()) {
        for (std::wstring const& literal : table.literals) {
            for (std::wstring const& unknown : {L" " + literal, literal + L" ", literal + L"?", std::wstring()}) {
                EXPECT_EQ(table.get(m_mapper, unknown.c_str()), 0) << table.name << " of " << unknown;
            }
        }
    }
    EXPECT_EQ(m_mapper.GetAddressing(L"unknown"), NODX201::VDiagService::VAddressing::Functional);
    EXPECT_EQ(m_mapper.GetAddressing(nullptr), NODX201::VDiagService::VAddressing::Functional);
    EXPECT_EQ(m_mapper.GetCompuCategory(L"unknown"), NODX201::VCompuMethod::VCompuCategory::Identical);
}

TEST_P(EnumMapperTest, SingleCharacterAndDigitLiteralsAreFound) {
    EXPECT_EQ(static_cast<int>(m_mapper.GetEncoding(L"2C")), 3);
    EXPECT_EQ(m_mapper.GetEncodingStr(static_cast<NODX201::VDiagCodedType::VEncoding>(3)), std::wstring(L"2C"));
    EXPECT_EQ(m_mapper.GetPinTypeStr(static_cast<NODX201::VVehicleConnectorPin::VPinType>(3)), std::wstring(L"L"));
}

TEST_P(EnumMapperTest, OneLiteralHasOneValueInEachTable) {
    EXPECT_EQ(static_cast<int>(m_mapper.GetDataType(L"A_ASCIISTRING")), 4);
    EXPECT_EQ(static_cast<int>(m_mapper.GetIdentValueType(L"A_ASCIISTRING")), 2);
    EXPECT_EQ(static_cast<int>(m_mapper.GetPhysicalDataType(L"A_ASCIISTRING")), 0) << "not in that table";
    EXPECT_EQ(static_cast<int>(m_mapper.GetPhysicalDataType(L"A_UINT32")), 1);
    EXPECT_EQ(static_cast<int>(m_mapper.GetDataType(L"A_UINT32")), 1);
    EXPECT_EQ(static_cast<int>(m_mapper.GetIdentValueType(L"A_UINT32")), 0);
}

TEST_P(EnumMapperTest, ARadixOutsideTheEnumerationIsAQuestionMarkAndCaseMatters) {
    EXPECT_EQ(m_mapper.GetRadixStr(static_cast<NODX201::VPhysicalType::VRadix>(4)), std::wstring(L"?"));
    EXPECT_EQ(m_mapper.GetRadixStr(static_cast<NODX201::VPhysicalType::VRadix>(-1)), std::wstring(L"?"));
    EXPECT_EQ(static_cast<int>(m_mapper.GetRadix(L"hex")), 0);
    EXPECT_EQ(static_cast<int>(m_mapper.GetRadix(L"dec")), 0) << "the default, although DEC is 1";
}

TEST_P(EnumMapperTest, SessionSubElemTypeStrTakesANumber) {
    static_assert(std::is_same_v<decltype(&VEnumTables::GetSessionSubElemTypeStr),
                                 wchar_t const* (VEnumTables::*)(std::size_t) const>);
    EXPECT_EQ(m_mapper.GetSessionSubElemTypeStr(2), std::wstring(L"A_ASCIISTRING"));
    EXPECT_EQ(m_mapper.GetSessionSubElemTypeStr(3), std::wstring(L"?"));
    EXPECT_EQ(m_mapper.GetSessionSubElemTypeStr((std::size_t{1} << 32) + 2), std::wstring(L"A_ASCIISTRING"))
        << "the number is narrowed to the enumeration";
}

TEST_P(EnumMapperTest, AnAnswerStaysWhereItIs) {
    wchar_t const* const text = m_mapper.GetDoctypeStr(NODX201::VDoctype::Layer);
    EXPECT_EQ(text, m_mapper.GetDoctypeStr(NODX201::VDoctype::Layer));
    EXPECT_EQ(text, std::wstring(L"LAYER"));
}

INSTANTIATE_TEST_SUITE_P(Of, EnumMapperTest, testing::Values("EnumMapper", "EnumStringMapper"),
                         [](auto const& name) { return name.param; });

TEST(EnumMapperInstanceTest, EachMapperIsOneObjectAndTheTwoAreDifferent) {
    EXPECT_EQ(&VEnumMapper::Instance(), &VEnumMapper::Instance());
    EXPECT_EQ(&VEnumStringMapper::Instance(), &VEnumStringMapper::Instance());
    EXPECT_NE(static_cast<void*>(&VEnumMapper::Instance()), static_cast<void*>(&VEnumStringMapper::Instance()));
}

TEST(EnumMapperInstanceTest, ACopyAnswersFromItsOwnTables) {
    VEnumMapper copy(VEnumMapper::Instance());
    EXPECT_EQ(static_cast<int>(copy.GetPinType(L"TX")), 4);
    EXPECT_NE(copy.GetPinTypeStr(NODX201::VVehicleConnectorPin::VPinType::Tx),
              VEnumMapper::Instance().GetPinTypeStr(NODX201::VVehicleConnectorPin::VPinType::Tx));
    VEnumStringMapper assigned(VEnumStringMapper::Instance());
    assigned = VEnumStringMapper::Instance();
    EXPECT_EQ(static_cast<int>(assigned.GetPinType(L"TX")), 4);
    copy = VEnumMapper::Instance();
    EXPECT_EQ(static_cast<int>(copy.GetPinType(L"TX")), 4);
}

} // namespace
} // namespace NTest
