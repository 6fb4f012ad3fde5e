// SPDX-License-Identifier: Apache-2.0
#include "query/UsesTest.h"

#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Layers.h>

namespace NTest {
namespace {

using VUnusedTest = VUsesTest;

TEST_F(VUnusedTest, AreElementsOfTheseKindsInDocumentOrder) {
    ReadLayers(LayerXml(
        "ECU-VARIANT", "V",
        "<FUNCT-CLASSS>" + Xml("FUNCT-CLASS", "FC") + "</FUNCT-CLASSS>" +
            InDictionary("<DTC-DOPS>" + Xml("DTC-DOP", "DD", "<DTCS/>") + "</DTC-DOPS><ENV-DATA-DESCS>" +
                         Xml("ENV-DATA-DESC", "ED") + "</ENV-DATA-DESCS><DATA-OBJECT-PROPS>" +
                         Xml("DATA-OBJECT-PROP", "DO") + "</DATA-OBJECT-PROPS><STRUCTURES>" + Xml("STRUCTURE", "ST") +
                         "</STRUCTURES><STATIC-FIELDS>" + Xml("STATIC-FIELD", "SF") +
                         "</STATIC-FIELDS><DYNAMIC-LENGTH-FIELDS>" + Xml("DYNAMIC-LENGTH-FIELD", "DL") +
                         "</DYNAMIC-LENGTH-FIELDS><DYNAMIC-ENDMARKER-FIELDS>" + Xml("DYNAMIC-ENDMARKER-FIELD", "DE") +
                         "</DYNAMIC-ENDMARKER-FIELDS><END-OF-PDU-FIELDS>" + Xml("END-OF-PDU-FIELD", "EP") +
                         "</END-OF-PDU-FIELDS><MUXS>" + Xml("MUX", "MX") + "</MUXS><ENV-DATAS>" +
                         Xml("ENV-DATA", "EN") + "</ENV-DATAS><UNIT-SPEC><UNITS>" + Xml("UNIT", "UN") +
                         "</UNITS><PHYSICAL-DIMENSIONS>" + Xml("PHYSICAL-DIMENSION", "PD") +
                         "</PHYSICAL-DIMENSIONS></UNIT-SPEC><TABLES>" + Xml("TABLE", "TA") + "</TABLES>") +
            DiagComms(Service("DS")) + Request("RQ", "") + "<POS-RESPONSES>" + Xml("POS-RESPONSE", "PR") +
            "</POS-RESPONSES><NEG-RESPONSES>" + Xml("NEG-RESPONSE", "NR") + "</NEG-RESPONSES><GLOBAL-NEG-RESPONSES>" +
            Xml("GLOBAL-NEG-RESPONSE", "GN") + "</GLOBAL-NEG-RESPONSES>"));
    EXPECT_EQ(Unused(), "FC DD ED DO ST SF DL DE EP MX UN PD TA RQ PR NR");
}

TEST_F(VUnusedTest, AreNotThoseThatAReferenceByIdLeadsTo) {
    ReadLayers(LayerXml("ECU-VARIANT", "V",
                        InDictionary(Structure("T", "")) + DiagComms(Service("S", "<REQUEST-REF ID-REF=\"RQ\"/>")) +
                            Request("RQ", Value("P", DopRefTo("T")))));
    EXPECT_EQ(Unused(), "");
}

TEST_F(VUnusedTest, AreNotThoseThatAShortNameMeansInSomeLayer) {
    ReadLayers(LayerXml("BASE-VARIANT", "B",
                        InDictionary(Structure("T", "")) + DiagComms(Service("S", "<REQUEST-REF ID-REF=\"RQ\"/>")) +
                            Request("RQ", Value("P", DopSnrefTo("X")))) +
               LayerXml("ECU-VARIANT", "V",
                        InDictionary("<DATA-OBJECT-PROPS>" + Xml("DATA-OBJECT-PROP", "X") + "</DATA-OBJECT-PROPS>") +
                            ParentRefs({{"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Unused(), "T");
}

TEST_F(VUnusedTest, AreThoseOfTheNameThatNoLayerMeans) {
    auto const dop = [](std::string const& id) {
        return InDictionary("<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"" + id +
                            "\"><SHORT-NAME>X</SHORT-NAME></DATA-OBJECT-PROP></DATA-OBJECT-PROPS>");
    };
    ReadLayers(LayerXml("BASE-VARIANT", "B",
                        dop("X.B") + DiagComms(Service("S", "<REQUEST-REF ID-REF=\"RQ\"/>")) +
                            Request("RQ", Value("P", DopSnrefTo("X")))) +
               LayerXml("ECU-VARIANT", "V", dop("X.V") + ParentRefs({{"BASE-VARIANT", "B", Excluded("S")}})));
    EXPECT_EQ(Unused(), "X.V");
}

TEST_F(VUnusedTest, AreThoseToWhichOnlyTheirOwnContentLeads) {
    ReadLayers(LayerXml(
        "ECU-VARIANT", "V",
        InDictionary("<STRUCTURES>" + Xml("STRUCTURE", "T", "<PARAMS>" + Value("P", DopRefTo("T")) + "</PARAMS>") +
                     Xml("STRUCTURE", "U", "<PARAMS>" + Value("P", DopSnrefTo("U")) + "</PARAMS>") + "</STRUCTURES>")));
    EXPECT_EQ(Unused(), "T U");
}

TEST_F(VUnusedTest, AreNotThoseToWhichUnusedOnesLead) {
    ReadLayers(LayerXml("ECU-VARIANT", "V",
                        InDictionary("<STRUCTURES>" + Xml("STRUCTURE", "T") +
                                     Xml("STRUCTURE", "U", "<PARAMS>" + Value("P", DopRefTo("T")) + "</PARAMS>") +
                                     "</STRUCTURES>")));
    EXPECT_EQ(Unused(), "U");
}

TEST_F(VUnusedTest, AreNotThoseToWhosePartsAReferenceLeads) {
    ReadLayers(LayerXml("ECU-VARIANT", "V",
                        InDictionary("<DTC-DOPS>" + Xml("DTC-DOP", "D", "<DTCS>" + Xml("DTC", "D.1") + "</DTCS>") +
                                     Xml("DTC-DOP", "E", "<DTCS><DTC-REF ID-REF=\"D.1\"/></DTCS>") +
                                     "</DTC-DOPS><TABLES>" + Xml("TABLE", "T", Xml("TABLE-ROW", "T.1")) +
                                     Xml("TABLE", "U", "<TABLE-ROW-REF ID-REF=\"T.1\"/>") + "</TABLES>")));
    EXPECT_EQ(Unused(), "E U");
}

TEST_F(VUnusedTest, AreThoseToWhosePartsTheirOwnContentLeads) {
    ReadLayers(LayerXml("ECU-VARIANT", "V",
                        Request("RQ", "<PARAM xsi:type=\"LENGTH-KEY\" ID=\"RQ.L\"><SHORT-NAME>L</SHORT-NAME></PARAM>"
                                      "<PARAM xsi:type=\"TABLE-KEY\" ID=\"RQ.K\"><SHORT-NAME>K</SHORT-NAME></PARAM>"
                                      "<PARAM xsi:type=\"TABLE-STRUCT\"><SHORT-NAME>T</SHORT-NAME><TABLE-KEY-REF "
                                      "ID-REF=\"RQ.K\"/></PARAM>")));
    EXPECT_EQ(Uses("RQ.K"), "TABLE-KEY-REF from T\n");
    EXPECT_EQ(Unused(), "RQ");
}

TEST_F(VUnusedTest, StandOutsideLayersToo) {
    Read(Document("<COMPARAM-SPEC ID=\"CS\"><SHORT-NAME>CS</SHORT-NAME><DATA-OBJECT-PROPS>" +
                      Xml("DATA-OBJECT-PROP", "D") + "</DATA-OBJECT-PROPS></COMPARAM-SPEC>",
                  "2.2.0"));
    EXPECT_EQ(Unused(), "D");
}

TEST_F(VUnusedTest, AreToldAnewAfterAnElementWasRemoved) {
    ReadLayers(LayerXml("ECU-VARIANT", "V",
                        InDictionary(Structure("T", "")) + DiagComms(Service("S", "<REQUEST-REF ID-REF=\"RQ\"/>")) +
                            Request("RQ", Value("P", DopRefTo("T")))));
    EXPECT_EQ(Unused(), "");
    Remove("S");
    EXPECT_EQ(Unused(), "RQ");
    Remove("RQ");
    EXPECT_EQ(Unused(), "T");
    EXPECT_EQ(Uses("T"), "");
}

TEST_F(VUnusedTest, FollowANameThatMeansAnotherElementAfterARemoval) {
    auto const dop = [](std::string const& id) {
        return InDictionary("<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"" + id +
                            "\"><SHORT-NAME>X</SHORT-NAME></DATA-OBJECT-PROP></DATA-OBJECT-PROPS>");
    };
    ReadLayers(LayerXml("BASE-VARIANT", "B", dop("X.B")) +
               LayerXml("ECU-VARIANT", "V",
                        dop("X.V") + Request("RQ", Value("P", DopSnrefTo("X"))) + ParentRefs({{"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Unused(), "X.B RQ");
    Remove("X.V");
    EXPECT_EQ(Unused(), "RQ");
    EXPECT_EQ(Uses("X.B"), "DOP-SNREF from P in V\n");
}

} // namespace
} // namespace NTest
