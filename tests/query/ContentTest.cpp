// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/Content.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Dops.h>
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/reader/Utf8.h>

#include "query/XmlContent.h"
#include "reader/LayerXml.h"
#include "reader/ReaderTest.h"

namespace NTest {
namespace {

using NQuery::VContentPart;
using NQuery::VPartRole;

/// All values of an element and its contents, in the form of `ValuesOf` for a document.
void AddValues(std::string const& path, NODX201::VOdxElement& element, std::vector<VXmlValue>& values) {
    NQuery::ForEachPartOf(element, [&](VContentPart const& part) {
        std::string const wrapper = *part.wrapper != L'\0' ? '/' + NReader::ToUtf8(part.wrapper) : "";
        std::string const tag = NReader::ToUtf8(part.tag);
        switch (part.role) {
        case VPartRole::Attribute:
            values.push_back({path + wrapper + "/@" + tag, NReader::ToUtf8(part.text), true});
            break;
        case VPartRole::Text:
            values.push_back({path + wrapper + '/' + tag, Trimmed(NReader::ToUtf8(part.text))});
            break;
        case VPartRole::OwnText:
            values.push_back({path, NReader::ToUtf8(part.text)});
            break;
        case VPartRole::Element:
        case VPartRole::Reference:
            AddValues(path + wrapper + '/' + tag, *part.element, values);
            break;
        case VPartRole::Instruction:
            break;
        }
    });
}

std::string ValueInPrint(VXmlValue const& value) { return value.path + "=\"" + value.value + '"'; }

/// Values as lines: those that are in only one list, as often as they occur more often there than in the other.
std::string OnlyIn(std::vector<VXmlValue> values, std::vector<VXmlValue> others) {
    std::sort(values.begin(), values.end());
    std::sort(others.begin(), others.end());
    std::vector<VXmlValue> only;
    std::set_difference(values.begin(), values.end(), others.begin(), others.end(), std::back_inserter(only));
    std::string text;
    for (VXmlValue const& value : only) {
        text += ValueInPrint(value) + '\n';
    }
    return text;
}

constexpr char kDop[] = "<DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"D\"><SHORT-NAME>D</SHORT-NAME></DATA-OBJECT-PROP>"
                        "</DATA-OBJECT-PROPS>";

class VContentTest : public VReaderTest {
protected:
    static std::string TextOf(std::string const& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    /// The values of a document but those of ODX itself, which is no category, and the @TI of a DESC, which the model
    /// does not have. Flags are true or false in the model.
    static std::vector<VXmlValue> InFile(std::string const& xml) {
        std::vector<VXmlValue> values = ValuesOf(xml);
        auto const isNotInModel = [](VXmlValue const& value) {
            std::string const end = value.path.substr(value.path.size() - std::min<std::size_t>(8, value.path.size()));
            return value.path.compare(0, 5, "ODX/@") == 0 || value.path == "ODX/MODEL-VERSION" || end == "DESC/@TI";
        };
        values.erase(std::remove_if(values.begin(), values.end(), isNotInModel), values.end());
        for (VXmlValue& value : values) {
            bool const isFlag = value.path.find("/@IS-") != std::string::npos;
            value.value = isFlag && value.value == "1" ? "true" : isFlag && value.value == "0" ? "false" : value.value;
        }
        return values;
    }

    std::vector<VXmlValue> InModel() const {
        std::vector<VXmlValue> values;
        AddValues("ODX", Database().GetOdx(), values);
        return values;
    }

    /// The parts of an element, one per line.
    static std::string Parts(NODX201::VOdxElement& element) {
        std::ostringstream text;
        NQuery::ForEachPartOf(element, [&text](VContentPart const& part) {
            static constexpr char const* kRoles[] = {"@", "text ", "own text ", "element ", "reference ", "<?"};
            text << kRoles[static_cast<int>(part.role)] << NReader::ToUtf8(part.tag);
            text << (*part.wrapper != L'\0' ? " in " + NReader::ToUtf8(part.wrapper) : "") << (part.isItem ? " *" : "");
            text << (part.text != nullptr ? "=" + NReader::ToUtf8(part.text) : "") << '\n';
        });
        return text.str();
    }
};

class VContentOfSampleTest : public VContentTest, public testing::WithParamInterface<char const*> {};

TEST_P(VContentOfSampleTest, EveryAttributeAndTextOfTheDocumentComesOut) {
    std::string const file = std::string(DIAGKIT_SAMPLES) + '/' + GetParam();
    ReadFiles({file});
    EXPECT_EQ("", OnlyIn(InFile(TextOf(file)), InModel()));
}

TEST_P(VContentOfSampleTest, WhatComesOutBesidesAreDefaultsOfAttributes) {
    std::string const file = std::string(DIAGKIT_SAMPLES) + '/' + GetParam();
    ReadFiles({file});
    static std::set<std::string> const kDefaults{
        "true", "false", "CLOSED", "DEC", "PHYSICAL", "BASE-VARIANT-REF"}; // a PARENT-REF without type has its target's
    std::vector<VXmlValue> values = InModel();
    values.erase(
        std::remove_if(values.begin(), values.end(),
                       [](VXmlValue const& value) { return value.isAttribute && kDefaults.count(value.value) != 0; }),
        values.end());
    EXPECT_EQ("", OnlyIn(values, InFile(TextOf(file))));
}

INSTANTIATE_TEST_SUITE_P(, VContentOfSampleTest,
                         testing::Values("BodyCommunication.odx-c", "BodyProtocols.odx-d", "SharedLibraries.odx-d",
                                         "WiperFamily.odx-d", "WiperFlash.odx-f", "WiperJobs.odx-m"));

TEST_F(VContentTest, AttributesComeFirstThenTheRestInTheOrderOfOdx) {
    Read(Dictionary("<DTC-DOPS><DTC-DOP ID=\"D\" IS-VISIBLE=\"true\"><SHORT-NAME>Dtcs</SHORT-NAME>"
                    "<LONG-NAME TI=\"T\">Trouble</LONG-NAME><DESC><p>codes</p></DESC>" +
                    std::string(kStandardType) +
                    "<PHYSICAL-TYPE BASE-DATA-TYPE=\"A_UINT32\"/>"
                    "<COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY></COMPU-METHOD>"
                    "<DTCS><DTC ID=\"D1\"><SHORT-NAME>One</SHORT-NAME><TROUBLE-CODE>1</TROUBLE-CODE>"
                    "<TEXT TI=\"X\">first</TEXT></DTC><DTC-REF ID-REF=\"D1\"/></DTCS></DTC-DOP></DTC-DOPS>"));
    EXPECT_EQ("@ID=D\n"
              "@IS-VISIBLE=true\n"
              "text SHORT-NAME=Dtcs\n"
              "text LONG-NAME=Trouble\n"
              "@TI in LONG-NAME=T\n"
              "text DESC=<p>codes</p>\n"
              "element DIAG-CODED-TYPE\n"
              "element PHYSICAL-TYPE\n"
              "element COMPU-METHOD\n"
              "element DTC in DTCS *\n"
              "reference DTC-REF in DTCS *\n",
              Parts(Element(L"D")));
    EXPECT_EQ("@ID=D1\ntext SHORT-NAME=One\ntext TROUBLE-CODE=1\ntext TEXT=first\n@TI in TEXT=X\n",
              Parts(Element(L"D1")));
}

TEST_F(VContentTest, AReferenceHasItsAttributesAndWhatStandsInIt) {
    Read(Layer("<COMPARAM-REFS><COMPARAM-REF ID-REF=\"CP\" DOCREF=\"S\" DOCTYPE=\"COMPARAM-SPEC\"><VALUE>3</VALUE>"
               "<PROTOCOL-SNREF SHORT-NAME=\"P\"/></COMPARAM-REF></COMPARAM-REFS>"));
    std::string text;
    NQuery::ForEachPartOf(Element(L"L"), [&text](VContentPart const& part) {
        text += part.role == VPartRole::Reference ? Parts(*part.element) : "";
    });
    EXPECT_EQ("@ID-REF=CP\n@DOCREF=S\n@DOCTYPE=COMPARAM-SPEC\ntext VALUE=3\nreference PROTOCOL-SNREF\n", text);
}

TEST_F(VContentTest, AKindThatIsItsXsiTypeIsTheFirstAttribute) {
    Read(Params("<PARAM xsi:type=\"RESERVED\" SEMANTIC=\"X\"><SHORT-NAME>P</SHORT-NAME><BIT-LENGTH>8</BIT-LENGTH>"
                "<?Editor note?></PARAM>"));
    NODX201::VRequest& request = Get<NODX201::VRequest>(L"RQ");
    EXPECT_EQ("@xsi:type=RESERVED\n@SEMANTIC=X\ntext SHORT-NAME=P\n<?Editor *=note\ntext BIT-LENGTH=8\n",
              Parts(At(request.ParamCollection(), 0)));
}

TEST_F(VContentTest, ItemsOfOneListStandInTheWrapperOfTheirTag) {
    Read(Layer("<POS-RESPONSES>" + Xml("POS-RESPONSE", "P") + "</POS-RESPONSES><GLOBAL-NEG-RESPONSES>" +
               Xml("GLOBAL-NEG-RESPONSE", "G") + "</GLOBAL-NEG-RESPONSES>"));
    EXPECT_EQ("@ID=L\ntext SHORT-NAME=L\nelement POS-RESPONSE in POS-RESPONSES *\n"
              "element GLOBAL-NEG-RESPONSE in GLOBAL-NEG-RESPONSES *\n",
              Parts(Element(L"L")));
}

TEST_F(VContentTest, WhatAProgramMadeHasTheNamesOfItsRows) {
    NMemory::VDatabase database;
    auto& layer = database.AddDiagLayerContainer(L"C").AddBaseVariant(L"L");
    auto& request = layer.AddRequest(L"R");
    request.AddValue(L"V").SetDopBaseLink(NMemory::VReference::ByShortName(L"D"));
    EXPECT_EQ("@xsi:type=VALUE\ntext SHORT-NAME=V\nreference DOP-SNREF\n", Parts(At(request.ParamCollection(), 0)));
}

TEST_F(VContentTest, AReferenceLeadsWhereItsIdSaysInEveryLayer) {
    Read(ContainerOfLayers(
        LayerXml("BASE-VARIANT", "L", InDictionary(kDop) + Request("R", Value("V", "<DOP-REF ID-REF=\"D\"/>")))));
    NODX201::VParam& param = At(Get<NODX201::VRequest>(L"R").ParamCollection(), 0);
    NODX201::VLink& reference = As<NODX201::VValue>(param).GetDopBaseLink();
    EXPECT_FALSE(NQuery::IsReadInLayer(reference));
    NODX201::VOdxElement* const target = NQuery::TargetOf(reference, nullptr);
    ASSERT_NE(nullptr, target);
    EXPECT_STREQ(L"D", target->GetShortName());
}

TEST_F(VContentTest, AShortNameLeadsWhereTheLayerSays) {
    Read(ContainerOfLayers(LayerXml("BASE-VARIANT", "L", Request("R", Value("V", "<DOP-SNREF SHORT-NAME=\"D\"/>"))) +
                           LayerXml("ECU-VARIANT", "E", InDictionary(kDop))));
    NODX201::VParam& param = At(Get<NODX201::VRequest>(L"R").ParamCollection(), 0);
    NODX201::VLink& reference = As<NODX201::VValue>(param).GetDopBaseLink();
    EXPECT_TRUE(NQuery::IsReadInLayer(reference));
    EXPECT_EQ(nullptr, NQuery::TargetOf(reference, nullptr));
    EXPECT_EQ(nullptr, NQuery::TargetOf(reference, &Get<NODX201::VDiagLayer>(L"L")));
    EXPECT_NE(nullptr, NQuery::TargetOf(reference, &Get<NODX201::VDiagLayer>(L"E")));
}

} // namespace
} // namespace NTest
