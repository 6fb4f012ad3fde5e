// SPDX-License-Identifier: Apache-2.0
#include "check/CheckTest.h"

namespace NTest {
namespace {

using VShortNamesTest = VCheckTest;

TEST_F(VShortNamesTest, OfOtherCharacters) {
    Check(LayerXml("BASE-VARIANT", "L",
                   DiagComms("\n<DIAG-SERVICE ID=\"D\"><SHORT-NAME>Read-It</SHORT-NAME></DIAG-SERVICE>")));
    EXPECT_EQ(Finding(), "4:1 warning short-name-characters: DIAG-SERVICE 'Read-It' has other characters than the "
                         "letters A to Z and a to z, digits and underscore");
}

TEST_F(VShortNamesTest, OfLettersOutsideAscii) {
    Check(LayerXml("BASE-VARIANT", "L\xC3\xBC"
                                   "fter"));
    EXPECT_EQ(Diagnostics(), "test.odx:2:16 warning short-name-characters");
}

TEST_F(VShortNamesTest, OfDocumentsAreLookedAtToo) {
    CheckDocument("<ODX MODEL-VERSION=\"2.2.0\">\n<FLASH ID=\"F\"><SHORT-NAME>F 1</SHORT-NAME></FLASH></ODX>");
    EXPECT_EQ(Diagnostics(), "test.odx:2:1 warning short-name-characters");
}

TEST_F(VShortNamesTest, MayHave128Characters) {
    Check(LayerXml("BASE-VARIANT", "A_z09" + std::string(123, 'x')));
    EXPECT_EQ(Diagnostics(), "");
    Check(LayerXml("BASE-VARIANT", std::string(129, 'x')));
    EXPECT_EQ(Finding(), "2:16 warning short-name-characters: BASE-VARIANT '" + std::string(129, 'x') +
                             "' is longer than 128 characters");
}

TEST_F(VShortNamesTest, OfTwoDiagCommsOfALayer) {
    Check(LayerXml("BASE-VARIANT", "L",
                   DiagComms("<DIAG-SERVICE ID=\"A\"><SHORT-NAME>X</SHORT-NAME></DIAG-SERVICE>\n"
                             "<SINGLE-ECU-JOB ID=\"B\"><SHORT-NAME>X</SHORT-NAME></SINGLE-ECU-JOB>")));
    EXPECT_EQ(Finding(), "4:1 error duplicate-short-name: SINGLE-ECU-JOB 'X' has the short name of the DIAG-SERVICE at "
                         "line 3 in the same list; where the name is looked up, that one is found");
}

TEST_F(VShortNamesTest, OfADiagCommAndOneByReference) {
    std::string const other = LayerXml("ECU-SHARED-DATA", "E",
                                       DiagComms("<DIAG-SERVICE ID=\"A\"><SHORT-NAME>X"
                                                 "</SHORT-NAME></DIAG-SERVICE>"));
    Check(LayerXml("BASE-VARIANT", "L",
                   DiagComms("<DIAG-SERVICE ID=\"B\"><SHORT-NAME>X</SHORT-NAME></DIAG-SERVICE>\n"
                             "<DIAG-COMM-REF ID-REF=\"A\"/>")) +
          other);
    EXPECT_EQ(Finding(), "4:1 error duplicate-short-name: what the DIAG-COMM-REF names, the DIAG-SERVICE 'X', has the "
                         "short name of the DIAG-SERVICE at line 3 in the same list; where the name is looked up, that "
                         "one is found");
}

TEST_F(VShortNamesTest, OfTwoByReference) {
    std::string const variable = "<SHORT-NAME>V</SHORT-NAME></DIAG-VARIABLE>";
    Check(LayerXml("ECU-SHARED-DATA", "E",
                   DiagComms("<DIAG-SERVICE ID=\"A\"><SHORT-NAME>X</SHORT-NAME></DIAG-SERVICE>") +
                       "<DIAG-VARIABLES><DIAG-VARIABLE ID=\"V1\">" + variable + "</DIAG-VARIABLES>") +
          LayerXml("ECU-SHARED-DATA", "F",
                   DiagComms("<DIAG-SERVICE ID=\"B\"><SHORT-NAME>X</SHORT-NAME></DIAG-SERVICE>")) +
          LayerXml("BASE-VARIANT", "L",
                   DiagComms("<DIAG-COMM-REF ID-REF=\"A\"/>\n<DIAG-COMM-REF ID-REF=\"B\"/>\n"
                             "<DIAG-COMM-REF ID-REF=\"A\"/>") +
                       "<DIAG-VARIABLES><DIAG-VARIABLE ID=\"V2\">" + variable +
                       "\n<DIAG-VARIABLE-REF ID-REF=\"V1\"/></DIAG-VARIABLES>"));
    EXPECT_EQ(Diagnostics(), "test.odx:8:1 error duplicate-short-name\ntest.odx:9:1 error duplicate-short-name\n"
                             "test.odx:10:1 error duplicate-short-name");
    EXPECT_EQ(Message(0).find("what the DIAG-COMM-REF names, the DIAG-SERVICE 'X', has the short name of what is named "
                              "by the DIAG-COMM-REF at line 7 "),
              0U)
        << Message(0);
}

TEST_F(VShortNamesTest, OfOthersByReferenceAreNoDuplicates) {
    Check(LayerXml("BASE-VARIANT", "A", DiagComms(Service("X"))) +
          LayerXml("ECU-VARIANT", "B",
                   DiagComms("<DIAG-COMM-REF ID-REF=\"X\"/><DIAG-COMM-REF ID-REF=\"gone\"/>"
                             "<DIAG-COMM-REF ID-REF=\"gone\"/>")));
    EXPECT_EQ(Diagnostics(), "test.odx:5:40 error unresolved-reference\ntest.odx:5:70 error unresolved-reference");
}

TEST_F(VShortNamesTest, OfEveryFurtherOne) {
    std::string const service = "<SHORT-NAME>X</SHORT-NAME></DIAG-SERVICE>\n";
    Check(LayerXml("BASE-VARIANT", "L",
                   DiagComms("<DIAG-SERVICE ID=\"A\">" + service + "<DIAG-SERVICE ID=\"B\">" + service +
                             "<DIAG-SERVICE ID=\"D\">" + service)));
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 error duplicate-short-name\ntest.odx:5:1 error duplicate-short-name");
}

TEST_F(VShortNamesTest, OfDopsOfDifferentKinds) {
    Check(LayerXml("BASE-VARIANT", "L", InDictionary(Dops("S") + "\n" + Structure("S", ""))));
    EXPECT_EQ(Diagnostics(), "test.odx:4:13 error duplicate-short-name");
}

TEST_F(VShortNamesTest, OfParametersOfDifferentKinds) {
    Check(LayerXml("BASE-VARIANT", "L",
                   Request("RQ", "<PARAM xsi:type=\"DYNAMIC\"><SHORT-NAME>P</SHORT-NAME></PARAM>\n"
                                 "<PARAM xsi:type=\"RESERVED\"><SHORT-NAME>P</SHORT-NAME></PARAM>")));
    EXPECT_EQ(Diagnostics(), "test.odx:4:1 error duplicate-short-name");
}

TEST_F(VShortNamesTest, OfLayersOfOneContainer) {
    Check("<BASE-VARIANTS><BASE-VARIANT ID=\"A\"><SHORT-NAME>X</SHORT-NAME></BASE-VARIANT></BASE-VARIANTS>"
          "<ECU-VARIANTS>\n<ECU-VARIANT ID=\"B\"><SHORT-NAME>X</SHORT-NAME></ECU-VARIANT></ECU-VARIANTS>");
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error duplicate-short-name");
}

TEST_F(VShortNamesTest, MayBeTheSameInDifferentLists) {
    // A DIAG-COMM, a REQUEST and a DOP; the same DIAG-COMM in another layer; and the layer itself.
    Check(LayerXml("BASE-VARIANT", "A",
                   InDictionary(Dops("A")) +
                       DiagComms("<DIAG-SERVICE ID=\"D1\"><SHORT-NAME>A</SHORT-NAME></DIAG-SERVICE>") +
                       "<REQUESTS><REQUEST ID=\"R\"><SHORT-NAME>A</SHORT-NAME></REQUEST></REQUESTS>") +
          LayerXml("ECU-VARIANT", "V", DiagComms("<DIAG-SERVICE ID=\"D2\"><SHORT-NAME>A</SHORT-NAME></DIAG-SERVICE>")));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VShortNamesTest, OfDifferentCaseAreDifferent) {
    Check(LayerXml("BASE-VARIANT", "L", InDictionary(Dops("aA"))));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VShortNamesTest, ThatAreMissingAreNoDuplicates) {
    Check(LayerXml("BASE-VARIANT", "L", DiagComms("<DIAG-SERVICE ID=\"A\"/>\n<DIAG-SERVICE ID=\"B\"/>")));
    EXPECT_EQ(Diagnostics(), "test.odx:3:13 error missing-child\ntest.odx:4:1 error missing-child");
}

} // namespace
} // namespace NTest
