// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/Find.h>

#include <diagkit/memory/Layers.h>
#include <diagkit/reader/Utf8.h>

#include "reader/LayerXml.h"
#include "reader/ReaderTest.h"

namespace NTest {
namespace {

using NQuery::VFinder;

char const* FieldName(NQuery::VFindField field) {
    constexpr char const* kNames[] = {"short_name", "long_name", "id", "description", "trouble_code"};
    return kNames[static_cast<std::size_t>(field)];
}

class FindTest : public VReaderTest {
protected:
    FindTest() { m_options.keepsElements = true; }

    /// A line for each match: the tag, the field, and the text with what fits in brackets.
    std::string Found(std::wstring const& pattern, VFinder::VSyntax syntax = VFinder::VSyntax::Text) {
        std::string lines;
        for (NQuery::VFindMatch const& match : VFinder(pattern, syntax).In(m_result.elements)) {
            std::wstring text = match.text;
            text.insert(match.start + match.length, L"]").insert(match.start, L"[");
            lines += NReader::ToUtf8(NODX201::OdxTagText(match.element->GetOdxTag())) + " " + FieldName(match.field) +
                     " " + NReader::ToUtf8(text) + "\n";
        }
        return lines;
    }
    std::string FoundByRegex(std::wstring const& pattern) { return Found(pattern, VFinder::VSyntax::Regex); }

