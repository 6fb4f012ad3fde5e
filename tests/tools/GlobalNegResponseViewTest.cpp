// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/GlobalNegResponseView.h>

#include <cstdint>
#include <type_traits>

#include <diagkit/model/Responses.h>

#include "support/GraphText.h"
#include "support/MockElements.h"
#include "support/NaiveInheritance.h"
#include "support/RandomGraph.h"
#include "support/Slots.h"
#include "tools/ContentGraph.h"

namespace NTest {
namespace {

using NDIAGKIT::VGlobalNegResponseView;

static_assert(std::is_convertible_v<VGlobalNegResponseView*, NODX201::VDiagLayerVisitor*>, "its own visitor");
static_assert(std::has_virtual_destructor_v<VGlobalNegResponseView>);
static_assert(!std::is_default_constructible_v<VGlobalNegResponseView>);
static_assert(std::is_same_v<decltype(*std::declval<VGlobalNegResponseView&>().Begin()), NODX201::VGlobalNegResponse&>);

class VOpenGlobalNegResponseView : public VGlobalNegResponseView {
public:
    using VGlobalNegResponseView::_Find;
    using VGlobalNegResponseView::_Insert;
    using VGlobalNegResponseView::_Remove;
    using VGlobalNegResponseView::m_collection;
    using VGlobalNegResponseView::VGlobalNegResponseView;
    using VGlobalNegResponseView::VisitBaseVariant;
    using VGlobalNegResponseView::VisitEcuSharedData;
    using VGlobalNegResponseView::VisitEcuVariant;
    using VGlobalNegResponseView::VisitFunctionalGroup;
    using VGlobalNegResponseView::VisitProtocol;
};

std::wstring PrintResponses(NODX201::VDiagLayer& layer) {
    VGlobalNegResponseView view(layer);
    return PrintEntries(view);
}

class GlobalNegResponseViewTest : public VContentTest {
protected:
    GlobalNegResponseViewTest() : VContentTest(VContent::GlobalNegResponses) {}

