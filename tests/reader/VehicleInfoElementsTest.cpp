// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Layers.h>
#include <diagkit/memory/VehicleInfo.h>

#include "reader/ReaderTest.h"

/// The results for each element of vehicle information.

namespace NTest {
namespace {

using namespace NMemory;
using NODX201::VOdxTagEnum;

/// A document of such a category, with the required VEHICLE-INFORMATIONS.
std::string VehicleInfo(std::string const& content, std::string const& informations = "") {
    return Document("<VEHICLE-INFO-SPEC ID=\"V\" OID=\"o\"><SHORT-NAME>Van</SHORT-NAME>" + content +
                    "<VEHICLE-INFORMATIONS>" + informations + "</VEHICLE-INFORMATIONS></VEHICLE-INFO-SPEC>");
}

/// A VEHICLE-INFORMATION with these lists.
std::string VehicleInformation(std::string const& lists) {
    return "<VEHICLE-INFORMATION OID=\"i\"><SHORT-NAME>Saloon</SHORT-NAME><INFO-COMPONENT-REFS/>" + lists +
           "</VEHICLE-INFORMATION>";
}

std::string InfoComponent(std::string const& id, std::string const& type, std::string const& content = "") {
    std::string const attribute = type.empty() ? "" : " xsi:type=\"" + type + "\"";
    return "<INFO-COMPONENT ID=\"" + id + "\"" + attribute + "><SHORT-NAME>" + id + "</SHORT-NAME>" + content +
           "</INFO-COMPONENT>";
}

class VVehicleInfoElementsTest : public VReaderTest {
protected:
    void ReadSpec(std::string const& content, std::string const& informations = "") {
        Read(VehicleInfo(content, informations));
        EXPECT_EQ(Diagnostics(), "");
        EXPECT_TRUE(m_result.unknownElements.empty());
    }

