// SPDX-License-Identifier: Apache-2.0
#include "query/UsesTest.h"

namespace NTest {
namespace {

/// References in flash data and MULTIPLE-ECU-JOB-SPECs.
using VUsesElsewhereTest = VUsesTest;

std::string SpecWith(std::string const& dictionary, std::string const& layers) {
    return Document("<MULTIPLE-ECU-JOB-SPEC ID=\"MS\"><SHORT-NAME>MS</SHORT-NAME><MULTIPLE-ECU-JOBS>"
                    "<MULTIPLE-ECU-JOB ID=\"J\"><SHORT-NAME>J</SHORT-NAME><INPUT-PARAMS><INPUT-PARAM>"
                    "<SHORT-NAME>I</SHORT-NAME><DOP-BASE-SNREF SHORT-NAME=\"X\"/></INPUT-PARAM></INPUT-PARAMS>"
                    "<DIAG-LAYER-REFS>" +
                        layers + "</DIAG-LAYER-REFS></MULTIPLE-ECU-JOB></MULTIPLE-ECU-JOBS>" + dictionary +
                        "</MULTIPLE-ECU-JOB-SPEC>",
                    "2.2.0");
}

std::string const kOwnX = InDictionary("<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"X.V\"><SHORT-NAME>X</SHORT-NAME>"
                                       "</DATA-OBJECT-PROP></DATA-OBJECT-PROPS>");

TEST_F(VUsesElsewhereTest, AJobsDopIsLookedUpInItsDocumentFirst) {
    Read({ContainerOfLayers(LayerXml("ECU-VARIANT", "V", kOwnX)),
          SpecWith(InDictionary("<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"X.M\"><SHORT-NAME>X</SHORT-NAME>"
                                "</DATA-OBJECT-PROP></DATA-OBJECT-PROPS>"),
                   "<DIAG-LAYER-REF ID-REF=\"V\"/>")});
    EXPECT_EQ(Uses("X.M"), "DOP-BASE-SNREF from I\n");
    EXPECT_EQ(Uses("X.V"), "");
}

TEST_F(VUsesElsewhereTest, AJobsDopIsLookedUpInTheLayersThatItRunsIn) {
    Read({ContainerOfLayers(LayerXml("ECU-VARIANT", "V", kOwnX) + LayerXml("ECU-VARIANT", "W")),
          SpecWith("", "<DIAG-LAYER-REF ID-REF=\"W\"/><DIAG-LAYER-REF ID-REF=\"V\"/>")});
    EXPECT_EQ(Uses("X.V"), "DOP-BASE-SNREF from I in V\n");
    EXPECT_EQ(Uses("V"), "DIAG-LAYER-REF from J\n");
}

TEST_F(VUsesElsewhereTest, AConnectorsReferencesAreReadInItsLayersAndInItsFlash) {
    Read({ContainerOfLayers(LayerXml("ECU-VARIANT", "V", DiagComms(Service("S"))) +
                            LayerXml("ECU-VARIANT", "W", DiagComms(Service("T")))),
          Document("<FLASH ID=\"F\"><SHORT-NAME>F</SHORT-NAME><ECU-MEMS>" +
                       Xml("ECU-MEM", "EM", "<MEM><SESSIONS>" + Xml("SESSION", "SE") + "</SESSIONS></MEM>") +
                       "</ECU-MEMS><ECU-MEM-CONNECTORS>" +
                       Xml("ECU-MEM-CONNECTOR", "EC",
                           "<SESSION-DESCS><SESSION-DESC DIRECTION=\"DOWNLOAD\"><SHORT-NAME>SD</SHORT-NAME>"
                           "<SESSION-SNREF SHORT-NAME=\"SE\"/><DIAG-COMM-SNREF SHORT-NAME=\"S\"/></SESSION-DESC>"
                           "</SESSION-DESCS><ECU-MEM-REF ID-REF=\"EM\"/><LAYER-REFS><LAYER-REF ID-REF=\"W\"/>"
                           "<LAYER-REF ID-REF=\"V\"/></LAYER-REFS>") +
                       "</ECU-MEM-CONNECTORS></FLASH>",
                   "2.2.0")});
    EXPECT_EQ(Uses("SE"), "SESSION-SNREF from SD\n");
    EXPECT_EQ(Uses("S"), "DIAG-COMM-SNREF from SD in V\n");
}

TEST_F(VUsesElsewhereTest, ALinkOfAVehicleLeadsToWhatItNames) {
    Read({Document("<COMPARAM-SPEC ID=\"CS\"><SHORT-NAME>CS</SHORT-NAME><COMPARAMS>" + Xml("COMPARAM", "CP") +
                       "</COMPARAMS></COMPARAM-SPEC>",
                   "2.2.0"),
          ContainerOfLayers(LayerXml("BASE-VARIANT", "B")),
          Document("<VEHICLE-INFO-SPEC ID=\"VS\"><SHORT-NAME>VS</SHORT-NAME><VEHICLE-INFORMATIONS>"
                   "<VEHICLE-INFORMATION><SHORT-NAME>VI</SHORT-NAME><LOGICAL-LINKS>"
                   "<LOGICAL-LINK xsi:type=\"MEMBER-LOGICAL-LINK\" ID=\"LL\"><SHORT-NAME>LL</SHORT-NAME>"
                   "<BASE-VARIANT-REF ID-REF=\"B\"/><LINK-COMPARAM-REFS><LINK-COMPARAM-REF ID-REF=\"CP\">"
                   "<VALUE>5</VALUE></LINK-COMPARAM-REF></LINK-COMPARAM-REFS></LOGICAL-LINK></LOGICAL-LINKS>"
                   "</VEHICLE-INFORMATION></VEHICLE-INFORMATIONS></VEHICLE-INFO-SPEC>",
                   "2.2.0")});
    EXPECT_EQ(Uses("CP"), "LINK-COMPARAM-REF from LL\n");
    EXPECT_EQ(Uses("B"), "BASE-VARIANT-REF from LL\n");
}

TEST_F(VUsesElsewhereTest, AMatchingComponentsParameterIsThatOfItsDiagComm) {
    Read({ContainerOfLayers(
              LayerXml("BASE-VARIANT", "A") +
              LayerXml("BASE-VARIANT", "B",
                       DiagComms(Service("S", "<REQUEST-REF ID-REF=\"RQ\"/>")) + Request("RQ", Value("P", "")))),
          Document("<VEHICLE-INFO-SPEC ID=\"I\"><SHORT-NAME>I</SHORT-NAME><INFO-COMPONENTS>" +
                       Xml("INFO-COMPONENT", "E",
                           "<MATCHING-COMPONENTS><MATCHING-COMPONENT><OUT-PARAM-IF-SNREF SHORT-NAME=\"P\"/>"
                           "<DIAG-COMM-REF ID-REF=\"S\"/></MATCHING-COMPONENT></MATCHING-COMPONENTS>") +
                       "</INFO-COMPONENTS></VEHICLE-INFO-SPEC>",
                   "2.2.0")});
    EXPECT_EQ(Uses("P"), "OUT-PARAM-IF-SNREF from E in B\n");
    EXPECT_EQ(Uses("S"), "DIAG-COMM-REF from E\n");
}

} // namespace
} // namespace NTest
