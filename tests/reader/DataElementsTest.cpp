// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Odx.h>

#include "reader/ReaderTest.h"

/// The results for each element of data dictionaries, of administrative data and of special data groups.

namespace NTest {
namespace {

using namespace NMemory;
using NODX201::VOdxTagEnum;

class VDataElementsTest : public VReaderTest {
protected:
    ~VDataElementsTest() override { EXPECT_TRUE(m_result.unknownElements.empty()); }

    VMemDataObjectProp& Dop() { return Get<VMemDataObjectProp>(L"D"); }

    /// A DATA-OBJECT-PROP "D" with these parts.
    void ReadDop(std::string const& method, std::string const& rest = {}) {
        Read(Dictionary("<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"D\"><SHORT-NAME>D</SHORT-NAME>" + method + rest +
                            "</DATA-OBJECT-PROP></DATA-OBJECT-PROPS>",
                        "2.1.0"));
        EXPECT_EQ(Diagnostics(), "");
    }

    template <class T>
    T& ReadCodedType(std::string const& attributes, std::string const& content) {
        ReadDop("<DIAG-CODED-TYPE " + attributes + ">" + content + "</DIAG-CODED-TYPE>");
        return As<T>(Dop().GetDiagCodedType());
    }
};

std::wstring Joined(std::vector<wchar_t const*> const& texts) {
    std::wstring text;
    for (wchar_t const* const each : texts) {
        text += std::wstring(each) + L"|";
    }
    return text;
}

std::wstring Joined(NODX201::VStringCollection& texts) {
    std::wstring text;
    for (auto iter = texts.Begin(); iter != texts.End(); ++iter) {
        text += std::wstring(*iter) + L"|";
    }
    return text;
}

/// A limit as `[text]` when closed, else with its interval type.
std::wstring Limit(NODX201::VLimit& limit) {
    auto& read = As<VMemLimit>(limit);
    return std::wstring(read.GetIntervalType()) + L' ' + read.GetText();
}

// Conversions

TEST_F(VDataElementsTest, CompuMethodWithScales) {
    ReadDop(
        "<COMPU-METHOD><CATEGORY> TEXTTABLE "
        "</CATEGORY><COMPU-INTERNAL-TO-PHYS><COMPU-SCALES><COMPU-SCALE><SHORT-LABEL>on</SHORT-LABEL><DESC><p>x</p></"
        "DESC>"
        "<LOWER-LIMIT INTERVAL-TYPE=\"OPEN\"> 0x1F "
        "</LOWER-LIMIT><UPPER-LIMIT>9</UPPER-LIMIT><COMPU-INVERSE-VALUE><V>1</V></COMPU-INVERSE-VALUE><COMPU-CONST><VT "
        "TI=\"t\"> on </VT></COMPU-CONST></COMPU-SCALE>"
        "<COMPU-SCALE><LOWER-LIMIT "
        "INTERVAL-TYPE=\"INFINITE\"/><COMPU-RATIONAL-COEFFS><COMPU-NUMERATOR><V>0</V><V>0.5</V></"
        "COMPU-NUMERATOR><COMPU-DENOMINATOR><V>1</V></COMPU-DENOMINATOR></COMPU-RATIONAL-COEFFS></COMPU-SCALE>"
        "<COMPU-SCALE><COMPU-CONST><V>2</V></COMPU-CONST></COMPU-SCALE></COMPU-SCALES><COMPU-DEFAULT-VALUE><VT>off</"
        "VT></COMPU-DEFAULT-VALUE></COMPU-INTERNAL-TO-PHYS></COMPU-METHOD>");
    auto& method = As<VMemCompuMethod>(Dop().GetCompuMethod());
    EXPECT_STREQ(method.GetCategory(), L"TEXTTABLE");
    EXPECT_FALSE(method.HasCompuPhysToInternal());
    auto& toPhys = method.GetCompuInternalToPhys();
    auto& scales = As<NODX201::VCompuScaleCollection>(toPhys.GetCompuScalesProgCodeChoice());
    ASSERT_EQ(scales.Count(), 3U);
    auto& first = As<VMemCompuScale>(At(scales, 0));
    EXPECT_STREQ(first.GetShortLabel(), L"on");
    EXPECT_STREQ(first.GetDesc(), L"<p>x</p>");
    EXPECT_EQ(Limit(first.GetLowerLimit()), L"OPEN  0x1F ");
    EXPECT_EQ(Limit(first.GetUpperLimit()), L"CLOSED 9");
    EXPECT_STREQ(As<VMemCompuInverseValue>(first.GetCompuInverseValue()).GetV(), L"1");
    auto& constant = As<VMemCompuConst>(first.GetCompuConstCompuRationalCoeffsChoice());
    EXPECT_STREQ(constant.GetV(), L"");
    EXPECT_STREQ(As<VMemVt>(constant.GetVt()).GetText(), L" on ");
    EXPECT_STREQ(As<VMemVt>(constant.GetVt()).GetTextId(), L"t");
    auto& second = As<VMemCompuScale>(At(scales, 1));
    EXPECT_EQ(Limit(second.GetLowerLimit()), L"INFINITE ");
    EXPECT_FALSE(second.HasUpperLimit() || second.HasCompuInverseValue());
    auto& coefficients = As<VMemCompuRationalCoeffs>(second.GetCompuConstCompuRationalCoeffsChoice());
    EXPECT_EQ(Joined(coefficients.GetNumerators()), L"0|0.5|");
    EXPECT_EQ(Joined(coefficients.GetDenominators()), L"1|");
    auto& third = As<VMemCompuConst>(At(scales, 2).GetCompuConstCompuRationalCoeffsChoice());
    EXPECT_STREQ(third.GetV(), L"2");
    EXPECT_FALSE(third.HasVt());
    EXPECT_STREQ(As<VMemVt>(toPhys.GetCompuDefaultValue().GetVt()).GetText(), L"off");
}

TEST_F(VDataElementsTest, CompuMethodWithPrograms) {
    ReadDop("<COMPU-METHOD><CATEGORY>COMPUCODE</CATEGORY><COMPU-INTERNAL-TO-PHYS><PROG-CODE><CODE-FILE>a</CODE-FILE></"
            "PROG-CODE></COMPU-INTERNAL-TO-PHYS>"
            "<COMPU-PHYS-TO-INTERNAL><PROG-CODE><CODE-FILE>b</CODE-FILE></PROG-CODE></COMPU-PHYS-TO-INTERNAL></"
            "COMPU-METHOD>");
    auto& method = Dop().GetCompuMethod();
    EXPECT_STREQ(As<VMemProgCode>(method.GetCompuInternalToPhys().GetCompuScalesProgCodeChoice()).GetCodeFile(), L"a");
    EXPECT_FALSE(method.GetCompuInternalToPhys().HasCompuDefaultValue());
    EXPECT_STREQ(As<VMemProgCode>(method.GetCompuPhysToInternal().GetProgCode()).GetCodeFile(), L"b");
    ReadDop("<COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY></COMPU-METHOD>");
    EXPECT_FALSE(Dop().GetCompuMethod().HasCompuInternalToPhys() || Dop().GetCompuMethod().HasCompuPhysToInternal());
}

// Types

TEST_F(VDataElementsTest, CodedTypes) {
    auto& standard =
        ReadCodedType<VMemStandardLengthType>("xsi:type=\"STANDARD-LENGTH-TYPE\" BASE-DATA-TYPE=\"A_INT32\" "
                                              "BASE-TYPE-ENCODING=\"2C\" IS-HIGHLOW-BYTE-ORDER=\"false\"",
                                              "<BIT-LENGTH>12</BIT-LENGTH><BIT-MASK>0FFF</BIT-MASK>");
    EXPECT_STREQ(standard.GetBaseDataType(), L"A_INT32");
    EXPECT_STREQ(standard.GetBaseTypeEncoding(), L"2C");
    EXPECT_FALSE(standard.IsHighlowByteOrder());
    EXPECT_STREQ(standard.GetBitLength(), L"12");
    EXPECT_STREQ(standard.GetBitMask(), L"0FFF");
    auto& leading = ReadCodedType<VMemLeadingLengthInfoType>(
        "xsi:type=\"LEADING-LENGTH-INFO-TYPE\" BASE-DATA-TYPE=\"A_BYTEFIELD\"", "<BIT-LENGTH>8</BIT-LENGTH>");
    EXPECT_STREQ(leading.GetBitLength(), L"8");
    EXPECT_STREQ(leading.GetBaseTypeEncoding(), L"");
    EXPECT_TRUE(leading.IsHighlowByteOrder());
    auto& minMax = ReadCodedType<VMemMinMaxLengthType>(
        "xsi:type=\"MIN-MAX-LENGTH-TYPE\" BASE-DATA-TYPE=\"A_ASCIISTRING\" TERMINATION=\"ZERO\"",
        "<MAX-LENGTH>16</MAX-LENGTH><MIN-LENGTH>1</MIN-LENGTH>");
    EXPECT_STREQ(minMax.GetTermination(), L"ZERO");
    EXPECT_STREQ(minMax.GetMaxLength(), L"16");
    EXPECT_STREQ(minMax.GetMinLength(), L"1");
    Read(Layer("<DIAG-DATA-DICTIONARY-SPEC><DATA-OBJECT-PROPS><DATA-OBJECT-PROP "
               "ID=\"D\"><SHORT-NAME>D</SHORT-NAME><DIAG-CODED-TYPE xsi:type=\"PARAM-LENGTH-INFO-TYPE\" "
               "BASE-DATA-TYPE=\"A_BYTEFIELD\">"
               "<LENGTH-KEY-REF "
               "ID-REF=\"K\"/></DIAG-CODED-TYPE></DATA-OBJECT-PROP></DATA-OBJECT-PROPS></"
               "DIAG-DATA-DICTIONARY-SPEC><REQUESTS><REQUEST ID=\"R\"><SHORT-NAME>R</SHORT-NAME><PARAMS>"
               "<PARAM xsi:type=\"LENGTH-KEY\" ID=\"K\"><SHORT-NAME>K</SHORT-NAME><DOP-SNREF "
               "SHORT-NAME=\"x\"/></PARAM></PARAMS></REQUEST></REQUESTS>",
               "2.1.0"));
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_TRUE(As<VMemParamLengthInfoType>(Dop().GetDiagCodedType()).GetLengthKeyRef().HasLengthKey());
}

TEST_F(VDataElementsTest, PhysicalTypeAndConstraints) {
    ReadDop(
        "<PHYSICAL-TYPE BASE-DATA-TYPE=\"A_FLOAT64\" DISPLAY-RADIX=\"HEX\"><PRECISION>2</PRECISION></PHYSICAL-TYPE>",
        "<INTERNAL-CONSTR><LOWER-LIMIT>0</LOWER-LIMIT><UPPER-LIMIT "
        "INTERVAL-TYPE=\"INFINITE\"/><SCALE-CONSTRS><SCALE-CONSTR "
        "VALIDITY=\"NOT-VALID\"><SHORT-LABEL>s</SHORT-LABEL><DESC><p/></DESC>"
        "<LOWER-LIMIT>1</LOWER-LIMIT><UPPER-LIMIT>2</UPPER-LIMIT></SCALE-CONSTR></SCALE-CONSTRS></INTERNAL-CONSTR>");
    auto& type = As<VMemPhysicalType>(Dop().GetPhysicalType());
    EXPECT_STREQ(type.GetBaseDataType(), L"A_FLOAT64");
    EXPECT_STREQ(type.GetDisplayRadix(), L"HEX");
    EXPECT_STREQ(type.GetPrecision(), L"2");
    auto& constraint = Dop().GetInternalConstr();
    EXPECT_EQ(Limit(constraint.GetLowerLimit()), L"CLOSED 0");
    EXPECT_EQ(Limit(constraint.GetUpperLimit()), L"INFINITE ");
    auto& scale = As<VMemScaleConstr>(At(constraint.ScaleConstrCollection(), 0));
    EXPECT_STREQ(scale.GetValidity(), L"NOT-VALID");
    EXPECT_STREQ(scale.GetShortLabel(), L"s");
    EXPECT_STREQ(scale.GetDesc(), L"<p/>");
    EXPECT_EQ(Limit(scale.GetLowerLimit()), L"CLOSED 1");
    EXPECT_EQ(Limit(scale.GetUpperLimit()), L"CLOSED 2");
    ReadDop("<PHYSICAL-TYPE BASE-DATA-TYPE=\"A_UINT32\"/><INTERNAL-CONSTR/>");
    EXPECT_STREQ(As<VMemPhysicalType>(Dop().GetPhysicalType()).GetDisplayRadix(), L"DEC");
    EXPECT_STREQ(As<VMemPhysicalType>(Dop().GetPhysicalType()).GetPrecision(), L"");
    EXPECT_FALSE(Dop().GetInternalConstr().HasLowerLimit() || Dop().GetInternalConstr().HasUpperLimit());
}

// DOPs

TEST_F(VDataElementsTest, DtcDop) {
    Read(Dictionary(
        "<DTC-DOPS><DTC-DOP ID=\"D\" IS-VISIBLE=\"true\"><SHORT-NAME>D</SHORT-NAME><ADMIN-DATA/><DIAG-CODED-TYPE "
        "xsi:type=\"STANDARD-LENGTH-TYPE\" BASE-DATA-TYPE=\"A_UINT32\"><BIT-LENGTH>24</BIT-LENGTH></DIAG-CODED-TYPE>"
        "<PHYSICAL-TYPE "
        "BASE-DATA-TYPE=\"A_UINT32\"/><COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY></COMPU-METHOD><DTCS><DTC-REF "
        "ID-REF=\"T\"/><DTC ID=\"T\" OID=\"o\"><SHORT-NAME>P0100</SHORT-NAME><TROUBLE-CODE>256</TROUBLE-CODE>"
        "<DISPLAY-TROUBLE-CODE>P0100</DISPLAY-TROUBLE-CODE><TEXT TI=\"t\"> air flow "
        "</TEXT><LEVEL>1</LEVEL><SDGS><SDG/></SDGS></DTC></DTCS></DTC-DOP>"
        "<DTC-DOP ID=\"E\"><SHORT-NAME>E</SHORT-NAME><DIAG-CODED-TYPE xsi:type=\"STANDARD-LENGTH-TYPE\" "
        "BASE-DATA-TYPE=\"A_UINT32\"><BIT-LENGTH>24</BIT-LENGTH></DIAG-CODED-TYPE>"
        "<PHYSICAL-TYPE "
        "BASE-DATA-TYPE=\"A_UINT32\"/><COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY></COMPU-METHOD><DTCS/></DTC-DOP></"
        "DTC-DOPS>"));
    EXPECT_EQ(Diagnostics(), "");
    auto& dop = Get<VMemDtcDop>(L"D");
    EXPECT_TRUE(dop.IsVisible() && dop.HasAdminData() && dop.HasDiagCodedType() && dop.HasPhysicalType() &&
                dop.HasCompuMethod());
    ASSERT_EQ(dop.DtcProxyCollection().Count(), 2U);
    auto& link = As<NODX201::VDtcLink>(At(dop.DtcProxyCollection(), 0));
    ASSERT_TRUE(link.HasDtc());
    EXPECT_EQ(&link.GetDtc(), &Element(L"T"));
    auto& dtc = As<VMemDtc>(At(dop.DtcProxyCollection(), 1));
    EXPECT_STREQ(dtc.GetShortName(), L"P0100");
    EXPECT_STREQ(dtc.GetOid(), L"o");
    EXPECT_STREQ(dtc.GetTroubleCode(), L"256");
    EXPECT_STREQ(dtc.GetDisplayTroubleCode(), L"P0100");
    EXPECT_STREQ(dtc.GetText(), L" air flow ");
    EXPECT_STREQ(dtc.GetTextId(), L"t");
    EXPECT_STREQ(dtc.GetLevel(), L"1");
    EXPECT_EQ(dtc.SdgCollection().Count(), 1U);
    EXPECT_FALSE(Get<VMemDtcDop>(L"E").IsVisible());
}

TEST_F(VDataElementsTest, StructuresAndFields) {
    Read(Dictionary(
        "<ENV-DATA-DESCS><ENV-DATA-DESC ID=\"N\"><SHORT-NAME>N</SHORT-NAME><ADMIN-DATA/><PARAM-SNREF "
        "SHORT-NAME=\"Dtc\"/><ENV-DATAS><ENV-DATA-REF ID-REF=\"E1\"/><ENV-DATA "
        "ID=\"E2\"><SHORT-NAME>E2</SHORT-NAME><PARAMS/>"
        "<DTC-VALUES><DTC-VALUE>256</DTC-VALUE><DTC-VALUE>257</DTC-VALUE></DTC-VALUES></ENV-DATA></ENV-DATAS></"
        "ENV-DATA-DESC></ENV-DATA-DESCS>"
        "<DATA-OBJECT-PROPS><DATA-OBJECT-PROP "
        "ID=\"D\"><SHORT-NAME>D</SHORT-NAME></DATA-OBJECT-PROP></DATA-OBJECT-PROPS>"
        "<STRUCTURES><STRUCTURE ID=\"S\" "
        "IS-VISIBLE=\"true\"><SHORT-NAME>S</SHORT-NAME><BYTE-SIZE>4</BYTE-SIZE><PARAMS/></STRUCTURE><STRUCTURE "
        "ID=\"S2\"><SHORT-NAME>S2</SHORT-NAME><PARAMS/></STRUCTURE></STRUCTURES>"
        "<STATIC-FIELDS><STATIC-FIELD ID=\"F1\" IS-VISIBLE=\"false\"><SHORT-NAME>F1</SHORT-NAME><BASIC-STRUCTURE-REF "
        "ID-REF=\"E1\"/><FIXED-NUMBER-OF-ITEMS>4</FIXED-NUMBER-OF-ITEMS><ITEM-BYTE-SIZE>1</ITEM-BYTE-SIZE></"
        "STATIC-FIELD></STATIC-FIELDS>"
        "<DYNAMIC-LENGTH-FIELDS><DYNAMIC-LENGTH-FIELD ID=\"F2\"><SHORT-NAME>F2</SHORT-NAME><BASIC-STRUCTURE-REF "
        "ID-REF=\"S\"/><OFFSET>1</OFFSET><DETERMINE-NUMBER-OF-ITEMS><BYTE-POSITION>0</BYTE-POSITION><BIT-POSITION>2</"
        "BIT-POSITION>"
        "<DATA-OBJECT-PROP-REF "
        "ID-REF=\"D\"/></DETERMINE-NUMBER-OF-ITEMS></DYNAMIC-LENGTH-FIELD></DYNAMIC-LENGTH-FIELDS>"
        "<DYNAMIC-ENDMARKER-FIELDS><DYNAMIC-ENDMARKER-FIELD ID=\"F3\"><SHORT-NAME>F3</SHORT-NAME><BASIC-STRUCTURE-REF "
        "ID-REF=\"S\"/><DATA-OBJECT-PROP-REF "
        "ID-REF=\"D\"><TERMINATION-VALUE>127</TERMINATION-VALUE></DATA-OBJECT-PROP-REF></DYNAMIC-ENDMARKER-FIELD>"
        "<DYNAMIC-ENDMARKER-FIELD ID=\"F5\"><SHORT-NAME>F5</SHORT-NAME><BASIC-STRUCTURE-REF "
        "ID-REF=\"S\"/><DYN-END-DOP-REF "
        "ID-REF=\"D\"><TERMINATION-VALUE>5</TERMINATION-VALUE></DYN-END-DOP-REF></DYNAMIC-ENDMARKER-FIELD></"
        "DYNAMIC-ENDMARKER-FIELDS>"
        "<END-OF-PDU-FIELDS><END-OF-PDU-FIELD ID=\"F4\"><SHORT-NAME>F4</SHORT-NAME><ENV-DATA-DESC-REF "
        "ID-REF=\"N\"/><MAX-NUMBER-OF-ITEMS>9</MAX-NUMBER-OF-ITEMS><MIN-NUMBER-OF-ITEMS>1</MIN-NUMBER-OF-ITEMS></"
        "END-OF-PDU-FIELD></END-OF-PDU-FIELDS>"
        "<ENV-DATAS><ENV-DATA "
        "ID=\"E1\"><SHORT-NAME>E1</SHORT-NAME><BYTE-SIZE>2</BYTE-SIZE><PARAMS/><ALL-VALUE/></ENV-DATA><ENV-DATA "
        "ID=\"E3\"><SHORT-NAME>E3</SHORT-NAME><PARAMS/></ENV-DATA></ENV-DATAS>",
        "2.1.0"));
    EXPECT_EQ(Diagnostics(), "");
    auto& desc = Get<VMemEnvDataDesc>(L"N");
    EXPECT_TRUE(desc.HasAdminData());
    EXPECT_STREQ(As<NODX201::VSnref>(desc.GetParamSnref().GetLink()).GetShortName(), L"Dtc");
    ASSERT_EQ(desc.EnvDataProxyCollection().Count(), 2U);
    EXPECT_TRUE(As<NODX201::VEnvDataLink>(At(desc.EnvDataProxyCollection(), 0)).HasEnvData());
    auto& values = As<VMemDtcValues>(Get<VMemEnvData>(L"E2").GetAllValueDtcValuesChoice());
    EXPECT_EQ(Joined(values.GetValues()), L"256|257|");
    EXPECT_EQ(Get<VMemEnvData>(L"E2").GetOwner(), &desc);
    auto& all = Get<VMemEnvData>(L"E1");
    EXPECT_STREQ(all.GetByteSize(), L"2");
    EXPECT_TRUE(all.GetAllValueDtcValuesChoice().IsAllValue());
    EXPECT_FALSE(Get<VMemEnvData>(L"E3").HasAllValueDtcValuesChoice());
    auto& dictionary = Get<VMemBaseVariant>(L"L").GetDiagDataDictionarySpec();
    EXPECT_EQ(dictionary.EnvDataProxyCollection().Count(), 2U);
    EXPECT_EQ(dictionary.DopBaseCollection().Count(), 9U); // no ENV-DATA among them

    EXPECT_TRUE(Get<VMemStructure>(L"S").IsVisible());
    EXPECT_STREQ(Get<VMemStructure>(L"S").GetByteSize(), L"4");
    EXPECT_FALSE(Get<VMemStructure>(L"S2").IsVisible());
    EXPECT_STREQ(Get<VMemStructure>(L"S2").GetByteSize(), L"");
    auto& fixed = Get<VMemStaticField>(L"F1");
    EXPECT_FALSE(fixed.IsVisible());
    EXPECT_STREQ(fixed.GetFixedNumberOfItems(), L"4");
    EXPECT_STREQ(fixed.GetItemByteSize(), L"1");
    auto& envData = As<NODX201::VBasicStructureLink>(fixed.GetBasicStructureEnvDataDescChoice());
    ASSERT_TRUE(envData.HasBasicStructure());
    EXPECT_EQ(&envData.GetBasicStructure(), &all);
    auto& counted = Get<VMemDynamicLengthField>(L"F2");
    EXPECT_TRUE(counted.IsVisible());
    EXPECT_STREQ(counted.GetOffset(), L"1");
    auto& number = counted.GetDetermineNumberOfItems();
    EXPECT_STREQ(number.GetBytePosition(), L"0");
    EXPECT_STREQ(number.GetBitPosition(), L"2");
    EXPECT_TRUE(number.GetDataObjectPropRef().ResolvesById());
    auto& marked = Get<VMemDynamicEndmarkerField>(L"F3").GetDataObjectPropRef();
    EXPECT_TRUE(marked.HasDopBase());
    EXPECT_STREQ(marked.GetTerminationValue(), L"127");
    EXPECT_STREQ(Get<VMemDynamicEndmarkerField>(L"F5").GetDataObjectPropRef().GetTerminationValue(), L"5");
    auto& rest = Get<VMemEndOfPduField>(L"F4");
    EXPECT_STREQ(rest.GetMaxNumberOfItems(), L"9");
    EXPECT_STREQ(rest.GetMinNumberOfItems(), L"1");
    EXPECT_TRUE(As<NODX201::VEnvDataDescLink>(rest.GetBasicStructureEnvDataDescChoice()).HasEnvDataDesc());
}

TEST_F(VDataElementsTest, Mux) {
    Read(Dictionary("<DATA-OBJECT-PROPS><DATA-OBJECT-PROP "
                    "ID=\"D\"><SHORT-NAME>D</SHORT-NAME></DATA-OBJECT-PROP></DATA-OBJECT-PROPS><STRUCTURES><STRUCTURE "
                    "ID=\"S\"><SHORT-NAME>S</SHORT-NAME></STRUCTURE></STRUCTURES><MUXS><MUX ID=\"M\" "
                    "IS-VISIBLE=\"true\"><SHORT-NAME>M</SHORT-NAME><BYTE-POSITION>1</BYTE-POSITION>"
                    "<SWITCH-KEY><BYTE-POSITION>0</BYTE-POSITION><BIT-POSITION>3</BIT-POSITION><DATA-OBJECT-PROP-REF "
                    "ID-REF=\"D\"/></SWITCH-KEY><DEFAULT-CASE><SHORT-NAME>Other</SHORT-NAME><STRUCTURE-REF "
                    "ID-REF=\"S\"/></DEFAULT-CASE>"
                    "<CASES><CASE><SHORT-NAME>One</SHORT-NAME><STRUCTURE-REF "
                    "ID-REF=\"S\"/><LOWER-LIMIT>1</LOWER-LIMIT><UPPER-LIMIT>2</UPPER-LIMIT></CASE></CASES></MUX><MUX "
                    "ID=\"N\"><SHORT-NAME>N</SHORT-NAME></MUX></MUXS>",
                    "2.1.0"));
    EXPECT_EQ(Diagnostics(), "");
    auto& mux = Get<VMemMux>(L"M");
    EXPECT_TRUE(mux.IsVisible());
    EXPECT_STREQ(mux.GetBytePosition(), L"1");
    EXPECT_STREQ(mux.GetSwitchKey().GetBytePosition(), L"0");
    EXPECT_STREQ(mux.GetSwitchKey().GetBitPosition(), L"3");
    EXPECT_TRUE(mux.GetSwitchKey().GetDataObjectPropRef().ResolvesById());
    EXPECT_STREQ(mux.GetDefaultCase().GetShortName(), L"Other");
    EXPECT_TRUE(mux.GetDefaultCase().GetStructureRef().HasStructure());
    auto& one = At(mux.CaseCollection(), 0);
    EXPECT_STREQ(one.GetShortName(), L"One");
    EXPECT_TRUE(one.GetStructureRef().HasStructure());
    EXPECT_EQ(Limit(one.GetLowerLimit()), L"CLOSED 1");
    EXPECT_EQ(Limit(one.GetUpperLimit()), L"CLOSED 2");
    auto& bare = Get<VMemMux>(L"N");
    EXPECT_FALSE(bare.IsVisible() || bare.HasDefaultCase() || bare.HasSwitchKey());
}

// Units and tables

TEST_F(VDataElementsTest, Units) {
    Read(Dictionary("<UNIT-SPEC><ADMIN-DATA/><UNIT-GROUPS><UNIT-GROUP "
                    "OID=\"o\"><SHORT-NAME>EU</SHORT-NAME><CATEGORY>COUNTRY</CATEGORY><UNIT-REFS><UNIT-REF "
                    "ID-REF=\"U\"/></UNIT-REFS></UNIT-GROUP></UNIT-GROUPS>"
                    "<UNITS><UNIT "
                    "ID=\"U\"><SHORT-NAME>U</SHORT-NAME><DISPLAY-NAME>V</DISPLAY-NAME><FACTOR-SI-TO-UNIT>1.5e3</"
                    "FACTOR-SI-TO-UNIT><OFFSET-SI-TO-UNIT>-2</OFFSET-SI-TO-UNIT><PHYSICAL-DIMENSION-REF "
                    "ID-REF=\"P\"/></UNIT></UNITS>"
                    "<PHYSICAL-DIMENSIONS><PHYSICAL-DIMENSION "
                    "ID=\"P\"><SHORT-NAME>P</SHORT-NAME><LENGTH-EXP>1</LENGTH-EXP><MASS-EXP>2</MASS-EXP><TIME-EXP>-3</"
                    "TIME-EXP><CURRENT-EXP>4</CURRENT-EXP><TEMPERATURE-EXP>5</TEMPERATURE-EXP>"
                    "<MOLAR-AMOUNT-EXP>6</MOLAR-AMOUNT-EXP><LUMINOUS-INTENSITY-EXP>7</LUMINOUS-INTENSITY-EXP></"
                    "PHYSICAL-DIMENSION></PHYSICAL-DIMENSIONS></UNIT-SPEC>"));
    EXPECT_EQ(Diagnostics(), "");
    auto& spec = Get<VMemBaseVariant>(L"L").GetDiagDataDictionarySpec().GetUnitSpec();
    EXPECT_TRUE(spec.HasAdminData());
    auto& group = As<VMemUnitGroup>(At(spec.UnitGroupCollection(), 0));
    EXPECT_STREQ(group.GetShortName(), L"EU");
    EXPECT_STREQ(group.GetOid(), L"o");
    EXPECT_STREQ(group.GetCategory(), L"COUNTRY");
    EXPECT_TRUE(At(group.UnitLinkCollection(), 0).HasUnit());
    auto& unit = As<VMemUnit>(At(spec.UnitCollection(), 0));
    EXPECT_STREQ(unit.GetDisplayName(), L"V");
    EXPECT_STREQ(unit.GetFactorSiToUnit(), L"1.5e3");
    EXPECT_STREQ(unit.GetOffsetSiToUnit(), L"-2");
    EXPECT_TRUE(unit.GetPhysicalDimensionRef().HasPhysicalDimension());
    auto& dimension = As<VMemPhysicalDimension>(At(spec.PhysicalDimensionCollection(), 0));
    EXPECT_STREQ(dimension.GetLengthExp(), L"1");
    EXPECT_STREQ(dimension.GetMassExp(), L"2");
    EXPECT_STREQ(dimension.GetTimeExp(), L"-3");
    EXPECT_STREQ(dimension.GetCurrentExp(), L"4");
    EXPECT_STREQ(dimension.GetTemperatureExp(), L"5");
    EXPECT_STREQ(dimension.GetMolarAmountExp(), L"6");
    EXPECT_STREQ(dimension.GetLuminousIntensityExp(), L"7");
}

TEST_F(VDataElementsTest, Tables) {
    Read(Dictionary(
        "<DATA-OBJECT-PROPS><DATA-OBJECT-PROP "
        "ID=\"D\"><SHORT-NAME>D</SHORT-NAME></DATA-OBJECT-PROP></DATA-OBJECT-PROPS><STRUCTURES><STRUCTURE "
        "ID=\"S\"><SHORT-NAME>S</SHORT-NAME></STRUCTURE></STRUCTURES><TABLES><TABLE ID=\"T\" "
        "SEMANTIC=\"DATA-ID\"><SHORT-NAME>T</SHORT-NAME><KEY-LABEL>k</KEY-LABEL><STRUCT-LABEL>s</STRUCT-LABEL>"
        "<ADMIN-DATA/><KEY-DOP-REF ID-REF=\"D\"/><TABLE-ROW ID=\"R\"><SHORT-NAME>R</SHORT-NAME><KEY> 1 "
        "</KEY><STRUCTURE-REF ID-REF=\"S\"/></TABLE-ROW><TABLE-ROW-REF ID-REF=\"R\"/><TABLE-ROW "
        "ID=\"Q\"><SHORT-NAME>Q</SHORT-NAME></TABLE-ROW></TABLE></TABLES>",
        "2.1.0"));
    EXPECT_EQ(Diagnostics(), "");
    auto& table = Get<VMemTable>(L"T");
    EXPECT_STREQ(table.GetSemantic(), L"DATA-ID");
    EXPECT_STREQ(table.GetKeyLabel(), L"k");
    EXPECT_STREQ(table.GetStructLabel(), L"s");
    EXPECT_TRUE(table.HasAdminData());
    EXPECT_TRUE(table.GetKeyDopRef().ResolvesById());
    ASSERT_EQ(table.RowWrapperCollection().Count(), 3U);
    auto& row = As<VMemTableRow>(At(table.RowWrapperCollection(), 0));
    EXPECT_STREQ(row.GetKey(), L" 1 ");
    EXPECT_TRUE(row.GetStructureRef().HasStructure());
    EXPECT_TRUE(As<NODX201::VTableRowLink>(At(table.RowWrapperCollection(), 1)).HasTableRow());
    EXPECT_STREQ(As<VMemTableRow>(At(table.RowWrapperCollection(), 2)).GetShortName(), L"Q");
}

// Administrative data

TEST_F(VDataElementsTest, AdminData) {
    Read(Container(
        "<ADMIN-DATA><LANGUAGE>en_US</LANGUAGE><COMPANY-DOC-INFOS><COMPANY-DOC-INFO><COMPANY-DATA-REF "
        "ID-REF=\"CD\"/><TEAM-MEMBER-REF "
        "ID-REF=\"TM\"/><DOC-LABEL>label</DOC-LABEL><SDGS><SDG/></SDGS></COMPANY-DOC-INFO></COMPANY-DOC-INFOS>"
        "<DOC-REVISIONS><DOC-REVISION><TEAM-MEMBER-REF "
        "ID-REF=\"TM\"/><REVISION-LABEL>1.0</REVISION-LABEL><STATE>draft</STATE><DATE>2005-06-01T12:00:00.5+01:00</"
        "DATE><TOOL>editor</TOOL>"
        "<COMPANY-REVISION-INFOS><COMPANY-REVISION-INFO><COMPANY-DATA-REF "
        "ID-REF=\"CD\"/><REVISION-LABEL>A</REVISION-LABEL><STATE>ok</STATE></COMPANY-REVISION-INFO></"
        "COMPANY-REVISION-INFOS>"
        "<MODIFICATIONS><MODIFICATION><CHANGE>first</CHANGE><REASON>start</REASON></MODIFICATION></MODIFICATIONS></"
        "DOC-REVISION><DOC-REVISION><DATE/></DOC-REVISION></DOC-REVISIONS></ADMIN-DATA>"
        "<COMPANY-DATAS><COMPANY-DATA "
        "ID=\"CD\"><SHORT-NAME>CD</SHORT-NAME><ROLES><ROLE>A</ROLE><ROLE/></ROLES><TEAM-MEMBERS><TEAM-MEMBER "
        "ID=\"TM\"><SHORT-NAME>TM</SHORT-NAME><ROLES/><DEPARTMENT>d</DEPARTMENT><ADDRESS>a</ADDRESS>"
        "<ZIP>z</ZIP><CITY>c</CITY><PHONE>p</PHONE><FAX>f</FAX><EMAIL>e</EMAIL></TEAM-MEMBER></"
        "TEAM-MEMBERS><COMPANY-SPECIFIC-INFO><RELATED-DOCS><RELATED-DOC><XDOC><SHORT-NAME>X</SHORT-NAME><NUMBER>12</"
        "NUMBER><STATE>s</STATE>"
        "<DATE>2005-06-01T12:00:00Z</DATE><PUBLISHER>p</PUBLISHER><URL>u</URL><POSITION>q</POSITION></"
        "XDOC><DESC><p>doc</p></DESC></RELATED-DOC></RELATED-DOCS><SDGS><SDG/></SDGS></COMPANY-SPECIFIC-INFO></"
        "COMPANY-DATA></COMPANY-DATAS>"));
    EXPECT_EQ(Diagnostics(), "");
    auto& admin = Get<VMemDiagLayerContainer>(L"C").GetAdminData();
    EXPECT_STREQ(admin.GetLanguage(), L"en_US");
    auto& info = As<VMemCompanyDocInfo>(At(admin.CompanyDocInfoCollection(), 0));
    EXPECT_TRUE(info.GetCompanyDataRef().HasCompanyData());
    EXPECT_TRUE(info.GetTeamMemberRef().HasTeamMember());
    EXPECT_STREQ(info.GetDocLabel(), L"label");
    EXPECT_EQ(info.SdgCollection().Count(), 1U);
    auto& revision = As<VMemDocRevision>(At(admin.DocRevisionCollection(), 0));
    EXPECT_TRUE(revision.GetTeamMemberRef().HasTeamMember());
    EXPECT_STREQ(revision.GetRevisionLabel(), L"1.0");
    EXPECT_STREQ(revision.GetState(), L"draft");
    EXPECT_STREQ(revision.GetDate(), L"2005-06-01T12:00:00.5+01:00");
    EXPECT_STREQ(revision.GetTool(), L"editor");
    auto& company = As<VMemCompanyRevisionInfo>(At(revision.CompanyRevisionInfoCollection(), 0));
    EXPECT_TRUE(company.GetCompanyDataRef().HasCompanyData());
    EXPECT_STREQ(company.GetRevisionLabel(), L"A");
    EXPECT_STREQ(company.GetState(), L"ok");
    auto& modification = As<VMemModification>(At(revision.ModificationCollection(), 0));
    EXPECT_STREQ(modification.GetChange(), L"first");
    EXPECT_STREQ(modification.GetReason(), L"start");
    EXPECT_FALSE(At(admin.DocRevisionCollection(), 1).HasTeamMemberRef());
    auto& data = Get<VMemCompanyData>(L"CD");
    EXPECT_EQ(Joined(data.RoleCollection()), L"A||");
    auto& member = As<VMemTeamMember>(At(data.TeamMemberCollection(), 0));
    EXPECT_EQ(member.GetOwner(), &data);
    EXPECT_EQ(Joined(member.RoleCollection()), L"");
    EXPECT_STREQ(member.GetDepartment(), L"d");
    EXPECT_STREQ(member.GetAddress(), L"a");
    EXPECT_STREQ(member.GetZip(), L"z");
    EXPECT_STREQ(member.GetCity(), L"c");
    EXPECT_STREQ(member.GetPhone(), L"p");
    EXPECT_STREQ(member.GetFax(), L"f");
    EXPECT_STREQ(member.GetEmail(), L"e");
    auto& specific = data.GetCompanySpecificInfo();
    EXPECT_EQ(specific.SdgCollection().Count(), 1U);
    auto& document = As<VMemRelatedDoc>(At(specific.RelatedDocCollection(), 0));
    EXPECT_STREQ(document.GetDesc(), L"<p>doc</p>");
    auto& xdoc = As<VMemXdoc>(document.GetXdoc());
    EXPECT_STREQ(xdoc.GetShortName(), L"X");
    EXPECT_STREQ(xdoc.GetNumber(), L"12");
    EXPECT_STREQ(xdoc.GetState(), L"s");
    EXPECT_STREQ(xdoc.GetDate(), L"2005-06-01T12:00:00Z");
    EXPECT_STREQ(xdoc.GetPublisher(), L"p");
    EXPECT_STREQ(xdoc.GetUrl(), L"u");
    EXPECT_STREQ(xdoc.GetPlace(), L"q");
}

TEST_F(VDataElementsTest, SpecialDataGroups) {
    Read(Layer("<DIAG-COMMS><DIAG-SERVICE ID=\"S\"><SHORT-NAME>S</SHORT-NAME><SDGS><SDG><SDG-CAPTION "
               "ID=\"CP\"><SHORT-NAME>Caption</SHORT-NAME></SDG-CAPTION><SD SI=\"from\"> a </SD><SDG><SD "
               "TI=\"t\">nested</SD></SDG><SD>b</SD></SDG>"
               "<SDG/></SDGS><AUDIENCE/></DIAG-SERVICE></DIAG-COMMS>"));
    EXPECT_EQ(Diagnostics(), "");
    auto& groups = Get<VMemDiagService>(L"S").SdgCollection();
    ASSERT_EQ(groups.Count(), 2U);
    auto& group = As<VMemSdg>(At(groups, 0));
    EXPECT_EQ(&group.GetSdgCaption(), &Element(L"CP"));
    EXPECT_STREQ(group.GetSdgCaption().GetShortName(), L"Caption");
    ASSERT_EQ(group.SdgSdChoiceCollection().Count(), 3U);
    auto& first = As<VMemSd>(At(group.SdgSdChoiceCollection(), 0));
    EXPECT_STREQ(first.GetText(), L" a ");
    EXPECT_STREQ(first.GetSi(), L"from");
    auto& nested = As<VMemSd>(At(As<VMemSdg>(At(group.SdgSdChoiceCollection(), 1)).SdgSdChoiceCollection(), 0));
    EXPECT_STREQ(nested.GetText(), L"nested");
    EXPECT_STREQ(nested.GetTextId(), L"t");
    EXPECT_STREQ(As<VMemSd>(At(group.SdgSdChoiceCollection(), 2)).GetText(), L"b");
    EXPECT_FALSE(At(groups, 1).HasSdgCaption());
}

} // namespace
} // namespace NTest