    void ReadTroubleCode(std::string const& content) {
        Read(Dictionary("<DTC-DOPS><DTC-DOP ID=\"T\"><SHORT-NAME>T</SHORT-NAME><DTCS><DTC ID=\"Open\">"
                        "<SHORT-NAME>Open</SHORT-NAME>" +
                        content + "</DTC></DTCS></DTC-DOP></DTC-DOPS>"));
    }
};

TEST_F(FindTest, EveryFieldThatFitsIsOneMatchInTheirOrder) {
    Read(Document("<DIAG-LAYER-CONTAINER ID=\"x.wiper\"><SHORT-NAME>WIPER</SHORT-NAME><LONG-NAME>The wiper and a Wiper"
                  "</LONG-NAME><DESC><p>of wipers</p></DESC></DIAG-LAYER-CONTAINER>"));
    EXPECT_EQ(Found(L"Wiper"), "DIAG-LAYER-CONTAINER short_name [WIPER]\n"
                               "DIAG-LAYER-CONTAINER long_name The [wiper] and a Wiper\n"
                               "DIAG-LAYER-CONTAINER id x.[wiper]\n"
                               "DIAG-LAYER-CONTAINER description of [wiper]s\n");
}

TEST_F(FindTest, ElementsComeInDocumentOrderInAndOutsideLayers) {
    Read(Layer("<FUNCT-CLASSS><FUNCT-CLASS ID=\"F1\"><SHORT-NAME>F1</SHORT-NAME></FUNCT-CLASS>"
               "<FUNCT-CLASS ID=\"F2\"><SHORT-NAME>Other</SHORT-NAME></FUNCT-CLASS></FUNCT-CLASSS>"));
    EXPECT_EQ(Found(L"f"), "FUNCT-CLASS short_name [F]1\nFUNCT-CLASS id [F]1\nFUNCT-CLASS id [F]2\n");
    EXPECT_EQ(Found(L"c"), "DIAG-LAYER-CONTAINER short_name [C]\nDIAG-LAYER-CONTAINER id [C]\n");
}

TEST_F(FindTest, CaseDoesNotCountInAnyScriptThatHasIt) {
    Read(Document("<DIAG-LAYER-CONTAINER ID=\"C\"><SHORT-NAME>C</SHORT-NAME><LONG-NAME>T\u00DCR \u0416\u0443\u043A "
                  "\u03A9\u00FF\u0160\u1E9E</LONG-NAME></DIAG-LAYER-CONTAINER>"));
    EXPECT_NE(Found(L"t\u00FCr"), "");
    EXPECT_NE(Found(L"\u0436\u0423\u041A"), "");
    EXPECT_NE(Found(L"\u03C9\u0178\u0161"), "");
    EXPECT_EQ(Found(L"\u00DF"), "") << "one letter is one letter";
    EXPECT_NE(FoundByRegex(L"^t[\u00FC]r"), "");
}

TEST_F(FindTest, APatternStandsForItself) {
    Read(Document("<DIAG-LAYER-CONTAINER ID=\"C.x\"><SHORT-NAME>Cx</SHORT-NAME></DIAG-LAYER-CONTAINER>"));
    EXPECT_EQ(Found(L"c.x"), "DIAG-LAYER-CONTAINER id [C.x]\n");
    EXPECT_EQ(Found(L".*"), "");
    EXPECT_EQ(FoundByRegex(L"c.?x"), "DIAG-LAYER-CONTAINER short_name [Cx]\nDIAG-LAYER-CONTAINER id [C.x]\n");
}

TEST_F(FindTest, DescriptionsAreTextWithoutMarkupInOneLine) {
    Read(Document("<DIAG-LAYER-CONTAINER ID=\"C\"><SHORT-NAME>C</SHORT-NAME><DESC>\n  <p align=\"left\">Supply U<sub>B"
                  "</sub>,\n   <b>a &lt; b</b>:<br/>one<ul><li>two</li></ul></p></DESC></DIAG-LAYER-CONTAINER>"));
    EXPECT_EQ(Found(L"ub, a < B: one Two"), "DIAG-LAYER-CONTAINER description Supply [UB, a < b: one two]\n");
    EXPECT_EQ(Found(L"align"), "");
    EXPECT_EQ(Found(L"sub"), "");
}

TEST_F(FindTest, TroubleCodesAreFoundAsShownInDecimalAndInHexadecimal) {
    ReadTroubleCode("<TROUBLE-CODE>12670208</TROUBLE-CODE><DISPLAY-TROUBLE-CODE>U0155-00</DISPLAY-TROUBLE-CODE>");
    EXPECT_EQ(Found(L"u0155"), "DTC trouble_code [U0155]-00\n");
    EXPECT_EQ(Found(L"126702"), "DTC trouble_code [126702]08\n");
    EXPECT_EQ(Found(L"0xc15500"), "DTC trouble_code [0xC15500]\n");
    EXPECT_EQ(Found(L"15500"), "DTC trouble_code 0xC[15500]\n");
    EXPECT_EQ(Found(L"55"), "DTC trouble_code U01[55]-00\n");
}

TEST_F(FindTest, AShortTroubleCodeIsFoundWithLeadingZeros) {
    ReadTroubleCode("<TROUBLE-CODE>341</TROUBLE-CODE>");
    EXPECT_EQ(Found(L"0x155"), "DTC trouble_code [0x155]\n");
    EXPECT_EQ(Found(L"0x000155"), "DTC trouble_code [0x000155]\n");
    EXPECT_EQ(Found(L"000155"), "DTC trouble_code 0x[000155]\n");
}

TEST_F(FindTest, ATroubleCodeThatIsNoNumberIsFoundAsWritten) {
    ReadTroubleCode("<TROUBLE-CODE>99999999999999999999999</TROUBLE-CODE>");
    EXPECT_EQ(Found(L"0x"), "");
    EXPECT_EQ(Found(L"99"), "DTC trouble_code [99]999999999999999999999\n");
}

TEST_F(FindTest, TheTextOfATroubleCodeIsItsDescription) {
    ReadTroubleCode("<TROUBLE-CODE>1</TROUBLE-CODE><TEXT>Motor:\n circuit open</TEXT>");
    EXPECT_EQ(Found(L"motor: circuit"), "DTC description [Motor: circuit] open\n");
}

TEST_F(FindTest, ReferencesHaveNoNamesAndNoIds) {
    Read(ContainerOfLayers(LayerXml("BASE-VARIANT", "BV", ParentRefs({{"PROTOCOL", "Gone"}}))));
    EXPECT_EQ(Found(L"gone"), "");
}

TEST_F(FindTest, WhatAProgramMadeIsFoundAsWell) {
    NMemory::VDatabase database;
    auto& container = database.AddDiagLayerContainer(L"Made");
    container.SetLongName(L"by  hand");
    container.SetDesc(L"a < b");
    EXPECT_EQ(VFinder(L"by hand").In(container).size(), 1U);
    EXPECT_EQ(VFinder(L"a < b").In(container).size(), 1U);
}

TEST_F(FindTest, AnEmptyPatternIsNone) {
    EXPECT_THROW(VFinder(L""), NQuery::VPatternError);
    EXPECT_THROW(VFinder(L"", VFinder::VSyntax::Regex), NQuery::VPatternError);
}

} // namespace
} // namespace NTest
