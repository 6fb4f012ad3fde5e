// SPDX-License-Identifier: Apache-2.0
#include <diagkit/model/Dops.h>

#include "query/UsesTest.h"

namespace NTest {
namespace {

using VUsesByIdTest = VUsesTest;

TEST_F(VUsesByIdTest, HaveNoLayers) {
    ReadLayers(
        LayerXml("BASE-VARIANT", "B", InDictionary(Structure("T", "")) + Request("RQ", Value("P", DopRefTo("T")))) +
        LayerXml("ECU-VARIANT", "V", ParentRefs({{"BASE-VARIANT", "B"}})));
    EXPECT_EQ(Uses("T"), "DOP-REF from P\n");
    EXPECT_EQ(Uses("B"), "PARENT-REF from V\n");
}

TEST_F(VUsesByIdTest, ComeInDocumentOrder) {
    ReadLayers(LayerXml("BASE-VARIANT", "B",
                        InDictionary(Structure("T", "")) +
                            Request("RQ", Value("P", DopRefTo("T")) + Value("Q", "<DOP-SNREF SHORT-NAME=\"T\"/>") +
                                              Value("R", DopRefTo("T")))));
    EXPECT_EQ(Uses("T"), "DOP-REF from P\nDOP-SNREF from Q in B\nDOP-REF from R\n");
}

TEST_F(VUsesByIdTest, ComeFromTheNearestElementWithAShortName) {
    ReadLayers(LayerXml("BASE-VARIANT", "B",
                        DiagComms(Service("S") + Service("R", "<RELATED-DIAG-COMM-REFS><RELATED-DIAG-COMM-REF "
                                                              "ID-REF=\"S\"><RELATION-TYPE>t</RELATION-TYPE>"
                                                              "</RELATED-DIAG-COMM-REF></RELATED-DIAG-COMM-REFS>"))) +
               LayerXml("ECU-VARIANT", "V", DiagComms("<DIAG-COMM-REF ID-REF=\"S\"/>")));
    EXPECT_EQ(Uses("S"), "RELATED-DIAG-COMM-REF from R\nDIAG-COMM-REF from V\n");
}

TEST_F(VUsesByIdTest, ThatCloseACircleAreTold) {
    ReadLayers(LayerXml("ECU-VARIANT", "V", InDictionary(Structure("T", Value("P", DopRefTo("T"))))));
    EXPECT_EQ(Diagnostics(), "test.odx:3:142 error containment-cycle");
    EXPECT_EQ(Uses("T"), "DOP-REF from P\n");
}

TEST_F(VUsesByIdTest, LeadToTheElementThatTheyResolveTo) {
    std::string const dictionary = InDictionary("<STRUCTURES><STRUCTURE ID=\"T\"><SHORT-NAME>T</SHORT-NAME>"
                                                "</STRUCTURE></STRUCTURES>");
    Read({Container(LayerXml("BASE-VARIANT", "A", dictionary), "2.2.0", "CA"),
          Container(LayerXml("BASE-VARIANT", "B", dictionary + Request("RQ", Value("P", DopRefTo("T")))), "2.2.0",
                    "CB")});
    auto const structureOf = [this](wchar_t const* layer) -> NODX201::VOdxElement& {
        return At(Get<NODX201::VBaseVariant>(layer).GetDiagDataDictionarySpec().DopBaseCollection(), 0);
    };
    EXPECT_EQ(UsesOf(structureOf(L"A")), "");
    EXPECT_EQ(UsesOf(structureOf(L"B")), "DOP-REF from P\n");
}

TEST_F(VUsesByIdTest, ThatDoNotResolveLeadNowhere) {
    ReadLayers(LayerXml("BASE-VARIANT", "B", DiagComms(Service("S")) + Request("RQ", Value("P", DopRefTo("S")))));
    EXPECT_EQ(Uses("S"), "");
}

TEST_F(VUsesByIdTest, ExclusionsAndDocrefsAreNone) {
    ReadLayers(LayerXml("BASE-VARIANT", "B", DiagComms(Service("S"))) +
               LayerXml("ECU-VARIANT", "V",
                        "<PARENT-REFS><PARENT-REF xsi:type=\"BASE-VARIANT-REF\" ID-REF=\"B\" DOCREF=\"C\" "
                        "DOCTYPE=\"CONTAINER\">" +
                            Excluded("S") + "</PARENT-REF></PARENT-REFS>"));
    EXPECT_EQ(Uses("S"), "");
    EXPECT_EQ(Uses("C"), "");
    EXPECT_EQ(Uses("B"), "PARENT-REF from V\n");
}

} // namespace
} // namespace NTest
