// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/DopValues.h>

#include <diagkit/reader/Utf8.h>

#include "query/LayoutTest.h"

namespace NTest {
namespace {

class VDopValuesTest : public VLayoutTest {
protected:
    NQuery::VDopValues Values(std::string const& content) {
        ReadLayer(DopOf("D", Fixed("8") + content) + "<UNIT-SPEC><UNITS>" +
                      Xml("UNIT", "U", "<DISPLAY-NAME>km/h</DISPLAY-NAME>") + "</UNITS></UNIT-SPEC>",
                  "");
        return NQuery::ValuesOf(Element(L"D"));
    }

    static std::string Text(wchar_t const* text) { return NReader::ToUtf8(text); }

    static std::string Bounds(NQuery::VValueScale const& scale) {
        return Text(scale.lower.text) + " " + Text(scale.lower.intervalType) + ", " + Text(scale.upper.text) + " " +
               Text(scale.upper.intervalType);
    }
};

TEST_F(VDopValuesTest, TextsStandWithTheirLimits) {
    NQuery::VDopValues const values =
        Values("<COMPU-METHOD><CATEGORY>TEXTTABLE</CATEGORY><COMPU-INTERNAL-TO-PHYS><COMPU-SCALES><COMPU-SCALE>"
               "<SHORT-LABEL>no</SHORT-LABEL><LOWER-LIMIT>0</LOWER-LIMIT>"
               "<UPPER-LIMIT INTERVAL-TYPE=\"OPEN\">4</UPPER-LIMIT><COMPU-INVERSE-VALUE><V>1</V></COMPU-INVERSE-VALUE>"
               "<COMPU-CONST><VT>off</VT></COMPU-CONST></COMPU-SCALE></COMPU-SCALES>"
               "<COMPU-DEFAULT-VALUE><VT>unknown</VT></COMPU-DEFAULT-VALUE></COMPU-INTERNAL-TO-PHYS></COMPU-METHOD>");
    EXPECT_EQ("TEXTTABLE", Text(values.category));
    ASSERT_EQ(1U, values.scales.size());
    EXPECT_EQ("0 CLOSED, 4 OPEN", Bounds(values.scales[0]));
    EXPECT_EQ("off", Text(values.scales[0].text));
    EXPECT_EQ("no", Text(values.scales[0].shortLabel));
    EXPECT_EQ("1", Text(values.scales[0].inverse));
    EXPECT_EQ("unknown", Text(values.defaultText));
}

TEST_F(VDopValuesTest, CoefficientsComeInTheirOrder) {
    NQuery::VDopValues const values =
        Values("<COMPU-METHOD><CATEGORY>LINEAR</CATEGORY><COMPU-INTERNAL-TO-PHYS><COMPU-SCALES><COMPU-SCALE>"
               "<COMPU-RATIONAL-COEFFS><COMPU-NUMERATOR><V>-40</V><V>0.5</V></COMPU-NUMERATOR><COMPU-DENOMINATOR>"
               "<V>2</V></COMPU-DENOMINATOR></COMPU-RATIONAL-COEFFS></COMPU-SCALE></COMPU-SCALES>"
               "</COMPU-INTERNAL-TO-PHYS></COMPU-METHOD>");
    ASSERT_EQ(1U, values.scales.size());
    ASSERT_EQ(2U, values.scales[0].numerator.size());
    EXPECT_EQ("-40 0.5", Text(values.scales[0].numerator[0]) + " " + Text(values.scales[0].numerator[1]));
    ASSERT_EQ(1U, values.scales[0].denominator.size());
    EXPECT_EQ("2", Text(values.scales[0].denominator[0]));
}

TEST_F(VDopValuesTest, ConstraintsTypesAndUnitAreTold) {
    NQuery::VDopValues const values =
        Values("<PHYSICAL-TYPE BASE-DATA-TYPE=\"A_FLOAT64\" DISPLAY-RADIX=\"HEX\"><PRECISION>2</PRECISION>"
               "</PHYSICAL-TYPE><INTERNAL-CONSTR><LOWER-LIMIT>1</LOWER-LIMIT>"
               "<UPPER-LIMIT INTERVAL-TYPE=\"INFINITE\"/><SCALE-CONSTRS><SCALE-CONSTR VALIDITY=\"NOT-AVAILABLE\">"
               "<LOWER-LIMIT>254</LOWER-LIMIT><UPPER-LIMIT>255</UPPER-LIMIT></SCALE-CONSTR></SCALE-CONSTRS>"
               "</INTERNAL-CONSTR><UNIT-REF ID-REF=\"U\"/>");
    EXPECT_EQ("A_UINT32 A_FLOAT64 HEX 2", Text(values.codedBase) + " " + Text(values.physicalBase) + " " +
                                              Text(values.displayRadix) + " " + Text(values.precision));
    EXPECT_EQ("1 CLOSED  INFINITE", Text(values.lower.text) + " " + Text(values.lower.intervalType) + " " +
                                        Text(values.upper.text) + " " + Text(values.upper.intervalType));
    ASSERT_EQ(1U, values.constraints.size());
    EXPECT_EQ("254 CLOSED, 255 CLOSED", Bounds(values.constraints[0]));
    EXPECT_EQ("NOT-AVAILABLE", Text(values.constraints[0].validity));
    EXPECT_EQ("km/h", Text(values.unitName));
    EXPECT_EQ(&Element(L"U"), values.unit);
}

TEST_F(VDopValuesTest, AUnitThatIsNotThereIsNull) {
    NQuery::VDopValues const values = Values("<UNIT-REF ID-REF=\"Nobody\"/>");
    EXPECT_NE(nullptr, values.unitReference);
    EXPECT_EQ(nullptr, values.unit);
    EXPECT_EQ("", Text(values.unitName));
}

TEST_F(VDopValuesTest, TroubleCodesAreThoseThatTheReferencesLeadToAsWell) {
    ReadLayer("<DTC-DOPS>" +
                  Xml("DTC-DOP", "One",
                      "<DTCS><DTC ID=\"A\"><SHORT-NAME>A</SHORT-NAME></DTC><DTC-REF ID-REF=\"Nobody\"/>"
                      "<DTC-REF ID-REF=\"B\"/></DTCS>") +
                  Xml("DTC-DOP", "Two", "<DTCS><DTC ID=\"B\"><SHORT-NAME>B</SHORT-NAME></DTC></DTCS>") + "</DTC-DOPS>",
              "");
    NQuery::VDopValues const values = NQuery::ValuesOf(Element(L"One"));
    ASSERT_EQ(2U, values.troubleCodes.size());
    EXPECT_EQ(&Element(L"A"), values.troubleCodes[0]);
    EXPECT_EQ(&Element(L"B"), values.troubleCodes[1]);
}

TEST_F(VDopValuesTest, WhatIsNoSimpleDopHasNone) {
    ReadLayer(Structure("S", ""), "");
    EXPECT_EQ("", Text(NQuery::ValuesOf(Element(L"S")).category));
    EXPECT_EQ(nullptr, NQuery::ValuesOf(Element(L"S")).codedType);
}

} // namespace
} // namespace NTest
