// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/ConstantBytes.h>

#include "query/LayoutTest.h"

namespace NTest {
namespace {

class VConstantBytesTest : public VLayoutTest {
protected:
    /// The bytes of a request with these parameters, "R".
    std::string Bytes(std::string const& params, std::string const& dictionary = "") {
        ReadLayer(dictionary, params);
        return NQuery::ConstantBytesText(Layout(L"R"));
    }
};

std::string Type(std::string const& attributes, std::string const& bits) {
    return "<DIAG-CODED-TYPE xsi:type=\"STANDARD-LENGTH-TYPE\" " + attributes + "><BIT-LENGTH>" + bits +
           "</BIT-LENGTH></DIAG-CODED-TYPE>";
}

std::string Constant(std::string const& value, std::string const& type, std::string const& position = "") {
    return Param("CODED-CONST", "c", position + "<CODED-VALUE>" + value + "</CODED-VALUE>" + type);
}

std::string Number(std::string const& value, std::string const& bits, std::string const& position = "") {
    return Constant(value, Type("BASE-DATA-TYPE=\"A_UINT32\"", bits), position);
}

std::string const kByte = DopOf("Byte", Fixed("8"));

TEST_F(VConstantBytesTest, NumbersHaveTheirHighestByteFirst) {
    EXPECT_EQ(Bytes(Number("34", "8") + Number("0xF190", "16")), "22 F1 90");
}

TEST_F(VConstantBytesTest, LowBytesComeFirstWhereTheTypeSaysSo) {
    EXPECT_EQ(Bytes(Constant("258", Type("BASE-DATA-TYPE=\"A_UINT32\" IS-HIGHLOW-BYTE-ORDER=\"false\"", "16"))),
              "02 01");
}

TEST_F(VConstantBytesTest, ADigitThatDependsOnDataIsAPoint) {
    EXPECT_EQ(Bytes(Number("16", "8") + Number("5", "4", At("1", "4")) + Param("VALUE", "v", DopRefTo("Byte")), kByte),
              "10 5. ..");
}

TEST_F(VConstantBytesTest, ANumberAcrossBytesKeepsItsBits) {
    EXPECT_EQ(Bytes(Number("2730", "12", At("0", "4"))), "AA A."); // 0xAAA above four other bits
}

TEST_F(VConstantBytesTest, ByteFieldsAreHexadecimal) {
    EXPECT_EQ(Bytes(Constant("22f190", Type("BASE-DATA-TYPE=\"A_BYTEFIELD\"", "24"))), "22 F1 90");
}

TEST_F(VConstantBytesTest, OnlyTheBitsOfABitMaskAreWritten) {
    std::string const masked = "<DIAG-CODED-TYPE xsi:type=\"STANDARD-LENGTH-TYPE\" BASE-DATA-TYPE=\"A_UINT32\">"
                               "<BIT-LENGTH>8</BIT-LENGTH><BIT-MASK>F0</BIT-MASK></DIAG-CODED-TYPE>";
    EXPECT_EQ(Bytes(Constant("175", masked)), "A.");
}

TEST_F(VConstantBytesTest, TheLaterOfOverlappingParametersCounts) {
    EXPECT_EQ(Bytes(Number("16", "8", At("0")) + Number("34", "8", At("0"))), "22");
    EXPECT_EQ(Bytes(Number("16", "8", At("0")) + Param("VALUE", "v", At("0") + DopRefTo("Byte")), kByte), "..");
}

TEST_F(VConstantBytesTest, ConstantsInsideStructuresCount) {
    EXPECT_EQ(Bytes(Number("16", "8") + Param("VALUE", "v", DopRefTo("S")), Structure("S", Number("7", "8"))), "10 07");
}

TEST_F(VConstantBytesTest, WhatMayNotBeThereIsNotConstant) {
    std::string const field = Structure("S", Number("7", "8")) + "<STATIC-FIELDS>" +
                              Xml("STATIC-FIELD", "F",
                                  "<BASIC-STRUCTURE-REF ID-REF=\"S\"/><FIXED-NUMBER-OF-ITEMS>2</FIXED-NUMBER-OF-ITEMS>"
                                  "<ITEM-BYTE-SIZE>1</ITEM-BYTE-SIZE>") +
                              "</STATIC-FIELDS>";
    EXPECT_EQ(Bytes(Number("16", "8") + Param("VALUE", "v", DopRefTo("F")), field), "10 .. ..");
}

TEST_F(VConstantBytesTest, AnOpenEndIsAnEllipsis) {
    EXPECT_EQ(Bytes(Number("16", "8") + Param("VALUE", "v", DopRefTo("Any")),
                    DopOf("Any", MinMax("<MIN-LENGTH>1</MIN-LENGTH>"))),
              "10 .. ...");
    EXPECT_EQ(Bytes(Param("VALUE", "v", DopRefTo("Any")), DopOf("Any", MinMax("<MIN-LENGTH>0</MIN-LENGTH>"))), "...");
}

TEST_F(VConstantBytesTest, BytesBeyondTheMostAreAnEllipsis) {
    ReadLayer("", Number("1", "8") + Number("2", "8", At("4000000000")));
    EXPECT_EQ(NQuery::ConstantBytesText(Layout(L"R"), 2), "01 .. ...");
    EXPECT_EQ(NQuery::ConstantBytesOf(Layout(L"R"), 2).size(), 2U);
}

TEST_F(VConstantBytesTest, ConstantsThatDoNotFitTheirTypeAreNotKnown) {
    EXPECT_EQ(Bytes(Number("300", "8")), "..");
    EXPECT_EQ(Bytes(Number("one", "8")), "..");
    EXPECT_EQ(Bytes(Number("-1", "8")), "..");
    EXPECT_EQ(Bytes(Constant("12", Type("BASE-DATA-TYPE=\"A_UINT32\" BASE-TYPE-ENCODING=\"BCD-P\"", "8"))), "..");
    EXPECT_EQ(Bytes(Constant("2x", Type("BASE-DATA-TYPE=\"A_BYTEFIELD\"", "8"))), "..");
    EXPECT_EQ(Bytes(Constant("A", Type("BASE-DATA-TYPE=\"A_ASCIISTRING\"", "8"))), "..");
}

TEST_F(VConstantBytesTest, ReservedBitsWithoutAValueAreZero) {
    EXPECT_EQ(Bytes(Param("RESERVED", "gap", "<BIT-LENGTH>4</BIT-LENGTH>") +
                    Param("RESERVED", "long", At("1") + "<BIT-LENGTH>72</BIT-LENGTH>")),
              ".0 00 00 00 00 00 00 00 00 00");
}

TEST_F(VConstantBytesTest, AMessageWithoutParametersHasNoBytes) { EXPECT_EQ(Bytes(""), ""); }

} // namespace
} // namespace NTest
