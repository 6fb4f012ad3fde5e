// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildDopView.h>

#include <type_traits>

#include "support/RecordedLog.h"
#include "support/Slots.h"
#include "tools/ContentGraph.h"
#include "tools/MockDop.h"

namespace NTest {
namespace {

using NDIAGKIT::VDopView;
using NDIAGKIT::VOpBuildDopView;

static_assert(std::is_convertible_v<VOpBuildDopView*, NODX201::VDiagLayerVisitor*>, "derived publicly");
static_assert(std::has_virtual_destructor_v<VOpBuildDopView>);
static_assert(std::is_copy_constructible_v<VOpBuildDopView> && std::is_copy_assignable_v<VOpBuildDopView>);

VAssertionList const kNoDopView{{L"(mpDopView != 0)", L"OpBuildDopView", 85}};

class OpBuildDopViewTest : public VContentTest {
protected:
    OpBuildDopViewTest() : VContentTest(VContent::Dops) {}

    void SetUp() override {
        Graph(LR"(
            esd  Lib   : L
            prot Uds   : P   < Lib
            func Doors : F   < Uds
            base Bv    : B   < Doors
            ecu  Ecu   : E   < Bv
        )");
    }

    template <class Kind>
    void ExpectViewOfKind(wchar_t const* name, wchar_t const* print) {
        VOpBuildDopView builder;
        std::unique_ptr<VDopView> const built(builder.CreateDopView(Layer(name)));
        ASSERT_NE(built, nullptr);
        VDopView direct(LayerAs<Kind>(name));
        EXPECT_TRUE(*built == direct);
        EXPECT_EQ(PrintEntries(*built), print);
    }
};

TEST_F(OpBuildDopViewTest, CreateMakesTheViewOfTheLayersKind) {
    ExpectViewOfKind<NODX201::VEcuSharedData>(L"Lib", L"L@Lib");
    ExpectViewOfKind<NODX201::VProtocol>(L"Uds", L"L@Lib P@Uds");
    ExpectViewOfKind<NODX201::VFunctionalGroup>(L"Doors", L"F@Doors L@Lib P@Uds");
    ExpectViewOfKind<NODX201::VBaseVariant>(L"Bv", L"B@Bv F@Doors L@Lib P@Uds");
    ExpectViewOfKind<NODX201::VEcuVariant>(L"Ecu", L"B@Bv E@Ecu F@Doors L@Lib P@Uds");
}

#ifdef DIAGKIT_TEST_SLOTS
TEST_F(OpBuildDopViewTest, TheVisitOperationsKeepTheVisitorsPlaces) {
    EXPECT_EQ(SlotsOf(&VOpBuildDopView::VisitBaseVariant, &VOpBuildDopView::VisitProtocol,
                      &VOpBuildDopView::VisitFunctionalGroup, &VOpBuildDopView::VisitEcuVariant,
                      &VOpBuildDopView::VisitEcuSharedData, &VOpBuildDopView::DispatchDiagLayer),
              SlotsAfterDestructor(6));
}
#endif

TEST_F(OpBuildDopViewTest, ASecondCreateDestroysTheFirstView) {
    // The sanitizers see that the first view neither leaks nor dies twice.
    VOpBuildDopView builder;
    builder.CreateDopView(Layer(L"Ecu"));
    builder.CreateDopView(Layer(L"Bv"));
    VDopView* const last = builder.CreateDopView(Layer(L"Lib"));
    EXPECT_EQ(PrintEntries(*last), L"L@Lib");
    builder.DestroyDopView(*last);
}

TEST_F(OpBuildDopViewTest, ADirectVisitMakesAViewThatTheNextCreateDestroys) {
    VOpBuildDopView builder;
    builder.VisitProtocol(LayerAs<NODX201::VProtocol>(L"Uds"));
    VDopView* const view = builder.CreateDopView(Layer(L"Lib"));
    EXPECT_EQ(PrintEntries(*view), L"L@Lib");
    builder.DestroyDopView(*view);
}

TEST_F(OpBuildDopViewTest, AViewOutlivesItsBuilderAndAnyBuilderDestroysIt) {
    VDopView* view = nullptr;
    {
        VOpBuildDopView builder;
        view = builder.CreateDopView(Layer(L"Uds"));
    }
    EXPECT_EQ(PrintEntries(*view), L"L@Lib P@Uds");
    VOpBuildDopView().DestroyDopView(*view);
    EXPECT_EQ(ById<NODX201::VDopBase>(L"Uds.P").GetShortName(), std::wstring(L"P")) << "the DOPs live on";
}

TEST_F(OpBuildDopViewTest, DestroyGoesThroughTheVirtualDestructor) {
    class VTellingView : public VDopView {
    public:
        VTellingView(NODX201::VEcuSharedData& layer, bool& isDestroyed)
            : VDopView(layer), m_isDestroyed(&isDestroyed) {}
        ~VTellingView() override { *m_isDestroyed = true; }

    private:
        bool* m_isDestroyed;
    };
    bool isDestroyed = false;
    VOpBuildDopView().DestroyDopView(*new VTellingView(LayerAs<NODX201::VEcuSharedData>(L"Lib"), isDestroyed));
    EXPECT_TRUE(isDestroyed);
}

TEST_F(OpBuildDopViewTest, ACopyAndAnAssignedBuilderRememberTheSameView) {
    VOpBuildDopView original;
    VDopView* const shared = original.CreateDopView(Layer(L"Uds"));
    VOpBuildDopView copy(original);
    VOpBuildDopView assigned;
    assigned = copy;
    EXPECT_EQ(PrintEntries(*shared), L"L@Lib P@Uds") << "copying a builder leaves the view alone";
    VDopView* const last = assigned.CreateDopView(Layer(L"Lib")); // destroys the shared view
    EXPECT_EQ(PrintEntries(*last), L"L@Lib");
    assigned.DestroyDopView(*last);
}

TEST_F(OpBuildDopViewTest, AcceptThatVisitsNothingLogsAndAssertsOnAFreshBuilder) {
    VRecordedLog log;
    VSilentLayer silent;
    VOpBuildDopView builder;
    EXPECT_EQ(builder.CreateDopView(silent), nullptr);
    EXPECT_EQ(log.Lines(), (std::vector<VRecordedLog::VLine>{{0, L"mpDopView != NULL."}}));
    EXPECT_EQ(m_assertions.Take(), kNoDopView);
    VDopView* const view = builder.CreateDopView(Layer(L"Lib"));
    EXPECT_EQ(PrintEntries(*view), L"L@Lib") << "the builder is usable afterwards";
    builder.DestroyDopView(*view);
}

TEST_F(OpBuildDopViewTest, AListenerThatLetsTheBuilderMakeTheViewPreventsTheAssertion) {
    VOpBuildDopView builder;
    VRecordedLog log([&] { builder.CreateDopView(Layer(L"Lib")); });
    VSilentLayer silent;
    VDopView* const view = builder.CreateDopView(silent);
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(PrintEntries(*view), L"L@Lib");
    builder.DestroyDopView(*view);
}

TEST_F(OpBuildDopViewTest, ADisabledLoggerGetsNoMessage) {
    VRecordedLog log;
    NLogging::VSharedLogger::Instance()->Disable();
    VSilentLayer silent;
    EXPECT_EQ(VOpBuildDopView().CreateDopView(silent), nullptr);
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take(), kNoDopView);
}

TEST_F(OpBuildDopViewTest, WithoutAListenerTheFailureIsOnlyAsserted) {
    ASSERT_EQ(NLogging::VSharedLogger::Instance()->GetLogger(), nullptr);
    VSilentLayer silent;
    EXPECT_EQ(VOpBuildDopView().CreateDopView(silent), nullptr);
    EXPECT_EQ(m_assertions.Take(), kNoDopView);
}

TEST_F(OpBuildDopViewTest, AViewThatIsMadeIsNeitherLoggedNorAsserted) {
    VRecordedLog log;
    VOpBuildDopView builder;
    std::unique_ptr<VDopView> const view(builder.CreateDopView(Layer(L"Lib")));
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
}

} // namespace
} // namespace NTest
