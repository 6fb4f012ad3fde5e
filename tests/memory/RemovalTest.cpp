// SPDX-License-Identifier: Apache-2.0

// A destroyed element is removed from the model: from its collection, from the index, from every link to it; and
// nothing is destroyed twice, which the sanitizers check. The database is destroyed with every test.

#include <vector>

#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/VehicleInfo.h>
#include <diagkit/tools/OpBuildDiagCommView.h>

#include "support/FakeResolver.h"
#include "support/GraphTest.h"
#include "support/VerifyModel.h"

namespace NTest {
namespace {

using NMemory::VReference;
using NODX201::VOdxTagEnum;

class RemovalTest : public VGraphTest {
protected:
    void SetUp() override {
        Graph(LR"(
            esd  Lib   : Ident Reset!
            prot Uds   : Read ->Lib.Reset  < Lib
            func Doors : Open              < Uds
            base Bv    : Start ->Uds.Read  < Doors-Open Uds
            ecu  Ecu   : Stop              < Bv
        )");
    }

    void TearDown() override { VerifyModel(m_graph->Database()); }

    /// Destroys the first entry of the name, as an editor that shows the layer's view does.
    void RemoveThroughViewOf(wchar_t const* layer, wchar_t const* name) {
        NDIAGKIT::VOpBuildDiagCommView builder;
        NDIAGKIT::VDiagCommView* const view = builder.CreateDiagCommView(Layer(layer));
        view->Remove(view->Find(name));
        builder.DestroyDiagCommView(*view);
    }

