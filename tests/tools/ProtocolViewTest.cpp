// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/ProtocolView.h>

#include <type_traits>

#include "support/Slots.h"
#include "tools/ContentGraph.h"

namespace NTest {
namespace {

using NDIAGKIT::VProtocolView;

static_assert(std::is_convertible_v<VProtocolView*, NODX201::VDiagLayerVisitor*>, "its own visitor");
static_assert(std::has_virtual_destructor_v<VProtocolView>);
static_assert(!std::is_default_constructible_v<VProtocolView>);
static_assert(std::is_same_v<decltype(*std::declval<VProtocolView&>().Begin()), NODX201::VProtocol&>);

class VOpenProtocolView : public VProtocolView {
public:
    using VProtocolView::_Find;
    using VProtocolView::_Insert;
    using VProtocolView::_Remove;
    using VProtocolView::EvaluateAndAddProtocolsFrom;
    using VProtocolView::m_collection;
    using VProtocolView::VisitBaseVariant;
    using VProtocolView::VisitEcuSharedData;
    using VProtocolView::VisitEcuVariant;
    using VProtocolView::VisitFunctionalGroup;
    using VProtocolView::VisitProtocol;
    using VProtocolView::VProtocolView;
};

/// The short names of the PROTOCOLs, separated by blanks.
std::wstring Names(VProtocolView& view) {
    std::wstring text;
    for (NODX201::VProtocol& protocol : view) {
        text += (text.empty() ? L"" : L" ") + std::wstring(protocol.GetShortName());
    }
    return text;
}

class ProtocolViewTest : public VContentTest {
protected:
    ProtocolViewTest() : VContentTest(VContent::Dops) {}

    NODX201::VProtocol& Protocol(wchar_t const* name) { return LayerAs<NODX201::VProtocol>(name); }

