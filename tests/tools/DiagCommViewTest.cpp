// SPDX-License-Identifier: Apache-2.0

// Which elements are visible in a layer, and the meaning of comparing and searching a view.

#include <diagkit/tools/DiagCommView.h>

#include "support/GraphTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VDiagCommView;

class DiagCommViewTest : public VGraphTest {};

TEST_F(DiagCommViewTest, ALayerWithoutDiagCommsAndParentRefsHasAnEmptyView) {
    Graph(LR"(
        esd  Lib
        prot Uds
        func Doors
        base Bv
        ecu  Ecu
    )");
    auto const expectEmpty = [](VDiagCommView&& view) {
        EXPECT_EQ(view.Count(), 0u);
        EXPECT_TRUE(view.IsEmpty());
        EXPECT_TRUE(view.Begin() == view.End());
    };
    expectEmpty(VDiagCommView(LayerAs<NODX201::VEcuSharedData>(L"Lib")));
    expectEmpty(VDiagCommView(LayerAs<NODX201::VProtocol>(L"Uds")));
    expectEmpty(VDiagCommView(LayerAs<NODX201::VFunctionalGroup>(L"Doors")));
    expectEmpty(VDiagCommView(LayerAs<NODX201::VBaseVariant>(L"Bv")));
    expectEmpty(VDiagCommView(LayerAs<NODX201::VEcuVariant>(L"Ecu")));
}

TEST_F(DiagCommViewTest, EmptyDiagCommsAndParentRefsMakeAnEmptyView) {
    Graph(L"ecu Ecu : <");
    VDiagCommView view(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    EXPECT_TRUE(view.IsEmpty());
    EXPECT_TRUE(view.Begin() == view.End());
}

TEST_F(DiagCommViewTest, AnOwnDiagCommWinsOverAParentsAndKeepsItsPosition) {
    Graph(LR"(
        base Bv  : Read Start Stop
        ecu  Ecu : Reset Start Ident  < Bv
    )");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Reset@Ecu Start@Ecu Ident@Ecu Read@Bv Stop@Bv");
}

TEST_F(DiagCommViewTest, AnOwnDiagCommReachedByReferenceAlsoWins) {
    Graph(LR"(
        esd  Lib : Start
        base Bv  : Start
        ecu  Ecu : ->Lib.Start  < Bv
    )");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Lib");
}

TEST_F(DiagCommViewTest, OfTwoParentsThatOfferANameTheFirstReferencedWins) {
    Graph(LR"(
        base One : Start
        base Two : Start Stop
        ecu  A   < One Two
        ecu  B   < Two One
    )");
    EXPECT_EQ(DiagComms(L"A"), L"Start@One Stop@Two");
    EXPECT_EQ(DiagComms(L"B"), L"Start@Two Stop@Two");
}

TEST_F(DiagCommViewTest, EcuSharedDataReferencedBeforeProtocolRanksBelowIt) {
    Graph(LR"(
        esd  Lib  : Start Ident
        prot Uds  : Start Read
        func Doors           < Lib Uds
        base Bv              < Lib Uds
    )");
    EXPECT_EQ(DiagComms(L"Doors"), L"Start@Uds Read@Uds Ident@Lib");
    EXPECT_EQ(DiagComms(L"Bv"), L"Start@Uds Read@Uds Ident@Lib");
}

TEST_F(DiagCommViewTest, EcuSharedDataReferencedBeforeFunctionalGroupRanksBelowIt) {
    Graph(LR"(
        esd  Lib   : Start Ident
        func Doors : Start Read
        base Bv              < Lib Doors
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Start@Doors Read@Doors Ident@Lib");
}

TEST_F(DiagCommViewTest, EcuSharedDataReferencedBeforeBaseVariantRanksBelowIt) {
    Graph(LR"(
        esd  Lib : Start Ident
        base Bv  : Start Read
        ecu  Ecu           < Lib Bv
    )");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Bv Read@Bv Ident@Lib");
}

TEST_F(DiagCommViewTest, OfTwoEcuSharedDatasThatOfferANameTheFirstReferencedWins) {
    Graph(LR"(
        esd  One : Start
        esd  Two : Start Stop
        prot Uds           < Two One
    )");
    EXPECT_EQ(DiagComms(L"Uds"), L"Start@Two Stop@Two");
}

