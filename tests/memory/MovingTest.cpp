// SPDX-License-Identifier: Apache-2.0

// Elements that move within their collection, to another element, to another document.

#include <memory>
#include <stdexcept>

#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Odx.h>

#include "support/GraphTest.h"
#include "support/VerifyModel.h"

namespace NTest {
namespace {

using NMemory::VReference;

class MovingTest : public VGraphTest {
protected:
    void SetUp() override {
        Graph(LR"(
            prot Uds : Read Start Reset!
            prot Kwp : Stop
            ecu  Ecu : ->Uds.Start
        )");
    }

    void TearDown() override { VerifyModel(m_graph->Database()); }

    NMemory::VMemProtocol& Protocol(wchar_t const* name) { return LayerAs<NMemory::VMemProtocol>(name); }
    NMemory::VMemDiagService& Service(wchar_t const* id) {
        return dynamic_cast<NMemory::VMemDiagService&>(DiagComm(id));
    }
};

TEST_F(MovingTest, AnElementThatStandsInNoCollectionDoesNotMove) {
    auto& uds = Protocol(L"Uds");
    auto& kwp = Protocol(L"Kwp");
    auto& link = uds.AddAccessLevel().SetDiagCommSnref(VReference::ById(L"Uds.Read"));
    EXPECT_THROW(kwp.MakeDiagCommProxyCollection().Adopt(kwp, link), std::invalid_argument);
    EXPECT_EQ(DiagComms(L"Kwp"), L"Stop@Kwp");
}

TEST_F(MovingTest, AnElementMovesToTheEndOfItsOwnCollection) {
    auto& uds = Protocol(L"Uds");
    uds.MakeDiagCommProxyCollection().Adopt(uds, Service(L"Uds.Read"));
    EXPECT_EQ(DiagComms(L"Uds"), L"Start@Uds Reset@Uds Read@Uds");
}

TEST_F(MovingTest, AnElementMovesBeforeAnotherOfItsCollection) {
    auto& uds = Protocol(L"Uds");
    uds.MakeDiagCommProxyCollection().Adopt(uds, Service(L"Uds.Start"), &Service(L"Uds.Read"));
    EXPECT_EQ(DiagComms(L"Uds"), L"Start@Uds Read@Uds Reset@Uds");
}

TEST_F(MovingTest, AnElementMovedBeforeItselfStays) {
    auto& uds = Protocol(L"Uds");
    uds.MakeDiagCommProxyCollection().Adopt(uds, Service(L"Uds.Start"), &Service(L"Uds.Start"));
    EXPECT_EQ(DiagComms(L"Uds"), L"Read@Uds Start@Uds Reset@Uds");
}

TEST_F(MovingTest, AnElementMovesToAnotherLayerAndBelongsThere) {
    auto& kwp = Protocol(L"Kwp");
    auto& start = Service(L"Uds.Start");
    kwp.MakeDiagCommProxyCollection().Adopt(kwp, start);
    EXPECT_EQ(DiagComms(L"Uds"), L"Read@Uds Reset@Uds");
    EXPECT_EQ(DiagComms(L"Kwp"), L"Stop@Kwp Start@Kwp");
    EXPECT_EQ(start.GetOwner(), &kwp);
}

TEST_F(MovingTest, AnElementMovesBeforeAnElementOfAnotherLayer) {
    auto& kwp = Protocol(L"Kwp");
    kwp.MakeDiagCommProxyCollection().Adopt(kwp, Service(L"Uds.Start"), &Service(L"Kwp.Stop"));
    EXPECT_EQ(DiagComms(L"Kwp"), L"Start@Kwp Stop@Kwp");
}

TEST_F(MovingTest, AnElementMovesIntoAWrapperThatWasAbsent) {
    auto& fresh = m_graph->Container().AddEcuSharedData(L"Fresh");
    EXPECT_FALSE(fresh.HasDiagCommProxyCollection());
    fresh.MakeDiagCommProxyCollection().Adopt(fresh, Service(L"Uds.Start"));
    EXPECT_TRUE(fresh.HasDiagCommProxyCollection());
    EXPECT_EQ(DiagComms(L"Uds"), L"Read@Uds Reset@Uds");
}

TEST_F(MovingTest, LinksFollowAMovedElement) {
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Uds");
    auto& kwp = Protocol(L"Kwp");
    kwp.MakeDiagCommProxyCollection().Adopt(kwp, Service(L"Uds.Start"));
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Kwp");
}

TEST_F(MovingTest, LinksLookAgainFromTheNewPlace) {
    auto& uds = Protocol(L"Uds");
    auto& kwp = Protocol(L"Kwp");
    uds.AddDiagService(L"FromUds").SetId(L"Same");
    kwp.AddDiagService(L"FromKwp").SetId(L"Same");
    auto& link = uds.AddDiagCommRef(VReference::ById(L"Same"));
    EXPECT_EQ(DiagComms(L"Uds"), L"Read@Uds Start@Uds Reset@Uds FromUds@Uds FromUds@Uds");
    kwp.MakeDiagCommProxyCollection().Adopt(kwp, link);
    EXPECT_EQ(DiagComms(L"Kwp"), L"Stop@Kwp FromKwp@Kwp FromKwp@Kwp");
}

TEST_F(MovingTest, AMovedElementIsRemovedFromItsNewPlace) {
    auto& kwp = Protocol(L"Kwp");
    auto& start = Service(L"Uds.Start");
    kwp.MakeDiagCommProxyCollection().Adopt(kwp, start);
    delete &start;
    EXPECT_EQ(DiagComms(L"Kwp"), L"Stop@Kwp");
    EXPECT_EQ(DiagComms(L"Uds"), L"Read@Uds Reset@Uds");
    EXPECT_EQ(DiagComms(L"Ecu"), L"");
}

TEST_F(MovingTest, AMovedElementOutlivesItsOldLayer) {
    auto& kwp = Protocol(L"Kwp");
    kwp.MakeDiagCommProxyCollection().Adopt(kwp, Service(L"Uds.Start"));
    delete &Protocol(L"Uds");
    EXPECT_EQ(DiagComms(L"Kwp"), L"Stop@Kwp Start@Kwp");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Kwp");
}

TEST_F(MovingTest, AParentRefMovesWithItsExclusions) {
    Graph(L"prot Uds : Read Start \n base A < Uds-Read \n base B <");
    auto& b = LayerAs<NMemory::VMemBaseVariant>(L"B");
    auto& parentRef =
        dynamic_cast<NMemory::VMemProtocolRef&>(*LayerAs<NODX201::VBaseVariant>(L"A").ParentRefCollection().Begin());
    b.MakeParentRefCollection().Adopt(b, parentRef);
    EXPECT_EQ(DiagComms(L"A"), L"");
    EXPECT_EQ(DiagComms(L"B"), L"Start@Uds");
}

TEST_F(MovingTest, ALayerMovesToAnotherContainer) {
    auto& other = m_graph->Database().AddDiagLayerContainer(L"Other");
    auto& uds = Protocol(L"Uds");
    other.AddProtocol(L"First").SetId(L"First");
    other.DiagLayerCollection().Adopt(uds);
    EXPECT_EQ(uds.GetOwner(), &other.DiagLayerCollection());
    EXPECT_EQ(m_graph->Container().DiagLayerCollection().Count(), 2u);
    ASSERT_EQ(other.DiagLayerCollection().Count(), 2u);
    EXPECT_STREQ((*++other.DiagLayerCollection().Begin()).GetShortName(), L"Uds");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Uds");
}

TEST_F(MovingTest, ALayerMovesToTheEndOfItsOwnContainer) {
    auto& layers = m_graph->Container().DiagLayerCollection();
    layers.Adopt(Protocol(L"Uds"));
    std::wstring names;
    for (NODX201::VDiagLayer& layer : layers) {
        names += std::wstring(layer.GetShortName()) + L" ";
    }
    EXPECT_EQ(names, L"Kwp Ecu Uds ");
}

TEST_F(MovingTest, ReferencesByDocrefFollowALayerToItsNewContainer) {
    auto& other = m_graph->Database().AddDiagLayerContainer(L"Other");
    Protocol(L"Kwp").AddDiagService(L"Decoy").SetId(L"Uds.Start");
    auto& ecu = LayerAs<NMemory::VMemEcuVariant>(L"Ecu");
    delete &dynamic_cast<NODX201::VDiagCommLink&>(*ecu.DiagCommProxyCollection().Begin());
    auto& link = ecu.AddDiagCommRef(VReference::ById(L"Uds.Start", L"Other", L"CONTAINER"));
    ASSERT_TRUE(link.HasDiagComm(ecu)) << "by the whole database";
    other.DiagLayerCollection().Adopt(Protocol(L"Kwp"));
    ASSERT_TRUE(link.HasDiagComm(ecu));
    EXPECT_STREQ(link.GetDiagComm().GetShortName(), L"Decoy") << "the one that Other now holds";
}

TEST_F(MovingTest, AMovedLayerIsRemovedFromItsNewContainer) {
    auto& other = m_graph->Database().AddDiagLayerContainer(L"Other");
    auto& uds = Protocol(L"Uds");
    other.DiagLayerCollection().Adopt(uds);
    delete &uds;
    EXPECT_EQ(other.DiagLayerCollection().Count(), 0u);
    EXPECT_EQ(DiagComms(L"Ecu"), L"");
}

TEST_F(MovingTest, AMovedLayerOutlivesItsOldContainer) {
    auto& other = m_graph->Database().AddDiagLayerContainer(L"Other");
    other.DiagLayerCollection().Adopt(Protocol(L"Uds"));
    delete &m_graph->Container();
    EXPECT_EQ(DiagComms(L"Uds"), L"Read@Uds Start@Uds Reset@Uds");
}

TEST_F(MovingTest, AnElementOfAnotherDatabaseDoesNotMove) {
    NMemory::VDatabase other;
    auto& protocol = other.AddDiagLayerContainer(L"Other").AddProtocol(L"P");
    EXPECT_THROW(protocol.MakeDiagCommProxyCollection().Adopt(protocol, Service(L"Uds.Read")), std::invalid_argument);
    EXPECT_THROW(dynamic_cast<NMemory::VMemDiagLayerContainer&>(*other.GetOdx().DiagLayerContainerCollection().Begin())
                     .DiagLayerCollection()
                     .Adopt(Protocol(L"Uds")),
                 std::invalid_argument);
    EXPECT_EQ(DiagComms(L"Uds"), L"Read@Uds Start@Uds Reset@Uds");
    EXPECT_EQ(protocol.DiagCommProxyCollection().Count(), 0u);
}

TEST_F(MovingTest, AnElementDoesNotMoveIntoWhatStandsInIt) {
    auto& outer = Service(L"Uds.Read").AddSdg();
    auto& inner = outer.AddSdg();
    EXPECT_THROW(inner.MakeSdgSdChoiceCollection().Adopt(inner, outer), std::invalid_argument);
    EXPECT_THROW(outer.MakeSdgSdChoiceCollection().Adopt(outer, outer), std::invalid_argument);
    EXPECT_EQ(outer.SdgSdChoiceCollection().Count(), 1u);
    EXPECT_EQ(inner.SdgSdChoiceCollection().Count(), 0u);
}

TEST_F(MovingTest, AnElementDoesNotMoveBeforeOneOfAnotherCollection) {
    auto& uds = Protocol(L"Uds");
    EXPECT_THROW(uds.MakeDiagCommProxyCollection().Adopt(uds, Service(L"Uds.Start"), &Service(L"Kwp.Stop")),
                 std::invalid_argument);
    EXPECT_EQ(DiagComms(L"Uds"), L"Read@Uds Start@Uds Reset@Uds");
}

TEST_F(MovingTest, AnElementOfADetachedPartDoesNotMoveOutOfIt) {
    NMemory::VDatabase& database = m_graph->Database();
    auto part = std::make_unique<NMemory::VPart>(database);
    auto detached = database.GetMemOdx().MakeDetached<NMemory::VMemDiagLayerContainer>(*part);
    auto& uds = Protocol(L"Uds");
    auto& made = detached->AddProtocol(L"Made").AddDiagService(L"Made");
    EXPECT_THROW(uds.MakeDiagCommProxyCollection().Adopt(uds, made), std::invalid_argument);
    EXPECT_EQ(DiagComms(L"Uds"), L"Read@Uds Start@Uds Reset@Uds");
    part->Close();
}

} // namespace
} // namespace NTest
