// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Dops.h>
#include <diagkit/model/Params.h>
#include <diagkit/model/Responses.h>

#include "query/UsesTest.h"

namespace NTest {
namespace {

std::string OwnDop(std::string const& id, std::string const& name) {
    return "<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"" + id + "\"><SHORT-NAME>" + name +
           "</SHORT-NAME></DATA-OBJECT-PROP></DATA-OBJECT-PROPS>";
}

std::string WithParams(std::string const& params) {
    return DiagComms(Service("S", "<REQUEST-REF ID-REF=\"RQ\"/>")) + Request("RQ", params);
}

class VUsesByNameTest : public VUsesTest {
protected:
    /// A BASE-VARIANT "B" with this content, and two ECU-VARIANTs of it.
    void ReadFamily(std::string const& base, std::string const& first, std::string const& second,
                    std::string const& exclusions = "") {
        ReadLayers(LayerXml("BASE-VARIANT", "B", base) +
                   LayerXml("ECU-VARIANT", "V1", first + ParentRefs({{"BASE-VARIANT", "B", exclusions}})) +
                   LayerXml("ECU-VARIANT", "V2", second + ParentRefs({{"BASE-VARIANT", "B"}})));
    }
};

TEST_F(VUsesByNameTest, AreReadInEveryLayerThatInheritsTheService) {
    ReadFamily(InDictionary(OwnDop("D", "X")) + WithParams(Value("P", DopSnrefTo("X"))), "", "");
    EXPECT_EQ(Uses("D"), "DOP-SNREF from P in B V1 V2\n");
}

TEST_F(VUsesByNameTest, MeanWhatEachLayerHasOfTheName) {
    ReadFamily(InDictionary(OwnDop("D", "X")) + WithParams(Value("P", DopSnrefTo("X"))),
               InDictionary(OwnDop("D1", "X")), "");
    EXPECT_EQ(Uses("D"), "DOP-SNREF from P in B V2\n");
    EXPECT_EQ(Uses("D1"), "DOP-SNREF from P in V1\n");
}

TEST_F(VUsesByNameTest, AreLeftOutWhereTheyMeanTheElementNowhere) {
    ReadFamily(WithParams(Value("P", DopSnrefTo("X"))), InDictionary(OwnDop("D1", "X")), "", Excluded("S"));
    EXPECT_EQ(Uses("D1"), "");
}

TEST_F(VUsesByNameTest, OfADopAreReadWhereItIsVisible) {
    ReadFamily(InDictionary(Structure("T", Value("P", DopSnrefTo("X")))), InDictionary(OwnDop("D1", "X")),
               InDictionary(OwnDop("D2", "T") + OwnDop("D3", "X")));
    EXPECT_EQ(Uses("D1"), "DOP-SNREF from P in V1\n");
    EXPECT_EQ(Uses("D3"), "");
}

TEST_F(VUsesByNameTest, OfAVariableAreReadWhereItIsVisible) {
    ReadFamily("<DIAG-VARIABLES>" +
                   Xml("DIAG-VARIABLE", "W",
                       "<COMM-RELATIONS><COMM-RELATION><RELATION-TYPE>r</RELATION-TYPE><DIAG-COMM-SNREF "
                       "SHORT-NAME=\"X\"/></COMM-RELATION></COMM-RELATIONS>") +
                   "</DIAG-VARIABLES>",
               DiagComms(Service("X")), "");
    EXPECT_EQ(Uses("X"), "DIAG-COMM-SNREF from W in V1\n");
}

TEST_F(VUsesByNameTest, OfAGlobalNegResponseAreReadWhereItIsVisible) {
    ReadFamily("<GLOBAL-NEG-RESPONSES>" +
                   Xml("GLOBAL-NEG-RESPONSE", "N", "<PARAMS>" + Value("P", DopSnrefTo("X")) + "</PARAMS>") +
                   "</GLOBAL-NEG-RESPONSES>",
               InDictionary(OwnDop("D1", "X")), "");
    EXPECT_EQ(Uses("D1"), "DOP-SNREF from P in V1\n");
}

TEST_F(VUsesByNameTest, OfAMessageThatNoServiceNamesAreReadInItsOwnLayer) {
    ReadFamily(Request("RQ", Value("P", DopSnrefTo("X"))) + InDictionary(OwnDop("D", "X")), "", "");
    EXPECT_EQ(Uses("D"), "DOP-SNREF from P in B\n");
}

TEST_F(VUsesByNameTest, OfADopAreReadWhereAMessageLeadsToItById) {
    std::string const service = DiagComms(Service("S", "<REQUEST-REF ID-REF=\"RQ\"/>"));
    ReadLayers(LayerXml("ECU-SHARED-DATA", "L", InDictionary(Structure("T", Value("P", DopSnrefTo("X"))))) +
               LayerXml("BASE-VARIANT", "B", service + Request("RQ", Value("Q", "<DOP-REF ID-REF=\"T\"/>"))) +
               LayerXml("ECU-VARIANT", "V1",
                        InDictionary(OwnDop("D1", "X")) + ParentRefs({{"BASE-VARIANT", "B", Excluded("S")}})) +
               LayerXml("ECU-VARIANT", "V2", InDictionary(OwnDop("D2", "X")) + ParentRefs({{"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Uses("D1"), "");
    EXPECT_EQ(Uses("D2"), "DOP-SNREF from P in V2\n");
}

TEST_F(VUsesByNameTest, OfADopWhoseNameMeansAnotherAreReadWhereAReferenceByIdLeadsToIt) {
    ReadFamily(InDictionary(Structure("T", Value("P", DopSnrefTo("X")))) +
                   WithParams(Value("Q", "<DOP-REF ID-REF=\"T\"/>")),
               InDictionary(OwnDop("D1", "X") + "<STRUCTURES><STRUCTURE ID=\"T1\"><SHORT-NAME>T</SHORT-NAME>"
                                                "</STRUCTURE></STRUCTURES>"),
               "");
    EXPECT_EQ(Uses("D1"), "DOP-SNREF from P in V1\n");
}

TEST_F(VUsesByNameTest, AreReadOverSeveralReferencesById) {
    std::string const table =
        "<TABLES>" + Xml("TABLE", "TB", Xml("TABLE-ROW", "R", "<STRUCTURE-REF ID-REF=\"T\"/>")) + "</TABLES>";
    std::string const key = "<PARAM xsi:type=\"TABLE-KEY\" ID=\"K\"><SHORT-NAME>K</SHORT-NAME>"
                            "<TABLE-REF ID-REF=\"TB\"/></PARAM>";
    ReadLayers(LayerXml("ECU-SHARED-DATA", "L",
                        InDictionary("<STRUCTURES>" +
                                     Xml("STRUCTURE", "T", "<PARAMS>" + Value("P", DopSnrefTo("X")) + "</PARAMS>") +
                                     Xml("STRUCTURE", "U", "<PARAMS>" + key + "</PARAMS>") + "</STRUCTURES>" + table)) +
               LayerXml("BASE-VARIANT", "B",
                        InDictionary(OwnDop("D", "X")) + WithParams(Value("Q", "<DOP-REF ID-REF=\"U\"/>"))));
    EXPECT_EQ(Uses("D"), "DOP-SNREF from P in B\n");
}

TEST_F(VUsesByNameTest, OfAJobsDopAreReadWhereTheJobIsVisible) {
    std::string const job = "<SINGLE-ECU-JOB ID=\"J\"><SHORT-NAME>J</SHORT-NAME><OUTPUT-PARAMS>" +
                            Xml("OUTPUT-PARAM", "O", "<DOP-BASE-REF ID-REF=\"T\"/>") +
                            "</OUTPUT-PARAMS></SINGLE-ECU-JOB>";
    ReadLayers(LayerXml("ECU-SHARED-DATA", "L", InDictionary(Structure("T", Value("P", DopSnrefTo("X"))))) +
               LayerXml("BASE-VARIANT", "B", DiagComms(job)) +
               LayerXml("ECU-VARIANT", "V", InDictionary(OwnDop("D", "X")) + ParentRefs({{"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Uses("D"), "DOP-SNREF from P in V\n");
}

TEST_F(VUsesByNameTest, OfAnEnvDataAreReadWhereAReferenceLeadsToItFromItsDescription) {
    auto const envData = [](std::string const& id) {
        return Xml("ENV-DATA", id, "<PARAMS>" + Value("P." + id, DopSnrefTo("X")) + "</PARAMS>");
    };
    std::string const described =
        "<ENV-DATA-DESCS>" +
        Xml("ENV-DATA-DESC", "E", "<ENV-DATAS><ENV-DATA-REF ID-REF=\"N\"/>" + envData("I") + "</ENV-DATAS>") +
        "</ENV-DATA-DESCS>";
    ReadLayers(LayerXml("ECU-SHARED-DATA", "L", InDictionary("<ENV-DATAS>" + envData("N") + "</ENV-DATAS>")) +
               LayerXml("BASE-VARIANT", "B", InDictionary(described)) +
               LayerXml("ECU-VARIANT", "V", InDictionary(OwnDop("D", "X")) + ParentRefs({{"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Uses("D"), "DOP-SNREF from P.N in V\nDOP-SNREF from P.I in V\n");
}

TEST_F(VUsesByNameTest, WithTheCaseOfLettersMeanNothing) {
    ReadFamily(InDictionary(OwnDop("D", "x")) + WithParams(Value("P", DopSnrefTo("X"))), "", "");
    EXPECT_EQ(Uses("D"), "");
}

TEST_F(VUsesByNameTest, ThatCloseACircleAreTold) {
    ReadLayers(LayerXml("ECU-VARIANT", "V", InDictionary(Structure("T", Value("P", DopSnrefTo("T"))))));
    EXPECT_EQ(Diagnostics(), "test.odx:3:142 error containment-cycle");
    EXPECT_EQ(Uses("T"), "DOP-SNREF from P in V\n");
}

TEST_F(VUsesByNameTest, OfATableMeanTheOwnOneBeforeThatOfAParent) {
    std::string const record = "<DYN-DEFINED-SPEC><DYN-ID-DEF-MODE-INFOS><DYN-ID-DEF-MODE-INFO>"
                               "<SELECTION-TABLE-REFS><SELECTION-TABLE-SNREF SHORT-NAME=\"T\"/>"
                               "</SELECTION-TABLE-REFS></DYN-ID-DEF-MODE-INFO></DYN-ID-DEF-MODE-INFOS>"
                               "</DYN-DEFINED-SPEC>";
    auto const table = [](std::string const& id) {
        return InDictionary("<TABLES><TABLE ID=\"" + id + "\"><SHORT-NAME>T</SHORT-NAME></TABLE></TABLES>");
    };
    ReadFamily(table("TB"), table("T1") + record, record);
    EXPECT_EQ(Uses("TB"), "SELECTION-TABLE-SNREF from V2 in V2\n");
    EXPECT_EQ(Uses("T1"), "SELECTION-TABLE-SNREF from V1 in V1\n");
}

TEST_F(VUsesByNameTest, OfAProtocolHaveNoLayers) {
    ReadLayers(LayerXml("PROTOCOL", "UDS") +
               LayerXml("BASE-VARIANT", "B",
                        DiagComms(Service("S", "<PROTOCOL-SNREFS><PROTOCOL-SNREF SHORT-NAME=\"UDS\"/>"
                                               "</PROTOCOL-SNREFS>")) +
                            ParentRefs({{"PROTOCOL", "UDS"}})) +
               LayerXml("ECU-VARIANT", "V", ParentRefs({{"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Uses("UDS"), "PROTOCOL-SNREF from S\nPARENT-REF from B\n");
}

/// A pattern that looks for the output parameter "P" of the DIAG-COMM "S".
std::string const kMatching = "<ECU-VARIANT-PATTERNS><ECU-VARIANT-PATTERN><MATCHING-PARAMETERS><MATCHING-PARAMETER>"
                              "<EXPECTED-VALUE>1</EXPECTED-VALUE><DIAG-COMM-SNREF SHORT-NAME=\"S\"/>"
                              "<OUT-PARAM-IF-SNREF SHORT-NAME=\"P\"/></MATCHING-PARAMETER></MATCHING-PARAMETERS>"
                              "</ECU-VARIANT-PATTERN></ECU-VARIANT-PATTERNS>";

std::string Responding(std::string const& id, std::string const& message, std::string const& params) {
    return DiagComms("<DIAG-SERVICE ID=\"" + id +
                     "\"><SHORT-NAME>S</SHORT-NAME><POS-RESPONSE-REFS><POS-RESPONSE-REF "
                     "ID-REF=\"" +
                     message + "\"/></POS-RESPONSE-REFS></DIAG-SERVICE>") +
           "<POS-RESPONSES>" + Xml("POS-RESPONSE", message, "<PARAMS>" + params + "</PARAMS>") + "</POS-RESPONSES>";
}

TEST_F(VUsesByNameTest, OfAParameterAreTheLayersInWhichItsDiagCommHasIt) {
    std::string const dop = InDictionary(OwnDop("D", "X"));
    ReadFamily(dop + Responding("S.B", "PR.B", Value("P", DopSnrefTo("X"))), kMatching,
               kMatching + Responding("S.2", "PR.2", Value("P", DopSnrefTo("X"))));
    NODX201::VOdxElement const& inBase = At(Get<NODX201::VPosResponse>(L"PR.B").ParamCollection(), 0);
    EXPECT_EQ(UsesOf(inBase), "OUT-PARAM-IF-SNREF from V1 in V1\n");
    NODX201::VOdxElement const& inVariant = At(Get<NODX201::VPosResponse>(L"PR.2").ParamCollection(), 0);
    EXPECT_EQ(UsesOf(inVariant), "OUT-PARAM-IF-SNREF from V2 in V2\n");
}

TEST_F(VUsesByNameTest, OfAParameterMeanThatOfTheResponseBeforeThatOfTheRequest) {
    ReadLayers(LayerXml("ECU-VARIANT", "V",
                        kMatching +
                            DiagComms(Service("S", "<REQUEST-REF ID-REF=\"RQ\"/><POS-RESPONSE-REFS>"
                                                   "<POS-RESPONSE-REF ID-REF=\"PR\"/></POS-RESPONSE-REFS>")) +
                            Request("RQ", Value("P", "")) + "<POS-RESPONSES>" +
                            Xml("POS-RESPONSE", "PR", "<PARAMS>" + Value("P", "") + "</PARAMS>") + "</POS-RESPONSES>"));
    EXPECT_EQ(UsesOf(At(Get<NODX201::VRequest>(L"RQ").ParamCollection(), 0)), "");
    EXPECT_EQ(UsesOf(At(Get<NODX201::VPosResponse>(L"PR").ParamCollection(), 0)), "OUT-PARAM-IF-SNREF from V in V\n");
}

TEST_F(VUsesByNameTest, OfAParameterMeanOneOfTheMessageBeforeANestedOne) {
    ReadLayers(LayerXml("ECU-VARIANT", "V",
                        kMatching + InDictionary(Structure("T", Value("P", ""))) +
                            Responding("S", "PR", Value("Q", "<DOP-REF ID-REF=\"T\"/>") + Value("P", ""))));
    EXPECT_EQ(UsesOf(At(Get<NODX201::VStructure>(L"T").ParamCollection(), 0)), "");
    EXPECT_EQ(UsesOf(At(Get<NODX201::VPosResponse>(L"PR").ParamCollection(), 1)), "OUT-PARAM-IF-SNREF from V in V\n");
}

TEST_F(VUsesByNameTest, OfAnEnvDataDescMeanTheParameterInEveryMessageThatLeadsToIt) {
    auto const responding = [](std::string const& id) {
        return Xml("POS-RESPONSE", "PR." + id,
                   "<PARAMS>" + Value("Code", "") + Value("Rest", "<DOP-REF ID-REF=\"E\"/>") + "</PARAMS>");
    };
    auto const service = [](std::string const& id) {
        return Service(id, "<POS-RESPONSE-REFS><POS-RESPONSE-REF ID-REF=\"PR." + id + "\"/></POS-RESPONSE-REFS>");
    };
    ReadFamily(InDictionary("<ENV-DATA-DESCS>" + Xml("ENV-DATA-DESC", "E", "<PARAM-SNREF SHORT-NAME=\"Code\"/>") +
                            "</ENV-DATA-DESCS>") +
                   DiagComms(service("S") + service("S2")) + "<POS-RESPONSES>" + responding("S") + responding("S2") +
                   Xml("POS-RESPONSE", "PR.Other", "<PARAMS>" + Value("Code", "") + "</PARAMS>") + "</POS-RESPONSES>",
               "", "", Excluded("S2"));
    EXPECT_EQ(UsesOf(At(Get<NODX201::VPosResponse>(L"PR.S").ParamCollection(), 0)), "PARAM-SNREF from E in B V1 V2\n");
    EXPECT_EQ(UsesOf(At(Get<NODX201::VPosResponse>(L"PR.S2").ParamCollection(), 0)), "PARAM-SNREF from E in B V2\n");
    EXPECT_EQ(UsesOf(At(Get<NODX201::VPosResponse>(L"PR.Other").ParamCollection(), 0)), "");
}

} // namespace
} // namespace NTest
