// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/DopView.h>

#include <cstdint>
#include <type_traits>

#include <diagkit/memory/Dops.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpResolveSnref.h>

#include "support/GraphText.h"
#include "support/MockElements.h"
#include "support/NaiveInheritance.h"
#include "support/RandomGraph.h"
#include "support/RecordedLog.h"
#include "tools/ContentGraph.h"
#include "tools/MockDop.h"

namespace NTest {
namespace {

using NDIAGKIT::VDopView;

static_assert(std::is_polymorphic_v<VDopView> && std::has_virtual_destructor_v<VDopView>);
static_assert(!std::is_default_constructible_v<VDopView>);
static_assert(std::is_same_v<decltype(std::declval<VDopView const&>().Count()), unsigned long long>);
static_assert(std::is_same_v<decltype(*std::declval<VDopView&>().Begin()), NODX201::VDopBase&>);

/// A view that lets the protected operations be called.
class VOpenDopView : public VDopView {
public:
    using VDopView::_Find;
    using VDopView::_Remove;
    using VDopView::VDopView;
};

std::wstring PrintDops(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDopView builder;
    std::unique_ptr<VDopView> const view(builder.CreateDopView(layer));
    return PrintEntries(*view);
}

class DopViewTest : public VContentTest {
protected:
    DopViewTest() : VContentTest(VContent::Dops) {}