    std::wstring Responses(wchar_t const* layer) { return PrintResponses(Layer(layer)); }
    NODX201::VGlobalNegResponse& Response(wchar_t const* id) { return ById<NODX201::VGlobalNegResponse>(id); }
};

TEST_F(GlobalNegResponseViewTest, ALayerWithoutGlobalNegResponsesAndParentsHasAnEmptyView) {
    Graph(L"esd Lib : Neg! ->Pos \n prot Uds : \n func Doors < \n base Bv \n ecu Ecu : Neg! <");
    for (wchar_t const* const layer : {L"Lib", L"Uds", L"Doors", L"Bv", L"Ecu"}) {
        VGlobalNegResponseView view(Layer(layer));
        EXPECT_EQ(view.Count(), 0u) << layer;
        EXPECT_TRUE(view.IsEmpty()) << layer;
        EXPECT_TRUE(view.Begin() == view.End()) << layer;
    }
}

TEST_F(GlobalNegResponseViewTest, AnEcuSharedDatasIsInheritedByEveryKindButRanksBelowTheOtherParents) {
    Graph(LR"(
        esd  Lib   : x FromLib
        prot Uds   : x
        func Doors : x
        base Bv    : x
        prot P     < Lib
        func F     < Lib Uds
        base OverP < Lib Uds
        base OverF < Lib Doors
        ecu  E     < Lib Bv
    )");
    EXPECT_EQ(Responses(L"P"), L"x@Lib FromLib@Lib");
    EXPECT_EQ(Responses(L"F"), L"x@Uds FromLib@Lib");
    EXPECT_EQ(Responses(L"OverP"), L"x@Uds FromLib@Lib");
    EXPECT_EQ(Responses(L"OverF"), L"x@Doors FromLib@Lib");
    EXPECT_EQ(Responses(L"E"), L"x@Bv FromLib@Lib");
}

TEST_F(GlobalNegResponseViewTest, NotInheritedListsHaveNoEffect) {
    Graph(LR"(
        base Bv  : Busy Denied
        ecu  Ecu < Bv-Busy-@Bv.Denied
    )");
    EXPECT_EQ(Responses(L"Ecu"), L"Busy@Bv Denied@Bv");
}

TEST_F(GlobalNegResponseViewTest, OwnEntriesArePickedByTagInDocumentOrderWithoutADuplicateTest) {
    Graph(L"ecu Ecu : Neg! B ->Pos A Neg! B");
    EXPECT_EQ(Responses(L"Ecu"), L"B@Ecu A@Ecu B@Ecu");
    EXPECT_EQ(static_cast<int>(NODX201::VOdxTagEnum::GlobalNegResponse), 233);
}

TEST_F(GlobalNegResponseViewTest, EachKindOfLayerAcceptsItsKindsOfParentsInItsPasses) {
    Graph(LR"(
        esd  Lib1   : FromLib1
        esd  Lib2   : FromLib2
        prot Uds1   : FromUds1
        prot Uds2   : FromUds2
        func Doors1 : FromDoors1
        func Doors2 : FromDoors2
        base Bv1    : FromBv1
        base Bv2    : FromBv2
        prot P : Own < Lib2 Bv2 Uds1 Doors1 Doors2 Bv1 Uds2 Lib1
        func F : Own < Lib2 Bv2 Uds1 Doors1 Doors2 Bv1 Uds2 Lib1
        base B : Own < Lib2 Bv2 Uds1 Doors1 Doors2 Bv1 Uds2 Lib1
        ecu  E : Own < Lib2 Bv2 Uds1 Doors1 Doors2 Bv1 Uds2 Lib1
    )");
    EXPECT_EQ(Responses(L"Lib1"), L"FromLib1@Lib1");
    EXPECT_EQ(Responses(L"P"), L"Own@P FromLib2@Lib2 FromLib1@Lib1");
    EXPECT_EQ(Responses(L"F"), L"Own@F FromUds1@Uds1 FromUds2@Uds2 FromLib2@Lib2 FromLib1@Lib1");
    EXPECT_EQ(Responses(L"B"), L"Own@B FromUds1@Uds1 FromDoors1@Doors1 FromDoors2@Doors2 FromUds2@Uds2 "
                               L"FromLib2@Lib2 FromLib1@Lib1");
    EXPECT_EQ(Responses(L"E"), L"Own@E FromBv2@Bv2 FromBv1@Bv1 FromLib2@Lib2 FromLib1@Lib1");
}

TEST_F(GlobalNegResponseViewTest, AParentBringsItsFullViewAndANameThatIsTakenIsNotMerged) {
    Graph(LR"(
        esd  Lib   : Denied Busy
        prot Uds   : Busy busy  < Lib
        func Doors : Locked     < Uds
        base Bv    : Busy       < Doors
        ecu  Ecu   : Stop       < Bv
    )");
    EXPECT_EQ(Responses(L"Uds"), L"Busy@Uds busy@Uds Denied@Lib");
    EXPECT_EQ(Responses(L"Ecu"), L"Stop@Ecu Busy@Bv Locked@Doors busy@Uds Denied@Lib");
}

TEST_F(GlobalNegResponseViewTest, AReferenceWithoutATargetOrToAnotherKindIsSkipped) {
    Graph(LR"(
        esd  Lib : Busy
        prot Uds < esd:Gone prot:Lib Lib
        func F   < prot:Gone any:Lib Uds
        base Bv  < func:Gone func:Uds F prot:Gone
        ecu  Ecu < base:Gone base:F Bv
    )");
    EXPECT_EQ(Responses(L"Ecu"), L"Busy@Lib");
}

TEST_F(GlobalNegResponseViewTest, AVisitAddsTheViewOfItsLayer) {
    Graph(L"esd Lib : L \n prot Uds : P \n func Doors : F \n base Bv : B \n ecu Ecu : E \n ecu Empty");
    VOpenGlobalNegResponseView view(Layer(L"Empty"));
    view.VisitEcuSharedData(LayerAs<NODX201::VEcuSharedData>(L"Lib"));
    view.VisitProtocol(LayerAs<NODX201::VProtocol>(L"Uds"));
    view.VisitFunctionalGroup(LayerAs<NODX201::VFunctionalGroup>(L"Doors"));
    view.VisitBaseVariant(LayerAs<NODX201::VBaseVariant>(L"Bv"));
    view.VisitEcuVariant(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    view.DispatchDiagLayer(Layer(L"Lib"));
    EXPECT_EQ(PrintEntries(view), L"L@Lib P@Uds F@Doors B@Bv E@Ecu L@Lib");
}

#ifdef DIAGKIT_TEST_SLOTS
TEST_F(GlobalNegResponseViewTest, TheVisitOperationsKeepTheVisitorsPlaces) {
    EXPECT_EQ(SlotsOf(&VOpenGlobalNegResponseView::VisitBaseVariant, &VOpenGlobalNegResponseView::VisitProtocol,
                      &VOpenGlobalNegResponseView::VisitFunctionalGroup, &VOpenGlobalNegResponseView::VisitEcuVariant,
                      &VOpenGlobalNegResponseView::VisitEcuSharedData, &VOpenGlobalNegResponseView::DispatchDiagLayer),
              SlotsAfterDestructor(6));
}
#endif

/// A response of one class with any tag.
template <class Contract>
class VMockResponse : public VMockElement<Contract> {
public:
    VMockResponse(wchar_t const* shortName, NODX201::VOdxTagEnum tag) : VMockElement<Contract>(shortName), m_tag(tag) {}

    NODX201::VOdxTagEnum GetOdxTag() const override { return m_tag; }
    wchar_t const* GetId() const override { return L""; }
    bool HasAdminData() const override { return false; }
    NODX201::VAdminData& GetAdminData() override { NotExpected("GetAdminData"); }
    NODX201::VParamCollection& ParamCollection() override { NotExpected("ParamCollection"); }

private:
    NODX201::VOdxTagEnum m_tag;
};

/// An ECU-VARIANT with responses; it throws when its absent PARENT-REFS are requested.
class VLayerOfResponses : public VMockEcuVariant {
public:
    NODX201::VResponseCollection& ResponseCollection() override { return m_responses; }

    VMockCollection<NODX201::VResponseCollection> m_responses;
};

TEST(GlobalNegResponseViewMockTest, AbsentParentRefsAreNotAskedFor) {
    VLayerOfResponses layer;
    EXPECT_TRUE(VGlobalNegResponseView(layer).IsEmpty());
    EXPECT_THROW(layer.ParentRefCollection(), std::logic_error);
}

TEST(GlobalNegResponseViewMockTest, TheTagAndTheClassMustBothAgree) {
    using VTag = NODX201::VOdxTagEnum;
    VMockResponse<NODX201::VGlobalNegResponse> wrongTag(L"WrongTag", VTag::NegResponse);
    VMockResponse<NODX201::VNegResponse> wrongClass(L"WrongClass", VTag::GlobalNegResponse);
    VMockResponse<NODX201::VGlobalNegResponse> right(L"Right", VTag::GlobalNegResponse);
    VLayerOfResponses layer;
    layer.m_responses.Add(&wrongTag);
    layer.m_responses.Add(&wrongClass);
    layer.m_responses.Add(&right);
    VGlobalNegResponseView view(layer);
    ASSERT_EQ(view.Count(), 1u);
    EXPECT_EQ(&*view.Begin(), &right);
}

class GlobalNegResponseViewContainerTest : public GlobalNegResponseViewTest {
protected:
    void SetUp() override {
        Graph(L"esd Lib : Denied \n ecu Ecu : Busy Locked Busy");
        m_view = std::make_unique<VOpenGlobalNegResponseView>(Layer(L"Ecu"));
    }

    std::unique_ptr<VOpenGlobalNegResponseView> m_view;
};

TEST_F(GlobalNegResponseViewContainerTest, FindByElementFindsThisVeryObject) {
    EXPECT_EQ(&*m_view->Find(Response(L"Ecu.Busy#2")), &Response(L"Ecu.Busy#2"));
    EXPECT_TRUE(m_view->Find(Response(L"Lib.Denied")) == m_view->End());
}

TEST_F(GlobalNegResponseViewContainerTest, FindByNameFindsTheFirstOfExactlyTheName) {
    EXPECT_EQ(&*m_view->Find(L"Busy"), &Response(L"Ecu.Busy"));
    for (wchar_t const* const name : {L"busy", L"Bus", L"Busy ", L"", L"Denied"}) {
        EXPECT_TRUE(m_view->Find(name) == m_view->End());
    }
}

TEST_F(GlobalNegResponseViewContainerTest, AppendAndInnerInsertLookForNoDuplicates) {
    m_view->Append(Response(L"Ecu.Busy"));
    m_view->_Insert(m_view->_Find(Response(L"Ecu.Locked")), Response(L"Lib.Denied"));
    EXPECT_EQ(PrintEntries(*m_view), L"Busy@Ecu Denied@Lib Locked@Ecu Busy@Ecu Busy@Ecu");
}

TEST_F(GlobalNegResponseViewContainerTest, RemoveByReferenceLeavesTheElementAlive) {
    m_view->Remove(Response(L"Ecu.Busy"));
    EXPECT_EQ(PrintEntries(*m_view), L"Locked@Ecu Busy@Ecu");
    EXPECT_EQ(Responses(L"Ecu"), L"Busy@Ecu Locked@Ecu Busy@Ecu");
}

TEST_F(GlobalNegResponseViewContainerTest, RemoveByIteratorDestroysTheElement) {
    m_view->Remove(m_view->Find(L"Busy"));
    EXPECT_EQ(PrintEntries(*m_view), L"Locked@Ecu Busy@Ecu");
    EXPECT_EQ(Responses(L"Ecu"), L"Locked@Ecu Busy@Ecu") << "gone from the model";
    VerifyModel(Database());
}

TEST_F(GlobalNegResponseViewContainerTest, RemovalsOfWhatIsNotThereAssertAndChangeNothing) {
    m_view->Remove(Response(L"Lib.Denied"));
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"false", L"GlobalNegResponseView", 338}}));
    m_view->Remove(m_view->End());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != End()", L"GlobalNegResponseView", 346},
                                                   {L"iter != m_collection.end()", L"GlobalNegResponseView", 423}}));
    m_view->_Remove(m_view->m_collection.end());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != m_collection.end()", L"GlobalNegResponseView", 423}}));
    EXPECT_EQ(PrintEntries(*m_view), L"Busy@Ecu Locked@Ecu Busy@Ecu");
}

TEST_F(GlobalNegResponseViewContainerTest, ViewsOfTheSameObjectsInTheSameOrderAreEqual) {
    VGlobalNegResponseView twin(Layer(L"Ecu"));
    EXPECT_TRUE(*m_view == twin);
    EXPECT_FALSE(*m_view != twin);
    twin.Remove(Response(L"Ecu.Busy"));
    EXPECT_TRUE(*m_view != twin);
    twin.Append(Response(L"Ecu.Busy"));
    EXPECT_TRUE(*m_view != twin) << "another order";
}

TEST(GlobalNegResponseViewRandomGraphsTest, AgreeWithTheNaiveReading) {
    for (std::uint32_t seed = 1; seed <= 2000; ++seed) {
        VGraphPlan const plan = RandomGraph(seed);
        auto const graph = MakeContentGraph(plan, VContent::GlobalNegResponses);
        for (VLayerPlan const& layer : plan.layers) {
            ASSERT_EQ(PrintResponses(graph->Layer(layer.name)), NaiveGlobalNegResponses(plan, layer.name))
                << "layer " << layer.name << ", seed " << seed << ", graph\n"
                << GraphText(plan);
        }
    }
}

} // namespace
} // namespace NTest
