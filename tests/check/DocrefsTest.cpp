// SPDX-License-Identifier: Apache-2.0
#include "check/CheckTest.h"

namespace NTest {
namespace {

class VDocrefsTest : public VCheckTest {
protected:
    /// A layer "V" of the container "C" that refers to the REQUEST "RQ" of the layer "L" in the same container.
    void CheckReference(std::string const& attributes) {
        Check(
            LayerXml("BASE-VARIANT", "L", Request("RQ", "")) +
            LayerXml("ECU-VARIANT", "V", DiagComms(Service("S", "\n<REQUEST-REF ID-REF=\"RQ\" " + attributes + "/>"))));
    }
};

TEST_F(VDocrefsTest, NoSuchDocument) {
    CheckReference("DOCREF=\"M\" DOCTYPE=\"LAYER\"");
    EXPECT_EQ(Finding(), "6:1 warning wrong-docref: REQUEST-REF names the ID 'RQ' with DOCREF 'M' and DOCTYPE 'LAYER', "
                         "but it stands in the BASE-VARIANT 'L' of the DIAG-LAYER-CONTAINER 'C'; other programs may "
                         "not find it");
}

TEST_F(VDocrefsTest, NoSuchDocumentAndNoDoctype) {
    CheckReference("DOCREF=\"M\"");
    EXPECT_EQ(Finding(),
              "6:1 warning wrong-docref: REQUEST-REF names the ID 'RQ' with DOCREF 'M', but it stands in the "
              "BASE-VARIANT 'L' of the DIAG-LAYER-CONTAINER 'C'; other programs may not find it");
}

TEST_F(VDocrefsTest, ContainerNamedAsALayer) {
    CheckReference("DOCREF=\"C\" DOCTYPE=\"LAYER\"");
    EXPECT_EQ(Diagnostics(), "test.odx:6:1 warning wrong-docref");
}

TEST_F(VDocrefsTest, LayerNamedAsAContainer) {
    CheckReference("DOCREF=\"L\" DOCTYPE=\"CONTAINER\"");
    EXPECT_EQ(Diagnostics(), "test.odx:6:1 warning wrong-docref");
}

TEST_F(VDocrefsTest, ContainerNamedAsAnotherCategory) {
    CheckReference("DOCREF=\"C\" DOCTYPE=\"FLASH\"");
    EXPECT_EQ(Diagnostics(), "test.odx:6:1 warning wrong-docref");
}

TEST_F(VDocrefsTest, OtherLayerThanTheTargets) {
    CheckReference("DOCREF=\"V\" DOCTYPE=\"LAYER\"");
    EXPECT_EQ(Diagnostics(), "test.odx:6:1 warning wrong-docref");
}

TEST_F(VDocrefsTest, RightOnesAreNoFindings) {
    for (char const* const attributes :
         {"", "DOCREF=\"L\" DOCTYPE=\"LAYER\"", "DOCREF=\"C\" DOCTYPE=\"CONTAINER\"", "DOCREF=\"L\"", "DOCREF=\"C\"",
          "DOCTYPE=\"FLASH\"", "DOCREF=\"C\" DOCTYPE=\"OF-A-LATER-VERSION\""}) {
        CheckReference(attributes);
        EXPECT_EQ(Diagnostics(), "") << attributes;
    }
}

TEST_F(VDocrefsTest, OneOfSeveralElementsOfTheIdIsEnough) {
    auto const document = [](std::string const& name, std::string const& content) {
        return "<ODX MODEL-VERSION=\"2.2.0\"><DIAG-LAYER-CONTAINER ID=\"" + name + "\"><SHORT-NAME>" + name +
               "</SHORT-NAME>" + LayerXml("BASE-VARIANT", "L" + name, content) + "</DIAG-LAYER-CONTAINER></ODX>";
    };
    CheckDocuments({document("A", Request("RQ", "")), document("B", Request("RQ", "")),
                    document("D", DiagComms(Service("S", "<REQUEST-REF ID-REF=\"RQ\" DOCREF=\"B\" "
                                                         "DOCTYPE=\"CONTAINER\"/>")))});
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VDocrefsTest, ThoseOfUnresolvedReferencesAreNotReportedAgain) {
    Check(LayerXml("BASE-VARIANT", "L",
                   DiagComms(Service("S", "<REQUEST-REF ID-REF=\"X\" DOCREF=\"M\" DOCTYPE=\"LAYER\"/>"))));
    ASSERT_EQ(m_result.diagnostics.size(), 1U);
    EXPECT_EQ(m_result.diagnostics[0].code, "unresolved-reference");
}

} // namespace
} // namespace NTest
