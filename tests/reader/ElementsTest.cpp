// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Odx.h>

#include "reader/ReaderTest.h"

namespace NTest {
namespace {

class VElementsTest : public VReaderTest {
protected:
    VElementsTest() { m_options.keepsElements = true; }

    /// The elements kept, each with its line and column.
    std::string Elements() const {
        std::string text;
        for (NODX201::VOdxElement const* const element : m_result.elements) {
            std::wstring const tag = NODX201::OdxTagText(element->GetOdxTag());
            text += (text.empty() ? "" : " ") + std::string(tag.begin(), tag.end()) + ' ' +
                    PositionOf(dynamic_cast<NMemory::VMemNode const&>(*element));
        }
        return text;
    }
};

TEST_F(VElementsTest, AreNotKeptUnlessAskedFor) {
    m_options.keepsElements = false;
    Read(Layer("<DIAG-COMMS/>"));
    EXPECT_EQ(Elements(), "");
}

TEST_F(VElementsTest, AreInDocumentOrderWithReferencesOfBothForms) {
    Read(Params("<PARAM xsi:type=\"VALUE\"><SHORT-NAME>A</SHORT-NAME>\n<DOP-REF ID-REF=\"D\"/></PARAM>\n"
                "<PARAM xsi:type=\"VALUE\"><SHORT-NAME>B</SHORT-NAME>\n<DOP-SNREF SHORT-NAME=\"D\"/></PARAM>"));
    EXPECT_EQ(Elements().substr(Elements().find("REQUEST")), "REQUEST " + PositionOf(Get<NMemory::VMemRequest>(L"RQ")) +
                                                                 " PARAM 2:1 DOP-REF 3:1 PARAM 4:1 DOP-SNREF 5:1");
}

TEST_F(VElementsTest, WhoseKindShowsFromTheirContentsStandWhereTheyStart) {
    Read(Params("<PARAM><SHORT-NAME>A</SHORT-NAME>\n<DOP-REF ID-REF=\"D\"/></PARAM>\n"
                "<PARAM xsi:type=\"DYNAMIC\"><SHORT-NAME>B</SHORT-NAME></PARAM>"));
    EXPECT_EQ(Elements().substr(Elements().find("PARAM")), "PARAM 2:1 DOP-REF 3:1 PARAM 4:1");
}

TEST_F(VElementsTest, ThatTakeTheirKindFromTheirTargetAreTheOnesInTheDatabase) {
    Read(Container(
        "<BASE-VARIANTS><BASE-VARIANT ID=\"B\"><SHORT-NAME>B</SHORT-NAME></BASE-VARIANT></BASE-VARIANTS>"
        "<ECU-VARIANTS><ECU-VARIANT ID=\"V\"><SHORT-NAME>V</SHORT-NAME>\n<PARENT-REFS>"
        "<PARENT-REF ID-REF=\"B\"><NOT-INHERITED-DIAG-COMMS><NOT-INHERITED-DIAG-COMM>"
        "<DIAG-COMM-SNREF SHORT-NAME=\"X\"/></NOT-INHERITED-DIAG-COMM></NOT-INHERITED-DIAG-COMMS></PARENT-REF>"
        "</PARENT-REFS></ECU-VARIANT></ECU-VARIANTS>"));
    ASSERT_EQ(m_result.elements.size(), 4U);
    EXPECT_EQ(m_result.elements[3], &At(Get<NODX201::VEcuVariant>(L"V").ParentRefCollection(), 0));
    EXPECT_NE(dynamic_cast<NODX201::VBaseVariantRef*>(m_result.elements[3]), nullptr);
}

TEST_F(VElementsTest, OfADocumentThatBreaksOffAreForgotten) {
    std::string const good = Layer("<DIAG-COMMS/>");
    ReadFiles({WritePackage("p.pdx", {{"1.odx", Layer("<DIAG-COMMS>")}, {"2.odx", good}})});
    EXPECT_EQ(Diagnostics(), "p.pdx!1.odx:2:15 error not-xml");
    ASSERT_EQ(m_result.elements.size(), 2U);
    EXPECT_EQ(m_result.elements[0], &At(Database().GetOdx().DiagLayerContainerCollection(), 0));
    EXPECT_EQ(m_result.elements[1], &Element(L"L"));
}

} // namespace
} // namespace NTest