TEST_F(DiagCommViewTest, ADiagCommListedDirectlyAndByReferenceIsShownTwice) {
    Graph(L"ecu Ecu : Start Read ->Ecu.Start");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Ecu Read@Ecu Start@Ecu");

    VDiagCommView view(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    auto last = view.Begin();
    ++last;
    ++last;
    EXPECT_EQ(&*view.Begin(), &*last) << "both entries are the one DIAG-COMM";
}

TEST_F(DiagCommViewTest, TwoOwnDiagCommsOfOneNameAreBothShown) {
    Graph(L"ecu Ecu : Start Read Start!");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Ecu Read@Ecu Start@Ecu");
}

TEST_F(DiagCommViewTest, InheritedDuplicatesOfANameAreNotAdded) {
    Graph(LR"(
        esd  Lib : Read Read! Ident
        prot Uds            < Lib
        ecu  Ecu : Ident Ident  < esd:Lib
    )");
    EXPECT_EQ(DiagComms(L"Uds"), L"Read@Lib Ident@Lib");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Ident@Ecu Ident@Ecu Read@Lib");

    VDiagCommView view(LayerAs<NODX201::VProtocol>(L"Uds"));
    EXPECT_EQ(&*view.Begin(), &DiagComm(L"Lib.Read")) << "the first of the name";
}

TEST_F(DiagCommViewTest, OneParentReferencedTwiceIsInheritedOnce) {
    Graph(LR"(
        prot Uds : Read Start
        base Bv              < Uds-Read Uds-Start
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Start@Uds Read@Uds");
}

TEST_F(DiagCommViewTest, ExclusionAlsoRemovesWhatTheParentInherited) {
    Graph(LR"(
        esd  Lib : Reset Ident
        prot Uds : Read        < Lib
        base Bv  : Start       < Uds-Reset
        ecu  Ecu               < Bv
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Start@Bv Read@Uds Ident@Lib");
    EXPECT_EQ(DiagComms(L"Ecu"), L"Start@Bv Read@Uds Ident@Lib");
    EXPECT_EQ(DiagComms(L"Uds"), L"Read@Uds Reset@Lib Ident@Lib") << "the parent itself keeps it";
}

TEST_F(DiagCommViewTest, ExclusionDoesNotRemoveAnOwnDiagComm) {
    Graph(LR"(
        prot Uds : Reset Read
        base Bv  : Reset       < Uds-Reset
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Reset@Bv Read@Uds");
}

TEST_F(DiagCommViewTest, ExclusionDoesNotReachAnotherParentReference) {
    Graph(LR"(
        esd  Lib : Reset
        prot Uds : Reset Read
        prot Kwp : Reset
        base A                < Uds-Reset Kwp
        base B                < Kwp Uds-Reset
        base C                < Uds-Reset Lib
    )");
    EXPECT_EQ(DiagComms(L"A"), L"Read@Uds Reset@Kwp");
    EXPECT_EQ(DiagComms(L"B"), L"Reset@Kwp Read@Uds");
    EXPECT_EQ(DiagComms(L"C"), L"Read@Uds Reset@Lib");
}

TEST_F(DiagCommViewTest, NamesThatDifferInLetterCaseAreDifferentNames) {
    Graph(LR"(
        prot Uds : read READ Start
        base Bv  : Read             < Uds-start-READ
    )");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read@Bv read@Uds Start@Uds");

    VDiagCommView view(LayerAs<NODX201::VBaseVariant>(L"Bv"));
    EXPECT_EQ(&*view.Find(L"read"), &DiagComm(L"Uds.read"));
    EXPECT_EQ(&*view.Find(L"Read"), &DiagComm(L"Bv.Read"));
    EXPECT_TRUE(view.Find(L"rEAD") == view.End());
}

TEST_F(DiagCommViewTest, NamesAreNotTrimmed) {
    Graph(L"prot Uds : Read \n base Bv : Start < Uds");
    auto& start = dynamic_cast<NMemory::VMemDiagService&>(DiagComm(L"Bv.Start"));
    start.SetShortName(L"Read ");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read @Bv Read@Uds");
    VDiagCommView view(LayerAs<NODX201::VBaseVariant>(L"Bv"));
    EXPECT_TRUE(view.Find(L" Read") == view.End());
    EXPECT_EQ(&*view.Find(L"Read "), &start);
}

TEST_F(DiagCommViewTest, TheEmptyNameFindsOnlyAnEntryOfTheEmptyName) {
    Graph(LR"(
        ecu Named   : Start
        ecu Unnamed : Start ""
    )");
    VDiagCommView named(LayerAs<NODX201::VEcuVariant>(L"Named"));
    EXPECT_TRUE(named.Find(L"") == named.End());
    VDiagCommView unnamed(LayerAs<NODX201::VEcuVariant>(L"Unnamed"));
    ASSERT_FALSE(unnamed.Find(L"") == unnamed.End());
    EXPECT_EQ(&*unnamed.Find(L""), &DiagComm(L"Unnamed."));
}

TEST_F(DiagCommViewTest, TheEmptyNameIsInheritedOverriddenAndExcludedLikeAnyOther) {
    Graph(LR"(
        prot Uds : "" Read
        base A             < Uds
        base B   : ""      < Uds
        base C             < Uds-""
    )");
    EXPECT_EQ(DiagComms(L"A"), L"@Uds Read@Uds");
    EXPECT_EQ(DiagComms(L"B"), L"@B Read@Uds");
    EXPECT_EQ(DiagComms(L"C"), L"Read@Uds");
}

TEST_F(DiagCommViewTest, TwoViewsOfOneLayerAreEqualUntilAnEntryIsRemoved) {
    Graph(L"prot Uds : Read Start \n base Bv : Reset < Uds");
    auto& layer = LayerAs<NODX201::VBaseVariant>(L"Bv");
    for (wchar_t const* const id : {L"Bv.Reset", L"Uds.Read", L"Uds.Start"}) {
        VDiagCommView one(layer);
        VDiagCommView two(layer);
        EXPECT_TRUE(one == two);
        EXPECT_FALSE(one != two);
        two.Remove(DiagComm(id));
        EXPECT_FALSE(one == two);
        EXPECT_TRUE(one != two);
    }
}

TEST_F(DiagCommViewTest, ViewsAreEqualByIdentityAndOrder) {
    Graph(LR"(
        ecu A : Read Start
        ecu B : Read Start
        ecu C : ->A.Read ->A.Start
        ecu D : ->A.Start ->A.Read
        ecu E : ->A.Read
    )");
    VDiagCommView a(LayerAs<NODX201::VEcuVariant>(L"A"));
    VDiagCommView b(LayerAs<NODX201::VEcuVariant>(L"B"));
    VDiagCommView c(LayerAs<NODX201::VEcuVariant>(L"C"));
    VDiagCommView d(LayerAs<NODX201::VEcuVariant>(L"D"));
    VDiagCommView e(LayerAs<NODX201::VEcuVariant>(L"E"));
    EXPECT_TRUE(a == a);
    EXPECT_FALSE(a != a);
    EXPECT_TRUE(a == c) << "the same elements in the same order, whichever layer was viewed";
    EXPECT_FALSE(a == b) << "equal names, other elements";
    EXPECT_TRUE(a != b);
    EXPECT_FALSE(a == d) << "the same elements in another order";
    EXPECT_FALSE(a == e) << "a part of the elements";
    EXPECT_FALSE(e == a);
}

TEST_F(DiagCommViewTest, EmptyViewsAreEqual) {
    Graph(L"ecu A \n prot B");
    VDiagCommView a(LayerAs<NODX201::VEcuVariant>(L"A"));
    VDiagCommView b(LayerAs<NODX201::VProtocol>(L"B"));
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST_F(DiagCommViewTest, ExclusionsPlayNoPartInEquality) {
    Graph(LR"(
        prot Uds : Read
        base A           < Uds-Start
        base B           < Uds
    )");
    VDiagCommView a(LayerAs<NODX201::VBaseVariant>(L"A"));
    VDiagCommView b(LayerAs<NODX201::VBaseVariant>(L"B"));
    EXPECT_TRUE(a == b);
}

TEST_F(DiagCommViewTest, AViewIsComputedAfresh) {
    Graph(L"prot Uds : Read \n base Bv < Uds");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read@Uds");
    LayerAs<NMemory::VMemProtocol>(L"Uds").AddDiagService(L"Start");
    EXPECT_EQ(DiagComms(L"Bv"), L"Read@Uds Start@Uds");
}

} // namespace
} // namespace NTest