    std::wstring Dops(wchar_t const* layer) { return PrintDops(Layer(layer)); }
    NODX201::VDopBase& Dop(wchar_t const* id) { return ById<NODX201::VDopBase>(id); }
};

TEST_F(DopViewTest, ALayerWithoutADictionaryReceivesItsParentsDops) {
    Graph(LR"(
        esd  Lib : Volt
        base Bv  < Lib
        ecu  Ecu < Bv
    )");
    ASSERT_FALSE(Layer(L"Ecu").HasDiagDataDictionarySpec());
    EXPECT_EQ(Dops(L"Bv"), L"Volt@Lib");
    EXPECT_EQ(Dops(L"Ecu"), L"Volt@Lib");
}

TEST_F(DopViewTest, OfTwoDopsOfOneNameInADictionaryOnlyTheFirstIsInTheView) {
    Graph(L"ecu Ecu : Volt Amp Volt!");
    VDopView view(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    EXPECT_EQ(view.Count(), 2u);
    EXPECT_EQ(&*view.Find(L"Volt"), &Dop(L"Ecu.Volt"));
    EXPECT_TRUE(view.Find(Dop(L"Ecu.Volt#2")) == view.End());
}

TEST_F(DopViewTest, TheOrderIsThatOfCodeUnitsOfUtf16) {
    NMemory::VDatabase database;
    NMemory::VMemEcuSharedData& layer = database.AddDiagLayerContainer(L"Container").AddEcuSharedData(L"Layer");
    for (wchar_t const* const name : {L"\uFF5E", L"\U0001F600", L"Volt", L"\uD7FF"}) {
        layer.MakeDiagDataDictionarySpec().AddDataObjectProp(name);
    }
    VDopView view(layer);
    EXPECT_EQ(PrintEntries(view), L"Volt@Layer \uD7FF@Layer \U0001F600@Layer \uFF5E@Layer");
    EXPECT_EQ((*view.Find(L"\U0001F600")).GetShortName(), std::wstring(L"\U0001F600"));
}

TEST_F(DopViewTest, InABaseVariantTheFunctionalGroupOrProtocolReferencedFirstWins) {
    Graph(LR"(
        func F : Volt
        prot P : Volt
        base FirstF < F P
        base FirstP < P F
    )");
    EXPECT_EQ(Dops(L"FirstF"), L"Volt@F");
    EXPECT_EQ(Dops(L"FirstP"), L"Volt@P");
}

TEST_F(DopViewTest, AnOwnDopHidesTheBaseVariantsWhichItsOwnViewStillFinds) {
    Graph(LR"(
        base Bv  : Volt
        ecu  Ecu : Volt  < Bv
    )");
    EXPECT_EQ(Dops(L"Ecu"), L"Volt@Ecu");
    EXPECT_EQ(Dops(L"Bv"), L"Volt@Bv");
}

TEST_F(DopViewTest, TheLowerCaseFormOfANameFindsNothing) {
    Graph(L"ecu Ecu : VOLT");
    VDopView view(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    EXPECT_TRUE(view.Find(L"volt") == view.End());
    EXPECT_EQ(&*view.Find(L"VOLT"), &Dop(L"Ecu.VOLT"));
}

TEST_F(DopViewTest, AppendOfATakenNameLeavesTheOldDopInPlace) {
    Graph(L"esd Lib : Volt \n ecu Ecu : Volt Amp");
    VDopView view(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    view.Append(Dop(L"Lib.Volt"));
    EXPECT_EQ(view.Count(), 2u);
    EXPECT_EQ(PrintEntries(view), L"Amp@Ecu Volt@Ecu");
}

TEST_F(DopViewTest, RemoveByIteratorDeletesTheDop) {
    Graph(L"ecu Ecu : Volt Amp Ohm!");
    Database().SetResolverFactory([] { return std::make_unique<NDIAGKIT::VOpResolveSnref>(); });
    auto& ecu = LayerAs<NMemory::VMemEcuVariant>(L"Ecu");
    NMemory::VMemRequest& request = ecu.AddRequest(L"Request");
    auto& byId = request.AddValue(L"ById").SetDopBaseLink(NMemory::VReference::ById(L"Ecu.Volt"));
    auto& byName = request.AddValue(L"ByName").SetDopBaseLink(NMemory::VReference::ByShortName(L"Volt"));
    auto& another = request.AddValue(L"Another").SetDopBaseLink(NMemory::VReference::ByShortName(L"Amp"));
    ASSERT_TRUE(byId.HasDopBase(ecu) && byName.HasDopBase(ecu) && another.HasDopBase(ecu));

    VDopView view(ecu);
    view.Remove(view.Find(L"Volt"));

    EXPECT_EQ(PrintEntries(view), L"Amp@Ecu Ohm@Ecu");
    EXPECT_EQ(view.Count(), 2u);
    EXPECT_EQ(Database().Count(NODX201::VOdxTagEnum::DataObjectProp), 1u);
    EXPECT_EQ(Dops(L"Ecu"), L"Amp@Ecu Ohm@Ecu") << "gone from the model";
    EXPECT_FALSE(byId.HasDopBase(ecu));
    EXPECT_FALSE(byName.HasDopBase(ecu));
    ASSERT_TRUE(another.HasDopBase(ecu));
    EXPECT_EQ(&another.GetDopBase(), &Dop(L"Ecu.Amp"));
    VerifyModel(Database());
}

TEST_F(DopViewTest, RemoveByReferenceLeavesTheDopAlive) {
    Graph(L"ecu Ecu : Volt Amp");
    VDopView view(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    view.Remove(Dop(L"Ecu.Volt"));
    EXPECT_EQ(PrintEntries(view), L"Amp@Ecu");
    EXPECT_EQ(Dop(L"Ecu.Volt").GetShortName(), std::wstring(L"Volt"));
    EXPECT_EQ(Dops(L"Ecu"), L"Amp@Ecu Volt@Ecu") << "the model still has it";
}

TEST_F(DopViewTest, TwoViewsOfOneLayerAreEqualUntilOneLosesADop) {
    Graph(L"esd Lib : Ohm \n ecu Ecu : Volt Amp < Lib");
    VDopView one(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    VDopView two(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    EXPECT_TRUE(one == two);
    EXPECT_FALSE(one != two);
    two.Remove(Dop(L"Ecu.Amp"));
    EXPECT_FALSE(one == two);
    EXPECT_TRUE(one != two);
}

TEST_F(DopViewTest, ViewsOfOtherDopsUnderTheSameNamesAreUnequal) {
    Graph(L"ecu One : Volt \n ecu Two : Volt \n ecu Empty \n ecu Void :");
    VDopView one(LayerAs<NODX201::VEcuVariant>(L"One"));
    VDopView two(LayerAs<NODX201::VEcuVariant>(L"Two"));
    VDopView empty(LayerAs<NODX201::VEcuVariant>(L"Empty"));
    VDopView alsoEmpty(LayerAs<NODX201::VEcuVariant>(L"Void"));
    EXPECT_TRUE(one != two);
    EXPECT_TRUE(one == one);
    EXPECT_TRUE(one != empty);
    EXPECT_TRUE(empty == alsoEmpty);
}

TEST_F(DopViewTest, ViewsOfOneDopUnderDifferentNamesAreUnequal) {
    Graph(L"ecu Ecu : Volt");
    VDopView before(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    ById<NMemory::VMemDataObjectProp>(L"Ecu.Volt").SetShortName(L"Amp");
    VDopView after(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    EXPECT_EQ(&*before.Begin(), &*after.Begin());
    EXPECT_FALSE(before == after);
    EXPECT_TRUE(before != after);
}

TEST_F(DopViewTest, EachKindOfLayerAcceptsItsKindsOfParentsInItsPasses) {
    Graph(LR"(
        esd  Lib   : x FromLib
        prot Uds   : x FromUds
        func Doors : x FromDoors
        base Bv    : x FromBv
        prot P                   < Bv Doors Uds Lib
        func F                   < Lib Bv Doors Uds
        base B                   < Lib Bv Doors Uds
        ecu  E                   < Lib Uds Doors Bv
        prot OwnP : x            < Lib
        func OwnF : x            < Uds Lib
        base OwnB : x            < Uds Doors Lib
        ecu  OwnE : x            < Bv Lib
    )");
    EXPECT_EQ(Dops(L"Lib"), L"FromLib@Lib x@Lib");
    EXPECT_EQ(Dops(L"P"), L"FromLib@Lib x@Lib");
    EXPECT_EQ(Dops(L"F"), L"FromLib@Lib FromUds@Uds x@Uds") << "a PROTOCOL comes before an ECU-SHARED-DATA";
    EXPECT_EQ(Dops(L"B"), L"FromDoors@Doors FromLib@Lib FromUds@Uds x@Doors") << "and so does a FUNCTIONAL-GROUP";
    EXPECT_EQ(Dops(L"E"), L"FromBv@Bv FromLib@Lib x@Bv") << "and so does a BASE-VARIANT";
    EXPECT_EQ(Dops(L"OwnP"), L"FromLib@Lib x@OwnP");
    EXPECT_EQ(Dops(L"OwnF"), L"FromLib@Lib FromUds@Uds x@OwnF");
    EXPECT_EQ(Dops(L"OwnB"), L"FromDoors@Doors FromLib@Lib FromUds@Uds x@OwnB");
    EXPECT_EQ(Dops(L"OwnE"), L"FromBv@Bv FromLib@Lib x@OwnE");
}

TEST_F(DopViewTest, OfTwoParentsOfOneKindTheFirstReferencedWins) {
    Graph(LR"(
        esd  Lib1 : x
        esd  Lib2 : x
        prot P    < Lib1 Lib2
        prot Q    < Lib2 Lib1
        func F    < Q P
        base Bv1  : y
        base Bv2  : y
        ecu  E    < Bv2 Bv1
    )");
    EXPECT_EQ(Dops(L"P"), L"x@Lib1");
    EXPECT_EQ(Dops(L"Q"), L"x@Lib2");
    EXPECT_EQ(Dops(L"F"), L"x@Lib2");
    EXPECT_EQ(Dops(L"E"), L"y@Bv2");
}

TEST_F(DopViewTest, AParentBringsItsFullView) {
    Graph(LR"(
        esd  Lib1  : L1
        esd  Lib2  : L2
        esd  Lib3  : L3
        esd  Lib4  : L4
        prot Uds   : P     < Lib1
        func Doors : F     < Lib2 Uds
        base Bv    : B     < Lib3 Doors
        ecu  Ecu   : E     < Lib4 Bv
    )");
    EXPECT_EQ(Dops(L"Doors"), L"F@Doors L1@Lib1 L2@Lib2 P@Uds");
    EXPECT_EQ(Dops(L"Bv"), L"B@Bv F@Doors L1@Lib1 L2@Lib2 L3@Lib3 P@Uds");
    EXPECT_EQ(Dops(L"Ecu"), L"B@Bv E@Ecu F@Doors L1@Lib1 L2@Lib2 L3@Lib3 L4@Lib4 P@Uds");
}

TEST_F(DopViewTest, AnEcuSharedDataInheritedThroughAParentBeatsAParentMergedLater) {
    Graph(LR"(
        esd  Lib : x
        prot Uds     < Lib
        prot Kwp : x
        base Bv      < Uds Kwp
    )");
    EXPECT_EQ(Dops(L"Bv"), L"x@Lib");
}

TEST_F(DopViewTest, AReferenceWithoutATargetOrToAnotherKindIsSkipped) {
    Graph(LR"(
        esd  Lib : FromLib
        prot Uds : FromUds  < esd:Gone prot:Lib Lib
        func F              < prot:Gone Uds esd:Uds any:Lib
        base Bv             < func:Gone func:Uds F prot:Gone esd:Gone
        ecu  Ecu            < base:Gone base:F Bv esd:Gone any:Bv
    )");
    EXPECT_EQ(Dops(L"Ecu"), L"FromLib@Lib FromUds@Uds");
}

TEST_F(DopViewTest, NotInheritedListsPlayNoPart) {
    Graph(LR"(
        base Bv  : Volt Amp
        ecu  Ecu < Bv-Volt-@Bv.Amp
    )");
    EXPECT_EQ(Dops(L"Ecu"), L"Amp@Bv Volt@Bv");
}

TEST_F(DopViewTest, DopsOfEveryKindAreListed) {
    Graph(L"ecu Ecu");
    NMemory::VMemDiagDataDictionarySpec& dictionary =
        LayerAs<NMemory::VMemEcuVariant>(L"Ecu").MakeDiagDataDictionarySpec();
    dictionary.AddDataObjectProp(L"1");
    dictionary.AddDtcDop(L"2");
    dictionary.AddStructure(L"3");
    dictionary.AddStaticField(L"4");
    dictionary.AddDynamicLengthField(L"5");
    dictionary.AddDynamicEndmarkerField(L"6");
    dictionary.AddEndOfPduField(L"7");
    dictionary.AddMux(L"8");
    dictionary.AddEnvDataDesc(L"9").AddEnvData(L"InDesc");
    dictionary.AddEnvData(L"InDictionary");
    dictionary.AddTable(L"Table");
    EXPECT_EQ(Dops(L"Ecu"), L"1@Ecu 2@Ecu 3@Ecu 4@Ecu 5@Ecu 6@Ecu 7@Ecu 8@Ecu 9@Ecu");
}

TEST_F(DopViewTest, IterationRunsInTheOrderOfCodeUnits) {
    Graph(L"esd Lib : a10 _ Zz \n ecu Ecu : b \u00e4 B a2 \"\" a a1 < Lib");
    EXPECT_EQ(Dops(L"Ecu"), L"@Ecu B@Ecu Zz@Lib _@Lib a@Ecu a1@Ecu a10@Lib a2@Ecu b@Ecu \u00e4@Ecu");
}

TEST_F(DopViewTest, ALayerWithoutDopsAndParentsHasAnEmptyView) {
    Graph(L"esd Lib \n prot Uds : \n func Doors : < \n base Bv < \n ecu Ecu");
    auto const expectEmpty = [](VDopView&& view) {
        EXPECT_EQ(view.Count(), 0u);
        EXPECT_TRUE(view.IsEmpty());
        EXPECT_TRUE(view.Begin() == view.End());
    };
    expectEmpty(VDopView(LayerAs<NODX201::VEcuSharedData>(L"Lib")));
    expectEmpty(VDopView(LayerAs<NODX201::VProtocol>(L"Uds")));
    expectEmpty(VDopView(LayerAs<NODX201::VFunctionalGroup>(L"Doors")));
    expectEmpty(VDopView(LayerAs<NODX201::VBaseVariant>(L"Bv")));
    expectEmpty(VDopView(LayerAs<NODX201::VEcuVariant>(L"Ecu")));
}

TEST(DopViewMockTest, AnAbsentDictionaryIsNotAskedFor) {
    VCountingLayer layer; // throws when its absent dictionary is requested
    EXPECT_NO_THROW(VDopView{layer});
    EXPECT_EQ(layer.m_timesAsked, 1);
    EXPECT_THROW(layer.GetDiagDataDictionarySpec(), std::logic_error);
}

class DopViewContainerTest : public DopViewTest {
protected:
    void SetUp() override {
        Graph(L"esd Lib : Farad Volt \n ecu Ecu : Volt Amp Ohm!");
        m_view = std::make_unique<VOpenDopView>(LayerAs<NODX201::VEcuVariant>(L"Ecu"));
    }

    std::unique_ptr<VOpenDopView> m_view;
};

TEST_F(DopViewContainerTest, CountIsTheNumberOfEntries) {
    EXPECT_EQ(m_view->Count(), 3u);
    EXPECT_FALSE(m_view->IsEmpty());
    m_view->Append(Dop(L"Lib.Farad"));
    EXPECT_EQ(m_view->Count(), 4u);
}

TEST_F(DopViewContainerTest, BeginAndEndAndARangeForWalkTheSameEntries) {
    std::vector<NODX201::VDopBase*> byIterator;
    for (auto iter = m_view->Begin(); iter != m_view->End(); ++iter) {
        byIterator.push_back(&*iter);
    }
    std::vector<NODX201::VDopBase*> byRange;
    for (NODX201::VDopBase& dop : *m_view) {
        byRange.push_back(&dop);
    }
    std::vector<NODX201::VDopBase*> const expected{&Dop(L"Ecu.Amp"), &Dop(L"Ecu.Ohm"), &Dop(L"Ecu.Volt")};
    EXPECT_EQ(byIterator, expected);
    EXPECT_EQ(byRange, expected);
}

TEST_F(DopViewContainerTest, FindByNameMatchesExactly) {
    EXPECT_EQ(&*m_view->Find(L"Ohm"), &Dop(L"Ecu.Ohm"));
    for (wchar_t const* const name : {L"Oh", L"Ohmm", L"Ohm ", L" Ohm", L"OHM", L"", L"Farad"}) {
        EXPECT_TRUE(m_view->Find(name) == m_view->End()) << testing::PrintToString(std::wstring(name));
    }
}

TEST_F(DopViewContainerTest, FindByTheEmptyNameFindsADopWithoutAName) {
    VMockDop nameless(L"");
    m_view->Append(nameless);
    EXPECT_EQ(&*m_view->Find(L""), &nameless);
}

TEST_F(DopViewContainerTest, FindByElementFindsThisVeryObject) {
    auto found = m_view->Find(Dop(L"Ecu.Ohm"));
    EXPECT_EQ(&*found, &Dop(L"Ecu.Ohm"));
    EXPECT_EQ(&*++found, &Dop(L"Ecu.Volt"));
    EXPECT_TRUE(m_view->Find(Dop(L"Lib.Volt")) == m_view->End()) << "another DOP of a name that is held";
}

TEST_F(DopViewContainerTest, FindByElementFindsADopThatWasRenamedSince) {
    ById<NMemory::VMemDataObjectProp>(L"Ecu.Amp").SetShortName(L"Zero");
    EXPECT_TRUE(m_view->Find(Dop(L"Ecu.Amp")) == m_view->Begin());
    EXPECT_TRUE(m_view->Find(L"Amp") == m_view->Begin()) << "the key is the name of the time of insertion";
    EXPECT_TRUE(m_view->Find(L"Zero") == m_view->End());
}

TEST_F(DopViewContainerTest, AppendPutsTheDopInItsPlaceAmongTheNames) {
    m_view->Append(Dop(L"Lib.Farad"));
    EXPECT_EQ(PrintEntries(*m_view), L"Amp@Ecu Farad@Lib Ohm@Ecu Volt@Ecu");
}

TEST_F(DopViewContainerTest, ANameIsFreeAgainAfterItsRemoval) {
    m_view->Remove(Dop(L"Ecu.Volt"));
    m_view->Append(Dop(L"Lib.Volt"));
    EXPECT_EQ(PrintEntries(*m_view), L"Amp@Ecu Ohm@Ecu Volt@Lib");
}

TEST_F(DopViewContainerTest, RemoveByReferenceOfWhatIsNotHeldAssertsAndChangesNothing) {
    m_view->Remove(Dop(L"Lib.Volt"));
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"false", L"DopView", 344}}));
    EXPECT_EQ(PrintEntries(*m_view), L"Amp@Ecu Ohm@Ecu Volt@Ecu");
}

TEST_F(DopViewContainerTest, RemoveOfEndRaisesBothAssertionsInOrderAndChangesNothing) {
    m_view->Remove(m_view->End());
    EXPECT_EQ(m_assertions.Take(),
              (VAssertionList{{L"iter != End()", L"DopView", 352}, {L"iter != m_collection.end()", L"DopView", 416}}));
    EXPECT_EQ(PrintEntries(*m_view), L"Amp@Ecu Ohm@Ecu Volt@Ecu");
}

TEST_F(DopViewContainerTest, RemoveByIteratorDeletesThroughTheVirtualDestructor) {
    bool isDestroyed = false;
    m_view->Append(*new VMockDop(L"Mock", &isDestroyed));
    m_view->Remove(m_view->Find(L"Mock"));
    EXPECT_TRUE(isDestroyed);
    EXPECT_EQ(m_view->Count(), 3u);
}

TEST_F(DopViewContainerTest, RemoveByIteratorCanEmptyTheView) {
    while (!m_view->IsEmpty()) {
        m_view->Remove(m_view->Begin());
    }
    EXPECT_EQ(Dops(L"Ecu"), L"");
    EXPECT_EQ(Dops(L"Lib"), L"Farad@Lib Volt@Lib");
    VerifyModel(Database());
}

TEST_F(DopViewContainerTest, InnerFindAndInnerRemoveWorkOnPositions) {
    bool isDestroyed = false;
    auto* const mock = new VMockDop(L"Mock", &isDestroyed);
    m_view->Append(*mock);
    EXPECT_EQ(m_view->_Find(*mock)->first, L"Mock");
    m_view->_Remove(m_view->_Find(*mock));
    EXPECT_TRUE(isDestroyed);
    EXPECT_TRUE(m_view->_Find(Dop(L"Lib.Volt")) == m_view->End().Unwrap());
    EXPECT_EQ(PrintEntries(*m_view), L"Amp@Ecu Ohm@Ecu Volt@Ecu");
}

TEST_F(DopViewContainerTest, InnerRemoveOfTheEndAssertsAndChangesNothing) {
    m_view->_Remove(m_view->End().Unwrap());
    EXPECT_EQ(m_assertions.Take(), (VAssertionList{{L"iter != m_collection.end()", L"DopView", 416}}));
    EXPECT_EQ(m_view->Count(), 3u);
}

TEST_F(DopViewContainerTest, NothingIsLoggedWhenAViewIsMisused) {
    VRecordedLog log;
    m_view->Remove(Dop(L"Lib.Volt"));
    m_view->Remove(m_view->End());
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take().size(), 3u);
}

TEST_F(DopViewContainerTest, AnAssertionHandlerMayThrow) {
    NPavonaUtil::VScopedAssertionHandler const throwing(
        [](NPavonaUtil::VAssertion const& assertion) { throw std::runtime_error(std::to_string(assertion.line)); });
    EXPECT_THROW(m_view->Remove(m_view->End()), std::runtime_error);
    EXPECT_THROW(m_view->Remove(Dop(L"Lib.Volt")), std::runtime_error);
    EXPECT_THROW(m_view->_Remove(m_view->End().Unwrap()), std::runtime_error);
    EXPECT_EQ(PrintEntries(*m_view), L"Amp@Ecu Ohm@Ecu Volt@Ecu");
}

TEST_F(DopViewContainerTest, DestroyingAViewDeletesNoDop) {
    m_view.reset();
    EXPECT_EQ(Dops(L"Ecu"), L"Amp@Ecu Ohm@Ecu Volt@Ecu");
}

TEST(DopViewRandomGraphsTest, AgreeWithTheNaiveReading) {
    for (std::uint32_t seed = 1; seed <= 2000; ++seed) {
        VGraphPlan const plan = RandomGraph(seed);
        auto const graph = MakeContentGraph(plan, VContent::Dops);
        for (VLayerPlan const& layer : plan.layers) {
            ASSERT_EQ(PrintDops(graph->Layer(layer.name)), NaiveDops(plan, layer.name))
                << "layer " << layer.name << ", seed " << seed << ", graph\n"
                << GraphText(plan);
        }
    }
}

} // namespace
} // namespace NTest