    std::size_t Count(VOdxTagEnum tag) { return m_graph->Database().Count(tag); }
    bool IsIndexed(wchar_t const* id) { return m_graph->Database().GetIdIndex().Find(id) != nullptr; }
};

TEST_F(RemovalTest, TheGraphBeforeRemoval) {
    EXPECT_EQ(DiagComms(L"Ecu"), L"Stop@Ecu Start@Bv Read@Uds Reset@Lib Ident@Lib");
    EXPECT_EQ(DiagComms(L"Bv"), L"Start@Bv Read@Uds Reset@Lib Ident@Lib");
}

TEST_F(RemovalTest, AnElementDestroyedThroughAViewLeavesItsCollectionAndTheIndex) {
    RemoveThroughViewOf(L"Uds", L"Read");
    EXPECT_EQ(Layer(L"Uds").DiagCommProxyCollection().Count(), 1u);
    EXPECT_FALSE(IsIndexed(L"Uds.Read"));
    EXPECT_EQ(Count(VOdxTagEnum::DiagService), 4u);
    EXPECT_EQ(DiagComms(L"Uds"), L"Reset@Lib Ident@Lib");
}

TEST_F(RemovalTest, LinksToADestroyedElementDoNotResolve) {
    auto& layer = Layer(L"Bv");
    auto iter = layer.DiagCommProxyCollection().Begin();
    auto& link = dynamic_cast<NODX201::VDiagCommLink&>(*++iter);
    ASSERT_TRUE(link.HasDiagComm(layer)) << "the answer is remembered";
    RemoveThroughViewOf(L"Uds", L"Read");
    EXPECT_FALSE(link.HasDiagComm(layer));
    EXPECT_EQ(DiagComms(L"Bv"), L"Start@Bv Reset@Lib Ident@Lib");
}

TEST_F(RemovalTest, AnInheritedElementIsDestroyedWhereItStands) {
    RemoveThroughViewOf(L"Ecu", L"Reset");
    EXPECT_EQ(Layer(L"Lib").DiagCommProxyCollection().Count(), 1u);
    EXPECT_EQ(Count(VOdxTagEnum::SingleEcuJob), 0u);
    for (wchar_t const* const layer : {L"Lib", L"Uds", L"Doors", L"Bv", L"Ecu"}) {
        EXPECT_EQ(DiagComms(layer).find(L"Reset"), std::wstring::npos) << layer;
    }
}

TEST_F(RemovalTest, EverythingCanBeDestroyedThroughViews) {
    NDIAGKIT::VDiagCommView view(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    while (!view.IsEmpty()) {
        view.Remove(view.Begin());
    }
    EXPECT_EQ(DiagComms(L"Ecu"), L"");
    EXPECT_EQ(DiagComms(L"Doors"), L"Open@Doors") << "excluded, so not in the view";
    EXPECT_EQ(Count(VOdxTagEnum::DiagService), 1u);
    EXPECT_EQ(Count(VOdxTagEnum::SingleEcuJob), 0u);
    EXPECT_EQ(Layer(L"Uds").DiagCommProxyCollection().Count(), 1u) << "the reference stays, and names nothing";
}

TEST_F(RemovalTest, AnElementIsDestroyedWithDelete) {
    delete &DiagComm(L"Lib.Ident");
    EXPECT_EQ(DiagComms(L"Lib"), L"Reset@Lib");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Stop@Ecu Start@Bv Read@Uds Reset@Lib");
}

TEST_F(RemovalTest, AWholeLayerIsDestroyedWithAllThatItHolds) {
    delete &Layer(L"Lib");
    EXPECT_FALSE(IsIndexed(L"Lib"));
    EXPECT_FALSE(IsIndexed(L"Lib.Ident"));
    EXPECT_FALSE(IsIndexed(L"Lib.Reset"));
    EXPECT_EQ(m_graph->Container().DiagLayerCollection().Count(), 4u);
    EXPECT_EQ(Count(VOdxTagEnum::EcuSharedData), 0u);
    EXPECT_EQ(DiagComms(L"Ecu"), L"Stop@Ecu Start@Bv Read@Uds");
    EXPECT_FALSE(
        dynamic_cast<NODX201::VEcuSharedDataRef&>(*LayerAs<NODX201::VProtocol>(L"Uds").ParentRefCollection().Begin())
            .HasEcuSharedData());
}

TEST_F(RemovalTest, LayersAreDestroyedInAnyOrder) {
    delete &Layer(L"Bv");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Stop@Ecu");
    delete &Layer(L"Uds");
    EXPECT_EQ(DiagComms(L"Doors"), L"Open@Doors");
    delete &Layer(L"Ecu");
    delete &Layer(L"Lib");
    delete &Layer(L"Doors");
    EXPECT_EQ(m_graph->Container().DiagLayerCollection().Count(), 0u);
    EXPECT_EQ(Count(VOdxTagEnum::DiagService), 0u);
    EXPECT_EQ(Count(VOdxTagEnum::NotInheritedDiagComm), 0u);
}

TEST_F(RemovalTest, AWholeDocumentIsDestroyedWithAllThatItHolds) {
    auto& other = m_graph->Database().AddDiagLayerContainer(L"Other");
    auto& ecu = other.AddEcuVariant(L"Outside");
    ecu.AddParentRef(LayerAs<NMemory::VMemBaseVariant>(L"Bv"));
    EXPECT_EQ(PrintDiagComms(ecu), L"Start@Bv Read@Uds Reset@Lib Ident@Lib");
    delete &m_graph->Container();
    EXPECT_EQ(PrintDiagComms(ecu), L"");
    EXPECT_EQ(m_graph->Database().GetOdx().DiagLayerContainerCollection().Count(), 1u);
    EXPECT_EQ(Count(VOdxTagEnum::DiagService), 0u);
    EXPECT_EQ(Count(VOdxTagEnum::EcuVariant), 1u);
}

TEST_F(RemovalTest, AParentRefIsDestroyedWithItsExclusions) {
    delete &*LayerAs<NODX201::VBaseVariant>(L"Bv").ParentRefCollection().Begin();
    EXPECT_EQ(DiagComms(L"Bv"), L"Start@Bv Read@Uds Reset@Lib Ident@Lib") << "Uds is a parent of its own too";
    delete &*LayerAs<NODX201::VBaseVariant>(L"Bv").ParentRefCollection().Begin();
    EXPECT_EQ(DiagComms(L"Bv"), L"Start@Bv Read@Uds") << "Read by reference";
    EXPECT_EQ(Count(VOdxTagEnum::NotInheritedDiagComm), 0u);
    EXPECT_TRUE(LayerAs<NODX201::VBaseVariant>(L"Bv").HasParentRefCollection()) << "an empty wrapper stays";
}

TEST_F(RemovalTest, AnExclusionIsDestroyed) {
    NODX201::VParentRef& parentRef = *LayerAs<NODX201::VBaseVariant>(L"Bv").ParentRefCollection().Begin();
    delete &*parentRef.NotInheritedDiagCommCollection().Begin();
    EXPECT_EQ(DiagComms(L"Bv"), L"Start@Bv Read@Uds Open@Doors Reset@Lib Ident@Lib");
}

TEST_F(RemovalTest, ADiagCommRefIsDestroyedAndItsTargetStays) {
    auto iter = Layer(L"Uds").DiagCommProxyCollection().Begin();
    delete &dynamic_cast<NODX201::VDiagCommLink&>(*++iter);
    EXPECT_EQ(DiagComms(L"Uds"), L"Read@Uds Ident@Lib Reset@Lib");
}

TEST_F(RemovalTest, WhatIsAddedAgainUnderTheIdResolvesAgain) {
    RemoveThroughViewOf(L"Uds", L"Read");
    EXPECT_EQ(DiagComms(L"Bv"), L"Start@Bv Reset@Lib Ident@Lib");
    LayerAs<NMemory::VMemProtocol>(L"Uds").AddDiagService(L"Read2").SetId(L"Uds.Read");
    EXPECT_EQ(DiagComms(L"Bv"), L"Start@Bv Read2@Uds Reset@Lib Ident@Lib");
}

TEST_F(RemovalTest, IteratorsAtOtherElementsStayValid) {
    auto& comms = Layer(L"Lib").DiagCommProxyCollection();
    auto const first = comms.Begin();
    auto second = first;
    ++second;
    NODX201::IDiagCommProxy& reset = *second;
    delete &DiagComm(L"Lib.Ident");
    EXPECT_EQ(&*second, &reset);
    EXPECT_TRUE(second == comms.Begin());
    EXPECT_FALSE(++second != comms.End());
}

TEST_F(RemovalTest, AViewBuiltBeforeKeepsOnlyWhatTheUserTakesOutOfIt) {
    NDIAGKIT::VDiagCommView ecu(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    ecu.Remove(DiagComm(L"Uds.Read")); // before it is destroyed elsewhere
    RemoveThroughViewOf(L"Uds", L"Read");
    EXPECT_EQ(Print(ecu), L"Stop@Ecu Start@Bv Reset@Lib Ident@Lib");
}

TEST_F(RemovalTest, TheNextOfSeveralElementsOfOneIdTakesThePlaceOfADestroyedOne) {
    auto& ecu = LayerAs<NMemory::VMemEcuVariant>(L"Ecu");
    auto& other = m_graph->Database().AddDiagLayerContainer(L"Other").AddProtocol(L"P");
    auto& first = other.AddDiagService(L"First");
    first.SetId(L"Same");
    auto& second = other.AddDiagService(L"Second");
    second.SetId(L"Same");
    auto& third = other.AddDiagService(L"Third");
    third.SetId(L"Same");
    auto& link = ecu.AddDiagCommRef(VReference::ById(L"Same"));
    ASSERT_TRUE(link.HasDiagComm(ecu));
    EXPECT_EQ(&link.GetDiagComm(), &first);
    delete &first;
    ASSERT_TRUE(link.HasDiagComm(ecu));
    EXPECT_EQ(&link.GetDiagComm(), &second);
    delete &third;
    ASSERT_TRUE(link.HasDiagComm(ecu));
    EXPECT_EQ(&link.GetDiagComm(), &second);
    delete &second;
    EXPECT_FALSE(link.HasDiagComm(ecu));
    EXPECT_FALSE(IsIndexed(L"Same"));
}

TEST_F(RemovalTest, AnOptionalChildIsRemovedWithTheIdsInside) {
    auto& protocol = LayerAs<NMemory::VMemProtocol>(L"Uds");
    auto& dictionary = protocol.MakeDiagDataDictionarySpec();
    auto& dop = dictionary.AddDataObjectProp(L"Voltage");
    dop.SetId(L"Voltage");
    auto& link = protocol.AddRequest(L"Request").AddValue(L"Value").SetDopBaseLink(dop);
    ASSERT_TRUE(link.HasDopBase(protocol));
    protocol.RemoveDiagDataDictionarySpec();
    EXPECT_FALSE(protocol.HasDiagDataDictionarySpec());
    EXPECT_FALSE(IsIndexed(L"Voltage"));
    EXPECT_FALSE(link.HasDopBase(protocol));
    EXPECT_EQ(Count(VOdxTagEnum::DataObjectProp), 0u);
}

TEST_F(RemovalTest, ElementsBehindProxiesLeaveTheirCollections) {
    auto& layer = LayerAs<NMemory::VMemBaseVariant>(L"Bv");
    auto& dtcDop = layer.MakeDiagDataDictionarySpec().AddDtcDop(L"Dtcs");
    auto& dtc = dtcDop.AddDtc(L"P0001");
    dtcDop.AddDtcRef(dtc);
    auto& table = layer.GetDiagDataDictionarySpec().AddTable(L"Table");
    auto& row = table.AddTableRow(L"Row");
    table.AddTableRowRef(row);
    auto& variable = layer.AddDiagVariable(L"Speed");
    layer.AddDiagVariableRef(variable);
    auto& sdg = layer.AddDiagService(L"Service").AddSdg();
    auto& sd = sdg.AddSd(L"text");
    sdg.AddSdg();

    delete &dtc;
    EXPECT_EQ(dtcDop.DtcProxyCollection().Count(), 1u);
    delete &row;
    EXPECT_EQ(table.RowWrapperCollection().Count(), 1u);
    delete &variable;
    EXPECT_EQ(layer.DiagVariableProxyCollection().Count(), 1u);
    delete &sd;
    EXPECT_EQ(sdg.SdgSdChoiceCollection().Count(), 1u);
}

TEST_F(RemovalTest, DocumentsOfTheOtherCategoriesAreDestroyed) {
    NMemory::VDatabase& database = m_graph->Database();
    auto& flash = database.AddFlash(L"Flash");
    flash.AddEcuMem(L"Memory").GetMem().AddSession(L"Session").AddExpectedIdent(L"Ident").SetId(L"Ident");
    auto& jobs = database.AddMultipleEcuJobSpec(L"Jobs");
    jobs.AddMultipleEcuJob(L"Job");
    auto& vehicle = database.AddVehicleInfoSpec(L"Vehicle");
    vehicle.AddCompanyData(L"Maker").SetId(L"Maker");
    auto& comparams = database.AddComparamSpec(L"Comparams");
    auto& protocol = LayerAs<NMemory::VMemProtocol>(L"Uds");
    auto& link = protocol.SetComparamSpecRef(comparams);
    ASSERT_TRUE(link.HasComparamSpec());
    delete &comparams;
    EXPECT_FALSE(link.HasComparamSpec());
    EXPECT_EQ(database.GetOdx().ComparamSpecCollection().Count(), 0u);
    delete &jobs;
    EXPECT_EQ(database.MultipleEcuJobSpecCollection().Count(), 0u);
    EXPECT_EQ(Count(VOdxTagEnum::MultipleEcuJob), 0u);
    delete &vehicle;
    EXPECT_EQ(database.VehicleInfoSpecCollection().Count(), 0u);
    EXPECT_FALSE(IsIndexed(L"Maker"));
    delete &flash;
    EXPECT_EQ(database.FlashCollection().Count(), 0u);
    EXPECT_FALSE(IsIndexed(L"Ident"));
}

TEST_F(RemovalTest, ShortNameLinksAskAgainAfterARemoval) {
    VFakeNames names;
    NMemory::VDatabase& database = m_graph->Database();
    auto& ecu = Layer(L"Ecu");
    auto& read = DiagComm(L"Uds.Read");
    names.diagComms = {{{L"Read", &ecu}, &read}};
    database.SetResolverFactory(names.Factory());
    auto& link =
        LayerAs<NMemory::VMemProtocol>(L"Uds").AddAccessLevel().SetDiagCommSnref(VReference::ByShortName(L"Read"));
    ASSERT_TRUE(link.HasDiagComm(ecu));
    names.diagComms.clear();
    RemoveThroughViewOf(L"Ecu", L"Read");
    EXPECT_FALSE(link.HasDiagComm(ecu));
    EXPECT_EQ(names.started, 2);
    database.SetResolverFactory(nullptr);
}

TEST_F(RemovalTest, ElementsLeaveTheirCollectionInAnyOrder) {
    auto& lib = LayerAs<NMemory::VMemEcuSharedData>(L"Lib");
    std::vector<NMemory::VMemDiagService*> added;
    for (wchar_t const* const name : {L"A", L"B", L"C", L"D", L"E"}) {
        added.push_back(&lib.AddDiagService(name));
    }
    for (std::size_t const index : {4, 1, 2, 0}) {
        delete added[index];
    }
    EXPECT_EQ(DiagComms(L"Lib"), L"Ident@Lib Reset@Lib D@Lib");
}

TEST_F(RemovalTest, ElementsOfOneIdLeaveTheIndexInAnyOrder) {
    auto& lib = LayerAs<NMemory::VMemEcuSharedData>(L"Lib");
    std::vector<NMemory::VMemDiagService*> added;
    for (wchar_t const* const name : {L"A", L"B", L"C", L"D", L"E"}) {
        added.push_back(&lib.AddDiagService(name));
        added.back()->SetId(L"Same");
    }
    auto& link = LayerAs<NMemory::VMemEcuVariant>(L"Ecu").AddDiagCommRef(VReference::ById(L"Same"));
    auto const found = [&] { return link.HasDiagComm(Layer(L"Ecu")) ? link.GetDiagComm().GetShortName() : L"none"; };
    EXPECT_STREQ(found(), L"A");
    delete added[4];
    delete added[0];
    EXPECT_STREQ(found(), L"B");
    delete added[2];
    delete added[1];
    EXPECT_STREQ(found(), L"D");
    delete added[3];
    EXPECT_STREQ(found(), L"none");
}

TEST_F(RemovalTest, GroupsInsideOneAnotherAreDestroyedHoweverDeep) {
    auto& service = dynamic_cast<NMemory::VMemDiagService&>(DiagComm(L"Ecu.Stop"));
    NMemory::VMemSdg* group = &service.AddSdg();
    for (int depth = 0; depth < 500'000; ++depth) {
        group = &group->AddSdg();
    }
    group->AddSd(L"deep");
    delete &*service.SdgCollection().Begin();
    EXPECT_EQ(Count(VOdxTagEnum::Sdg), 0u);
    EXPECT_EQ(Count(VOdxTagEnum::Sd), 0u);
}

TEST_F(RemovalTest, TextsOfARemovedElementLiveAsLongAsTheDatabase) {
    auto& uds = LayerAs<NMemory::VMemProtocol>(L"Uds");
    uds.AddAutMethod(L"a text that is too long to be kept inside a string object");
    std::wstring const& text = *uds.AutMethodCollection().Begin();
    delete &uds;
    EXPECT_EQ(text, L"a text that is too long to be kept inside a string object");
}

} // namespace
} // namespace NTest
