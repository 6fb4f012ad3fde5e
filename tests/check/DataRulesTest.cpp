// SPDX-License-Identifier: Apache-2.0
#include "check/CheckTest.h"
#include "check/DataRulesXml.h"

/// Rules of what stands in data dictionaries: types, conversions, limits, keys, units.

namespace NTest {
namespace {

std::string const kFactor = "<COMPU-RATIONAL-COEFFS><COMPU-NUMERATOR><V>0</V><V>1</V></COMPU-NUMERATOR>"
                            "</COMPU-RATIONAL-COEFFS>";
std::string const kText = "<COMPU-CONST><VT>x</VT></COMPU-CONST>";

class VDataRulesTest : public VCheckTest {
protected:
    void CheckDictionary(std::string const& content) { CheckDocument(Dictionary(content, "2.2.0")); }
    void CheckMethod(std::string const& method, std::string const& coded, std::string const& physical,
                     std::string const& rest = "") {
        CheckDictionary(DopList(Dop("X", method, coded, physical, rest)));
    }
    void CheckTypes(std::string const& category, std::string const& coded, std::string const& physical) {
        CheckMethod("<CATEGORY>" + category + "</CATEGORY>", Coded(coded, coded == "A_FLOAT64" ? "64" : "32"),
                    physical);
    }
    /// The finding about COMPU-SCALEs of whole numbers with these limits.
    std::string OfScales(std::string const& category, std::vector<std::string> const& limits,
                         std::string const& rest = "") {
        std::string scales;
        for (std::string const& between : limits) {
            scales += Scale(between, category == "TEXTTABLE" ? kText : kFactor);
        }
        CheckMethod(Scales(category, scales, rest), Coded("A_UINT32", "8"),
                    category == "TEXTTABLE" ? "A_UNICODE2STRING" : "A_UINT32");
        return Diagnostics();
    }
    std::string OfConstant(std::string const& value, std::string const& coded) {
        CheckDocument(Params(Const("P", "0", value, coded), "2.2.0"));
        return Diagnostics();
    }
};

// Types of conversions

TEST_F(VDataRulesTest, IdenticalBetweenTypesOfTwoSorts) {
    CheckTypes("IDENTICAL", "A_UINT32", "A_BYTEFIELD");
    EXPECT_EQ(Finding(), "3:1 error conversion-types: DATA-OBJECT-PROP 'X' converts A_UINT32 to A_BYTEFIELD, but "
                         "IDENTICAL changes nothing, so both types must be numbers, texts or byte fields");
}

TEST_F(VDataRulesTest, EachCategoryHasTypesThatItIsFor) {
    struct {
        char const* category;
        char const* coded;
        char const* physical;
        bool fits;
    } const rows[] = {
        {"IDENTICAL", "A_UINT32", "A_INT32", true},          {"IDENTICAL", "A_ASCIISTRING", "A_UNICODE2STRING", true},
        {"IDENTICAL", "A_BYTEFIELD", "A_BYTEFIELD", true},   {"IDENTICAL", "A_BYTEFIELD", "A_UNICODE2STRING", false},
        {"IDENTICAL", "A_UTF8STRING", "A_UINT32", false},    {"LINEAR", "A_UINT32", "A_FLOAT64", true},
        {"LINEAR", "A_BYTEFIELD", "A_UINT32", false},        {"LINEAR", "A_UINT32", "A_UNICODE2STRING", false},
        {"SCALE-LINEAR", "A_INT32", "A_FLOAT32", true},      {"SCALE-LINEAR", "A_UNICODE2STRING", "A_FLOAT32", false},
        {"TAB-INTP", "A_FLOAT64", "A_FLOAT64", true},        {"TAB-INTP", "A_FLOAT64", "A_BYTEFIELD", false},
        {"RAT-FUNC", "A_ASCIISTRING", "A_FLOAT64", false},   {"SCALE-RAT-FUNC", "A_UINT32", "A_BYTEFIELD", false},
        {"TEXTTABLE", "A_UINT32", "A_UNICODE2STRING", true}, {"TEXTTABLE", "A_BYTEFIELD", "A_UNICODE2STRING", true},
        {"TEXTTABLE", "A_UINT32", "A_UINT32", false},        {"COMPUCODE", "A_UINT32", "A_BYTEFIELD", true},
        {"IDENTICAL", "A_NEW", "A_BYTEFIELD", true}, // of a later version
    };
    for (auto const& row : rows) {
        CheckTypes(row.category, row.coded, row.physical);
        EXPECT_EQ(Diagnostics(), row.fits ? "" : "test.odx:3:1 error conversion-types")
            << row.category << ' ' << row.coded << ' ' << row.physical;
    }
}

TEST_F(VDataRulesTest, ADenominatorOfZero) {
    auto const of = [this](std::string const& values) {
        CheckMethod(Scales("LINEAR", Scale("", "<COMPU-RATIONAL-COEFFS><COMPU-NUMERATOR><V>1</V></COMPU-NUMERATOR>"
                                               "<COMPU-DENOMINATOR>" +
                                                   values + "</COMPU-DENOMINATOR></COMPU-RATIONAL-COEFFS>")),
                    Coded("A_UINT32", "8"), "A_UINT32");
        return Diagnostics();
    };
    EXPECT_EQ(of("<V>0.0</V>"), "test.odx:4:14 error division-by-zero");
    EXPECT_EQ(of("<V>0</V><V>0</V>"), "test.odx:4:14 error division-by-zero");
    EXPECT_EQ(of("<V>0</V><V>1</V>"), "");
    EXPECT_EQ(of("<V>1</V>"), "");
}

// Coded types

TEST_F(VDataRulesTest, LengthsThatABaseTypeCannotHave) {
    struct {
        char const* baseType;
        char const* bitLength;
        bool fits;
    } const rows[] = {
        {"A_UINT32", "1", true},
        {"A_UINT32", "0", false},
        {"A_INT32", "64", true},
        {"A_INT32", "65", false},
        {"A_FLOAT32", "32", true},
        {"A_FLOAT32", "64", false},
        {"A_FLOAT32", "16", false},
        {"A_FLOAT64", "64", true},
        {"A_FLOAT64", "32", false},
        {"A_BYTEFIELD", "24", true},
        {"A_BYTEFIELD", "12", false},
        {"A_ASCIISTRING", "8", true},
        {"A_ASCIISTRING", "7", false},
        {"A_UNICODE2STRING", "32", true},
        {"A_UNICODE2STRING", "8", false},
        {"A_UTF8STRING", "9", false},
        {"A_NEW", "0", true},
    };
    for (auto const& row : rows) {
        CheckMethod("<CATEGORY>COMPUCODE</CATEGORY>", Coded(row.baseType, row.bitLength), "A_UINT32");
        EXPECT_EQ(Diagnostics(), row.fits ? "" : "test.odx:3:60 error coded-length")
            << row.baseType << ' ' << row.bitLength;
    }
}

TEST_F(VDataRulesTest, EncodingsAreForOneBaseType) {
    struct {
        char const* encoding;
        char const* baseType;
    } const rows[] = {{"BCD-P", "A_UINT32"},
                      {"BCD-UP", "A_UINT32"},
                      {"1C", "A_INT32"},
                      {"2C", "A_INT32"},
                      {"SM", "A_INT32"},
                      {"UTF-8", "A_UTF8STRING"},
                      {"UCS-2", "A_UNICODE2STRING"},
                      {"ISO-8859-1", "A_ASCIISTRING"},
                      {"ISO-8859-2", "A_ASCIISTRING"},
                      {"WINDOWS-1252", "A_ASCIISTRING"}};
    auto const check = [this](std::string const& encoding, std::string const& baseType) {
        CheckMethod("<CATEGORY>COMPUCODE</CATEGORY>", Coded(baseType, "32", "BASE-TYPE-ENCODING=\"" + encoding + '"'),
                    "A_UINT32");
        return Diagnostics();
    };
    for (auto const& row : rows) {
        EXPECT_EQ(check(row.encoding, row.baseType), "") << row.encoding;
        EXPECT_EQ(check(row.encoding, "A_BYTEFIELD"), "test.odx:3:60 warning encoding-type") << row.encoding;
    }
    EXPECT_EQ(check("NONE", "A_BYTEFIELD"), "");
}

TEST_F(VDataRulesTest, ALeastLengthAboveTheGreatest) {
    CheckMethod(kIdentical, ToTheEnd("<MAX-LENGTH>2</MAX-LENGTH><MIN-LENGTH>3</MIN-LENGTH>"), "A_BYTEFIELD");
    EXPECT_EQ(Finding(), "3:60 error length-range: MIN-LENGTH is 3 and MAX-LENGTH only 2, so no value fits");
    CheckMethod(kIdentical, ToTheEnd("<MAX-LENGTH>3</MAX-LENGTH><MIN-LENGTH>3</MIN-LENGTH>"), "A_BYTEFIELD");
    EXPECT_EQ(Diagnostics(), "");
    CheckDictionary("<END-OF-PDU-FIELDS>" +
                    Xml("END-OF-PDU-FIELD", "F",
                        "<MAX-NUMBER-OF-ITEMS>1</MAX-NUMBER-OF-ITEMS><MIN-NUMBER-OF-ITEMS>2</MIN-NUMBER-OF-ITEMS>") +
                    "</END-OF-PDU-FIELDS>");
    ASSERT_EQ(m_result.diagnostics.size(), 1U) << Diagnostics();
    EXPECT_EQ(Message(0), "MIN-NUMBER-OF-ITEMS is 2 and MAX-NUMBER-OF-ITEMS only 1, so no value fits");
}

TEST_F(VDataRulesTest, BitsCountFromZeroToSeven) {
    auto const of = [this](std::string const& bit) {
        CheckDocument(Params("<PARAM xsi:type=\"DYNAMIC\"><SHORT-NAME>P</SHORT-NAME><BIT-POSITION>" + bit +
                                 "</BIT-POSITION></PARAM>",
                             "2.2.0"));
        return m_result.diagnostics.empty() ? "" : m_result.diagnostics.front().code;
    };
    EXPECT_EQ(of("7"), "");
    EXPECT_EQ(of("8"), "bit-position");
    EXPECT_EQ(Message(0), "PARAM 'P' has the BIT-POSITION 8, but bits count from 0 to 7 in the byte that "
                          "BYTE-POSITION names");
}

// Constants

TEST_F(VDataRulesTest, AConstantThatDoesNotFit) {
    OfConstant("300", Coded("A_UINT32", "8"));
    EXPECT_EQ(Finding(), "3:1 error constant-does-not-fit: CODED-VALUE of PARAM 'P' is '300', which does not fit into "
                         "the 8 bits of its type, A_UINT32");
}

TEST_F(VDataRulesTest, ConstantsOfEachTypeAndEncoding) {
    struct {
        char const* value;
        char const* baseType;
        char const* bitLength;
        char const* encoding;
        bool fits;
    } const rows[] = {
        {"255", "A_UINT32", "8", "", true},
        {"256", "A_UINT32", "8", "", false},
        {"-1", "A_UINT32", "8", "", false},
        {"0xFF", "A_UINT32", "8", "", true},
        {"0x100", "A_UINT32", "8", "", false},
        {" 7 ", "A_UINT32", "3", "", true},
        {"FF", "A_UINT32", "8", "", false}, // no decimal number
        {"18446744073709551615", "A_UINT32", "64", "", true},
        {"127", "A_INT32", "8", "2C", true},
        {"128", "A_INT32", "8", "2C", false},
        {"-128", "A_INT32", "8", "", true},
        {"-129", "A_INT32", "8", "", false},
        {"-127", "A_INT32", "8", "1C", true},
        {"-128", "A_INT32", "8", "1C", false},
        {"-128", "A_INT32", "8", "SM", false},
        {"99", "A_UINT32", "8", "BCD-P", true},
        {"100", "A_UINT32", "8", "BCD-P", false},
        {"9", "A_UINT32", "8", "BCD-UP", true},
        {"10", "A_UINT32", "8", "BCD-UP", false},
        {"0A0B", "A_BYTEFIELD", "16", "", true},
        {"0A0B0C", "A_BYTEFIELD", "16", "", false},
        {"ab", "A_ASCIISTRING", "16", "", true},
        {"abc", "A_ASCIISTRING", "16", "", false},
        {"ab", "A_UNICODE2STRING", "32", "", true},
        {"ab", "A_UNICODE2STRING", "16", "", false},
        {"\xC3\xA4", "A_UTF8STRING", "8", "", false}, // one character of two bytes
        {"1.5", "A_FLOAT32", "32", "", true},
        {"", "A_UINT32", "8", "", true}, // one of a later version has its values elsewhere
    };
    for (auto const& row : rows) {
        std::string const encoding =
            *row.encoding != '\0' ? std::string("BASE-TYPE-ENCODING=\"") + row.encoding + '"' : "";
        EXPECT_EQ(OfConstant(row.value, Coded(row.baseType, row.bitLength, encoding)),
                  row.fits ? "" : "test.odx:3:1 error constant-does-not-fit")
            << row.value << ' ' << row.baseType << ' ' << row.encoding;
    }
}

TEST_F(VDataRulesTest, TroubleCodesFitTheTypeOfTheirDtcDop) {
    auto const of = [this](std::string const& code, std::string const& method) {
        CheckDictionary("<DTC-DOPS>" +
                        Xml("DTC-DOP", "D",
                            Coded("A_UINT32", "16") + "<PHYSICAL-TYPE BASE-DATA-TYPE=\"A_UINT32\"/><COMPU-METHOD>" +
                                method + "</COMPU-METHOD><DTCS>" +
                                Xml("DTC", "F", "<TROUBLE-CODE>" + code + "</TROUBLE-CODE>") + "</DTCS>") +
                        "</DTC-DOPS>");
        return m_result.diagnostics.empty() ? "" : m_result.diagnostics.front().code;
    };
    EXPECT_EQ(of("65535", kIdentical), "");
    EXPECT_EQ(of("65536", kIdentical), "constant-does-not-fit");
    EXPECT_EQ(of("65536", "<CATEGORY>LINEAR</CATEGORY>"), ""); // the physical value
}

// Limits and scales

TEST_F(VDataRulesTest, LimitsTheWrongWayRound) {
    auto const of = [this](std::string const& limits) {
        CheckMethod(kIdentical, Coded("A_UINT32", "8"), "A_UINT32",
                    "<INTERNAL-CONSTR>\n" + limits + "</INTERNAL-CONSTR>");
        return Diagnostics();
    };
    EXPECT_EQ(of(Limits("10", "9")), "test.odx:4:1 error limits-reversed");
    EXPECT_EQ(Message(0), "LOWER-LIMIT of INTERNAL-CONSTR is '10', which is above the UPPER-LIMIT '9', so no value "
                          "lies between");
    EXPECT_EQ(of(Limits("9", "10")), "");
    EXPECT_EQ(of(Limits("9", "9")), "");
    EXPECT_EQ(of(Limits("-1", "-2")), "test.odx:4:1 error limits-reversed");
    EXPECT_EQ(of(Limits("B", "A")), ""); // texts have no such order
    EXPECT_EQ(of("<LOWER-LIMIT>9</LOWER-LIMIT>"), "");
    EXPECT_EQ(of("<LOWER-LIMIT>9</LOWER-LIMIT><UPPER-LIMIT INTERVAL-TYPE=\"INFINITE\">0</UPPER-LIMIT>"), "");
}

TEST_F(VDataRulesTest, ScalesThatShareValues) {
    std::string const overlap = "test.odx:5:1 warning overlapping-scales";
    EXPECT_EQ(OfScales("TEXTTABLE", {Limits("0", "5"), Limits("5", "9")}), overlap);
    EXPECT_EQ(Message(0), "COMPU-SCALE of 5 to 9 shares values with the one of 0 to 5 at line 4");
    EXPECT_EQ(OfScales("TEXTTABLE", {Limits("0", "5"), Limits("6", "9")}), "");
    EXPECT_EQ(OfScales("TEXTTABLE", {"<LOWER-LIMIT>1</LOWER-LIMIT>", "<LOWER-LIMIT>1</LOWER-LIMIT>"}), overlap);
    EXPECT_EQ(OfScales("TEXTTABLE", {"<LOWER-LIMIT>1</LOWER-LIMIT>", "<LOWER-LIMIT>2</LOWER-LIMIT>"}), "");
    EXPECT_EQ(OfScales("TEXTTABLE", {Limits("0", "5"), "<LOWER-LIMIT INTERVAL-TYPE=\"OPEN\">5</LOWER-LIMIT>"
                                                       "<UPPER-LIMIT>9</UPPER-LIMIT>"}),
              "");
    EXPECT_EQ(OfScales("SCALE-LINEAR", {Limits("0", "5"), Limits("4", "9")}), overlap);
    EXPECT_EQ(OfScales("SCALE-LINEAR", {Limits("0", "5"), Limits("5", "9")}), ""); // formulas may meet
    EXPECT_EQ(OfScales("TEXTTABLE", {Limits("0", "A"), Limits("0", "A")}), "");
    EXPECT_EQ(OfScales("SCALE-LINEAR", {Limits("0", "5"), "<LOWER-LIMIT>3</LOWER-LIMIT>"}), overlap);
    EXPECT_EQ(Message(0), "COMPU-SCALE of 3 to whatever is more shares values with the one of 0 to 5 at line 4");
}

TEST_F(VDataRulesTest, AScaleInsideAnotherIsFoundBehindThoseBetween) {
    EXPECT_EQ(OfScales("TEXTTABLE", {Limits("0", "100"), Limits("101", "102"), Limits("50", "50")}),
              "test.odx:6:1 warning overlapping-scales");
}

TEST_F(VDataRulesTest, GapsBetweenScalesAreANote) {
    std::string const gap = "test.odx:5:1 note gap-between-scales";
    EXPECT_EQ(OfScales("SCALE-LINEAR", {Limits("0", "5"), Limits("7", "9")}), gap);
    EXPECT_EQ(Message(0), "between the COMPU-SCALEs of 0 to 5 and 7 to 9 are values that none converts");
    EXPECT_EQ(OfScales("SCALE-LINEAR", {Limits("0", "5"), Limits("6", "9")}), ""); // nothing between whole numbers
    EXPECT_EQ(OfScales("TEXTTABLE", {Limits("0", "5"), Limits("7", "9")}), gap);
    EXPECT_EQ(OfScales("TEXTTABLE", {Limits("0", "0"), Limits("7", "7")}), ""); // an enumeration
    EXPECT_EQ(OfScales("TEXTTABLE", {Limits("0", "5"), Limits("7", "9")},
                       "<COMPU-DEFAULT-VALUE><VT>else</VT></COMPU-DEFAULT-VALUE>"),
              "");
    EXPECT_EQ(OfScales("SCALE-LINEAR", {Limits("0", "5"), Limits("7", "9"), Limits("11", "12")}), gap); // once
}

TEST_F(VDataRulesTest, GapsBetweenFractions) {
    CheckMethod(Scales("SCALE-LINEAR", Scale(Limits("0", "5"), kFactor) + Scale(Limits("5.5", "9"), kFactor)),
                Coded("A_FLOAT32", "32"), "A_FLOAT32");
    EXPECT_EQ(Diagnostics(), "test.odx:5:1 note gap-between-scales");
    CheckMethod(Scales("SCALE-LINEAR", Scale(Limits("0", "5"), kFactor) + Scale(Limits("5", "9"), kFactor)),
                Coded("A_FLOAT32", "32"), "A_FLOAT32");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VDataRulesTest, CasesThatShareValues) {
    auto const of = [this](std::string const& first, std::string const& second) {
        auto const part = [](std::string const& name, std::string const& limits) {
            return "\n<CASE><SHORT-NAME>" + name + "</SHORT-NAME>" + limits + "</CASE>";
        };
        CheckDictionary("<MUXS>" + Xml("MUX", "M", "<CASES>" + part("A", first) + part("B", second) + "</CASES>") +
                        "</MUXS>");
        return Diagnostics();
    };
    EXPECT_EQ(of(Limits("0", "5"), Limits("5", "9")), "test.odx:4:1 warning overlapping-cases");
    EXPECT_EQ(Message(0), "CASE 'B' of 5 to 9 shares values with 'A' of 0 to 5 at line 3");
    EXPECT_EQ(of(Limits("0", "4"), Limits("5", "9")), "");
    std::string const open = "<LOWER-LIMIT INTERVAL-TYPE=\"OPEN\">";
    std::string const upTo3 = "<LOWER-LIMIT>0</LOWER-LIMIT><UPPER-LIMIT INTERVAL-TYPE=\"OPEN\">3</UPPER-LIMIT>";
    EXPECT_EQ(of(upTo3, open + "2</LOWER-LIMIT><UPPER-LIMIT>5</UPPER-LIMIT>"), ""); // nothing whole is between
    EXPECT_EQ(of(upTo3, open + "1</LOWER-LIMIT><UPPER-LIMIT>5</UPPER-LIMIT>"),
              "test.odx:4:1 warning overlapping-cases");
    EXPECT_EQ(of(Limits("0", "9007199254740992"), Limits("9007199254740993", "9007199254740994")), ""); // not exact
    EXPECT_EQ(of(Limits("0", "4"), ""), ""); // reported where it is required
}

// Keys

TEST_F(VDataRulesTest, ATroubleCodeTwice) {
    auto const of = [this](std::string const& first, std::string const& second) {
        auto const dtc = [](std::string const& name, std::string const& code) {
            return "\n" + Xml("DTC", name, "<TROUBLE-CODE>" + code + "</TROUBLE-CODE>");
        };
        CheckDictionary("<DTC-DOPS>" + Xml("DTC-DOP", "D", "<DTCS>" + dtc("A", first) + dtc("B", second) + "</DTCS>") +
                        "</DTC-DOPS>");
        return Diagnostics();
    };
    EXPECT_EQ(of("5", "5"), "test.odx:4:1 warning duplicate-trouble-code");
    EXPECT_EQ(Message(0), "DTC 'B' has the TROUBLE-CODE '5' of 'A' at line 3 in DTC-DOP 'D'; a code that is read means "
                          "the first");
    EXPECT_EQ(of("5", "6"), "");
}

TEST_F(VDataRulesTest, TroubleCodesOfTwoDtcDopsMayBeEqual) {
    auto const dop = [](std::string const& name) {
        return Xml("DTC-DOP", name, "<DTCS>" + Xml("DTC", name + "1", "<TROUBLE-CODE>5</TROUBLE-CODE>") + "</DTCS>");
    };
    CheckDictionary("<DTC-DOPS>" + dop("D") + dop("E") + "</DTC-DOPS>");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VDataRulesTest, AKeyTwice) {
    auto const of = [this](std::string const& first, std::string const& second, std::string const& dops = "",
                           std::string const& keyDop = "") {
        CheckDictionary(dops + "<TABLES>" +
                        Xml("TABLE", "T",
                            keyDop + "\n" + Xml("TABLE-ROW", "A", "<KEY>" + first + "</KEY>") + "\n" +
                                Xml("TABLE-ROW", "B", "<KEY>" + second + "</KEY>")) +
                        "</TABLES>");
        return Diagnostics();
    };
    EXPECT_EQ(of("5", "5"), "test.odx:4:1 warning duplicate-key");
    EXPECT_EQ(of("5", "0x05"), "test.odx:4:1 warning duplicate-key"); // one number
    EXPECT_EQ(of("on", "on"), "test.odx:4:1 warning duplicate-key");
    EXPECT_EQ(of("1", "01"), "test.odx:4:1 warning duplicate-key");
    EXPECT_EQ(of("1", "01", DopList(Dop("K", kIdentical, Coded("A_UNICODE2STRING", "16"), "A_UNICODE2STRING")),
                 "<KEY-DOP-REF ID-REF=\"K\"/>"),
              ""); // two texts
    EXPECT_EQ(of("on", "On"), "");
    EXPECT_EQ(of("", ""), "");
}

// Units

TEST_F(VDataRulesTest, UnitsThatAreConvertedWithoutADimension) {
    auto const unit = [](std::string const& name, std::string const& content) {
        return "\n" + Xml("UNIT", name, content);
    };
    auto const check = [this](std::string const& groups, std::string const& units) {
        CheckDictionary("<UNIT-SPEC>" + groups + "<UNITS>" + units + "</UNITS><PHYSICAL-DIMENSIONS>" +
                        Xml("PHYSICAL-DIMENSION", "D") + "</PHYSICAL-DIMENSIONS></UNIT-SPEC>");
        return Diagnostics();
    };
    std::string const factor = "<FACTOR-SI-TO-UNIT>3.6</FACTOR-SI-TO-UNIT>";
    std::string const dimension = "<PHYSICAL-DIMENSION-REF ID-REF=\"D\"/>";
    EXPECT_EQ(check("", unit("A", factor) + unit("B", factor + dimension)),
              "test.odx:3:1 warning unit-without-dimension");
    EXPECT_EQ(check("", unit("A", factor + dimension) + unit("B", factor + dimension)), "");
    EXPECT_EQ(check("", unit("A", factor) + unit("B", "")), ""); // nothing to convert to
    EXPECT_EQ(check("", unit("A", "<FACTOR-SI-TO-UNIT>1.0</FACTOR-SI-TO-UNIT>") + unit("B", factor)), "");
    std::string const group = "<UNIT-GROUPS><UNIT-GROUP><SHORT-NAME>G</SHORT-NAME><CATEGORY>EQUIV-UNITS</CATEGORY>"
                              "<UNIT-REFS>\n<UNIT-REF ID-REF=\"A\"/><UNIT-REF ID-REF=\"B\"/></UNIT-REFS></UNIT-GROUP>"
                              "</UNIT-GROUPS>";
    EXPECT_EQ(check(group, unit("A", "") + unit("B", dimension)), "test.odx:3:1 warning unit-without-dimension");
    EXPECT_EQ(check(group, unit("A", dimension) + unit("B", dimension)), "");
}

} // namespace
} // namespace NTest
