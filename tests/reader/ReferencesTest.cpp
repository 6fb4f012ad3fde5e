// SPDX-License-Identifier: Apache-2.0
#include <diagkit/memory/Odx.h>

#include "reader/ReaderTest.h"
#include "support/PrintView.h"

namespace NTest {
namespace {

class VReferencesTest : public VReaderTest {
protected:
    /// The target of the REQUEST-REF of the service with this ID: the short names of the request and its layer.
    std::wstring RequestOf(wchar_t const* service) {
        NODX201::VRequestLink& link = Get<NODX201::VDiagService>(service).GetRequestRef();
        if (!link.HasRequest()) {
            return L"(none)";
        }
        return std::wstring(link.GetRequest().GetShortName()) + L"@" + LayerNameOf(link.GetRequest());
    }

    NODX201::VParentRef& FirstParent(wchar_t const* layer) {
        auto* const base = dynamic_cast<NODX201::VBaseVariant*>(&Element(layer));
        return base != nullptr ? At(base->ParentRefCollection(), 0)
                               : At(Get<NODX201::VEcuVariant>(layer).ParentRefCollection(), 0);
    }
};

std::string Service(std::string const& id, std::string const& reference) {
    return "<DIAG-SERVICE ID=\"" + id + "\"><SHORT-NAME>" + id + "</SHORT-NAME><AUDIENCE/><REQUEST-REF " + reference +
           "/></DIAG-SERVICE>";
}

std::string Request(std::string const& id, std::string const& shortName) {
    return "<REQUEST ID=\"" + id + "\"><SHORT-NAME>" + shortName + "</SHORT-NAME><PARAMS/></REQUEST>";
}

/// A layer of the container, by its element without and with the plural.
std::string LayerOfKind(std::string const& kind, std::string const& id, std::string const& content) {
    return "<" + kind + "S><" + kind + " ID=\"" + id + "\"" + (kind == "PROTOCOL" ? " TYPE=\"x\"" : "") +
           "><SHORT-NAME>" + id + "</SHORT-NAME>" + content + "</" + kind + "></" + kind + "S>";
}

/// A document with a container and a layer in it, with the request RQ in the layer under a name that identifies it.
std::string Exported(std::string const& container, std::string const& layer, std::string const& services = "",
                     std::string const& rest = "") {
    return "<ODX MODEL-VERSION=\"2.0.1\"><DIAG-LAYER-CONTAINER ID=\"ID." + container + "\"><SHORT-NAME>" + container +
           "</SHORT-NAME>" +
           LayerOfKind("BASE-VARIANT", layer,
                       (services.empty() ? "" : "<DIAG-COMMS>" + services + "</DIAG-COMMS>") + "<REQUESTS>" +
                           Request("RQ", "In_" + layer) + "</REQUESTS>" + rest) +
           "</DIAG-LAYER-CONTAINER></ODX>";
}

// The order of resolution. RQ is an ID in every document.

TEST_F(VReferencesTest, WithoutDocrefTheOwnLayerWins) {
    Read({Exported("C1", "L1"), Exported("C2", "L2", Service("S", "ID-REF=\"RQ\"")), Exported("C3", "L3")});
    EXPECT_EQ(RequestOf(L"S"), L"In_L2@L2");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VReferencesTest, DoctypeWithoutDocrefIsIgnored) {
    Read({Exported("C1", "L1"), Exported("C2", "L2", Service("S", "ID-REF=\"RQ\" DOCTYPE=\"FLASH\""))});
    EXPECT_EQ(RequestOf(L"S"), L"In_L2@L2");
}

TEST_F(VReferencesTest, DocrefWithDoctypeLayerNamesALayerOfAnyContainer) {
    Read({Exported("C1", "L1"), Exported("C2", "L2", Service("S", "ID-REF=\"RQ\" DOCREF=\"L3\" DOCTYPE=\"LAYER\"")),
          Exported("C3", "L3")});
    EXPECT_EQ(RequestOf(L"S"), L"In_L3@L3");
}

TEST_F(VReferencesTest, DocrefWithDoctypeContainerNamesAContainerAndNotALayer) {
    Read({Exported("Other", "Same"),
          Exported("C2", "L2", Service("S", "ID-REF=\"RQ\" DOCREF=\"Same\" DOCTYPE=\"CONTAINER\"")),
          Exported("Same", "L3")});
    EXPECT_EQ(RequestOf(L"S"), L"In_L3@L3");
    Read({Exported("Other", "Same"),
          Exported("C2", "L2", Service("S", "ID-REF=\"RQ\" DOCREF=\"Same\" DOCTYPE=\"LAYER\"")),
          Exported("Same", "L3")});
    EXPECT_EQ(RequestOf(L"S"), L"In_Same@Same");
}

TEST_F(VReferencesTest, WrongOrUnknownDoctypeIsForgiven) {
    for (char const* const doctype : {"LAYER", "FLASH", "COMPARAM-SUBSET", "Unknown"}) {
        Read({Exported("C1", "L1"),
              Exported("C2", "L2", Service("S", std::string("ID-REF=\"RQ\" DOCREF=\"C3\" DOCTYPE=\"") + doctype + '"')),
              Exported("C3", "L3")});
        EXPECT_EQ(RequestOf(L"S"), L"In_L3@L3") << doctype;
        for (NReader::VDiagnostic const& diagnostic : m_result.diagnostics) {
            EXPECT_EQ(diagnostic.code, "unknown-literal"); // a note, of a warning's severity
            EXPECT_EQ(diagnostic.severity, NReader::VSeverity::Warning);
        }
    }
    Read({Exported("C1", "L1"), Exported("C2", "L2", Service("S", "ID-REF=\"RQ\" DOCREF=\"L3\" DOCTYPE=\"CONTAINER\"")),
          Exported("C3", "L3")});
    EXPECT_EQ(RequestOf(L"S"), L"In_L3@L3");
}

TEST_F(VReferencesTest, DocrefWithoutDoctypeNamesDocumentOrLayer) {
    Read({Exported("C1", "L1"),
          Exported("C2", "L2",
                   Service("S", "ID-REF=\"RQ\" DOCREF=\"C3\"") + Service("T", "ID-REF=\"RQ\" DOCREF=\"L3\"")),
          Exported("C3", "L3")});
    EXPECT_EQ(RequestOf(L"S"), L"In_L3@L3");
    EXPECT_EQ(RequestOf(L"T"), L"In_L3@L3");
}

TEST_F(VReferencesTest, DocrefThatNothingBearsFallsBackToTheFirstLoaded) {
    Read({Exported("C1", "L1"),
          Exported("C2", "L2", Service("S", "ID-REF=\"RQ\" DOCREF=\"C9\" DOCTYPE=\"CONTAINER\""))});
    EXPECT_EQ(RequestOf(L"S"), L"In_L1@L1"); // not the own layer
}

TEST_F(VReferencesTest, OwnDocumentWinsOverImportsAndTheRest) {
    std::string const own = "<ODX MODEL-VERSION=\"2.0.1\"><DIAG-LAYER-CONTAINER ID=\"C\"><SHORT-NAME>C</SHORT-NAME>" +
                            LayerOfKind("ECU-SHARED-DATA", "E", "<REQUESTS>" + Request("RQ", "In_E") + "</REQUESTS>") +
                            LayerOfKind("BASE-VARIANT", "B",
                                        "<DIAG-COMMS>" + Service("S", "ID-REF=\"RQ\"") +
                                            "</DIAG-COMMS><IMPORT-REFS><IMPORT-REF ID-REF=\"L1\"/></IMPORT-REFS>") +
                            "</DIAG-LAYER-CONTAINER></ODX>";
    Read({Exported("C1", "L1"), own});
    EXPECT_EQ(RequestOf(L"S"), L"In_E@E");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VReferencesTest, ImportsAreSearchedInTheirOrderBeforeTheRest) {
    std::string const importing =
        Container(LayerOfKind("ECU-VARIANT", "V",
                              "<DIAG-COMMS>" + Service("S", "ID-REF=\"RQ\"") +
                                  "</DIAG-COMMS><IMPORT-REFS><IMPORT-REF ID-REF=\"L3\"/><IMPORT-REF "
                                  "ID-REF=\"L2\"/></IMPORT-REFS>"));
    Read({Exported("C1", "L1"), Exported("C2", "L2"), Exported("C3", "L3"), importing});
    EXPECT_EQ(RequestOf(L"S"), L"In_L3@L3");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VReferencesTest, ImportsDoNotChain) {
    // V imports E, which imports L3: RQ is not in E, so the first in the whole database is taken.
    std::string const importing = Container(
        LayerOfKind("ECU-SHARED-DATA", "E", "<IMPORT-REFS><IMPORT-REF ID-REF=\"L3\"/></IMPORT-REFS>"), "2.2.0");
    std::string const variant =
        "<ODX MODEL-VERSION=\"2.0.1\"><DIAG-LAYER-CONTAINER ID=\"D\"><SHORT-NAME>D</SHORT-NAME>" +
        LayerOfKind("ECU-VARIANT", "V",
                    "<DIAG-COMMS>" + Service("S", "ID-REF=\"RQ\"") +
                        "</DIAG-COMMS><IMPORT-REFS><IMPORT-REF ID-REF=\"E\"/></IMPORT-REFS>") +
        "</DIAG-LAYER-CONTAINER></ODX>";
    Read({Exported("C1", "L1"), Exported("C3", "L3"), importing, variant});
    EXPECT_EQ(RequestOf(L"S"), L"In_L1@L1");
}

TEST_F(VReferencesTest, SharedDataOfLaterVersionsMayImport) {
    std::string const sharing =
        Container(LayerOfKind("ECU-SHARED-DATA", "E",
                              "<IMPORT-REFS><IMPORT-REF ID-REF=\"L3\"/></IMPORT-REFS><DIAG-COMMS>" +
                                  Service("S", "ID-REF=\"RQ\"") + "</DIAG-COMMS>"),
                  "2.2.0");
    Read({Exported("C1", "L1"), Exported("C3", "L3"), sharing});
    EXPECT_EQ(RequestOf(L"S"), L"In_L3@L3");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VReferencesTest, HitOfAnotherClassIsAMissWithinEachPlace) {
    // The own layer has a response of the ID, the other document the request.
    std::string const own =
        Container(LayerOfKind("BASE-VARIANT", "B",
                              "<DIAG-COMMS>" + Service("S", "ID-REF=\"RQ\"") +
                                  "</DIAG-COMMS><POS-RESPONSES><POS-RESPONSE ID=\"RQ\"><SHORT-NAME>P</SHORT-NAME>"
                                  "<PARAMS/></POS-RESPONSE></POS-RESPONSES>"));
    Read({own, Exported("C1", "L1")});
    EXPECT_EQ(RequestOf(L"S"), L"In_L1@L1");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VReferencesTest, BlanksAroundIdsAndReferencesDoNotCount) {
    Read(Layer("<DIAG-COMMS>" + Service("S", "ID-REF=\" R 1 \" DOCREF=\" L\" DOCTYPE=\"LAYER \"") +
               "</DIAG-COMMS><REQUESTS>" + Request("R 1 ", "{odd}") + "</REQUESTS>"));
    EXPECT_EQ(RequestOf(L"S"), L"{odd}@L");
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VReferencesTest, LayerIsInItsOwnScopeAndItsIdResolves) {
    Read(Container(LayerOfKind("BASE-VARIANT", "B", "") +
                   LayerOfKind("ECU-VARIANT", "V",
                               "<PARENT-REFS><PARENT-REF xsi:type=\"BASE-VARIANT-REF\" ID-REF=\"B\" DOCREF=\"B\" "
                               "DOCTYPE=\"LAYER\"/></PARENT-REFS>")));
    auto& parentRef = As<NODX201::VBaseVariantRef>(FirstParent(L"V"));
    ASSERT_TRUE(parentRef.HasBaseVariant());
    EXPECT_STREQ(parentRef.GetBaseVariant().GetShortName(), L"B");
    EXPECT_EQ(Diagnostics(), "");
}

// Faulty references

TEST_F(VReferencesTest, UnresolvedReferenceIsOneErrorAtTheReference) {
    Read(Layer("<DIAG-COMMS>\n  " + Service("S", "ID-REF=\"gone\" DOCREF=\"L\"") + "</DIAG-COMMS>"));
    EXPECT_EQ(RequestOf(L"S"), L"(none)");
    EXPECT_EQ(Diagnostics(), "test.odx:3:61 error unresolved-reference");
    EXPECT_EQ(Message(0), "REQUEST-REF names the ID 'gone' in 'L', which no loaded element has; load the document that "
                          "contains it as well");
}

TEST_F(VReferencesTest, ReferencesIntoAMissingDocumentAreOneErrorAtTheFirst) {
    std::string const document = Layer("<DIAG-COMMS>\n" + Service("S", "ID-REF=\"a\" DOCREF=\"Far\"") + "\n" +
                                       Service("T", "ID-REF=\"b\" DOCREF=\"Far\" DOCTYPE=\"LAYER\"") + "\n" +
                                       Service("U", "ID-REF=\"c\" DOCREF=\"Other\"") + "</DIAG-COMMS>");
    Read(document);
    EXPECT_EQ(Diagnostics(), "test.odx:3:59 error unresolved-reference\ntest.odx:5:59 error unresolved-reference");
    EXPECT_EQ(Message(0), "2 references lead into Far, which is not loaded");
    EXPECT_EQ(Message(1), "1 reference leads into Other, which is not loaded");
    EXPECT_EQ(RequestOf(L"S"), L"(none)");
}

TEST_F(VReferencesTest, ReferencesIntoAMissingDocumentAreEachToldWhenAskedFor) {
    m_options.tellsEachReference = true;
    Read(Layer("<DIAG-COMMS>\n" + Service("S", "ID-REF=\"a\" DOCREF=\"Far\"") + "\n" +
               Service("T", "ID-REF=\"b\" DOCREF=\"Far\"") + "</DIAG-COMMS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:59 error unresolved-reference\ntest.odx:4:59 error unresolved-reference");
    EXPECT_EQ(Message(1), "REQUEST-REF names the ID 'b' in 'Far', which no loaded element has; load the document that "
                          "contains it as well");
}

TEST_F(VReferencesTest, ReferencesIntoWhatIsLoadedAreEachTold) {
    for (char const* const docref : {"", " DOCREF=\"L\"", " DOCREF=\"C\""}) { // the layer, the container
        Read(Layer("<DIAG-COMMS>" + Service("S", std::string("ID-REF=\"a\"") + docref) +
                   Service("T", std::string("ID-REF=\"b\"") + docref) + "</DIAG-COMMS>"));
        EXPECT_EQ(m_result.diagnostics.size(), 2U) << docref << Diagnostics();
    }
}

TEST_F(VReferencesTest, ParentRefsWithoutTypeIntoAMissingDocumentAreCounted) {
    Read(Container(LayerOfKind("ECU-VARIANT", "V",
                               "<PARENT-REFS>\n<PARENT-REF ID-REF=\"B\" DOCREF=\"Far\"/>\n<PARENT-REF "
                               "xsi:type=\"PROTOCOL-REF\" ID-REF=\"P\" DOCREF=\"Far\"/></PARENT-REFS>")));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error unresolved-reference");
    EXPECT_EQ(Message(0), "2 references lead into Far, which is not loaded");
}

TEST_F(VReferencesTest, ReferenceOfTheWrongKindIsOneError) {
    Read(Layer("<DIAG-COMMS>\n" + Service("S", "ID-REF=\"L\"") + "</DIAG-COMMS>"));
    EXPECT_EQ(RequestOf(L"S"), L"(none)");
    EXPECT_EQ(Diagnostics(), "test.odx:3:59 error reference-kind");
    EXPECT_EQ(Message(0), "REQUEST-REF names the ID 'L', which is the BASE-VARIANT 'L' and no REQUEST");
}

TEST_F(VReferencesTest, ReferenceOfTheWrongKindTellsWhichKindIsWanted) {
    auto const inDictionary = [](std::string const& content) {
        return "<DIAG-DATA-DICTIONARY-SPEC>" + content + "</DIAG-DATA-DICTIONARY-SPEC>";
    };
    auto const param = [](std::string const& type, std::string const& reference) {
        return "<REQUESTS><REQUEST ID=\"RQ\"><SHORT-NAME>RQ</SHORT-NAME><PARAMS><PARAM ID=\"P\" xsi:type=\"" + type +
               "\"><SHORT-NAME>P</SHORT-NAME>" + reference + "</PARAM></PARAMS></REQUEST></REQUESTS>";
    };
    struct {
        std::string layer;
        std::string wanted;
    } const rows[] = {
        {param("VALUE", "<DOP-REF ID-REF=\"L\"/>"), "DOP"},
        {param("LENGTH-KEY", "<DOP-REF ID-REF=\"L\"/>"), "DATA-OBJECT-PROP"},
        {param("TABLE-KEY", "<TABLE-REF ID-REF=\"L\"/>"), "TABLE"},
        {"<DIAG-COMMS><DIAG-COMM-REF ID-REF=\"L\"/></DIAG-COMMS>", "DIAG-COMM"},
        {"<IMPORT-REFS><IMPORT-REF ID-REF=\"U\"/></IMPORT-REFS>" +
             inDictionary("<UNIT-SPEC><UNITS><UNIT ID=\"U\"><SHORT-NAME>U</SHORT-NAME></UNIT></UNITS></UNIT-SPEC>"),
         "layer"},
        {"<PARENT-REFS><PARENT-REF xsi:type=\"PROTOCOL-REF\" ID-REF=\"L\"/></PARENT-REFS>", "PROTOCOL"},
        {inDictionary("<TABLES><TABLE ID=\"T\"><SHORT-NAME>T</SHORT-NAME><KEY-DOP-REF ID-REF=\"L\"/></TABLE></TABLES>"),
         "DATA-OBJECT-PROP"},
    };
    for (auto const& row : rows) {
        Read(Layer(row.layer, "2.2.0"));
        ASSERT_EQ(m_result.diagnostics.size(), 1U) << Diagnostics();
        EXPECT_EQ(m_result.diagnostics[0].code, "reference-kind");
        std::string const end = " and no " + row.wanted;
        EXPECT_EQ(Message(0).substr(Message(0).size() - std::min(end.size(), Message(0).size())), end) << Message(0);
    }
}

TEST_F(VReferencesTest, ReferenceToWhatTheModelHasNoPlaceForIsAWarning) {
    Read(Layer("<DIAG-COMMS>" + Service("S", "ID-REF=\"new\"") + "</DIAG-COMMS>\n<NEWS><NEW ID=\"new\"/></NEWS>",
               "2.2.0"));
    EXPECT_EQ(Diagnostics(), "test.odx:2:71 warning target-left-out");
    EXPECT_EQ(m_result.unknownElements, (std::map<std::string, std::size_t>{{"NEWS", 1}}));
}

TEST_F(VReferencesTest, ReferenceWithoutIdRefIsOneError) {
    Read(Layer("<DIAG-COMMS>" + Service("S", "DOCREF=\"C\"") + "</DIAG-COMMS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:2:71 error missing-attribute");
    Read(Container(LayerOfKind("BASE-VARIANT", "B", "<PARENT-REFS><PARENT-REF/></PARENT-REFS>")));
    ASSERT_EQ(m_result.diagnostics.size(), 1U) << Diagnostics();
    EXPECT_EQ(m_result.diagnostics[0].code, "missing-attribute");
}

TEST_F(VReferencesTest, MessagesAboutAttributesNameTheReference) {
    Read(Container(LayerOfKind("BASE-VARIANT", "B", "<PARENT-REFS><PARENT-REF/></PARENT-REFS>")));
    EXPECT_EQ(Message(0), "'PARENT-REF' has no ID-REF");
    Read(Params("<PARAM xsi:type=\"VALUE\"><SHORT-NAME>P</SHORT-NAME><DOP-SNREF/></PARAM>"));
    EXPECT_EQ(Message(0), "'DOP-SNREF' has no SHORT-NAME");
    Read(Layer("<DIAG-COMMS>" + Service("S", "ID-REF=\"R\" DOCTYPE=\"NOWHERE\"") + "</DIAG-COMMS>"));
    EXPECT_EQ(Message(0).rfind("DOCTYPE of 'REQUEST-REF' is 'NOWHERE', which is not one of ", 0), 0U) << Message(0);
}

TEST_F(VReferencesTest, IdTwiceInOneDocumentIsAnErrorAtTheSecond) {
    Read(Layer("<REQUESTS>" + Request("R", "First") + "\n" + Request("R", "Second") + "\n " + Request("R", "Third") +
               "</REQUESTS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error duplicate-id\ntest.odx:4:2 error duplicate-id");
    EXPECT_EQ(Message(0),
              "REQUEST 'Second' has the ID 'R' of the REQUEST 'First' at line 2; IDs must differ in a document");
    EXPECT_EQ(Count(L"REQUEST"), 3U);
}

TEST_F(VReferencesTest, IdInTwoDocumentsIsNone) {
    Read({Exported("C1", "L1"), Exported("C2", "L1")});
    EXPECT_EQ(Diagnostics(), "");
}

TEST_F(VReferencesTest, ElementsWithoutIdAreNotFoundAndNotDuplicates) {
    Read(Layer("<REQUESTS><REQUEST ID=\"\"><SHORT-NAME>A</SHORT-NAME><PARAMS/></REQUEST>"
               "<REQUEST><SHORT-NAME>B</SHORT-NAME><PARAMS/></REQUEST></REQUESTS>",
               "2.2.0"));
    EXPECT_EQ(Diagnostics(), "test.odx:2:11 error missing-attribute"); // of the one that is present
    EXPECT_EQ(Count(L"REQUEST"), 2U);
}

TEST_F(VReferencesTest, ShortNameReferencesInDiagCommsAreReportedAndLeftOut) {
    Read(Layer("<DIAG-COMMS>\n<DIAG-COMM-SNREF SHORT-NAME=\"S\"/>" + Service("T", "ID-REF=\"RQ\"") +
               "</DIAG-COMMS>\n<REQUESTS>" + Request("RQ", "RQ") +
               "</REQUESTS><DIAG-VARIABLES>\n<DIAG-VARIABLE-SNREF SHORT-NAME=\"V\"/></DIAG-VARIABLES>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error short-name-not-allowed\ntest.odx:5:1 error short-name-not-allowed");
    auto& layer = Get<NODX201::VBaseVariant>(L"L");
    EXPECT_EQ(layer.DiagCommProxyCollection().Count(), 1U);
    EXPECT_EQ(layer.DiagVariableProxyCollection().Count(), 0U);
}

// PARENT-REFs

TEST_F(VReferencesTest, ParentRefWithoutTypeTakesTheKindOfItsTarget) {
    Read(Container(
        LayerOfKind("PROTOCOL", "P", "<COMPARAM-SPEC-REF ID-REF=\"CPS\"/>") + LayerOfKind("FUNCTIONAL-GROUP", "F", "") +
        LayerOfKind("ECU-SHARED-DATA", "E", "") +
        LayerOfKind(
            "BASE-VARIANT", "B",
            "<PARENT-REFS>\n<PARENT-REF ID-REF=\"E\">\n<NOT-INHERITED-DIAG-COMMS><NOT-INHERITED-DIAG-COMM>\n"
            "<DIAG-COMM-SNREF SHORT-NAME=\"S\"/></NOT-INHERITED-DIAG-COMM></NOT-INHERITED-DIAG-COMMS>"
            "<NOT-INHERITED-VARIABLES>\n<NOT-INHERITED-VARIABLE>"
            "<DIAG-VARIABLE-SNREF SHORT-NAME=\"V\"/></NOT-INHERITED-VARIABLE></NOT-INHERITED-VARIABLES></PARENT-REF>\n"
            "<PARENT-REF ID-REF=\"P\"/><PARENT-REF "
            "ID-REF=\"F\"><NOT-INHERITED-DIAG-COMMS/></PARENT-REF></PARENT-REFS>") +
        LayerOfKind("ECU-VARIANT", "V", "<PARENT-REFS><PARENT-REF ID-REF=\"B\"/></PARENT-REFS>") +
        "</DIAG-LAYER-CONTAINER><COMPARAM-SPEC ID=\"CPS\"><SHORT-NAME>CPS</SHORT-NAME></COMPARAM-SPEC>"
        "<DIAG-LAYER-CONTAINER ID=\"D\"><SHORT-NAME>D</SHORT-NAME>"));
    EXPECT_EQ(Diagnostics(), "");
    auto& parents = Get<NODX201::VBaseVariant>(L"B").ParentRefCollection();
    ASSERT_EQ(parents.Count(), 3U);
    auto& shared = As<NODX201::VEcuSharedDataRef>(At(parents, 0));
    EXPECT_TRUE(shared.HasEcuSharedData());
    EXPECT_EQ(PositionOf(As<NMemory::VMemNode>(shared)), "3:1");
    auto& excluded = At(shared.NotInheritedDiagCommCollection(), 0);
    EXPECT_STREQ(As<NODX201::VSnref>(excluded.GetDiagCommSnref().GetLink()).GetShortName(), L"S");
    EXPECT_EQ(PositionOf(As<NMemory::VMemNode>(excluded)), "4:27");
    EXPECT_EQ(PositionOf(As<NMemory::VMemNode>(excluded.GetDiagCommSnref())), "5:1");
    auto& variable = At(shared.NotInheritedVariableCollection(), 0);
    EXPECT_STREQ(As<NODX201::VSnref>(variable.GetDiagVariableSnref().GetLink()).GetShortName(), L"V");
    EXPECT_EQ(PositionOf(As<NMemory::VMemNode>(variable)), "6:1");
    EXPECT_EQ(PositionOf(As<NMemory::VMemNode>(variable.GetDiagVariableSnref())), "6:25");
    EXPECT_TRUE(As<NODX201::VProtocolRef>(At(parents, 1)).HasProtocol());
    EXPECT_FALSE(At(parents, 1).HasNotInheritedDiagCommCollection());
    EXPECT_TRUE(As<NODX201::VFunctionalGroupRef>(At(parents, 2)).HasFunctionalGroup());
    EXPECT_TRUE(At(parents, 2).HasNotInheritedDiagCommCollection());
    EXPECT_TRUE(As<NODX201::VBaseVariantRef>(FirstParent(L"V")).HasBaseVariant());
    EXPECT_EQ(Count(L"PARENT-REF"), 0U); // of no kind
}

TEST_F(VReferencesTest, ParentRefWithoutTypeAndTargetHasNoKind) {
    Read(Layer("<PARENT-REFS>\n<PARENT-REF ID-REF=\"gone\"/></PARENT-REFS>"));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error unresolved-reference");
    EXPECT_EQ(Count(L"PARENT-REF"), 1U);
    EXPECT_EQ(Get<NODX201::VBaseVariant>(L"L").ParentRefCollection().Count(), 1U);
}

TEST_F(VReferencesTest, TypeThatContradictsTheTargetIsOneErrorAndResolvesToNothing) {
    Read(Container(LayerOfKind("ECU-SHARED-DATA", "E", "") +
                   LayerOfKind("BASE-VARIANT", "B",
                               "<PARENT-REFS>\n<PARENT-REF xsi:type=\"PROTOCOL-REF\" ID-REF=\"E\"/></PARENT-REFS>")));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error reference-kind");
    EXPECT_FALSE(As<NODX201::VProtocolRef>(FirstParent(L"B")).HasProtocol());
}

TEST_F(VReferencesTest, UnknownTypeOfAParentRefIsReportedAndTheTargetDecides) {
    Read(Container(LayerOfKind("ECU-SHARED-DATA", "E", "") +
                   LayerOfKind("BASE-VARIANT", "B",
                               "<PARENT-REFS>\n<PARENT-REF xsi:type=\"PARENT\" ID-REF=\"E\"/></PARENT-REFS>")));
    EXPECT_EQ(Diagnostics(), "test.odx:3:1 error unknown-type");
    EXPECT_TRUE(As<NODX201::VEcuSharedDataRef>(FirstParent(L"B")).HasEcuSharedData());
}

TEST_F(VReferencesTest, ParentToItselfIsOneError) {
    for (char const* const type : {"", " xsi:type=\"BASE-VARIANT-REF\""}) {
        Read(Layer(std::string("<PARENT-REFS>\n<PARENT-REF ID-REF=\"L\"") + type + "/></PARENT-REFS>"));
        EXPECT_EQ(Diagnostics(), "test.odx:3:1 error parent-itself");
    }
}

TEST_F(VReferencesTest, ParentsThatOdxDoesNotAllowAreReported) {
    constexpr struct {
        char const* layer;
        char const* allowed;
    } kRows[] = {
        {"PROTOCOL", "ECU-SHARED-DATA "},
        {"FUNCTIONAL-GROUP", "PROTOCOL ECU-SHARED-DATA "},
        {"BASE-VARIANT", "PROTOCOL FUNCTIONAL-GROUP ECU-SHARED-DATA "},
        {"ECU-VARIANT", "BASE-VARIANT ECU-SHARED-DATA "},
    };
    for (auto const& row : kRows) {
        for (std::string const parent :
             {"PROTOCOL", "FUNCTIONAL-GROUP", "BASE-VARIANT", "ECU-VARIANT", "ECU-SHARED-DATA"}) {
            // Of a later version, in which no parts are required; the parent's kind follows from the target.
            std::string both =
                LayerOfKind(parent, "Above", "") +
                LayerOfKind(row.layer, "Below", "<PARENT-REFS>\n<PARENT-REF ID-REF=\"Above\"/></PARENT-REFS>");
            if (parent == row.layer) {
                std::string const between = "</" + parent + "S><" + parent + "S>";
                both.erase(both.find(between), between.size());
            }
            Read(Container(both, "2.2.0"));
            bool const isAllowed = std::string(row.allowed).find(parent + ' ') != std::string::npos;
            EXPECT_EQ(Diagnostics(), isAllowed ? "" : "test.odx:3:1 error parent-kind")
                << row.layer << " under " << parent;
        }
    }
}

} // namespace
} // namespace NTest