    std::wstring OfContainer() {
        VProtocolView view(m_graph->Container());
        return Names(view);
    }
    std::wstring OfBaseVariant(wchar_t const* name) {
        VProtocolView view(LayerAs<NODX201::VBaseVariant>(name));
        return Names(view);
    }
};

TEST_F(ProtocolViewTest, AContainerWithoutProtocolsYieldsAnEmptyView) {
    Graph(L"");
    EXPECT_TRUE(VProtocolView(m_graph->Container()).IsEmpty());
    Graph(L"base Bv \n ecu Ecu < Bv \n func Doors \n esd Lib");
    VProtocolView view(m_graph->Container());
    EXPECT_EQ(view.Count(), 0u);
    EXPECT_TRUE(view.IsEmpty());
    EXPECT_TRUE(view.Begin() == view.End());
}

TEST_F(ProtocolViewTest, AContainersProtocolsAreListedInDocumentOrder) {
    Graph(L"base Bv < Uds \n prot Uds \n ecu Ecu < Bv \n prot Kwp \n esd Lib \n func Doors < Uds \n prot Can");
    EXPECT_EQ(OfContainer(), L"Uds Kwp Can");
    Database().AddDiagLayerContainer(L"Another").AddProtocol(L"Elsewhere");
    EXPECT_EQ(OfContainer(), L"Uds Kwp Can") << "of this container alone";
}

TEST_F(ProtocolViewTest, ABaseVariantWithoutParentRefsYieldsAnEmptyView) {
    Graph(L"prot Uds \n base Bv \n base Empty <");
    EXPECT_TRUE(VProtocolView(LayerAs<NODX201::VBaseVariant>(L"Bv")).IsEmpty());
    EXPECT_EQ(OfBaseVariant(L"Empty"), L"");
}

TEST_F(ProtocolViewTest, ProtocolReferencedTwiceIsInTheViewTwice) {
    Graph(LR"(
        prot P
        prot Q
        func F    < P Q
        func G    < Q
        base Both < P F
        base Two  < F G
        base Same < P P
    )");
    EXPECT_EQ(OfBaseVariant(L"Both"), L"P P Q");
    EXPECT_EQ(OfBaseVariant(L"Two"), L"P Q Q");
    EXPECT_EQ(OfBaseVariant(L"Same"), L"P P");
}

TEST_F(ProtocolViewTest, AProtocolsParentsAndOtherReferencesOfAGroupAreNotFollowed) {
    Graph(LR"(
        esd  Lib
        prot P     < Lib
        func Inner < P
        func Outer < Lib Inner
        base Bv    < Outer Lib
    )");
    EXPECT_EQ(OfBaseVariant(L"Bv"), L"") << "neither the ECU-SHARED-DATA nor a group of a group";
}

TEST_F(ProtocolViewTest, ReferencesAreMetInOnePassInTheirOrder) {
    Graph(LR"(
        esd  Lib
        prot A
        prot B
        prot C
        prot D
        func F  < D Lib B
        base Bv < C Lib F A
    )");
    EXPECT_EQ(OfBaseVariant(L"Bv"), L"C D B A");
}

TEST_F(ProtocolViewTest, NotInheritedListsAndReferencesWithoutATargetPlayNoPart) {
    Graph(LR"(
        prot P : Read
        func F       < prot:Gone P-Read func:P
        base Other   < P
        base Bv      < func:Gone prot:F any:P prot:Gone base:Other F-Read P-Read
    )");
    EXPECT_EQ(OfBaseVariant(L"Bv"), L"P P");
}

TEST_F(ProtocolViewTest, OnlyAVisitedProtocolIsAppended) {
    Graph(L"esd Lib \n prot Uds \n func Doors < Uds \n base Bv < Uds \n ecu Ecu < Bv \n base Empty");
    VOpenProtocolView view(LayerAs<NODX201::VBaseVariant>(L"Empty"));
    view.VisitBaseVariant(LayerAs<NODX201::VBaseVariant>(L"Bv"));
    view.VisitFunctionalGroup(LayerAs<NODX201::VFunctionalGroup>(L"Doors"));
    view.VisitEcuVariant(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    view.VisitEcuSharedData(LayerAs<NODX201::VEcuSharedData>(L"Lib"));
    EXPECT_EQ(Names(view), L"");
    view.VisitProtocol(Protocol(L"Uds"));
    view.DispatchDiagLayer(Layer(L"Uds"));
    EXPECT_EQ(Names(view), L"Uds Uds");
    view.EvaluateAndAddProtocolsFrom(LayerAs<NODX201::VFunctionalGroup>(L"Doors").ParentRefCollection());
    EXPECT_EQ(Names(view), L"Uds Uds Uds");
}

#ifdef DIAGKIT_TEST_SLOTS
TEST_F(ProtocolViewTest, TheVisitOperationsKeepTheVisitorsPlaces) {
    EXPECT_EQ(SlotsOf(&VOpenProtocolView::VisitBaseVariant, &VOpenProtocolView::VisitProtocol,
                      &VOpenProtocolView::VisitFunctionalGroup, &VOpenProtocolView::VisitEcuVariant,
                      &VOpenProtocolView::VisitEcuSharedData, &VOpenProtocolView::DispatchDiagLayer),
              SlotsAfterDestructor(6));
}
#endif

class ProtocolViewContainerTest : public ProtocolViewTest {
protected:
    void SetUp() override {
        Graph(L"prot Uds \n prot Kwp \n base Bv < Uds Kwp Uds \n prot Can");
        m_view = std::make_unique<VOpenProtocolView>(LayerAs<NODX201::VBaseVariant>(L"Bv"));
    }

    std::unique_ptr<VOpenProtocolView> m_view;
};

TEST_F(ProtocolViewContainerTest, BothFindsFindTheFirstEntry) {
    EXPECT_TRUE(m_view->Find(Protocol(L"Uds")) == m_view->Begin());
    EXPECT_TRUE(m_view->Find(L"Uds") == m_view->Begin());
    EXPECT_EQ(&*m_view->Find(L"Kwp"), &Protocol(L"Kwp"));
    EXPECT_TRUE(m_view->Find(Protocol(L"Can")) == m_view->End());
    for (wchar_t const* const name : {L"uds", L"Ud", L"Uds ", L"", L"Can"}) {
        EXPECT_TRUE(m_view->Find(name) == m_view->End());
    }
}

TEST_F(ProtocolViewContainerTest, AppendAndInnerInsertLookForNoDuplicates) {
    m_view->Append(Protocol(L"Kwp"));
    m_view->_Insert(m_view->_Find(Protocol(L"Kwp")), Protocol(L"Can"));
    EXPECT_EQ(Names(*m_view), L"Uds Can Kwp Uds Kwp");
    EXPECT_EQ(m_view->Count(), 5u);
}

TEST_F(ProtocolViewContainerTest, RemoveByReferenceLeavesTheElementAlive) {
    m_view->Remove(Protocol(L"Uds"));
    EXPECT_EQ(Names(*m_view), L"Kwp Uds") << "the first entry alone";
    EXPECT_EQ(OfContainer(), L"Uds Kwp Can");
}

TEST_F(ProtocolViewContainerTest, RemoveByIteratorDestroysTheElement) {
    m_view->Remove(m_view->Find(L"Kwp"));
    EXPECT_EQ(Names(*m_view), L"Uds Uds");
    EXPECT_EQ(OfContainer(), L"Uds Can");
    EXPECT_EQ(OfBaseVariant(L"Bv"), L"Uds Uds") << "the reference has lost its target";
    VerifyModel(Database());
}

TEST_F(ProtocolViewContainerTest, RemovalsOfWhatIsNotThereAssertAndChangeNothing) {
    m_view->Remove(Protocol(L"Can"));
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"false", L"ProtocolView", 197}}));
    m_view->Remove(m_view->End());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != End()", L"ProtocolView", 205},
                                                   {L"iter != m_collection.end()", L"ProtocolView", 283}}));
    m_view->_Remove(m_view->m_collection.end());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != m_collection.end()", L"ProtocolView", 283}}));
    EXPECT_EQ(Names(*m_view), L"Uds Kwp Uds");
}

TEST_F(ProtocolViewContainerTest, ViewsOfTheSameObjectsInTheSameOrderAreEqual) {
    VProtocolView twin(LayerAs<NODX201::VBaseVariant>(L"Bv"));
    EXPECT_TRUE(*m_view == twin);
    EXPECT_FALSE(*m_view != twin);
    EXPECT_TRUE(*m_view != VProtocolView(m_graph->Container()));
    twin.Remove(Protocol(L"Kwp"));
    EXPECT_TRUE(*m_view != twin);
    twin.Append(Protocol(L"Kwp"));
    EXPECT_TRUE(*m_view != twin) << "another order";
}

} // namespace
} // namespace NTest
