// SPDX-License-Identifier: Apache-2.0
#include "check/CheckTest.h"

namespace NTest {
namespace {

std::string DopSnref(std::string const& name) { return "\n<DOP-SNREF SHORT-NAME=\"" + name + "\"/>"; }

std::string WithRequest(std::string const& params) {
    return DiagComms(Service("S", "<REQUEST-REF ID-REF=\"RQ\"/>")) + Request("RQ", params);
}

class VShortNameReferencesTest : public VCheckTest {
protected:
    /// A BASE-VARIANT "B" with this content, and two ECU-VARIANTs of it.
    void CheckFamily(std::string const& base, std::string const& first, std::string const& second,
                     std::string const& exclusions = "") {
        std::string const parents = ParentRefs({{"BASE-VARIANT", "B", exclusions}});
        Check(LayerXml("BASE-VARIANT", "B", base) + LayerXml("ECU-VARIANT", "V1", first + parents) +
              LayerXml("ECU-VARIANT", "V2", second + parents));
    }

    /// A layer with this content in addition to a service "S" with the output parameter "P".
    void CheckLayer(std::string const& content) {
        Check(LayerXml("ECU-VARIANT", "V",
                       InDictionary(Dops("D")) + WithRequest(Value("P", "<DOP-SNREF SHORT-NAME=\"D\"/>")) + content));
    }
};

TEST_F(VShortNameReferencesTest, ToADopThatIsNotThere) {
    CheckFamily(WithRequest(Value("P", DopSnref("X"))), "", "");
    EXPECT_EQ(Finding(), "4:1 error unresolved-short-name: DOP-SNREF names 'X', but no DOP of that name is visible in "
                         "the layers 'B', 'V1', 'V2'");
}

TEST_F(VShortNameReferencesTest, ToADopThatOneVariantLacks) {
    CheckFamily(WithRequest(Value("P", DopSnref("X"))), InDictionary(Dops("X")), "");
    EXPECT_EQ(Finding(),
              "4:1 warning short-name-not-everywhere: DOP-SNREF names 'X', but no DOP of that name is visible "
              "in the layers 'B', 'V2'; it is in the other layers that see the reference");
}

TEST_F(VShortNameReferencesTest, AreNotTriedWhereTheServiceIsExcluded) {
    CheckFamily(WithRequest(Value("P", DopSnref("X"))), "", "", Excluded("S"));
    EXPECT_EQ(Finding(), "4:1 error unresolved-short-name: DOP-SNREF names 'X', but no DOP of that name is visible in "
                         "the layer 'B'");
}

TEST_F(VShortNameReferencesTest, AreNotTriedWhereTheServiceIsOverridden) {
    CheckFamily(WithRequest(Value("P", DopSnref("X"))), "",
                DiagComms("<DIAG-SERVICE ID=\"S2\"><SHORT-NAME>S</SHORT-NAME></DIAG-SERVICE>"));
    EXPECT_EQ(Finding(), "4:1 error unresolved-short-name: DOP-SNREF names 'X', but no DOP of that name is visible in "
                         "the layers 'B', 'V1'");
}

TEST_F(VShortNameReferencesTest, OfAMessageThatNoServiceNamesAreTriedInItsOwnLayer) {
    CheckFamily(Request("RQ", Value("P", DopSnref("X"))), InDictionary(Dops("X")), InDictionary(Dops("X")));
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 error unresolved-short-name");
}

TEST_F(VShortNameReferencesTest, OfADopAreTriedWhereItIsVisible) {
    CheckFamily(InDictionary(Structure("T", Value("P", DopSnref("X")))), InDictionary(Dops("X")),
                InDictionary(Dops("T")));
    EXPECT_EQ(Finding(),
              "4:1 warning short-name-not-everywhere: DOP-SNREF names 'X', but no DOP of that name is visible "
              "in the layer 'B'; it is in the other layers that see the reference");
}

/// An ECU-SHARED-DATA "L" from which no layer inherits, with a STRUCTURE "T".
std::string Library() {
    return LayerXml("ECU-SHARED-DATA", "L", InDictionary(Structure("T", Value("P", DopSnref("X")))));
}

TEST_F(VShortNameReferencesTest, OfADopAreTriedWhereReferencesByIdLeadToIt) {
    Check(Library() +
          LayerXml("BASE-VARIANT", "B", InDictionary(Dops("X")) + WithRequest(Value("Q", "<DOP-REF ID-REF=\"T\"/>"))) +
          LayerXml("ECU-VARIANT", "V", DiagComms(Service("R", "<REQUEST-REF ID-REF=\"RQ\"/>"))));
    EXPECT_EQ(Finding(),
              "4:1 warning short-name-not-everywhere: DOP-SNREF names 'X', but no DOP of that name is visible "
              "in the layers 'L', 'V'; it is in the other layers that see the reference");
}

TEST_F(VShortNameReferencesTest, OfADopToWhichMuchLeadsAreToldOnce) {
    std::string const both = Value("Q", "<DOP-REF ID-REF=\"T\"/>") + Value("R", "<DOP-REF ID-REF=\"U\"/>");
    std::string const dictionary = InDictionary(
        "<STRUCTURES>" + Xml("STRUCTURE", "U", "<PARAMS>" + Value("S", "<DOP-REF ID-REF=\"T\"/>") + "</PARAMS>") +
        "</STRUCTURES>");
    Check(Library() + LayerXml("BASE-VARIANT", "B", dictionary + WithRequest(both)));
    EXPECT_EQ(Finding(), "4:1 error unresolved-short-name: DOP-SNREF names 'X', but no DOP of that name is visible in "
                         "the layers 'L', 'B'");
}

TEST_F(VShortNameReferencesTest, OfAVariableAreTriedWhereItIsVisible) {
    CheckFamily("<DIAG-VARIABLES>" +
                    Xml("DIAG-VARIABLE", "W",
                        "<COMM-RELATIONS><COMM-RELATION><RELATION-TYPE>r</RELATION-TYPE>\n<DIAG-COMM-SNREF "
                        "SHORT-NAME=\"X\"/></COMM-RELATION></COMM-RELATIONS>") +
                    "</DIAG-VARIABLES>",
                DiagComms(Service("X")), "");
    EXPECT_EQ(Finding(), "4:1 warning short-name-not-everywhere: DIAG-COMM-SNREF names 'X', but no DIAG-COMM of that "
                         "name is visible in the layers 'B', 'V2'; it is in the other layers that see the reference");
}

TEST_F(VShortNameReferencesTest, OfAGlobalNegResponseAreTriedWhereItIsVisible) {
    CheckFamily("<GLOBAL-NEG-RESPONSES>" +
                    Xml("GLOBAL-NEG-RESPONSE", "N", "<PARAMS>" + Value("P", DopSnref("X")) + "</PARAMS>") +
                    "</GLOBAL-NEG-RESPONSES>",
                InDictionary(Dops("X")), InDictionary(Dops("X")));
    EXPECT_EQ(Finding(),
              "4:1 warning short-name-not-everywhere: DOP-SNREF names 'X', but no DOP of that name is visible "
              "in the layer 'B'; it is in the other layers that see the reference");
}

TEST_F(VShortNameReferencesTest, ThatResolveEverywhereAreNoFindings) {
    CheckFamily(InDictionary(Dops("X")) + WithRequest(Value("P", DopSnref("X"))), InDictionary(Dops("X")), "");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VShortNameReferencesTest, CompareExactly) {
    CheckFamily(InDictionary(Dops("x")) + WithRequest(Value("P", DopSnref("X"))), "", "");
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 error unresolved-short-name");
}

TEST_F(VShortNameReferencesTest, ToADataObjectPropThatIsAStructure) {
    Check(LayerXml("ECU-VARIANT", "V",
                   InDictionary(Structure("T", "")) +
                       Request("RQ", "<PARAM xsi:type=\"SYSTEM\" SYSPARAM=\"DAY\"><SHORT-NAME>P</SHORT-NAME>" +
                                         DopSnref("T") + "</PARAM>")));
    EXPECT_EQ(Finding(),
              "4:1 error unresolved-short-name: DOP-SNREF names 'T', but no DATA-OBJECT-PROP of that name is "
              "visible in the layer 'V'");
}

TEST_F(VShortNameReferencesTest, ThatCloseACycleAreReportedAsThatAlone) {
    Check(LayerXml("ECU-VARIANT", "V", InDictionary(Structure("T", Value("P", DopSnref("T"))))));
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 error containment-cycle");
}

TEST_F(VShortNameReferencesTest, OfAnAccessLevel) {
    CheckLayer("<ACCESS-LEVELS><ACCESS-LEVEL><VALUE>1</VALUE><DESC/>\n<DIAG-COMM-SNREF "
               "SHORT-NAME=\"X\"/></ACCESS-LEVEL></ACCESS-LEVELS>");
    EXPECT_EQ(Finding(), "4:1 error unresolved-short-name: DIAG-COMM-SNREF names 'X', but no DIAG-COMM of that name is "
                         "visible in the layer 'V'");
}

std::string Pattern(std::string const& diagComm, std::string const& param) {
    return "<ECU-VARIANT-PATTERNS><ECU-VARIANT-PATTERN><MATCHING-PARAMETERS><MATCHING-PARAMETER>"
           "<EXPECTED-VALUE>1</EXPECTED-VALUE>\n<DIAG-COMM-SNREF SHORT-NAME=\"" +
           diagComm + "\"/>\n<OUT-PARAM-IF-SNREF SHORT-NAME=\"" + param +
           "\"/></MATCHING-PARAMETER></MATCHING-PARAMETERS></ECU-VARIANT-PATTERN></ECU-VARIANT-PATTERNS>";
}

TEST_F(VShortNameReferencesTest, ToAnOutputParameter) {
    CheckLayer(Pattern("S", "P"));
    EXPECT_EQ(Diagnostics(), "");
    CheckLayer(Pattern("S", "X"));
    EXPECT_EQ(Finding(),
              "5:1 error unresolved-short-name: OUT-PARAM-IF-SNREF names 'X', but the DIAG-COMM has no output "
              "parameter of that name in the layer 'V'");
}

TEST_F(VShortNameReferencesTest, ToAParameterOfAnUnresolvedDiagCommAreNotReportedAgain) {
    CheckLayer(Pattern("Y", "X"));
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 error unresolved-short-name");
}

TEST_F(VShortNameReferencesTest, ToAnOutputParameterDeepInside) {
    // In a structure by short name, in a row of a table that leads back to the table.
    std::string const table = "<TABLES>" +
                              Xml("TABLE", "TB", Xml("TABLE-ROW", "R", "<KEY>1</KEY>\n<STRUCTURE-REF ID-REF=\"T\"/>")) +
                              "</TABLES>";
    std::string const key = "<PARAM xsi:type=\"TABLE-KEY\" ID=\"K\"><SHORT-NAME>K</SHORT-NAME>\n<TABLE-REF "
                            "ID-REF=\"TB\"/></PARAM>";
    std::string const dictionary =
        InDictionary(Dops("D") + Structure("T", key + Value("Deep", "<DOP-SNREF SHORT-NAME=\"D\"/>")) + table);
    auto const layer = [&](std::string const& param) {
        return LayerXml("ECU-VARIANT", "V",
                        dictionary + WithRequest(Value("P", "<DOP-SNREF SHORT-NAME=\"T\"/>")) + Pattern("S", param));
    };
    Check(layer("Deep"));
    EXPECT_EQ(Diagnostics(), "test.odx:5:1 warning table-row-cycle");
    Check(layer("X"));
    EXPECT_EQ(Diagnostics(), "test.odx:5:1 warning table-row-cycle\ntest.odx:7:1 error unresolved-short-name");
}

std::string Relation(std::string const& snref) {
    return "<DIAG-VARIABLES>" +
           Xml("DIAG-VARIABLE", "W",
               "<COMM-RELATIONS><COMM-RELATION><RELATION-TYPE>r</RELATION-TYPE><DIAG-COMM-REF ID-REF=\"S\"/>\n" +
                   snref + "</COMM-RELATION></COMM-RELATIONS>") +
           "</DIAG-VARIABLES>";
}

TEST_F(VShortNameReferencesTest, ToAnInputParameter) {
    CheckLayer(Relation("<IN-PARAM-IF-SNREF SHORT-NAME=\"P\"/>"));
    EXPECT_EQ(Diagnostics(), "");
    CheckLayer(Relation("<IN-PARAM-IF-SNREF SHORT-NAME=\"X\"/>"));
    EXPECT_EQ(Finding(), "4:1 error unresolved-short-name: IN-PARAM-IF-SNREF names 'X', but the DIAG-COMM has no input "
                         "parameter of that name in the layer 'V'");
}

TEST_F(VShortNameReferencesTest, ToParametersOfAJob) {
    auto const layer = [](std::string const& snref) {
        return LayerXml(
            "ECU-VARIANT", "V",
            DiagComms(Xml("SINGLE-ECU-JOB", "S",
                          "<INPUT-PARAMS><INPUT-PARAM><SHORT-NAME>I</SHORT-NAME></INPUT-PARAM></INPUT-PARAMS>"
                          "<OUTPUT-PARAMS>" +
                              Xml("OUTPUT-PARAM", "O") + "</OUTPUT-PARAMS>")) +
                Relation(snref));
    };
    for (char const* const snref :
         {"<IN-PARAM-IF-SNREF SHORT-NAME=\"I\"/>", "<OUT-PARAM-IF-SNREF SHORT-NAME=\"O\"/>"}) {
        Check(layer(snref));
        EXPECT_EQ(Diagnostics(), "") << snref;
    }
    Check(layer("<OUT-PARAM-IF-SNREF SHORT-NAME=\"I\"/>"));
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 error unresolved-short-name");
}

TEST_F(VShortNameReferencesTest, ToAProtocol) {
    std::string const service = "<PROTOCOL-SNREFS>\n<PROTOCOL-SNREF SHORT-NAME=\"P\"/></PROTOCOL-SNREFS>";
    std::string const document =
        "<ODX MODEL-VERSION=\"2.2.0\"><DIAG-LAYER-CONTAINER ID=\"D\"><SHORT-NAME>D</SHORT-NAME>" +
        LayerXml("PROTOCOL", "P") + "</DIAG-LAYER-CONTAINER></ODX>";
    auto const base = [&](std::string const& parents) {
        return Container(LayerXml("BASE-VARIANT", "B", DiagComms(Service("S", service)) + parents), "2.2.0");
    };
    Check(LayerXml("PROTOCOL", "P") + LayerXml("BASE-VARIANT", "B", DiagComms(Service("S", service))));
    EXPECT_EQ(Diagnostics(), "");
    CheckDocuments({"<?xml version=\"1.0\"?>" + document, base(ParentRefs({{"PROTOCOL", "P"}}))});
    EXPECT_EQ(Diagnostics(), "");
    CheckDocument(base(""));
    EXPECT_EQ(Finding(), "4:1 error unresolved-short-name: PROTOCOL-SNREF names 'P', but there is no PROTOCOL of that "
                         "name in the container nor among the parents in the layer 'B'");
}

std::string FlashDocument(std::string const& diagComm, std::string const& session) {
    return "<ODX MODEL-VERSION=\"2.2.0\"><FLASH ID=\"F\"><SHORT-NAME>F</SHORT-NAME><ECU-MEMS>" +
           Xml("ECU-MEM", "E", "<MEM><SESSIONS>" + Xml("SESSION", "N") + "</SESSIONS></MEM>") +
           "</ECU-MEMS><ECU-MEM-CONNECTORS>" +
           Xml("ECU-MEM-CONNECTOR", "EC",
               "<SESSION-DESCS><SESSION-DESC DIRECTION=\"DOWNLOAD\"><SHORT-NAME>SD</SHORT-NAME>\n<SESSION-SNREF "
               "SHORT-NAME=\"" +
                   session + "\"/>\n<DIAG-COMM-SNREF SHORT-NAME=\"" + diagComm +
                   "\"/></SESSION-DESC></SESSION-DESCS><LAYER-REFS><LAYER-REF ID-REF=\"B\"/></LAYER-REFS>") +
           "</ECU-MEM-CONNECTORS></FLASH></ODX>";
}

TEST_F(VShortNameReferencesTest, OfFlashData) {
    std::string const layers = Container(LayerXml("BASE-VARIANT", "B", DiagComms(Service("S"))), "2.2.0");
    CheckDocuments({layers, FlashDocument("S", "N")});
    EXPECT_EQ(Diagnostics(), "");
    CheckDocuments({layers, FlashDocument("X", "N")});
    EXPECT_EQ(Finding(), "3:1 error unresolved-short-name: DIAG-COMM-SNREF names 'X', but no DIAG-COMM of that name is "
                         "visible in the layer 'B'");
    CheckDocuments({layers, FlashDocument("S", "X")});
    EXPECT_EQ(Finding(),
              "2:1 error unresolved-short-name: SESSION-SNREF names 'X', but the FLASH 'F' has no SESSION of "
              "that name");
}

TEST_F(VShortNameReferencesTest, ToIdentsAndTheirParameters) {
    auto const flash = [](std::string const& ident, std::string const& param) {
        return "<ODX MODEL-VERSION=\"2.2.0\"><FLASH ID=\"F\"><SHORT-NAME>F</SHORT-NAME><ECU-MEMS>" +
               Xml("ECU-MEM", "E",
                   "<MEM><SESSIONS>" +
                       Xml("SESSION", "N", "<EXPECTED-IDENTS>" + Xml("EXPECTED-IDENT", "I") + "</EXPECTED-IDENTS>") +
                       "</SESSIONS></MEM>") +
               "</ECU-MEMS><ECU-MEM-CONNECTORS>" +
               Xml("ECU-MEM-CONNECTOR", "EC",
                   "<IDENT-DESCS><IDENT-DESC><DIAG-COMM-SNREF SHORT-NAME=\"S\"/>\n<IDENT-IF-SNREF SHORT-NAME=\"" +
                       ident + "\"/>\n<OUT-PARAM-IF-SNREF SHORT-NAME=\"" + param +
                       "\"/></IDENT-DESC></IDENT-DESCS><LAYER-REFS><LAYER-REF ID-REF=\"B\"/></LAYER-REFS>") +
               "</ECU-MEM-CONNECTORS></FLASH></ODX>";
    };
    std::string const layers = Container(
        LayerXml("BASE-VARIANT", "B", InDictionary(Dops("D")) + WithRequest(Value("P", DopSnref("D")))), "2.2.0");
    CheckDocuments({layers, flash("I", "P")});
    EXPECT_EQ(Diagnostics(), "");
    CheckDocuments({layers, flash("X", "P")});
    EXPECT_EQ(Finding(), "2:1 error unresolved-short-name: IDENT-IF-SNREF names 'X', but the FLASH 'F' has no "
                         "EXPECTED-IDENT and no OWN-IDENT of that name");
    CheckDocuments({layers, flash("I", "X")});
    EXPECT_EQ(Finding(),
              "3:1 error unresolved-short-name: OUT-PARAM-IF-SNREF names 'X', but the DIAG-COMM has no output "
              "parameter of that name in the layer 'B'");
}

TEST_F(VShortNameReferencesTest, OfVehicleInformationToParametersOfTheDiagCommBeside) {
    auto const vehicle = [](std::string const& param) {
        return "<ODX MODEL-VERSION=\"2.2.0\"><VEHICLE-INFO-SPEC ID=\"I\"><SHORT-NAME>I</SHORT-NAME><INFO-COMPONENTS>" +
               Xml("INFO-COMPONENT", "E",
                   "<MATCHING-COMPONENTS><MATCHING-COMPONENT>\n<OUT-PARAM-IF-SNREF SHORT-NAME=\"" + param +
                       "\"/><DIAG-COMM-REF ID-REF=\"S\"/></MATCHING-COMPONENT></MATCHING-COMPONENTS>") +
               "</INFO-COMPONENTS></VEHICLE-INFO-SPEC></ODX>";
    };
    std::string const layers = ContainerOfLayers(
        LayerXml("BASE-VARIANT", "A") +
        LayerXml("BASE-VARIANT", "B", InDictionary(Dops("D")) + WithRequest(Value("P", DopSnref("D")))));
    CheckDocuments({layers, vehicle("P")});
    EXPECT_EQ(Diagnostics(), "");
    CheckDocuments({layers, vehicle("X")});
    EXPECT_EQ(Finding(),
              "2:1 error unresolved-short-name: OUT-PARAM-IF-SNREF names 'X', but the DIAG-COMM has no output "
              "parameter of that name in the layer 'B'");
}

TEST_F(VShortNameReferencesTest, OfFlashDataForLayersThatAreNotThereAreNoFindingsOfTheirOwn) {
    CheckDocument(FlashDocument("X", "N"));
    ASSERT_EQ(m_result.diagnostics.size(), 1U) << Diagnostics();
    EXPECT_EQ(m_result.diagnostics[0].code, "unresolved-reference");
}

TEST_F(VShortNameReferencesTest, ToATable) {
    auto const layers = [](std::string const& name) {
        std::string const spec = "<DYN-DEFINED-SPEC><DYN-ID-DEF-MODE-INFOS><DYN-ID-DEF-MODE-INFO><SELECTION-TABLE-REFS>"
                                 "\n<SELECTION-TABLE-SNREF SHORT-NAME=\"" +
                                 name +
                                 "\"/></SELECTION-TABLE-REFS></DYN-ID-DEF-MODE-INFO></DYN-ID-DEF-MODE-INFOS>"
                                 "</DYN-DEFINED-SPEC>";
        auto const tables = [](std::string const& id) {
            return InDictionary("<TABLES>" + Xml("TABLE", id) + "</TABLES>");
        };
        return LayerXml("BASE-VARIANT", "B", tables("T1")) +
               LayerXml("ECU-VARIANT", "V", tables("T2") + spec + ParentRefs({{"BASE-VARIANT", "B"}})) +
               LayerXml("ECU-VARIANT", "W", tables("T3"));
    };
    for (char const* const name : {"T1", "T2"}) {
        Check(layers(name));
        EXPECT_EQ(Diagnostics(), "") << name;
    }
    Check(layers("T3"));
    EXPECT_EQ(Finding(), "6:1 error unresolved-short-name: SELECTION-TABLE-SNREF names 'T3', but there is no TABLE of "
                         "that name among its own and its parents' in the layer 'V'");
}

std::string EnvDataDesc(std::string const& param) {
    return "<ENV-DATA-DESCS>" + Xml("ENV-DATA-DESC", "E", "\n<PARAM-SNREF SHORT-NAME=\"" + param + "\"/><ENV-DATAS/>") +
           "</ENV-DATA-DESCS>";
}

TEST_F(VShortNameReferencesTest, OfEnvDataDescsToAParameterOfWhatLeadsThere) {
    std::string const field = "<END-OF-PDU-FIELDS>" +
                              Xml("END-OF-PDU-FIELD", "F", "<ENV-DATA-DESC-REF ID-REF=\"E\"/>") +
                              "</END-OF-PDU-FIELDS>";
    auto const layer = [&](std::string const& param) {
        std::string const response =
            "<POS-RESPONSES>" +
            Xml("POS-RESPONSE", "PR",
                "<PARAMS>" + Value("Code", "") + Value("Env", "<DOP-REF ID-REF=\"F\"/>") + "</PARAMS>") +
            "</POS-RESPONSES>";
        std::string const refs = "<POS-RESPONSE-REFS><POS-RESPONSE-REF ID-REF=\"PR\"/></POS-RESPONSE-REFS>";
        return LayerXml("BASE-VARIANT", "B",
                        InDictionary(EnvDataDesc(param) + field) +
                            DiagComms(Service("S", refs) + Service("R", "<REQUEST-REF ID-REF=\"RQ\"/>")) +
                            Request("RQ", Value("Other", "")) + response);
    };
    Check(layer("Code"));
    EXPECT_EQ(Diagnostics(), "");
    Check(layer("Other")); // of a service that does not lead there
    EXPECT_EQ(Finding(), "4:1 error unresolved-short-name: PARAM-SNREF names 'Other', but no DIAG-SERVICE that leads "
                         "to it has an output parameter of that name in the layer 'B'");
}

std::string Structures(std::vector<std::pair<std::string, std::string>> const& structures) {
    std::string text;
    for (auto const& [id, params] : structures) {
        text += Xml("STRUCTURE", id, "<PARAMS>" + params + "</PARAMS>");
    }
    return "<STRUCTURES>" + text + "</STRUCTURES>";
}

/// Services "S1", "S2" and so on, one for each DOP: the request of each has a parameter "P1", "P2" and so on, and one
/// of the DOP.
std::string Leading(std::vector<std::string> const& dops) {
    std::string diagComms;
    std::string requests;
    for (std::size_t index = 0; index < dops.size(); ++index) {
        std::string const number = std::to_string(index + 1);
        diagComms += Service("S" + number, "<REQUEST-REF ID-REF=\"RQ" + number + "\"/>");
        requests += Xml("REQUEST", "RQ" + number,
                        "<PARAMS>" + Value("P" + number, "") +
                            Value("In", "<DOP-REF ID-REF=\"" + dops[index] + "\"/>") + "</PARAMS>");
    }
    return DiagComms(diagComms) + "<REQUESTS>" + requests + "</REQUESTS>";
}

TEST_F(VShortNameReferencesTest, OfEnvDataDescsToAParameterOfAnyServiceThatLeadsThere) {
    // Two services lead there through one structure, the third does not.
    std::string const structures =
        Structures({{"T", Value("Env", "<DOP-REF ID-REF=\"E\"/>")}, {"U", Value("None", "")}});
    auto const layer = [&](std::string const& param) {
        return LayerXml("BASE-VARIANT", "B", InDictionary(EnvDataDesc(param) + structures) + Leading({"T", "T", "U"}));
    };
    for (char const* const param : {"P1", "P2", "Env", "In"}) {
        Check(layer(param));
        EXPECT_EQ(Diagnostics(), "") << param;
    }
    for (char const* const param : {"P3", "None"}) {
        Check(layer(param));
        EXPECT_EQ(Diagnostics(), "test.odx:4:1 error unresolved-short-name") << param;
    }
}

TEST_F(VShortNameReferencesTest, OfEnvDataDescsThatDifferentServicesLeadTo) {
    // "E" is in both structures, "E1" and "E2" in one each.
    auto const envDataDesc = [](std::string const& id, std::string const& param) {
        return Xml("ENV-DATA-DESC", id, "\n<PARAM-SNREF SHORT-NAME=\"" + param + "\"/><ENV-DATAS/>");
    };
    auto const to = [](std::string const& id) { return Value("To" + id, "<DOP-REF ID-REF=\"" + id + "\"/>"); };
    auto const layer = [&](std::string const& param) {
        return LayerXml("BASE-VARIANT", "B",
                        InDictionary("<ENV-DATA-DESCS>" + envDataDesc("E", param) + envDataDesc("E1", param) +
                                     envDataDesc("E2", param) + "</ENV-DATA-DESCS>" +
                                     Structures({{"T1", to("E1") + to("E")}, {"T2", to("E2") + to("E")}})) +
                            Leading({"T1", "T2"}));
    };
    Check(layer("P1"));
    EXPECT_EQ(Diagnostics(), "test.odx:6:1 error unresolved-short-name");
    Check(layer("P2"));
    EXPECT_EQ(Diagnostics(), "test.odx:5:1 error unresolved-short-name");
    Check(layer("ToE"));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VShortNameReferencesTest, OfEnvDataDescsOfALibraryToAParameterOfTheServicesThatLeadThere) {
    auto const layers = [](std::string const& param) {
        return LayerXml("ECU-SHARED-DATA", "L", InDictionary(EnvDataDesc(param))) +
               LayerXml("BASE-VARIANT", "B", Leading({"E"}));
    };
    Check(layers("P1"));
    EXPECT_EQ(Diagnostics(), "");
    Check(layers("P2"));
    EXPECT_EQ(Finding(), "4:1 error unresolved-short-name: PARAM-SNREF names 'P2', but no DIAG-SERVICE that leads to "
                         "it has an output parameter of that name in the layer 'B'");
}

TEST_F(VShortNameReferencesTest, OfEnvDataDescsInsideATableThatLeadsBackToItself) {
    std::string const table = "<TABLES>" +
                              Xml("TABLE", "TB", Xml("TABLE-ROW", "R", "<KEY>1</KEY>\n<STRUCTURE-REF ID-REF=\"T\"/>")) +
                              "</TABLES>";
    std::string const key = "<PARAM xsi:type=\"TABLE-KEY\" ID=\"K\"><SHORT-NAME>K</SHORT-NAME>\n<TABLE-REF "
                            "ID-REF=\"TB\"/></PARAM>";
    auto const layer = [&](std::string const& param) {
        return LayerXml(
            "BASE-VARIANT", "B",
            InDictionary(EnvDataDesc(param) +
                         Structures({{"T", key + Value("Env", "<DOP-REF ID-REF=\"E\"/>")}, {"U", Value("None", "")}}) +
                         table) +
                Leading({"T", "U"}));
    };
    for (char const* const param : {"P1", "Env"}) {
        Check(layer(param));
        EXPECT_EQ(Diagnostics(), "test.odx:6:1 warning table-row-cycle") << param;
    }
    for (char const* const param : {"P2", "None"}) {
        Check(layer(param));
        EXPECT_EQ(Diagnostics(), "test.odx:4:1 error unresolved-short-name\ntest.odx:6:1 warning table-row-cycle")
            << param;
    }
}

TEST_F(VShortNameReferencesTest, OfEnvDataDescsToWhichNothingLeadsAreLeftAlone) {
    Check(LayerXml("ECU-VARIANT", "V", InDictionary(EnvDataDesc("X"))));
    EXPECT_EQ(Diagnostics(), "");
}

/// A MULTIPLE-ECU-JOB-SPEC whose job runs in this layer and returns a structure with a parameter of this DOP.
std::string JobSpec(std::string const& dop, std::string const& layer, std::string const& param = "Out") {
    std::string const job =
        Xml("MULTIPLE-ECU-JOB", "MJ",
            "<OUTPUT-PARAMS>" + Xml("OUTPUT-PARAM", "Out", "<DOP-BASE-REF ID-REF=\"MS\"/>") +
                Xml("OUTPUT-PARAM", "Env", "<DOP-BASE-REF ID-REF=\"E\"/>") + "</OUTPUT-PARAMS><DIAG-LAYER-REFS>" +
                (layer.empty() ? "" : "<DIAG-LAYER-REF ID-REF=\"" + layer + "\"/>") + "</DIAG-LAYER-REFS>");
    return "<ODX MODEL-VERSION=\"2.2.0\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">" +
           Xml("MULTIPLE-ECU-JOB-SPEC", "M",
               "<MULTIPLE-ECU-JOBS>" + job + "</MULTIPLE-ECU-JOBS>" +
                   InDictionary(Dops("D") + EnvDataDesc(param) + Structure("MS", Value("P", DopSnref(dop))))) +
           "</ODX>";
}

TEST_F(VShortNameReferencesTest, OfJobSpecsToTheirOwnDopsOrThoseOfTheLayersOfTheirJobs) {
    std::string const layers =
        Container(LayerXml("BASE-VARIANT", "B", InDictionary(Dops("L"))) + LayerXml("ECU-VARIANT", "V"), "2.2.0");
    CheckDocuments({layers, JobSpec("D", "")});
    EXPECT_EQ(Diagnostics(), "");
    CheckDocuments({layers, JobSpec("D", "V")});
    EXPECT_EQ(Diagnostics(), "");
    CheckDocuments({layers, JobSpec("L", "B")});
    EXPECT_EQ(Diagnostics(), "");
    CheckDocuments({layers, JobSpec("L", "V")});
    EXPECT_EQ(Finding(),
              "3:1 error unresolved-short-name: DOP-SNREF names 'L', but no DOP of that name is visible in the "
              "MULTIPLE-ECU-JOB-SPEC 'M', nor in the layer 'V'");
    CheckDocuments({layers, JobSpec("L", "")});
    EXPECT_EQ(Finding(),
              "3:1 error unresolved-short-name: DOP-SNREF names 'L', but no DOP of that name is visible in the "
              "MULTIPLE-ECU-JOB-SPEC 'M'");
    CheckDocument(JobSpec("L", "V")); // the layer is not loaded, and may have it
    ASSERT_EQ(m_result.diagnostics.size(), 1U) << Diagnostics();
    EXPECT_EQ(m_result.diagnostics[0].code, "unresolved-reference");
}

TEST_F(VShortNameReferencesTest, OfEnvDataDescsToWhichOnlyJobsLeadAreLeftAlone) {
    CheckDocument(JobSpec("D", "", "X"));
    EXPECT_EQ(Diagnostics(), "");
    std::string const job =
        Xml("SINGLE-ECU-JOB", "J",
            "<OUTPUT-PARAMS>" + Xml("OUTPUT-PARAM", "Env", "<DOP-BASE-REF ID-REF=\"E\"/>") + "</OUTPUT-PARAMS>");
    Check(LayerXml("ECU-VARIANT", "V", DiagComms(job) + InDictionary(EnvDataDesc("X"))));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VShortNameReferencesTest, OfEnvDataAreTriedWhereItsDescriptionIsVisible) {
    std::string const envData = Xml("ENV-DATA", "N", "<PARAMS>" + Value("P", DopSnref("X")) + "</PARAMS>");
    CheckFamily(InDictionary("<ENV-DATA-DESCS>" + Xml("ENV-DATA-DESC", "E", "<ENV-DATAS>" + envData + "</ENV-DATAS>") +
                             "</ENV-DATA-DESCS>"),
                InDictionary(Dops("X")), "");
    EXPECT_EQ(Finding(),
              "4:1 warning short-name-not-everywhere: DOP-SNREF names 'X', but no DOP of that name is visible "
              "in the layers 'B', 'V2'; it is in the other layers that see the reference");
}

TEST_F(VShortNameReferencesTest, InManyLayersAreListedUpToTen) {
    std::string layers = LayerXml("BASE-VARIANT", "B", WithRequest(Value("P", DopSnref("X"))));
    for (int index = 1; index <= 11; ++index) {
        layers += LayerXml("ECU-VARIANT", "V" + std::to_string(index), ParentRefs({{"BASE-VARIANT", "B"}}));
    }
    Check(layers);
    EXPECT_EQ(Finding(), "4:1 error unresolved-short-name: DOP-SNREF names 'X', but no DOP of that name is visible in "
                         "the layers 'B', 'V1', 'V2', 'V3', 'V4', 'V5', 'V6', 'V7', 'V8', 'V9' and 2 more");
}

} // namespace
} // namespace NTest
