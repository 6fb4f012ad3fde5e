// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/DiagVariableView.h>

#include <cstdint>
#include <type_traits>

#include <diagkit/tools/OpBuildDiagVariableView.h>

#include "support/GraphText.h"
#include "support/NaiveInheritance.h"
#include "support/RandomGraph.h"
#include "tools/ContentGraph.h"

namespace NTest {
namespace {

using NDIAGKIT::VDiagVariableView;

static_assert(std::is_polymorphic_v<VDiagVariableView> && std::has_virtual_destructor_v<VDiagVariableView>);
static_assert(!std::is_default_constructible_v<VDiagVariableView>);
static_assert(std::is_same_v<decltype(*std::declval<VDiagVariableView&>().Begin()), NODX201::VDiagVariable&>);

class VOpenDiagVariableView : public VDiagVariableView {
public:
    using VDiagVariableView::_Find;
    using VDiagVariableView::_Insert;
    using VDiagVariableView::_Remove;
    using VDiagVariableView::m_collection;
    using VDiagVariableView::VDiagVariableView;
};

std::wstring PrintDiagVariables(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDiagVariableView builder;
    std::unique_ptr<VDiagVariableView> const view(builder.CreateDiagVariableView(layer));
    return PrintEntries(*view);
}

class DiagVariableViewTest : public VContentTest {
protected:
    DiagVariableViewTest() : VContentTest(VContent::DiagVariables) {}

