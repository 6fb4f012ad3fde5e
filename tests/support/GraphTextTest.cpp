// SPDX-License-Identifier: Apache-2.0

// Tests of the tests' own language and checks, on which all tests rely.

#include <stdexcept>

#include <gtest/gtest.h>

#include "support/Graph.h"
#include "support/GraphText.h"
#include "support/NaiveInheritance.h"
#include "support/PrintView.h"
#include "support/VerifyModel.h"

namespace NTest {
namespace {

TEST(GraphTextTest, PrintsWhatItParsed) {
    std::wstring const text = L"esd Lib : Reset! Ident \"\"\n"
                              L"prot Uds : ->Lib.Ident < esd:Lib-Reset-@Lib.Ident-\"\"\n"
                              L"func Doors : < esd:Lib- prot:Gone any:Uds\n"
                              L"base Bv <\n"
                              L"ecu Ecu\n";
    EXPECT_EQ(GraphText(ParseGraph(text)), text);
}

TEST(GraphTextTest, TakesTheKindOfAReferenceFromItsLayer) {
    EXPECT_EQ(GraphText(ParseGraph(L"ecu Ecu < Bv Lib-Read \n base Bv < Fg Uds Ecu \n func Fg \n prot Uds \n esd Lib")),
              L"ecu Ecu < base:Bv esd:Lib-Read\n"
              L"base Bv < func:Fg prot:Uds any:Ecu\n"
              L"func Fg\n"
              L"prot Uds\n"
              L"esd Lib\n");
}

TEST(GraphTextTest, GivesEveryEntryAnIdOfItsOwn) {
    VGraphPlan const plan = ParseGraph(L"esd Lib : Read Read! ->Lib.Read Read");
    ASSERT_EQ(plan.layers.at(0).own.size(), 4u);
    EXPECT_EQ(plan.layers[0].own[0].id, L"Lib.Read");
    EXPECT_EQ(plan.layers[0].own[1].id, L"Lib.Read#2");
    EXPECT_EQ(plan.layers[0].own[2].id, L"");
    EXPECT_EQ(plan.layers[0].own[3].id, L"Lib.Read#3");
}

TEST(GraphTextTest, RefusesWhatIsNoGraph) {
    EXPECT_THROW(ParseGraph(L"layer Lib"), std::invalid_argument);
    EXPECT_THROW(ParseGraph(L"esd Lib Read"), std::invalid_argument);
    EXPECT_THROW(ParseGraph(L"ecu Ecu < Gone"), std::invalid_argument);
    EXPECT_THROW(ParseGraph(L"ecu Ecu < protocol:Gone"), std::invalid_argument);
    EXPECT_THROW(VGraph(ParseGraph(L"esd Lib < Lib")), std::invalid_argument);
}

TEST(GraphTextTest, BuildsTheDatabaseThatTheTextDescribes) {
    VGraph graph(L"esd  Lib : Reset! Ident \n"
                 L"prot Uds : ->Lib.Ident \n"
                 L"base Bv : Start < Uds-Start-@Lib.Reset any:Lib prot:Gone- \n");
    auto& library = graph.LayerAs<NODX201::VEcuSharedData>(L"Lib");
    auto& reset = dynamic_cast<NODX201::VSingleEcuJob&>(graph.DiagComm(L"Lib.Reset"));
    auto& ident = dynamic_cast<NODX201::VDiagService&>(graph.DiagComm(L"Lib.Ident"));
    EXPECT_EQ(reset.GetOwner(), &library);
    EXPECT_EQ(ident.GetOwner(), &library);

    auto& protocol = graph.LayerAs<NODX201::VProtocol>(L"Uds");
    EXPECT_FALSE(protocol.HasParentRefCollection());
    ASSERT_EQ(protocol.DiagCommProxyCollection().Count(), 1u);
    auto& link = dynamic_cast<NODX201::VDiagCommLink&>(*protocol.DiagCommProxyCollection().Begin());
    ASSERT_TRUE(link.HasDiagComm(protocol));
    EXPECT_EQ(&link.GetDiagComm(), &ident);

    auto& base = graph.LayerAs<NODX201::VBaseVariant>(L"Bv");
    ASSERT_EQ(base.ParentRefCollection().Count(), 3u);
    auto iter = base.ParentRefCollection().Begin();
    auto& toUds = dynamic_cast<NODX201::VProtocolRef&>(*iter);
    ASSERT_TRUE(toUds.HasProtocol());
    EXPECT_EQ(&toUds.GetProtocol(), &protocol);
    EXPECT_EQ(toUds.NotInheritedDiagCommCollection().Count(), 2u);
    NODX201::VParentRef& withoutKind = *++iter;
    EXPECT_EQ(dynamic_cast<NODX201::VEcuSharedDataRef*>(&withoutKind), nullptr);
    EXPECT_FALSE(withoutKind.HasNotInheritedDiagCommCollection());
    auto& toNothing = dynamic_cast<NODX201::VProtocolRef&>(*++iter);
    EXPECT_FALSE(toNothing.HasProtocol());
    EXPECT_TRUE(toNothing.HasNotInheritedDiagCommCollection());
    EXPECT_EQ(toNothing.NotInheritedDiagCommCollection().Count(), 0u);
}

TEST(GraphTextTest, PrintsAViewWithTheLayerThatEachEntryComesFrom) {
    VGraph graph(L"esd Lib : Ident Reset! \n ecu Ecu : Start ->Lib.Reset < Lib");
    EXPECT_EQ(PrintDiagComms(graph.Layer(L"Ecu")), L"Start@Ecu Reset@Lib Ident@Lib");
}

TEST(VerifyModelTest, PassesASoundModel) {
    VGraph graph(L"esd Lib : Ident \n prot Uds : ->Lib.Ident ->Lib.Gone < Lib-Ident prot:Gone");
    EXPECT_EQ(FaultsOf(graph.Database()), std::vector<std::wstring>{});
}

TEST(VerifyModelTest, NoticesAnOwnerThatIsNotTheElementAround) {
    VGraph graph(L"esd Lib : Ident \n esd Other");
    auto& library = graph.LayerAs<NMemory::VMemEcuSharedData>(L"Lib");
    auto& other = graph.LayerAs<NMemory::VMemEcuSharedData>(L"Other");
    auto& ident = dynamic_cast<NMemory::VMemDiagService&>(graph.DiagComm(L"Lib.Ident"));
    library.MakeDiagCommProxyCollection().Adopt(other, ident);
    EXPECT_EQ(FaultsOf(graph.Database()),
              std::vector<std::wstring>{L"another owner than the element it stands in at DIAG-SERVICE 'Ident'"});
}

TEST(VerifyModelTest, NoticesACountThatDisagrees) {
    VGraph graph(L"esd Lib : Ident");
    auto made = std::make_unique<NMemory::VPart>(graph.Database());
    NMemory::VPart& part = *made;
    part.CountIn(NODX201::VOdxTagEnum::DiagService);
    graph.Database().Adopt(std::move(made));
    EXPECT_EQ(FaultsOf(graph.Database()), std::vector<std::wstring>{L"the database counts 2 DIAG-SERVICE and holds 1"});
    part.CountOut(NODX201::VOdxTagEnum::DiagService);
}

TEST(NaiveInheritanceTest, AnswersAnExampleWorkedOutByHand) {
    // Bv: own Start; Uds brings Read and, from Lib, Ident (Reset is excluded there); Reset then comes from Lib itself.
    VGraphPlan const plan = ParseGraph(L"esd  Lib : Reset Ident \n"
                                       L"prot Uds : Read  < Lib-Reset \n"
                                       L"base Bv  : Start < Lib Uds-Start \n"
                                       L"ecu  Ecu : Ident < Lib-Reset Bv-Read");
    EXPECT_EQ(NaiveDiagComms(plan, L"Uds"), L"Read@Uds Ident@Lib");
    EXPECT_EQ(NaiveDiagComms(plan, L"Bv"), L"Start@Bv Read@Uds Ident@Lib Reset@Lib");
    EXPECT_EQ(NaiveDiagComms(plan, L"Ecu"), L"Ident@Ecu Start@Bv Reset@Lib");
}

} // namespace
} // namespace NTest
