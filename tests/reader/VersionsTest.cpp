// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Odx.h>

#include "reader/ReaderTest.h"

/// Documents of all versions, with categories and elements unknown to the reader.

namespace NTest {
namespace {

class VVersionsTest : public VReaderTest {};

TEST_F(VVersionsTest, ModelVersionsOtherThan201AreReadByContent) {
    for (char const* const version : {"2.0", "2.0.0", "2.0.2", "2.1.0", "2.2.0", "3"}) {
        Read(Container("<ECU-VARIANTS><ECU-VARIANT ID=\"V\"><SHORT-NAME>V</SHORT-NAME></ECU-VARIANT></ECU-VARIANTS>",
                       version));
        EXPECT_STREQ(Get<NODX201::VEcuVariant>(L"V").GetShortName(), L"V");
        EXPECT_EQ(Diagnostics(), "");
        EXPECT_EQ(m_result.documents.at(0).modelVersion, version);
    }
    Read("<ODX>\n<DIAG-LAYER-CONTAINER ID=\"C\"><SHORT-NAME>C</SHORT-NAME></DIAG-LAYER-CONTAINER></ODX>");
    EXPECT_EQ(Diagnostics(), "test.odx:1:1 warning missing-model-version");
    EXPECT_EQ(m_result.documents.at(0).modelVersion, "");
}

TEST_F(VVersionsTest, TwoCategoriesInOneRootAreBothRead) {
    Read(Document("<COMPARAM-SPEC ID=\"S\"><SHORT-NAME>S</SHORT-NAME></COMPARAM-SPEC>"
                  "<DIAG-LAYER-CONTAINER ID=\"C\"><SHORT-NAME>C</SHORT-NAME></DIAG-LAYER-CONTAINER>"
                  "<DIAG-LAYER-CONTAINER ID=\"D\"><SHORT-NAME>D</SHORT-NAME></DIAG-LAYER-CONTAINER>"));
    EXPECT_EQ(m_result.documents.size(), 3U);
    EXPECT_EQ(Database().GetOdx().DiagLayerContainerCollection().Count(), 2U);
    EXPECT_EQ(Database().GetOdx().ComparamSpecCollection().Count(), 1U);
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VVersionsTest, DocumentWithoutKnownCategoryIsSkippedWithANote) {
    Read("\n <ODX MODEL-VERSION=\"2.0.1\"/>");
    EXPECT_EQ(Diagnostics(), "test.odx:2:2 warning no-category");
    EXPECT_TRUE(m_result.documents.empty());
    Read(Document("<ECU-CONFIG ID=\"E\"><SHORT-NAME>E</SHORT-NAME></ECU-CONFIG>"));
    EXPECT_EQ(Diagnostics(), "test.odx:1:1 warning no-category");
    EXPECT_EQ(m_result.unknownElements, (std::map<std::string, std::size_t>{{"ECU-CONFIG", 1}}));
}

TEST_F(VVersionsTest, UnknownCategoryBesideAKnownOneIsLeftOut) {
    Read(Document(
        "<ECU-CONFIG ID=\"X\"/><DIAG-LAYER-CONTAINER ID=\"C\"><SHORT-NAME>C</SHORT-NAME></DIAG-LAYER-CONTAINER>"));
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(m_result.documents.size(), 1U);
    EXPECT_EQ(m_result.unknownElements, (std::map<std::string, std::size_t>{{"ECU-CONFIG", 1}}));
}

TEST_F(VVersionsTest, UnknownElementsAreReportedFor20Only) {
    std::string const content = "<NO-SUCH-LIST>\n<NO-SUCH-ELEMENT/></NO-SUCH-LIST>";
    Read(Container(content));
    EXPECT_EQ(Diagnostics(), "test.odx:2:1 warning unknown-child");
    EXPECT_EQ(Message(0),
              "'DIAG-LAYER-CONTAINER' holds no 'NO-SUCH-LIST' in ODX 2.0; it is ignored, with its children");
    Read(Container(content, "2.2.0"));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VVersionsTest, UnknownElementsAreCountedWithoutTheirContents) {
    Read(Layer(
        "<STATE-CHARTS><STATE-CHART><SHORT-NAME>X</SHORT-NAME></STATE-CHART></STATE-CHARTS><STATE-CHARTS/><SDGS/>",
        "2.2.0"));
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(m_result.unknownElements, (std::map<std::string, std::size_t>{{"SDGS", 1}, {"STATE-CHARTS", 2}}));
}

TEST_F(VVersionsTest, VersionsThatAreNoneAreReportedAndHeldAgainstNone) {
    std::string const bare =
        "<PROTOCOLS><PROTOCOL TYPE=\"x\" ID=\"P\"><SHORT-NAME>P</SHORT-NAME></PROTOCOL></PROTOCOLS>";
    for (char const* const version : {"", "abc", "2.", ".0"}) {
        Read(Container(bare, version));
        EXPECT_EQ(Diagnostics(), "test.odx:1:1 warning unknown-model-version") << version;
    }
    for (char const* const version : {" 2.0.1 ", "2.0", "1.1.5"}) {
        Read(Container(bare, version));
        EXPECT_EQ(Diagnostics(), "test.odx:2:12 error missing-child") << version;
    }
    for (char const* const version : {"2.1.0", "2.2", "2", "3.0.0", "10.0"}) {
        Read(Container(bare, version));
        EXPECT_EQ(Diagnostics(), "") << version;
    }
}

TEST_F(VVersionsTest, Version22LayersAreReadWithoutErrors) {
    Read(Container(
        "<PROTOCOLS><PROTOCOL ID=\"P\"><SHORT-NAME>P</SHORT-NAME><COMPARAM-SPEC-REF ID-REF=\"CS\" DOCREF=\"CS\" "
        "DOCTYPE=\"COMPARAM-SPEC\"/>"
        "<PROT-STACK-SNREF SHORT-NAME=\"x\"/></PROTOCOL></PROTOCOLS>"
        "<BASE-VARIANTS><BASE-VARIANT "
        "ID=\"B\"><SHORT-NAME>B</SHORT-NAME><DESC><ul><li>a</li></ul><EXTERNAL-DOCS/></DESC><DIAG-DATA-DICTIONARY-SPEC>"
        "<TABLES><TABLE ID=\"T\"><SHORT-NAME>T</SHORT-NAME><TABLE-ROW "
        "ID=\"TR\"><SHORT-NAME>TR</SHORT-NAME><KEY>1</KEY><STRUCTURE-SNREF SHORT-NAME=\"x\"/></TABLE-ROW>"
        "<TABLE-DIAG-COMM-CONNECTORS/></TABLE></TABLES></DIAG-DATA-DICTIONARY-SPEC>"
        "<DIAG-COMMS><DIAG-SERVICE ID=\"S\" "
        "TRANSMISSION-MODE=\"SEND-AND-RECEIVE\"><SHORT-NAME>S</SHORT-NAME><PRE-CONDITION-STATE-REFS/>"
        "<COMPARAM-REFS><COMPARAM-REF ID-REF=\"CP\" DOCREF=\"SUB\" "
        "DOCTYPE=\"COMPARAM-SUBSET\"><SIMPLE-VALUE>5</SIMPLE-VALUE></COMPARAM-REF>"
        "<COMPARAM-REF ID-REF=\"CP\" DOCREF=\"SUB\" "
        "DOCTYPE=\"COMPARAM-SUBSET\"><COMPLEX-VALUE><SIMPLE-VALUE>1</SIMPLE-VALUE></COMPLEX-VALUE></COMPARAM-REF></"
        "COMPARAM-REFS>"
        "<REQUEST-REF ID-REF=\"R\"/><POS-RESPONSE-SUPPRESSABLE/></DIAG-SERVICE></DIAG-COMMS><REQUESTS><REQUEST "
        "ID=\"R\"><SHORT-NAME>R</SHORT-NAME><PARAMS>"
        "<PARAM "
        "xsi:type=\"NRC-CONST\"><SHORT-NAME>N</SHORT-NAME><CODED-VALUES><CODED-VALUE>16</CODED-VALUE></CODED-VALUES>" +
            std::string(kStandardType) +
            "</PARAM>"
            "<PARAM xsi:type=\"TABLE-KEY\"><SHORT-NAME>K</SHORT-NAME><TABLE-SNREF SHORT-NAME=\"T\"/></PARAM>"
            "<PARAM xsi:type=\"TABLE-STRUCT\"><SHORT-NAME>KS</SHORT-NAME><TABLE-KEY-SNREF "
            "SHORT-NAME=\"K\"/></PARAM></PARAMS></REQUEST></REQUESTS>"
            "<SDGS/><PARENT-REFS><PARENT-REF xsi:type=\"PROTOCOL-REF\" "
            "ID-REF=\"P\"><NOT-INHERITED-DOPS/></PARENT-REF></PARENT-REFS></BASE-VARIANT></BASE-VARIANTS>"
            "</DIAG-LAYER-CONTAINER><COMPARAM-SPEC ID=\"CS\"><SHORT-NAME>CS</SHORT-NAME><PROT-STACKS/></COMPARAM-SPEC>"
            "<COMPARAM-SUBSET ID=\"SUB\" CATEGORY=\"TRANSPORT\"><SHORT-NAME>SUB</SHORT-NAME><COMPARAMS><COMPARAM "
            "ID=\"CP\" CPTYPE=\"OEM-OPTIONAL\" CPUSAGE=\"TESTER\" PARAM-CLASS=\"COM\">"
            "<SHORT-NAME>CP</SHORT-NAME><PHYSICAL-DEFAULT-VALUE>1</PHYSICAL-DEFAULT-VALUE><DATA-OBJECT-PROP-REF "
            "ID-REF=\"D\"/></COMPARAM></COMPARAMS>"
            "<DATA-OBJECT-PROPS><DATA-OBJECT-PROP "
            "ID=\"D\"><SHORT-NAME>D</SHORT-NAME></DATA-OBJECT-PROP></DATA-OBJECT-PROPS></COMPARAM-SUBSET>"
            "<DIAG-LAYER-CONTAINER ID=\"Z\"><SHORT-NAME>Z</SHORT-NAME>",
        "2.2.0"));
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_EQ(Database().GetOdx().ComparamSpecCollection().Count(), 2U);
    EXPECT_EQ(m_result.documents.at(2).category, "COMPARAM-SUBSET");
    auto& constant = As<NMemory::VMemCodedConst>(At(Get<NODX201::VRequest>(L"R").ParamCollection(), 0));
    EXPECT_STREQ(constant.GetCodedValue(), L"");
    EXPECT_TRUE(constant.HasDiagCodedType());
    auto& comparamRefs = Get<NMemory::VMemDiagService>(L"S").ComparamRefCollection();
    EXPECT_STREQ(As<NMemory::VMemComparamRef>(At(comparamRefs, 0)).GetValue(), L"5");
    EXPECT_TRUE(As<NMemory::VMemComparamRef>(At(comparamRefs, 0)).HasComparam());
    EXPECT_EQ(comparamRefs.Count(), 2U);
    EXPECT_STREQ(Get<NMemory::VMemBaseVariant>(L"B").GetDesc(), L"<ul><li>a</li></ul><EXTERNAL-DOCS/>");
    EXPECT_FALSE(
        As<NODX201::VTableKey>(At(Get<NODX201::VRequest>(L"R").ParamCollection(), 1)).HasTableRefTableRowRefChoice());
}

TEST_F(VVersionsTest, EnvDataOfLaterVersionsMayBeReferencedInAWrapperOfItsOwn) {
    Read(Dictionary(
        "<ENV-DATA-DESCS><ENV-DATA-DESC ID=\"N\"><SHORT-NAME>N</SHORT-NAME><PARAM-SNPATHREF SHORT-NAME-PATH=\"a.b\"/>"
        "<ENV-DATA-REFS><ENV-DATA-REF ID-REF=\"E\"/></ENV-DATA-REFS></ENV-DATA-DESC></ENV-DATA-DESCS>"
        "<ENV-DATAS><ENV-DATA ID=\"E\"><SHORT-NAME>E</SHORT-NAME><PARAMS/><ALL-VALUE/></ENV-DATA></ENV-DATAS>",
        "2.2.0"));
    EXPECT_EQ(Diagnostics(), "");
    auto& proxies = Get<NODX201::VEnvDataDesc>(L"N").EnvDataProxyCollection();
    ASSERT_EQ(proxies.Count(), 1U);
    EXPECT_TRUE(As<NODX201::VEnvDataLink>(At(proxies, 0)).HasEnvData());
}

} // namespace
} // namespace NTest