    VMemVehicleInfoSpec& Spec() { return Get<VMemVehicleInfoSpec>(L"V"); }
    VMemVehicleInformation& Information() { return At(Spec().VehicleInformationCollection(), 0); }
};

TEST_F(VVehicleInfoElementsTest, TheSpecIsADocumentOfItsOwn) {
    ReadSpec("<LONG-NAME>The van</LONG-NAME><ADMIN-DATA/><COMPANY-DATAS><COMPANY-DATA "
             "ID=\"CD\"><SHORT-NAME>Maker</SHORT-NAME></COMPANY-DATA></COMPANY-DATAS>");
    ASSERT_EQ(m_result.documents.size(), 1U);
    EXPECT_EQ(m_result.documents.at(0).category, "VEHICLE-INFO-SPEC");
    EXPECT_EQ(m_result.documents.at(0).shortName, "Van");
    ASSERT_EQ(Database().VehicleInfoSpecCollection().Count(), 1U);
    EXPECT_EQ(&At(Database().VehicleInfoSpecCollection(), 0), &Spec());
    EXPECT_STREQ(Spec().GetOid(), L"o");
    EXPECT_STREQ(Spec().GetLongName().GetBaseMember(), L"The van");
    EXPECT_TRUE(Spec().HasAdminData());
    EXPECT_STREQ(At(Spec().CompanyDataCollection(), 0).GetShortName(), L"Maker");
    EXPECT_EQ(Count(L"VEHICLE-INFO-SPEC"), 1U);
}

TEST_F(VVehicleInfoElementsTest, TwoSpecsOfOneNameAreReported) {
    Read({VehicleInfo(""), VehicleInfo("")});
    EXPECT_EQ(Database().VehicleInfoSpecCollection().Count(), 2U);
    EXPECT_EQ(Diagnostics(), "2.odx:2:1 warning repeated-document");
}

TEST_F(VVehicleInfoElementsTest, AReferenceFindsWhatStandsInItsOwnSpec) {
    std::string const company = "<COMPANY-DATAS><COMPANY-DATA ID=\"CD\"><SHORT-NAME>";
    std::string const end = "</SHORT-NAME></COMPANY-DATA></COMPANY-DATAS>";
    Read({Container(company + "InContainer" + end),
          VehicleInfo("<ADMIN-DATA><COMPANY-DOC-INFOS><COMPANY-DOC-INFO><COMPANY-DATA-REF ID-REF=\"CD\"/>"
                      "</COMPANY-DOC-INFO></COMPANY-DOC-INFOS></ADMIN-DATA>" +
                      company + "InSpec" + end)});
    auto& reference = At(Spec().GetAdminData().CompanyDocInfoCollection(), 0).GetCompanyDataRef();
    ASSERT_TRUE(reference.HasCompanyData());
    EXPECT_STREQ(reference.GetCompanyData().GetShortName(), L"InSpec");
}

// INFO-COMPONENTS

TEST_F(VVehicleInfoElementsTest, AnInfoComponentHasTheTagOfItsType) {
    ReadSpec("<INFO-COMPONENTS>" + InfoComponent("E", "ECU-PROXY") + InfoComponent("Y", "MODEL-YEAR") +
             InfoComponent("O", "OEM") + InfoComponent("M", "VEHICLE-MODEL") + InfoComponent("T", "VEHICLE-TYPE") +
             InfoComponent("N", "") + "</INFO-COMPONENTS>");
    std::wstring types;
    for (VMemInfoComponent& component : Spec().InfoComponentCollection()) {
        types += std::wstring(component.GetShortName()) + L"=" + NODX201::OdxTypeText(component.GetOdxTag()) + L" ";
    }
    EXPECT_EQ(types, L"E=ECU-PROXY Y=MODEL-YEAR O=OEM M=VEHICLE-MODEL T=VEHICLE-TYPE N= ");
    EXPECT_EQ(Count(L"INFO-COMPONENT"), 6U);
}

TEST_F(VVehicleInfoElementsTest, AnInfoComponentOfAnUnknownTypeIsReadAsOneWithout) {
    Read(VehicleInfo("<INFO-COMPONENTS>\n" + InfoComponent("X", "VEHICLE-COLOUR") + "</INFO-COMPONENTS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error unknown-type");
    EXPECT_EQ(Get<VMemInfoComponent>(L"X").GetOdxTag(), VOdxTagEnum::InfoComponent);
}

TEST_F(VVehicleInfoElementsTest, MatchingComponents) {
    std::string const matching =
        "<MATCHING-COMPONENTS><MATCHING-COMPONENT><EXPECTED-VALUE>3</EXPECTED-VALUE><OUT-PARAM-IF-SNREF "
        "SHORT-NAME=\"Out\"/><MULTIPLE-ECU-JOB-REF ID-REF=\"J\"/></MATCHING-COMPONENT><MATCHING-COMPONENT>"
        "<EXPECTED-VALUE>4</EXPECTED-VALUE><OUT-PARAM-IF-SNREF SHORT-NAME=\"Out\"/><DIAG-COMM-REF ID-REF=\"S\"/>"
        "</MATCHING-COMPONENT></MATCHING-COMPONENTS>";
    std::string const job = "<MULTIPLE-ECU-JOB-SPEC ID=\"JS\"><SHORT-NAME>JS</SHORT-NAME><MULTIPLE-ECU-JOBS>"
                            "<MULTIPLE-ECU-JOB ID=\"J\"><SHORT-NAME>J</SHORT-NAME></MULTIPLE-ECU-JOB>"
                            "</MULTIPLE-ECU-JOBS></MULTIPLE-ECU-JOB-SPEC>";
    std::string const service = "<DIAG-COMMS><DIAG-SERVICE ID=\"S\"><SHORT-NAME>S</SHORT-NAME></DIAG-SERVICE>"
                                "</DIAG-COMMS>";
    Read({Document(job, "2.2.0"), Layer(service, "2.2.0"),
          VehicleInfo("<INFO-COMPONENTS>" + InfoComponent("E", "ECU-PROXY", matching) + "</INFO-COMPONENTS>")});
    EXPECT_EQ(Diagnostics(), "");
    auto& components = Get<VMemInfoComponent>(L"E").MatchingComponentCollection();
    ASSERT_EQ(components.Count(), 2U);
    VMemMatchingComponent& byJob = At(components, 0);
    EXPECT_STREQ(byJob.GetExpectedValue(), L"3");
    EXPECT_STREQ(As<NODX201::VSnref>(byJob.GetOutParamIfSnref().GetLink()).GetShortName(), L"Out");
    ASSERT_TRUE(byJob.GetMultipleEcuJobRef().HasMultipleEcuJob());
    EXPECT_STREQ(byJob.GetMultipleEcuJobRef().GetMultipleEcuJob().GetShortName(), L"J");
    EXPECT_FALSE(byJob.HasDiagCommRef());
    VMemMatchingComponent& byService = At(components, 1);
    EXPECT_FALSE(byService.HasMultipleEcuJobRef());
    EXPECT_TRUE(byService.GetDiagCommRef().HasDiagComm(Get<NODX201::VDiagLayer>(L"L")));
}

// VEHICLE-INFORMATIONS

TEST_F(VVehicleInfoElementsTest, VehicleInformationsAreRequired) {
    Read(Document("<VEHICLE-INFO-SPEC ID=\"V\"><SHORT-NAME>Van</SHORT-NAME></VEHICLE-INFO-SPEC>"));
    EXPECT_EQ(Diagnostics(), "test.odx:2:1 error missing-child");
    Read(Document("<VEHICLE-INFO-SPEC ID=\"V\"><SHORT-NAME>Van</SHORT-NAME></VEHICLE-INFO-SPEC>", "2.2.0"));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VVehicleInfoElementsTest, VehicleInformationNamesItsComponents) {
    ReadSpec("<INFO-COMPONENTS>" + InfoComponent("M", "VEHICLE-MODEL") + "</INFO-COMPONENTS>",
             "<VEHICLE-INFORMATION OID=\"i\"><SHORT-NAME>Saloon</SHORT-NAME><INFO-COMPONENT-REFS>"
             "<INFO-COMPONENT-REF ID-REF=\"M\"/></INFO-COMPONENT-REFS></VEHICLE-INFORMATION>");
    EXPECT_STREQ(Information().GetShortName(), L"Saloon");
    EXPECT_STREQ(Information().GetOid(), L"i");
    VMemInfoComponentLink& reference = At(Information().InfoComponentLinkCollection(), 0);
    ASSERT_TRUE(reference.HasInfoComponent());
    EXPECT_EQ(&reference.GetInfoComponent(), &Get<VMemInfoComponent>(L"M"));
}

TEST_F(VVehicleInfoElementsTest, ConnectorsAndTheirPins) {
    ReadSpec("", VehicleInformation("<VEHICLE-CONNECTORS><VEHICLE-CONNECTOR OID=\"c\"><SHORT-NAME>Socket</SHORT-NAME>"
                                    "<VEHICLE-CONNECTOR-PINS><VEHICLE-CONNECTOR-PIN ID=\"P\" OID=\"p\" TYPE=\"HI\">"
                                    "<SHORT-NAME>High</SHORT-NAME><PIN_NUMBER>6</PIN_NUMBER></VEHICLE-CONNECTOR-PIN>"
                                    "<VEHICLE-CONNECTOR-PIN ID=\"Q\" TYPE=\"LOW\"><SHORT-NAME>Low</SHORT-NAME>"
                                    "<PIN-NUMBER>14</PIN-NUMBER></VEHICLE-CONNECTOR-PIN></VEHICLE-CONNECTOR-PINS>"
                                    "</VEHICLE-CONNECTOR></VEHICLE-CONNECTORS>"));
    VMemVehicleConnector& connector = At(Information().VehicleConnectorCollection(), 0);
    EXPECT_STREQ(connector.GetShortName(), L"Socket");
    EXPECT_STREQ(connector.GetOid(), L"c");
    ASSERT_EQ(connector.VehicleConnectorPinCollection().Count(), 2U);
    VMemVehicleConnectorPin& high = At(connector.VehicleConnectorPinCollection(), 0);
    EXPECT_STREQ(high.GetType(), L"HI");
    EXPECT_STREQ(high.GetPinNumber(), L"6");
    EXPECT_STREQ(high.GetOid(), L"p");
    EXPECT_STREQ(Get<VMemVehicleConnectorPin>(L"Q").GetPinNumber(), L"14");
}

// Links

std::string LogicalLink(std::string const& id, std::string const& type, std::string const& content) {
    return "<LOGICAL-LINK ID=\"" + id + "\"" + type + "><SHORT-NAME>" + id + "</SHORT-NAME>" + content +
           "</LOGICAL-LINK>";
}

constexpr char kGateway[] = " xsi:type=\"GATEWAY-LOGICAL-LINK\"";
constexpr char kMember[] = " xsi:type=\"MEMBER-LOGICAL-LINK\"";
constexpr char kBusRef[] = "<PHYSICAL-VEHICLE-LINK-REF ID-REF=\"Bus\"/>";
constexpr char kBus[] =
    "<VEHICLE-CONNECTORS><VEHICLE-CONNECTOR><SHORT-NAME>Socket</SHORT-NAME><VEHICLE-CONNECTOR-PINS>"
    "<VEHICLE-CONNECTOR-PIN ID=\"P\" TYPE=\"K\"><SHORT-NAME>P</SHORT-NAME><PIN_NUMBER>7</PIN_NUMBER>"
    "</VEHICLE-CONNECTOR-PIN></VEHICLE-CONNECTOR-PINS></VEHICLE-CONNECTOR></VEHICLE-CONNECTORS>"
    "<PHYSICAL-VEHICLE-LINKS><PHYSICAL-VEHICLE-LINK ID=\"Bus\" TYPE=\"ISO_9141_2_UART\"><SHORT-NAME>Bus</SHORT-NAME>"
    "<VEHICLE-CONNECTOR-PIN-REFS><VEHICLE-CONNECTOR-PIN-REF ID-REF=\"P\"/></VEHICLE-CONNECTOR-PIN-REFS>"
    "<LINK-COMPARAM-REFS><LINK-COMPARAM-REF ID-REF=\"CP\"><VALUE>5</VALUE><DESC><p>d</p></DESC></LINK-COMPARAM-REF>"
    "</LINK-COMPARAM-REFS></PHYSICAL-VEHICLE-LINK></PHYSICAL-VEHICLE-LINKS>";
constexpr char kComparams[] =
    "<COMPARAM-SPEC ID=\"CS\"><SHORT-NAME>CS</SHORT-NAME><COMPARAMS><COMPARAM ID=\"CP\"><SHORT-NAME>CP</SHORT-NAME>"
    "</COMPARAM></COMPARAMS></COMPARAM-SPEC>";

class VVehicleLinksTest : public VVehicleInfoElementsTest {
protected:
    /// LOGICAL-LINKS, and groups of them, next to a PHYSICAL-VEHICLE-LINK.
    void ReadLinks(std::string const& components, std::string const& links, std::string const& groups = "") {
        Read({Document(kComparams, "2.2.0"),
              Container("<PROTOCOLS><PROTOCOL ID=\"UDS\"><SHORT-NAME>UDS</SHORT-NAME></PROTOCOL></PROTOCOLS>"
                        "<FUNCTIONAL-GROUPS><FUNCTIONAL-GROUP ID=\"FG\"><SHORT-NAME>FG</SHORT-NAME></FUNCTIONAL-GROUP>"
                        "</FUNCTIONAL-GROUPS><BASE-VARIANTS><BASE-VARIANT ID=\"BV\"><SHORT-NAME>BV</SHORT-NAME>"
                        "</BASE-VARIANT></BASE-VARIANTS>",
                        "2.2.0"),
              VehicleInfo(components, VehicleInformation("\n<LOGICAL-LINKS>" + links + "</LOGICAL-LINKS>" + groups) +
                                          VehicleInformation(kBus))});
    }
};

TEST_F(VVehicleLinksTest, PhysicalVehicleLinks) {
    ReadLinks("", LogicalLink("L", "", kBusRef));
    EXPECT_EQ(Diagnostics(), "");
    auto& bus = Get<VMemPhysicalVehicleLink>(L"Bus");
    EXPECT_STREQ(bus.GetType(), L"ISO_9141_2_UART");
    VMemVehicleConnectorPinLink& pin = At(bus.VehicleConnectorPinLinkCollection(), 0);
    ASSERT_TRUE(pin.HasVehicleConnectorPin());
    EXPECT_STREQ(pin.GetVehicleConnectorPin().GetPinNumber(), L"7");
    VMemLinkComparamRef& comparam = At(bus.LinkComparamRefCollection(), 0);
    EXPECT_STREQ(comparam.GetValue(), L"5");
    EXPECT_STREQ(comparam.GetDesc(), L"<p>d</p>");
    ASSERT_TRUE(comparam.HasComparam());
    EXPECT_STREQ(comparam.GetComparam().GetShortName(), L"CP");
    EXPECT_EQ(comparam.GetOdxTag(), VOdxTagEnum::LinkComparamRef);
}

TEST_F(VVehicleLinksTest, LogicalLinks) {
    ReadLinks("<INFO-COMPONENTS>" + InfoComponent("E", "ECU-PROXY") + "</INFO-COMPONENTS>",
              LogicalLink("G", kGateway, std::string(kBusRef) + "<SEMANTIC>central</SEMANTIC>") +
                  LogicalLink("M", kMember,
                              "<GATEWAY-LOGICAL-LINK-REFS><GATEWAY-LOGICAL-LINK-REF ID-REF=\"G\"/>"
                              "</GATEWAY-LOGICAL-LINK-REFS>" +
                                  std::string(kBusRef) +
                                  "<PROTOCOL-REF ID-REF=\"UDS\"/><FUNCTIONAL-GROUP-REF ID-REF=\"FG\"/>"
                                  "<BASE-VARIANT-REF ID-REF=\"BV\"/><ECU-PROXY-REFS><ECU-PROXY-REF ID-REF=\"E\"/>"
                                  "</ECU-PROXY-REFS><LINK-COMPARAM-REFS><LINK-COMPARAM-REF ID-REF=\"CP\">"
                                  "<VALUE>6</VALUE></LINK-COMPARAM-REF></LINK-COMPARAM-REFS>"));
    EXPECT_EQ(Diagnostics(), "");
    auto& gateway = Get<VMemLogicalLink>(L"G");
    EXPECT_EQ(gateway.GetOdxTag(), VOdxTagEnum::GatewayLogicalLink);
    EXPECT_STREQ(gateway.GetSemantic(), L"central");
    EXPECT_FALSE(gateway.HasProtocolRef());
    auto& member = Get<VMemLogicalLink>(L"M");
    EXPECT_EQ(member.GetOdxTag(), VOdxTagEnum::MemberLogicalLink);
    EXPECT_TRUE(member.GetPhysicalVehicleLinkRef().HasPhysicalVehicleLink());
    ASSERT_TRUE(member.GetProtocolRef().HasProtocol());
    EXPECT_STREQ(member.GetProtocolRef().GetProtocol().GetShortName(), L"UDS");
    EXPECT_EQ(member.GetProtocolRef().GetOdxTag(), VOdxTagEnum::LinkProtocolRef);
    EXPECT_TRUE(member.GetFunctionalGroupRef().HasFunctionalGroup());
    EXPECT_TRUE(member.GetBaseVariantRef().HasBaseVariant());
    EXPECT_TRUE(At(member.EcuProxyLinkCollection(), 0).HasEcuProxy());
    EXPECT_TRUE(At(member.GatewayLogicalLinkLinkCollection(), 0).HasGatewayLogicalLink());
    EXPECT_STREQ(At(member.LinkComparamRefCollection(), 0).GetValue(), L"6");
    EXPECT_EQ(Count(L"LOGICAL-LINK"), 2U);
}

TEST_F(VVehicleLinksTest, OnlyAGatewayHasASemantic) {
    std::string const semantic = std::string(kBusRef) + "<SEMANTIC>s</SEMANTIC>";
    ReadLinks("", LogicalLink("M", kMember, semantic));
    EXPECT_EQ(Diagnostics(), "3.odx:3:16 error contradicting-type");
    ReadLinks("", LogicalLink("G", kGateway, kBusRef) + LogicalLink("N", "", semantic));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VVehicleLinksTest, ReferencesToOneKindDoNotTakeAnother) {
    std::string const components = "<INFO-COMPONENTS>" + InfoComponent("O", "OEM") + "</INFO-COMPONENTS>";
    std::string const proxies = "<ECU-PROXY-REFS>\n<ECU-PROXY-REF ID-REF=\"O\"/></ECU-PROXY-REFS>";
    ReadLinks(components, LogicalLink("L", "", kBusRef + proxies));
    EXPECT_EQ(Diagnostics(), "3.odx:4:1 error reference-kind");
    EXPECT_NE(Message(0).find("which is the INFO-COMPONENT 'O' and no ECU-PROXY"), std::string::npos) << Message(0);
    std::string const gateways =
        "<GATEWAY-LOGICAL-LINK-REFS>\n<GATEWAY-LOGICAL-LINK-REF ID-REF=\"M\"/></GATEWAY-LOGICAL-LINK-REFS>";
    ReadLinks("", LogicalLink("M", kMember, kBusRef) + LogicalLink("L", "", gateways + kBusRef));
    EXPECT_EQ(Diagnostics(), "3.odx:4:1 error reference-kind");
}

TEST_F(VVehicleLinksTest, ReferencesToOneKindTakeWhatDoesNotSayItsKind) {
    ReadLinks("<INFO-COMPONENTS>" + InfoComponent("N", "") + "</INFO-COMPONENTS>",
              LogicalLink("G", "", kBusRef) +
                  LogicalLink("L", "",
                              "<GATEWAY-LOGICAL-LINK-REFS><GATEWAY-LOGICAL-LINK-REF ID-REF=\"G\"/>"
                              "</GATEWAY-LOGICAL-LINK-REFS>" +
                                  std::string(kBusRef) +
                                  "<ECU-PROXY-REFS><ECU-PROXY-REF ID-REF=\"N\"/></ECU-PROXY-REFS>"));
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VVehicleLinksTest, GroupsOfLinks) {
    ReadLinks("", LogicalLink("L", "", kBusRef),
              "<ECU-GROUPS><ECU-GROUP OID=\"g\"><SHORT-NAME>Body</SHORT-NAME><LOGICAL-LINK-REFS>"
              "<LOGICAL-LINK-REF ID-REF=\"L\"/></LOGICAL-LINK-REFS></ECU-GROUP></ECU-GROUPS>");
    EXPECT_EQ(Diagnostics(), "");
    VMemEcuGroup& group = At(Information().EcuGroupCollection(), 0);
    EXPECT_STREQ(group.GetShortName(), L"Body");
    EXPECT_STREQ(group.GetOid(), L"g");
    EXPECT_TRUE(At(group.LogicalLinkLinkCollection(), 0).HasLogicalLink());
}

} // namespace
} // namespace NTest
