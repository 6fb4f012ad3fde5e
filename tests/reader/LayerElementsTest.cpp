// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Odx.h>

#include "reader/ReaderTest.h"

/// The results for each element of containers and layers, services, jobs and parameters: attributes, texts, children,
/// and the defaults of absent ones.

namespace NTest {
namespace {

using namespace NMemory;
using NODX201::VOdxTagEnum;

class VLayerElementsTest : public VReaderTest {
protected:
    ~VLayerElementsTest() override { EXPECT_TRUE(m_result.unknownElements.empty()); }

    NODX201::VParam& Param(std::size_t index) { return At(Get<NODX201::VRequest>(L"RQ").ParamCollection(), index); }

    /// Reads one PARAM of the kind.
    template <class T>
    T& ReadParam(std::string const& type, std::string const& attributes, std::string const& content) {
        Read(Params("<PARAM xsi:type=\"" + type + "\" " + attributes + "><SHORT-NAME>P</SHORT-NAME>" + content +
                    "</PARAM>"));
        EXPECT_EQ(NODX201::OdxTagText(Param(0).GetOdxTag()), std::wstring(L"PARAM"));
        EXPECT_EQ(NODX201::OdxTypeText(Param(0).GetOdxTag()), std::wstring(type.begin(), type.end()));
        return As<T>(Param(0));
    }
};

/// The reference in a link: `#id in docref (doctype) rREVISION`, or `name` for a short-name reference.
std::wstring Named(NODX201::VLink& link) {
    if (auto const* const snref = dynamic_cast<NODX201::VSnref const*>(&link.GetLink())) {
        return snref->GetShortName();
    }
    auto const& byId = As<NODX201::VOdxLink>(link.GetLink());
    std::wstring text = std::wstring(L"#") + byId.GetIdRef();
    if (*byId.GetDocref() != L'\0') {
        text += std::wstring(L" in ") + byId.GetDocref() + L" (" + byId.GetDoctype() + L") r" + byId.GetRevision();
    }
    return text;
}

std::wstring TagOf(NODX201::VOdxElement& element) { return NODX201::OdxTagText(element.GetOdxTag()); }

// Names, identity, markup, positions

TEST_F(VLayerElementsTest, NamesAndIdentity) {
    Read(Container("<ECU-VARIANTS>\n  <ECU-VARIANT ID=\"V\" OID=\"o-1\"><SHORT-NAME>Name</SHORT-NAME><LONG-NAME "
                   "TI=\"t-1\">Long name</LONG-NAME>"
                   "<DESC TI=\"d\"><p align=\"left\">a &lt; b &amp; "
                   "<b>c</b><br/><ul><li>H<sub>2</sub>O</li></ul></p><p/></DESC></ECU-VARIANT>"
                   "<ECU-VARIANT ID=\"W\"><SHORT-NAME>Bare</SHORT-NAME></ECU-VARIANT></ECU-VARIANTS>"));
    EXPECT_EQ(Diagnostics(), "");
    auto& variant = Get<VMemEcuVariant>(L"V");
    EXPECT_STREQ(variant.GetId(), L"V");
    EXPECT_TRUE(variant.HasOid());
    EXPECT_STREQ(variant.GetOid(), L"o-1");
    EXPECT_STREQ(variant.GetShortName(), L"Name");
    ASSERT_TRUE(variant.HasLongName());
    EXPECT_STREQ(variant.GetLongName().GetBaseMember(), L"Long name");
    EXPECT_STREQ(As<VMemText>(variant.GetLongName()).GetTextId(), L"t-1");
    EXPECT_STREQ(variant.GetDesc(),
                 L"<p align=\"left\">a &lt; b &amp; <b>c</b><br/><ul><li>H<sub>2</sub>O</li></ul></p><p/>");
    auto& bare = Get<VMemEcuVariant>(L"W");
    EXPECT_FALSE(bare.HasOid());
    EXPECT_STREQ(bare.GetOid(), L"");
    EXPECT_FALSE(bare.HasLongName());
    EXPECT_STREQ(bare.GetDesc(), L"");
}

TEST_F(VLayerElementsTest, PositionsAreThoseOfTheStartTags) {
    std::string const path = Write(
        "p.odx",
        Container(
            "<ECU-VARIANTS>\n\t<ECU-VARIANT\n ID=\"V\"><SHORT-NAME>\xC3\xBC</SHORT-NAME>"
            "<DIAG-COMMS><!--\xC3\xBC--><DIAG-COMM-REF ID-REF=\"x\"/></DIAG-COMMS></ECU-VARIANT></ECU-VARIANTS>"));
    ReadFiles({path});
    auto& variant = Get<VMemEcuVariant>(L"V");
    EXPECT_EQ(PositionOf(variant), "3:2");
    EXPECT_EQ(Database().GetDocumentName(variant.GetPosition()), path);
    // After ` ID="V"><SHORT-NAME>ü</SHORT-NAME><DIAG-COMMS><!--ü-->`: 8 + 26 + 12 + 8 characters.
    EXPECT_EQ(PositionOf(As<VMemDiagCommLink>(At(variant.DiagCommProxyCollection(), 0))), "4:55");
    EXPECT_EQ(Diagnostics(), "p.odx:4:55 error unresolved-reference");
}

TEST_F(VLayerElementsTest, ProcessingInstructionsOfTheDatabase) {
    std::string const first =
        "<?xml version=\"1.0\"?><?Prolog a  b ?><!-- --><ODX MODEL-VERSION=\"2.0.1\">\n<?Child.1 <x> & \"y\"?>"
        "<DIAG-LAYER-CONTAINER ID=\"C\"><?Inner "
        "no?><SHORT-NAME>C</SHORT-NAME></DIAG-LAYER-CONTAINER><?After?></ODX><?Epilog z?>";
    Read({first, "<ODX MODEL-VERSION=\"2.0.1\"><?Second 2?><FLASH ID=\"F\"><SHORT-NAME>F</SHORT-NAME></FLASH></ODX>"});
    std::wstring text;
    for (NODX201::VProcessingInstruction& instruction : Database().GetOdx().ProcessingInstructionCollection()) {
        text += std::wstring(instruction.GetName()) + L"=" + instruction.GetContent() + L"|";
    }
    EXPECT_EQ(text, L"Prolog=a  b |Child.1=<x> & \"y\"|After=|Epilog=z|Second=2|");
}

TEST_F(VLayerElementsTest, ProcessingInstructionsOfParameters) {
    Read(Params(
        "<?Beside no?><PARAM xsi:type=\"DYNAMIC\"><?First 1?><SHORT-NAME>P<?Inside no?></SHORT-NAME><?Last 2?></PARAM>"
        "<PARAM xsi:type=\"DYNAMIC\"><SHORT-NAME>Q</SHORT-NAME></PARAM>"));
    auto& instructions = Param(0).ProcessingInstructionCollection();
    ASSERT_EQ(instructions.Count(), 2U);
    EXPECT_STREQ(At(instructions, 0).GetName(), L"First");
    EXPECT_STREQ(At(instructions, 0).GetContent(), L"1");
    EXPECT_STREQ(At(instructions, 1).GetName(), L"Last");
    EXPECT_EQ(Param(1).ProcessingInstructionCollection().Count(), 0U);
    EXPECT_EQ(Database().GetOdx().ProcessingInstructionCollection().Count(), 0U);
    EXPECT_STREQ(Param(0).GetShortName(), L"P");
}

// Layers

TEST_F(VLayerElementsTest, ContainerListsItsLayersInTheOrderOfTheDocument) {
    Read(Container(
        "<ECU-VARIANTS><ECU-VARIANT ID=\"1\"/></ECU-VARIANTS><PROTOCOLS><PROTOCOL ID=\"2\" TYPE=\"ISO\"/></PROTOCOLS>"
        "<BASE-VARIANTS><BASE-VARIANT ID=\"3\"/></BASE-VARIANTS><ECU-SHARED-DATAS><ECU-SHARED-DATA "
        "ID=\"4\"/></ECU-SHARED-DATAS>"
        "<FUNCTIONAL-GROUPS><FUNCTIONAL-GROUP ID=\"5\"/></FUNCTIONAL-GROUPS>",
        "2.2.0"));
    auto& layers = Get<VMemDiagLayerContainer>(L"C").DiagLayerCollection();
    std::wstring text;
    for (NODX201::VDiagLayer& layer : layers) {
        text += TagOf(layer) + L" ";
        EXPECT_EQ(layer.GetOwner(), &layers);
    }
    EXPECT_EQ(text, L"ECU-VARIANT PROTOCOL BASE-VARIANT ECU-SHARED-DATA FUNCTIONAL-GROUP ");
    EXPECT_STREQ(Get<VMemProtocol>(L"2").GetType(), L"ISO");
}

TEST_F(VLayerElementsTest, LayerHead) {
    Read(Layer(
        "<ADMIN-DATA><LANGUAGE>en-US</LANGUAGE></ADMIN-DATA><COMPANY-DATAS><COMPANY-DATA "
        "ID=\"CD\"><SHORT-NAME>CD</SHORT-NAME></COMPANY-DATA></COMPANY-DATAS>"
        "<FUNCT-CLASSS><FUNCT-CLASS "
        "ID=\"FC\"><SHORT-NAME>FC</SHORT-NAME><ADMIN-DATA/></FUNCT-CLASS></FUNCT-CLASSS><DIAG-DATA-DICTIONARY-SPEC/>"
        "<DIAG-COMMS/><REQUESTS><REQUEST ID=\"R\"><SHORT-NAME>R</SHORT-NAME><ADMIN-DATA/><PARAMS/></REQUEST></REQUESTS>"
        "<POS-RESPONSES><POS-RESPONSE ID=\"P\"><SHORT-NAME>P</SHORT-NAME><PARAMS/></POS-RESPONSE></POS-RESPONSES>"
        "<NEG-RESPONSES><NEG-RESPONSE ID=\"N\"><SHORT-NAME>N</SHORT-NAME><PARAMS/></NEG-RESPONSE></NEG-RESPONSES>"
        "<GLOBAL-NEG-RESPONSES><GLOBAL-NEG-RESPONSE "
        "ID=\"G\"><SHORT-NAME>G</SHORT-NAME><PARAMS/></GLOBAL-NEG-RESPONSE></GLOBAL-NEG-RESPONSES>"
        "<COMPARAM-REFS><COMPARAM-REF ID-REF=\"CP\" DOCREF=\"S\" DOCTYPE=\"COMPARAM-SPEC\" REVISION=\"2\"><VALUE> 5 "
        "</VALUE><DESC><p>x</p></DESC>"
        "<PROTOCOL-SNREF SHORT-NAME=\"UDS\"/></COMPARAM-REF></COMPARAM-REFS><IMPORT-REFS><IMPORT-REF "
        "ID-REF=\"L\"/></IMPORT-REFS>"));
    EXPECT_EQ(Diagnostics(),
              "test.odx:2:" + std::to_string(m_result.diagnostics.at(0).column) + " error unresolved-reference");
    auto& layer = Get<VMemBaseVariant>(L"L");
    EXPECT_STREQ(layer.GetAdminData().GetLanguage(), L"en-US");
    EXPECT_EQ(&At(layer.CompanyDataCollection(), 0), &Element(L"CD"));
    EXPECT_EQ(&At(layer.FunctClassCollection(), 0), &Element(L"FC"));
    EXPECT_TRUE(Get<VMemFunctClass>(L"FC").HasAdminData());
    EXPECT_TRUE(layer.HasDiagDataDictionarySpec());
    EXPECT_TRUE(layer.HasDiagCommProxyCollection());
    EXPECT_TRUE(At(layer.RequestCollection(), 0).HasAdminData());
    std::wstring responses;
    for (NODX201::VResponse& response : layer.ResponseCollection()) {
        responses += TagOf(response) + L" " + response.GetShortName() + L" ";
    }
    EXPECT_EQ(responses, L"POS-RESPONSE P NEG-RESPONSE N GLOBAL-NEG-RESPONSE G ");
    auto& comparamRef = As<VMemComparamRef>(At(layer.ComparamRefCollection(), 0));
    EXPECT_EQ(Named(comparamRef), L"#CP in S (COMPARAM-SPEC) r2");
    EXPECT_STREQ(comparamRef.GetValue(), L" 5 ");
    EXPECT_STREQ(comparamRef.GetDesc(), L"<p>x</p>");
    EXPECT_EQ(Named(comparamRef.GetProtocolSnref()), L"UDS");
    EXPECT_EQ(Named(At(layer.ImportRefCollection(), 0)), L"#L");
    Read(Layer(""));
    EXPECT_FALSE(Get<VMemBaseVariant>(L"L").HasAdminData());
    EXPECT_FALSE(Get<VMemBaseVariant>(L"L").HasDiagDataDictionarySpec());
    EXPECT_FALSE(Get<VMemBaseVariant>(L"L").HasDynDefinedSpec());
}

TEST_F(VLayerElementsTest, SmallLayerParts) {
    Read(Container(
        "<ECU-VARIANTS><ECU-VARIANT ID=\"V\"><SHORT-NAME>V</SHORT-NAME><DIAG-VARIABLES><DIAG-VARIABLE-REF "
        "ID-REF=\"DV\"/>"
        "<DIAG-VARIABLE ID=\"DV\" "
        "IS-READ-BEFORE-WRITE=\"true\"><SHORT-NAME>DV</SHORT-NAME><ADMIN-DATA/><VARIABLE-GROUP-REF ID-REF=\"VG\"/>"
        "<SW-VARIABLES><SW-VARIABLE "
        "OID=\"so\"><SHORT-NAME>SV</SHORT-NAME><ORIGIN>map</ORIGIN></SW-VARIABLE></SW-VARIABLES><COMM-RELATIONS>"
        "<COMM-RELATION "
        "VALUE-TYPE=\"CURRENT\"><DESC><p>d</p></DESC><RELATION-TYPE>READ</RELATION-TYPE><DIAG-COMM-SNREF "
        "SHORT-NAME=\"S\"/><OUT-PARAM-IF-SNREF SHORT-NAME=\"O\"/></COMM-RELATION>"
        "<COMM-RELATION><RELATION-TYPE>WRITE</RELATION-TYPE><DIAG-COMM-REF ID-REF=\"S\"/><IN-PARAM-IF-SNREF "
        "SHORT-NAME=\"I\"/></COMM-RELATION></COMM-RELATIONS></DIAG-VARIABLE>"
        "<DIAG-VARIABLE ID=\"DV2\"><SHORT-NAME>DV2</SHORT-NAME></DIAG-VARIABLE></DIAG-VARIABLES>"
        "<VARIABLE-GROUPS><VARIABLE-GROUP "
        "ID=\"VG\"><SHORT-NAME>VG</SHORT-NAME></VARIABLE-GROUP></"
        "VARIABLE-GROUPS><ECU-VARIANT-PATTERNS><ECU-VARIANT-PATTERN><MATCHING-PARAMETERS>"
        "<MATCHING-PARAMETER><EXPECTED-VALUE>7</EXPECTED-VALUE><DIAG-COMM-SNREF SHORT-NAME=\"S\"/><OUT-PARAM-IF-SNREF "
        "SHORT-NAME=\"O\"/></MATCHING-PARAMETER></MATCHING-PARAMETERS></ECU-VARIANT-PATTERN></ECU-VARIANT-PATTERNS>"
        "<AUT-METHODS><AUT-METHOD>Seed</AUT-METHOD><AUT-METHOD> "
        "Key</AUT-METHOD></AUT-METHODS><DYN-DEFINED-SPEC><DYN-ID-DEF-MODE-INFOS><DYN-ID-DEF-MODE-INFO><DEF-MODE>BY-ID</"
        "DEF-MODE>"
        "<CLEAR-DYN-DEF-MESSAGE-SNREF SHORT-NAME=\"c\"/><READ-DYN-DEF-MESSAGE-REF ID-REF=\"S\"/><DYN-DEF-MESSAGE-SNREF "
        "SHORT-NAME=\"d\"/><SUPPORTED-DYN-IDS><SUPPORTED-DYN-ID>F300</SUPPORTED-DYN-ID></SUPPORTED-DYN-IDS>"
        "<SELECTION-TABLE-REFS><SELECTION-TABLE-SNREF "
        "SHORT-NAME=\"t\"/></SELECTION-TABLE-REFS></DYN-ID-DEF-MODE-INFO></DYN-ID-DEF-MODE-INFOS></DYN-DEFINED-SPEC>"
        "<ACCESS-LEVELS><ACCESS-LEVEL><VALUE>1</VALUE><DESC><p>low</p></DESC><DIAG-COMM-SNREF "
        "SHORT-NAME=\"S\"/></ACCESS-LEVEL><ACCESS-LEVEL><VALUE>2</VALUE><DESC/>"
        "<EXTERNAL-ACCESS-METHOD>key.dll</EXTERNAL-ACCESS-METHOD></ACCESS-LEVEL></ACCESS-LEVELS></ECU-VARIANT></"
        "ECU-VARIANTS>"
        "<ECU-SHARED-DATAS><ECU-SHARED-DATA ID=\"E\"><SHORT-NAME>E</SHORT-NAME><DIAG-COMMS><DIAG-SERVICE "
        "ID=\"S\"><SHORT-NAME>S</SHORT-NAME></DIAG-SERVICE></DIAG-COMMS></ECU-SHARED-DATA></ECU-SHARED-DATAS>",
        "2.1.0"));
    EXPECT_EQ(Diagnostics(), "");
    auto& layer = Get<VMemEcuVariant>(L"V");
    ASSERT_EQ(layer.DiagVariableProxyCollection().Count(), 3U);
    EXPECT_EQ(Named(As<VMemDiagVariableLink>(At(layer.DiagVariableProxyCollection(), 0))), L"#DV");
    auto& variable = Get<VMemDiagVariable>(L"DV");
    EXPECT_TRUE(variable.IsReadBeforeWrite());
    EXPECT_TRUE(variable.HasAdminData());
    EXPECT_TRUE(variable.GetVariableGroupRef().HasVariableGroup());
    auto& swVariable = As<VMemSwVariable>(At(variable.SwVariableCollection(), 0));
    EXPECT_STREQ(swVariable.GetShortName(), L"SV");
    EXPECT_STREQ(swVariable.GetOid(), L"so");
    EXPECT_STREQ(swVariable.GetOrigin(), L"map");
    auto& reading = As<VMemCommRelation>(At(variable.CommRelationCollection(), 0));
    EXPECT_STREQ(reading.GetValueType(), L"CURRENT");
    EXPECT_STREQ(reading.GetDesc(), L"<p>d</p>");
    EXPECT_STREQ(reading.GetRelationType(), L"READ");
    EXPECT_EQ(Named(reading.GetDiagCommLink()), L"S");
    EXPECT_EQ(Named(reading.GetOutParamIfSnref()), L"O");
    EXPECT_FALSE(reading.HasInParamIfSnref());
    auto& writing = As<VMemCommRelation>(At(variable.CommRelationCollection(), 1));
    EXPECT_STREQ(writing.GetValueType(), L"");
    EXPECT_EQ(Named(writing.GetDiagCommLink()), L"#S");
    EXPECT_EQ(Named(writing.GetInParamIfSnref()), L"I");
    auto& other = Get<VMemDiagVariable>(L"DV2");
    EXPECT_FALSE(other.IsReadBeforeWrite() || other.HasVariableGroupRef() || other.HasAdminData());
    EXPECT_EQ(&At(layer.VariableGroupCollection(), 0), &Element(L"VG"));
    auto& matching =
        As<VMemMatchingParameter>(At(At(layer.EcuVariantPatternCollection(), 0).MatchingParameterCollection(), 0));
    EXPECT_STREQ(matching.GetExpectedValue(), L"7");
    EXPECT_EQ(Named(matching.GetDiagCommSnref()), L"S");
    EXPECT_EQ(Named(matching.GetOutParamIfSnref()), L"O");
    std::wstring methods;
    for (auto iter = layer.AutMethodCollection().Begin(); iter != layer.AutMethodCollection().End(); ++iter) {
        methods += std::wstring(*iter) + L"|";
    }
    EXPECT_EQ(methods, L"Seed| Key|");
    auto& mode = As<VMemDynIdDefModeInfo>(At(layer.GetDynDefinedSpec().DynIdDefModeInfoCollection(), 0));
    EXPECT_STREQ(mode.GetDefMode(), L"BY-ID");
    EXPECT_EQ(Named(mode.GetClearDynDefMessageRef()), L"c");
    EXPECT_EQ(TagOf(mode.GetClearDynDefMessageRef()), L"CLEAR-DYN-DEF-MESSAGE-SNREF");
    EXPECT_EQ(Named(mode.GetReadDynDefMessageRef()), L"#S");
    EXPECT_EQ(TagOf(mode.GetReadDynDefMessageRef()), L"READ-DYN-DEF-MESSAGE-REF");
    EXPECT_EQ(Named(mode.GetDynDefMessageRef()), L"d");
    EXPECT_STREQ(As<VMemByteStream>(At(mode.SupportedDynIdCollection(), 0)).GetText(), L"F300");
    EXPECT_EQ(Named(At(mode.TableLinkCollection(), 0)), L"t");
    EXPECT_FALSE(At(mode.TableLinkCollection(), 0).HasTable());
    auto& low = As<VMemAccessLevel>(At(layer.AccessLevelCollection(), 0));
    EXPECT_STREQ(low.GetValue(), L"1");
    EXPECT_STREQ(low.GetDesc(), L"<p>low</p>");
    EXPECT_EQ(Named(low.GetDiagCommSnref()), L"S");
    auto& high = As<VMemAccessLevel>(At(layer.AccessLevelCollection(), 1));
    EXPECT_FALSE(high.HasDiagCommSnref());
    EXPECT_STREQ(high.GetExternalAccessMethod(), L"key.dll");
}

TEST_F(VLayerElementsTest, ShortNamesThatAreNotInheritedBearTheirTag) {
    Read(Container("<ECU-VARIANTS><ECU-VARIANT ID=\"V\"><SHORT-NAME>V</SHORT-NAME><PARENT-REFS><PARENT-REF "
                   "xsi:type=\"BASE-VARIANT-REF\" ID-REF=\"B\">"
                   "<NOT-INHERITED-DIAG-COMMS><NOT-INHERITED-DIAG-COMM><DIAG-COMM-SNREF "
                   "SHORT-NAME=\"S\"/></NOT-INHERITED-DIAG-COMM></NOT-INHERITED-DIAG-COMMS>"
                   "<NOT-INHERITED-VARIABLES><NOT-INHERITED-VARIABLE><DIAG-VARIABLE-SNREF "
                   "SHORT-NAME=\"D\"/></NOT-INHERITED-VARIABLE></NOT-INHERITED-VARIABLES>"
                   "</PARENT-REF></PARENT-REFS></ECU-VARIANT></ECU-VARIANTS><BASE-VARIANTS><BASE-VARIANT "
                   "ID=\"B\"/></BASE-VARIANTS>",
                   "2.2.0"));
    EXPECT_EQ(Count(L"NOT-INHERITED-DIAG-COMM"), 1U);
    EXPECT_EQ(Count(L"DIAG-COMM-SNREF"), 1U);
    EXPECT_EQ(Count(L"DIAG-COMM-REF"), 0U);
    EXPECT_EQ(Count(L"DIAG-VARIABLE-SNREF"), 1U);
    EXPECT_EQ(Count(L"DIAG-VARIABLE-REF"), 0U);
}

// Services and jobs

TEST_F(VLayerElementsTest, DiagService) {
    Read(Layer(
        "<FUNCT-CLASSS><FUNCT-CLASS ID=\"FC\"><SHORT-NAME>FC</SHORT-NAME></FUNCT-CLASS></FUNCT-CLASSS><DIAG-COMMS>"
        "<DIAG-SERVICE ID=\"S\" SEMANTIC=\"DATA\" DIAGNOSTIC-CLASS=\"STARTCOMM\" SECURITY-ACCESS-LEVEL=\"3\" "
        "IS-MANDATORY=\"true\" IS-EXECUTABLE=\"false\" IS-FINAL=\"true\" "
        "IS-CYCLIC=\"true\" IS-MULTIPLE=\"true\" "
        "ADDRESSING=\"FUNCTIONAL\"><SHORT-NAME>S</SHORT-NAME><ADMIN-DATA/><SDGS><SDG/></SDGS><COMPARAM-REFS/>"
        "<FUNCT-CLASS-REFS><FUNCT-CLASS-REF ID-REF=\"FC\"/></FUNCT-CLASS-REFS><AUDIENCE IS-SUPPLIER=\"false\" "
        "IS-DEVELOPMENT=\"false\" IS-MANUFACTURING=\"false\" IS-AFTERSALES=\"false\" IS-AFTERMARKET=\"false\"/>"
        "<PROTOCOL-SNREFS><PROTOCOL-SNREF "
        "SHORT-NAME=\"UDS\"/></PROTOCOL-SNREFS><RELATED-DIAG-COMM-REFS><RELATED-DIAG-COMM-REF "
        "ID-REF=\"T\"><RELATION-TYPE>after</RELATION-TYPE></RELATED-DIAG-COMM-REF></RELATED-DIAG-COMM-REFS>"
        "<REQUEST-REF ID-REF=\"R\"/><POS-RESPONSE-REFS><POS-RESPONSE-REF "
        "ID-REF=\"P\"/></POS-RESPONSE-REFS><NEG-RESPONSE-REFS><NEG-RESPONSE-REF "
        "ID-REF=\"N\"/></NEG-RESPONSE-REFS></DIAG-SERVICE>"
        "<DIAG-SERVICE ID=\"T\"><SHORT-NAME>T</SHORT-NAME><AUDIENCE/></DIAG-SERVICE></DIAG-COMMS><REQUESTS><REQUEST "
        "ID=\"R\"><SHORT-NAME>R</SHORT-NAME><PARAMS/></REQUEST></REQUESTS>"
        "<POS-RESPONSES><POS-RESPONSE "
        "ID=\"P\"><SHORT-NAME>P</SHORT-NAME><PARAMS/></POS-RESPONSE></POS-RESPONSES><NEG-RESPONSES><NEG-RESPONSE "
        "ID=\"N\"><SHORT-NAME>N</SHORT-NAME><PARAMS/></NEG-RESPONSE></NEG-RESPONSES>"));
    EXPECT_EQ(Diagnostics(), "");
    auto& service = Get<VMemDiagService>(L"S");
    EXPECT_STREQ(service.GetSemantic(), L"DATA");
    EXPECT_STREQ(service.GetDiagnosticClass(), L"STARTCOMM");
    EXPECT_STREQ(service.GetSecurityAccessLevel(), L"3");
    EXPECT_TRUE(service.IsMandatory() && service.IsFinal() && service.IsCyclic() && service.IsMultiple());
    EXPECT_FALSE(service.IsExecutable());
    EXPECT_STREQ(service.GetAddressing(), L"FUNCTIONAL");
    EXPECT_TRUE(service.HasAdminData());
    EXPECT_EQ(service.SdgCollection().Count(), 1U);
    EXPECT_TRUE(At(service.FunctClassLinkCollection(), 0).HasFunctClass());
    auto& nobody = service.GetAudience();
    EXPECT_FALSE(nobody.IsSupplier() || nobody.IsDevelopment() || nobody.IsManufacturing() || nobody.IsAftersales() ||
                 nobody.IsAftermarket());
    EXPECT_EQ(Named(At(service.ProtocolSnrefCollection(), 0)), L"UDS");
    auto& related = As<VMemRelatedDiagCommRef>(At(service.RelatedDiagCommRefCollection(), 0));
    ASSERT_TRUE(related.HasDiagComm());
    EXPECT_EQ(&related.GetDiagComm(), &Element(L"T"));
    EXPECT_STREQ(related.GetRelationType(), L"after");
    ASSERT_TRUE(service.GetRequestRef().HasRequest());
    EXPECT_EQ(&service.GetRequestRef().GetRequest(), &Element(L"R"));
    EXPECT_TRUE(At(service.PosResponseLinkCollection(), 0).HasPosResponse());
    EXPECT_TRUE(At(service.NegResponseLinkCollection(), 0).HasNegResponse());

    auto& plain = Get<VMemDiagService>(L"T");
    EXPECT_STREQ(plain.GetSemantic(), L"");
    EXPECT_STREQ(plain.GetDiagnosticClass(), L"");
    EXPECT_STREQ(plain.GetAddressing(), L"PHYSICAL");
    EXPECT_TRUE(plain.IsExecutable());
    EXPECT_FALSE(plain.IsMandatory() || plain.IsFinal() || plain.IsCyclic() || plain.IsMultiple());
    auto& everybody = plain.GetAudience();
    EXPECT_TRUE(everybody.IsSupplier() && everybody.IsDevelopment() && everybody.IsManufacturing() &&
                everybody.IsAftersales() && everybody.IsAftermarket());
    EXPECT_FALSE(plain.HasRequestRef() || plain.HasPosResponseLinkCollection() ||
                 plain.HasNegResponseLinkCollection() || plain.HasAdminData());
}

constexpr char kJobParts[] =
    "<PROG-CODES><PROG-CODE><CODE-FILE> a.jar "
    "</CODE-FILE><ENCRYPTION>none</ENCRYPTION><SYNTAX>JAR</SYNTAX><REVISION>1</REVISION><ENTRYPOINT>Run</ENTRYPOINT></"
    "PROG-CODE></PROG-CODES>"
    "<INPUT-PARAMS><INPUT-PARAM OID=\"io\" "
    "SEMANTIC=\"is\"><SHORT-NAME>I</SHORT-NAME><PHYSICAL-DEFAULT-VALUE>4</PHYSICAL-DEFAULT-VALUE><DOP-BASE-REF "
    "ID-REF=\"D\"/></INPUT-PARAM></INPUT-PARAMS>"
    "<OUTPUT-PARAMS><OUTPUT-PARAM ID=\"O\" OID=\"oo\" SEMANTIC=\"os\"><SHORT-NAME>O</SHORT-NAME><DOP-BASE-REF "
    "ID-REF=\"D\"/></OUTPUT-PARAM></OUTPUT-PARAMS>"
    "<NEG-OUTPUT-PARAMS><NEG-OUTPUT-PARAM><SHORT-NAME>N</SHORT-NAME><DOP-SNREF "
    "SHORT-NAME=\"D\"/></NEG-OUTPUT-PARAM></NEG-OUTPUT-PARAMS>";

template <class Job>
void ExpectJobParts(Job& job) {
    auto& code = As<VMemProgCode>(At(job.ProgCodeCollection(), 0));
    EXPECT_STREQ(code.GetCodeFile(), L"a.jar");
    EXPECT_STREQ(code.GetEncryption(), L"none");
    EXPECT_STREQ(code.GetSyntax(), L"JAR");
    EXPECT_STREQ(code.GetRevision(), L"1");
    EXPECT_STREQ(code.GetEntrypoint(), L"Run");
    ASSERT_TRUE(job.HasInputParamCollection() && job.HasOutputParamCollection());
    auto& input = As<VMemInputParam>(At(job.InputParamCollection(), 0));
    EXPECT_STREQ(input.GetShortName(), L"I");
    EXPECT_STREQ(input.GetOid(), L"io");
    EXPECT_STREQ(input.GetSemantic(), L"is");
    EXPECT_STREQ(input.GetPhysicalDefaultValue(), L"4");
    EXPECT_EQ(Named(input.GetDopBaseRef()), L"#D");
    auto& output = As<VMemOutputParam>(At(job.OutputParamCollection(), 0));
    EXPECT_STREQ(output.GetId(), L"O");
    EXPECT_STREQ(output.GetOid(), L"oo");
    EXPECT_STREQ(output.GetSemantic(), L"os");
    EXPECT_EQ(Named(output.GetDopBaseRef()), L"#D");
    auto& negative = As<VMemNegOutputParam>(At(job.NegOutputParamCollection(), 0));
    EXPECT_STREQ(negative.GetShortName(), L"N");
    EXPECT_EQ(Named(negative.GetDopBaseRef()), L"D");
    EXPECT_EQ(TagOf(negative.GetDopBaseRef()), L"DOP-SNREF");
}

TEST_F(VLayerElementsTest, AttributesOfAServiceAreHeldAgainstTheirKindsInTheOrderOfOdx) {
    Read(Layer("<DIAG-COMMS><DIAG-SERVICE ID=\"S\" IS-CYCLIC=\"maybe\" IS-FINAL=\"maybe\" IS-EXECUTABLE=\"maybe\" "
               "IS-MANDATORY=\"maybe\" SECURITY-ACCESS-LEVEL=\"maybe\"><SHORT-NAME>S</SHORT-NAME><AUDIENCE/>"
               "</DIAG-SERVICE></DIAG-COMMS>"));
    std::string attributes;
    for (std::size_t index = 0; index < 5; ++index) {
        attributes += Message(index).substr(0, Message(index).find(' ')) + " ";
    }
    EXPECT_EQ(attributes, "SECURITY-ACCESS-LEVEL IS-MANDATORY IS-EXECUTABLE IS-FINAL IS-CYCLIC ");
}

TEST_F(VLayerElementsTest, SingleEcuJob) {
    Read(Layer(
        "<DIAG-DATA-DICTIONARY-SPEC><STRUCTURES><STRUCTURE "
        "ID=\"D\"><SHORT-NAME>D</SHORT-NAME><PARAMS/></STRUCTURE></STRUCTURES></DIAG-DATA-DICTIONARY-SPEC><DIAG-COMMS>"
        "<SINGLE-ECU-JOB ID=\"J\" SEMANTIC=\"sem\" "
        "IS-REDUCED-RESULT-ENABLED=\"true\"><SHORT-NAME>J</SHORT-NAME><AUDIENCE/>" +
        std::string(kJobParts) +
        "</SINGLE-ECU-JOB>"
        "<SINGLE-ECU-JOB ID=\"K\"><SHORT-NAME>K</SHORT-NAME><AUDIENCE/><PROG-CODES/></SINGLE-ECU-JOB></DIAG-COMMS>"));
    EXPECT_EQ(Diagnostics(), "");
    auto& job = Get<VMemSingleEcuJob>(L"J");
    EXPECT_STREQ(job.GetSemantic(), L"sem");
    EXPECT_TRUE(job.IsReducedResultEnabled());
    ExpectJobParts(job);
    auto& bare = Get<VMemSingleEcuJob>(L"K");
    EXPECT_EQ(bare.NegOutputParamCollection().Count(), 0U);
    EXPECT_FALSE(bare.IsReducedResultEnabled() || bare.HasInputParamCollection() || bare.HasOutputParamCollection());
}

TEST_F(VLayerElementsTest, MultipleEcuJobSpec) {
    Read(Document(
        "<MULTIPLE-ECU-JOB-SPEC "
        "ID=\"M\"><SHORT-NAME>M</SHORT-NAME><ADMIN-DATA/><COMPANY-DATAS/><MULTIPLE-ECU-JOBS><MULTIPLE-ECU-JOB ID=\"J\" "
        "SEMANTIC=\"sem\" SECURITY-ACCESS-LEVEL=\"2\" IS-EXECUTABLE=\"false\">"
        "<SHORT-NAME>J</SHORT-NAME><ADMIN-DATA/><SDGS><SDG/></SDGS><FUNCT-CLASS-REFS><FUNCT-CLASS-REF "
        "ID-REF=\"FC\"/></FUNCT-CLASS-REFS>" +
        std::string(kJobParts) +
        "<DIAG-LAYER-REFS><DIAG-LAYER-REF ID-REF=\"L\" DOCREF=\"L\" DOCTYPE=\"LAYER\"/></DIAG-LAYER-REFS><AUDIENCE "
        "IS-AFTERMARKET=\"false\"/></MULTIPLE-ECU-JOB></MULTIPLE-ECU-JOBS>"
        "<DIAG-DATA-DICTIONARY-SPEC><STRUCTURES><STRUCTURE "
        "ID=\"D\"><SHORT-NAME>D</SHORT-NAME><PARAMS/></STRUCTURE></STRUCTURES></DIAG-DATA-DICTIONARY-SPEC>"
        "<FUNCT-CLASSS><FUNCT-CLASS "
        "ID=\"FC\"><SHORT-NAME>FC</SHORT-NAME></FUNCT-CLASS></FUNCT-CLASSS></MULTIPLE-ECU-JOB-SPEC>"
        "<DIAG-LAYER-CONTAINER ID=\"C\"><SHORT-NAME>C</SHORT-NAME><ECU-VARIANTS><ECU-VARIANT "
        "ID=\"L\"><SHORT-NAME>L</SHORT-NAME></ECU-VARIANT></ECU-VARIANTS></DIAG-LAYER-CONTAINER>"));
    EXPECT_EQ(Diagnostics(), "");
    auto& spec = Get<VMemMultipleEcuJobSpec>(L"M");
    EXPECT_EQ(&At(Database().MultipleEcuJobSpecCollection(), 0), &spec);
    EXPECT_TRUE(spec.HasAdminData());
    EXPECT_TRUE(spec.HasDiagDataDictionarySpec());
    EXPECT_EQ(spec.FunctClassCollection().Count(), 1U);
    auto& job = At(spec.MultipleEcuJobCollection(), 0);
    EXPECT_STREQ(job.GetSemantic(), L"sem");
    EXPECT_STREQ(job.GetSecurityAccessLevel(), L"2");
    EXPECT_FALSE(job.IsExecutable() || job.IsReducedResultEnabled());
    EXPECT_TRUE(At(job.FunctClassLinkCollection(), 0).HasFunctClass());
    EXPECT_EQ(job.SdgCollection().Count(), 1U);
    ASSERT_TRUE(At(job.DiagLayerLinkCollection(), 0).HasDiagLayer());
    EXPECT_FALSE(job.GetAudience().IsAftermarket());
    EXPECT_TRUE(job.GetAudience().IsSupplier());
    ExpectJobParts(job);
}

// Parameters

TEST_F(VLayerElementsTest, ParamHead) {
    auto& param = ReadParam<VMemDynamic>(
        "DYNAMIC", "SEMANTIC=\"DATA\" OID=\"o\"",
        "<LONG-NAME>L</LONG-NAME><DESC><p/></DESC><BYTE-POSITION>3</BYTE-POSITION><BIT-POSITION>7</BIT-POSITION>");
    EXPECT_STREQ(param.GetSemantic(), L"DATA");
    EXPECT_STREQ(param.GetOid(), L"o");
    EXPECT_STREQ(param.GetId(), L"");
    EXPECT_STREQ(param.GetLongName().GetBaseMember(), L"L");
    EXPECT_STREQ(param.GetDesc(), L"<p/>");
    EXPECT_STREQ(param.GetBytePosition(), L"3");
    EXPECT_STREQ(param.GetBitPosition(), L"7");
    auto& bare = ReadParam<VMemDynamic>("DYNAMIC", "", "");
    EXPECT_STREQ(bare.GetBytePosition(), L"");
    EXPECT_STREQ(bare.GetBitPosition(), L"");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VLayerElementsTest, ConstantParams) {
    auto& coded =
        ReadParam<VMemCodedConst>("CODED-CONST", "", std::string("<CODED-VALUE>34</CODED-VALUE>") + kStandardType);
    EXPECT_STREQ(coded.GetCodedValue(), L"34");
    ASSERT_TRUE(coded.HasDiagCodedType());
    EXPECT_EQ(coded.GetDiagCodedType().GetOdxTag(), VOdxTagEnum::StandardLengthType);
    EXPECT_EQ(Diagnostics(), "");
    auto& reserved = ReadParam<VMemReserved>("RESERVED", "", "<BIT-LENGTH>4</BIT-LENGTH><CODED-VALUE>0</CODED-VALUE>");
    EXPECT_STREQ(reserved.GetBitLength(), L"4");
    EXPECT_STREQ(reserved.GetCodedValue(), L"0");
    EXPECT_FALSE(reserved.HasDiagCodedType());
    EXPECT_EQ(Diagnostics(), "");
    auto& phys = ReadParam<VMemPhysConst>(
        "PHYS-CONST", "", "<PHYS-CONSTANT-VALUE>63.5</PHYS-CONSTANT-VALUE><DOP-SNREF SHORT-NAME=\"D\"/>");
    EXPECT_STREQ(phys.GetPhysConstantValue(), L"63.5");
    EXPECT_EQ(Named(phys.GetDataObjectPropLink()), L"D");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VLayerElementsTest, ValueParams) {
    auto& value = ReadParam<VMemValue>(
        "VALUE", "", "<PHYSICAL-DEFAULT-VALUE>5</PHYSICAL-DEFAULT-VALUE><DOP-SNREF SHORT-NAME=\"D\"/>");
    EXPECT_STREQ(value.GetPhysicalDefaultValue(), L"5");
    EXPECT_EQ(Named(value.GetDopBaseLink()), L"D");
    EXPECT_EQ(TagOf(value.GetDopBaseLink()), L"DOP-SNREF");
    EXPECT_EQ(Diagnostics(), "");
    auto& system = ReadParam<VMemSystem>("SYSTEM", "SYSPARAM=\"TIMESTAMP\"", "<DOP-SNREF SHORT-NAME=\"D\"/>");
    EXPECT_STREQ(system.GetSysparam(), L"TIMESTAMP");
    EXPECT_EQ(Named(system.GetDataObjectPropLink()), L"D");
    EXPECT_EQ(Diagnostics(), "");
    auto& key = ReadParam<VMemLengthKey>("LENGTH-KEY", "ID=\"K\"", "<DOP-SNREF SHORT-NAME=\"D\"/>");
    EXPECT_STREQ(key.GetId(), L"K");
    EXPECT_EQ(Named(key.GetDataObjectPropLink()), L"D");
    EXPECT_EQ(Diagnostics(), "");
    auto& matching = ReadParam<VMemMatchingRequestParam>(
        "MATCHING-REQUEST-PARAM", "", "<REQUEST-BYTE-POS>-1</REQUEST-BYTE-POS><BYTE-LENGTH>2</BYTE-LENGTH>");
    EXPECT_STREQ(matching.GetRequestBytePos(), L"-1");
    EXPECT_STREQ(matching.GetByteLength(), L"2");
    EXPECT_EQ(Diagnostics(), "");
    EXPECT_FALSE(ReadParam<VMemValue>("VALUE", "", "").HasDopBaseLink());
}

TEST_F(VLayerElementsTest, TableParams) {
    Read(Layer("<DIAG-DATA-DICTIONARY-SPEC><TABLES><TABLE ID=\"T\"><SHORT-NAME>T</SHORT-NAME><TABLE-ROW-REF "
               "ID-REF=\"R\"/><TABLE-ROW ID=\"R\"><SHORT-NAME>R</SHORT-NAME><KEY>1</KEY>"
               "<STRUCTURE-REF ID-REF=\"S\"/></TABLE-ROW></TABLE></TABLES><STRUCTURES><STRUCTURE "
               "ID=\"S\"><SHORT-NAME>S</SHORT-NAME><PARAMS/></STRUCTURE></STRUCTURES></DIAG-DATA-DICTIONARY-SPEC>"
               "<REQUESTS><REQUEST ID=\"RQ\"><SHORT-NAME>RQ</SHORT-NAME><PARAMS><PARAM xsi:type=\"TABLE-KEY\" "
               "ID=\"K\"><SHORT-NAME>K</SHORT-NAME><TABLE-REF ID-REF=\"T\"/></PARAM>"
               "<PARAM xsi:type=\"TABLE-KEY\" ID=\"K2\"><SHORT-NAME>K2</SHORT-NAME><TABLE-ROW-REF "
               "ID-REF=\"R\"/></PARAM><PARAM xsi:type=\"TABLE-STRUCT\"><SHORT-NAME>D</SHORT-NAME><TABLE-KEY-REF "
               "ID-REF=\"K\"/></PARAM>"
               "<PARAM xsi:type=\"TABLE-ENTRY\"><SHORT-NAME>E</SHORT-NAME><TARGET> STRUCT </TARGET><TABLE-ROW-REF "
               "ID-REF=\"R\"/></PARAM></PARAMS></REQUEST></REQUESTS>",
               "2.1.0"));
    EXPECT_EQ(Diagnostics(), "");
    auto& byTable = As<NODX201::VTableKey>(Param(0));
    ASSERT_TRUE(byTable.HasTableRefTableRowRefChoice());
    EXPECT_TRUE(As<NODX201::VTableLink>(byTable.GetTableRefTableRowRefChoice()).HasTable());
    EXPECT_TRUE(
        As<NODX201::VTableRowLink>(As<NODX201::VTableKey>(Param(1)).GetTableRefTableRowRefChoice()).HasTableRow());
    auto& data = As<NODX201::VTableStruct>(Param(2));
    ASSERT_TRUE(data.GetTableKeyRef().HasTableKey());
    EXPECT_EQ(&data.GetTableKeyRef().GetTableKey(), &Element(L"K"));
    auto& entry = As<VMemTableEntry>(Param(3));
    EXPECT_STREQ(entry.GetTarget(), L"STRUCT");
    EXPECT_TRUE(entry.GetTableRowRef().HasTableRow());
}

// Communication parameters

TEST_F(VLayerElementsTest, ComparamSpec) {
    Read(Document(
        "<COMPARAM-SPEC ID=\"S\" "
        "OID=\"so\"><SHORT-NAME>S</SHORT-NAME><ADMIN-DATA/><COMPANY-DATAS/><COMPARAMS><COMPARAM ID=\"P\" OID=\"po\" "
        "PARAM-CLASS=\"TIMING\" CPTYPE=\"STANDARD\" DISPLAY-LEVEL=\"1\" PDU-API-INDEX=\"7\">"
        "<SHORT-NAME>P</SHORT-NAME><PHYSICAL-DEFAULT-VALUE>25</PHYSICAL-DEFAULT-VALUE><DATA-OBJECT-PROP-REF "
        "ID-REF=\"D\"/></COMPARAM></COMPARAMS><DATA-OBJECT-PROPS><DATA-OBJECT-PROP ID=\"D\"><SHORT-NAME>D</SHORT-NAME>"
        "<COMPU-METHOD><CATEGORY>IDENTICAL</CATEGORY></COMPU-METHOD>" +
        std::string(kStandardType) +
        "<PHYSICAL-TYPE "
        "BASE-DATA-TYPE=\"A_UINT32\"/></DATA-OBJECT-PROP></DATA-OBJECT-PROPS><UNIT-SPEC/></COMPARAM-SPEC>"));
    EXPECT_EQ(Diagnostics(), "");
    auto& spec = As<VMemComparamSpec>(At(Database().GetOdx().ComparamSpecCollection(), 0));
    EXPECT_STREQ(spec.GetId(), L"S");
    EXPECT_STREQ(spec.GetOid(), L"so");
    EXPECT_TRUE(spec.HasAdminData() && spec.HasUnitSpec());
    EXPECT_EQ(spec.DataObjectPropCollection().Count(), 1U);
    auto& comparam = As<VMemComparam>(At(spec.ComparamCollection(), 0));
    EXPECT_STREQ(comparam.GetId(), L"P");
    EXPECT_STREQ(comparam.GetOid(), L"po");
    EXPECT_STREQ(comparam.GetParamClass(), L"TIMING");
    EXPECT_STREQ(comparam.GetCptype(), L"STANDARD");
    EXPECT_STREQ(comparam.GetDisplayLevel(), L"1");
    EXPECT_STREQ(comparam.GetPduApiIndex(), L"7");
    EXPECT_STREQ(comparam.GetPhysicalDefaultValue(), L"25");
    EXPECT_TRUE(comparam.GetDataObjectPropRef().ResolvesById());
}

} // namespace
} // namespace NTest