    std::wstring DiagVariables(wchar_t const* layer) { return PrintDiagVariables(Layer(layer)); }
    NODX201::VDiagVariable& DiagVariable(wchar_t const* id) { return ById<NODX201::VDiagVariable>(id); }
};

TEST_F(DiagVariableViewTest, TheViewOfAnyProtocolIsEmpty) {
    Graph(LR"(
        esd  Lib : Speed
        prot Uds < Lib
        prot Kwp
    )");
    EXPECT_EQ(DiagVariables(L"Lib"), L"Speed@Lib");
    EXPECT_TRUE(VDiagVariableView(LayerAs<NODX201::VProtocol>(L"Uds")).IsEmpty());
    EXPECT_EQ(DiagVariables(L"Kwp"), L"");
}

TEST_F(DiagVariableViewTest, AFunctionalGroupThatReferencesOnlyProtocolsShowsItsOwnDiagVariables) {
    Graph(LR"(
        esd  Lib   : Speed
        prot Uds           < Lib
        func Doors : Lock  < Uds
    )");
    EXPECT_EQ(DiagVariables(L"Doors"), L"Lock@Doors");
}

TEST_F(DiagVariableViewTest, InABaseVariantAFunctionalGroupBeatsAnEcuSharedData) {
    Graph(LR"(
        esd  Lib   : Speed
        func Doors : Speed
        base LibFirst   < Lib Doors
        base GroupFirst < Doors Lib
    )");
    EXPECT_EQ(DiagVariables(L"LibFirst"), L"Speed@Doors");
    EXPECT_EQ(DiagVariables(L"GroupFirst"), L"Speed@Doors");
}

TEST_F(DiagVariableViewTest, AReferenceThatDoesNotResolveIsLeftOut) {
    Graph(LR"(
        esd  Lib : Speed
        base Bv  : Lock ->Gone ->Lib.Speed ->Lib.Gone
    )");
    EXPECT_EQ(DiagVariables(L"Bv"), L"Lock@Bv Speed@Lib");
}

TEST_F(DiagVariableViewTest, EachKindOfLayerAcceptsItsKindsOfParentsInItsPasses) {
    Graph(LR"(
        esd  Lib1   : FromLib1
        esd  Lib2   : FromLib2
        prot Uds    < Lib1
        func Doors1 : FromDoors1
        func Doors2 : FromDoors2
        base Bv1    : FromBv1
        base Bv2    : FromBv2
        func F : Own < Lib2 Bv1 Doors1 Uds Lib1
        base B : Own < Lib2 Bv1 Doors2 Uds Lib1 Doors1
        ecu  E : Own < Lib2 Bv2 Doors1 Uds Lib1 Bv1
    )");
    EXPECT_EQ(DiagVariables(L"F"), L"Own@F FromLib2@Lib2 FromLib1@Lib1");
    EXPECT_EQ(DiagVariables(L"B"), L"Own@B FromDoors2@Doors2 FromDoors1@Doors1 FromLib2@Lib2 FromLib1@Lib1");
    EXPECT_EQ(DiagVariables(L"E"), L"Own@E FromBv2@Bv2 FromBv1@Bv1 FromLib2@Lib2 FromLib1@Lib1");
}

TEST_F(DiagVariableViewTest, AParentBringsItsFullView) {
    Graph(LR"(
        esd  Lib1  : L1
        esd  Lib2  : L2
        func Doors : F  < Lib1
        base Bv    : B  < Lib2 Doors
        ecu  Ecu   : E  < Bv
    )");
    EXPECT_EQ(DiagVariables(L"Bv"), L"B@Bv F@Doors L1@Lib1 L2@Lib2");
    EXPECT_EQ(DiagVariables(L"Ecu"), L"E@Ecu B@Bv F@Doors L1@Lib1 L2@Lib2");
}

TEST_F(DiagVariableViewTest, ANameThatIsTakenIsNotMergedAndOwnEntriesAreNotComparedAtAll) {
    Graph(LR"(
        base Bv  : Lock Lock Speed speed
        ecu  Ecu : Speed Speed ->Bv.Lock#2  < Bv
    )");
    EXPECT_EQ(DiagVariables(L"Bv"), L"Lock@Bv Lock@Bv Speed@Bv speed@Bv");
    EXPECT_EQ(DiagVariables(L"Ecu"), L"Speed@Ecu Speed@Ecu Lock@Bv speed@Bv");
}

TEST_F(DiagVariableViewTest, NotInheritedListsPlayNoPart) {
    Graph(LR"(
        base Bv  : Lock Speed
        ecu  Ecu < Bv-Lock-@Bv.Speed
    )");
    EXPECT_EQ(DiagVariables(L"Ecu"), L"Lock@Bv Speed@Bv");
}

TEST_F(DiagVariableViewTest, AReferenceWithoutATargetOrToAnotherKindIsSkipped) {
    Graph(LR"(
        esd  Lib : Speed
        func F   < esd:Gone func:Lib Lib
        base Bv  < func:Gone esd:F any:F F
        ecu  Ecu < base:Gone base:F Bv
    )");
    EXPECT_EQ(DiagVariables(L"Ecu"), L"Speed@Lib");
}

TEST_F(DiagVariableViewTest, ALayerWithoutDiagVariablesAndParentsHasAnEmptyView) {
    Graph(L"esd Lib \n func Doors : < \n base Bv : \n ecu Ecu <");
    for (wchar_t const* const layer : {L"Lib", L"Doors", L"Bv", L"Ecu"}) {
        EXPECT_EQ(DiagVariables(layer), L"");
    }
    VDiagVariableView view(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    EXPECT_EQ(view.Count(), 0u);
    EXPECT_TRUE(view.IsEmpty());
    EXPECT_TRUE(view.Begin() == view.End());
}

class DiagVariableViewContainerTest : public DiagVariableViewTest {
protected:
    void SetUp() override {
        Graph(L"esd Lib : Speed \n ecu Ecu : Lock Door Lock");
        m_view = std::make_unique<VOpenDiagVariableView>(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    }

    std::unique_ptr<VOpenDiagVariableView> m_view;
};

TEST_F(DiagVariableViewContainerTest, FindByElementFindsThisVeryObject) {
    EXPECT_EQ(&*m_view->Find(DiagVariable(L"Ecu.Lock#2")), &DiagVariable(L"Ecu.Lock#2"));
    EXPECT_TRUE(m_view->Find(DiagVariable(L"Lib.Speed")) == m_view->End());
}

TEST_F(DiagVariableViewContainerTest, FindByNameFindsTheFirstOfExactlyTheName) {
    EXPECT_EQ(&*m_view->Find(L"Lock"), &DiagVariable(L"Ecu.Lock"));
    for (wchar_t const* const name : {L"lock", L"Loc", L"Lock ", L"", L"Speed"}) {
        EXPECT_TRUE(m_view->Find(name) == m_view->End());
    }
}

TEST_F(DiagVariableViewContainerTest, AppendAndInnerInsertLookForNoDuplicates) {
    m_view->Append(DiagVariable(L"Ecu.Lock"));
    m_view->_Insert(m_view->_Find(DiagVariable(L"Ecu.Door")), DiagVariable(L"Lib.Speed"));
    EXPECT_EQ(PrintEntries(*m_view), L"Lock@Ecu Speed@Lib Door@Ecu Lock@Ecu Lock@Ecu");
    EXPECT_EQ(m_view->Count(), 5u);
}

TEST_F(DiagVariableViewContainerTest, RemoveByReferenceLeavesTheElementAlive) {
    m_view->Remove(DiagVariable(L"Ecu.Lock"));
    EXPECT_EQ(PrintEntries(*m_view), L"Door@Ecu Lock@Ecu");
    EXPECT_EQ(DiagVariables(L"Ecu"), L"Lock@Ecu Door@Ecu Lock@Ecu");
}

TEST_F(DiagVariableViewContainerTest, RemoveByIteratorDestroysTheElement) {
    m_view->Remove(m_view->Find(L"Lock"));
    EXPECT_EQ(PrintEntries(*m_view), L"Door@Ecu Lock@Ecu");
    EXPECT_EQ(DiagVariables(L"Ecu"), L"Door@Ecu Lock@Ecu") << "gone from the model";
    EXPECT_EQ(Database().Count(NODX201::VOdxTagEnum::DiagVariable), 3u);
    VerifyModel(Database());
}

TEST_F(DiagVariableViewContainerTest, RemovalsOfWhatIsNotThereAssertAndChangeNothing) {
    m_view->Remove(DiagVariable(L"Lib.Speed"));
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"false", L"DiagVariableView", 352}}));
    m_view->Remove(m_view->End());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != End()", L"DiagVariableView", 360},
                                                   {L"iter != m_collection.end()", L"DiagVariableView", 438}}));
    m_view->_Remove(m_view->m_collection.end());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != m_collection.end()", L"DiagVariableView", 438}}));
    EXPECT_EQ(PrintEntries(*m_view), L"Lock@Ecu Door@Ecu Lock@Ecu");
}

TEST_F(DiagVariableViewContainerTest, ViewsOfTheSameObjectsInTheSameOrderAreEqual) {
    VDiagVariableView twin(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    EXPECT_TRUE(*m_view == twin);
    EXPECT_FALSE(*m_view != twin);
    twin.Remove(DiagVariable(L"Ecu.Lock"));
    EXPECT_TRUE(*m_view != twin);
    twin.Append(DiagVariable(L"Ecu.Lock"));
    EXPECT_TRUE(*m_view != twin) << "another order";
}

TEST(DiagVariableViewRandomGraphsTest, AgreeWithTheNaiveReading) {
    for (std::uint32_t seed = 1; seed <= 2000; ++seed) {
        VGraphPlan const plan = RandomGraph(seed);
        auto const graph = MakeContentGraph(plan, VContent::DiagVariables);
        for (VLayerPlan const& layer : plan.layers) {
            ASSERT_EQ(PrintDiagVariables(graph->Layer(layer.name)), NaiveDiagVariables(plan, layer.name))
                << "layer " << layer.name << ", seed " << seed << ", graph\n"
                << GraphText(plan);
        }
    }
}

} // namespace
} // namespace NTest
