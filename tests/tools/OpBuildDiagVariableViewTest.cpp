// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildDiagVariableView.h>

#include <type_traits>

#include "support/MockElements.h"
#include "support/RecordedLog.h"
#include "support/Slots.h"
#include "tools/ContentGraph.h"

namespace NTest {
namespace {

using NDIAGKIT::VDiagVariableView;
using NDIAGKIT::VOpBuildDiagVariableView;

static_assert(std::is_convertible_v<VOpBuildDiagVariableView*, NODX201::VDiagLayerVisitor*>, "derived publicly");
static_assert(std::has_virtual_destructor_v<VOpBuildDiagVariableView>);
static_assert(std::is_copy_constructible_v<VOpBuildDiagVariableView> &&
              std::is_copy_assignable_v<VOpBuildDiagVariableView>);

VAssertionList const kNoDiagVariableView{{L"(mpDiagVariableView != 0)", L"OpBuildDiagVariableView", 83}};

class OpBuildDiagVariableViewTest : public VContentTest {
protected:
    OpBuildDiagVariableViewTest() : VContentTest(VContent::DiagVariables) {}

    void SetUp() override {
        Graph(LR"(
            esd  Lib   : L
            prot Uds         < Lib
            func Doors : F   < Uds Lib
            base Bv    : B   < Doors
            ecu  Ecu   : E   < Bv
        )");
    }

    template <class Kind>
    void ExpectViewOfKind(wchar_t const* name, wchar_t const* print) {
        VOpBuildDiagVariableView builder;
        std::unique_ptr<VDiagVariableView> const built(builder.CreateDiagVariableView(Layer(name)));
        ASSERT_NE(built, nullptr);
        VDiagVariableView direct(LayerAs<Kind>(name));
        EXPECT_TRUE(*built == direct);
        EXPECT_EQ(PrintEntries(*built), print);
    }
};

TEST_F(OpBuildDiagVariableViewTest, CreateMakesTheViewOfTheLayersKind) {
    ExpectViewOfKind<NODX201::VEcuSharedData>(L"Lib", L"L@Lib");
    ExpectViewOfKind<NODX201::VProtocol>(L"Uds", L"");
    ExpectViewOfKind<NODX201::VFunctionalGroup>(L"Doors", L"F@Doors L@Lib");
    ExpectViewOfKind<NODX201::VBaseVariant>(L"Bv", L"B@Bv F@Doors L@Lib");
    ExpectViewOfKind<NODX201::VEcuVariant>(L"Ecu", L"E@Ecu B@Bv F@Doors L@Lib");
}

#ifdef DIAGKIT_TEST_SLOTS
TEST_F(OpBuildDiagVariableViewTest, TheVisitOperationsKeepTheVisitorsPlaces) {
    EXPECT_EQ(SlotsOf(&VOpBuildDiagVariableView::VisitBaseVariant, &VOpBuildDiagVariableView::VisitProtocol,
                      &VOpBuildDiagVariableView::VisitFunctionalGroup, &VOpBuildDiagVariableView::VisitEcuVariant,
                      &VOpBuildDiagVariableView::VisitEcuSharedData, &VOpBuildDiagVariableView::DispatchDiagLayer),
              SlotsAfterDestructor(6));
}
#endif

TEST_F(OpBuildDiagVariableViewTest, ASecondCreateDestroysTheFirstView) {
    // The sanitizers see that the first view neither leaks nor dies twice.
    VOpBuildDiagVariableView builder;
    builder.CreateDiagVariableView(Layer(L"Ecu"));
    builder.CreateDiagVariableView(Layer(L"Bv"));
    VDiagVariableView* const last = builder.CreateDiagVariableView(Layer(L"Lib"));
    EXPECT_EQ(PrintEntries(*last), L"L@Lib");
    builder.DestroyDiagVariableView(*last);
}

TEST_F(OpBuildDiagVariableViewTest, ADirectVisitMakesAViewThatTheNextCreateDestroys) {
    VOpBuildDiagVariableView builder;
    builder.VisitProtocol(LayerAs<NODX201::VProtocol>(L"Uds"));
    VDiagVariableView* const view = builder.CreateDiagVariableView(Layer(L"Lib"));
    EXPECT_EQ(PrintEntries(*view), L"L@Lib");
    builder.DestroyDiagVariableView(*view);
}

TEST_F(OpBuildDiagVariableViewTest, AViewOutlivesItsBuilderAndAnyBuilderDestroysIt) {
    VDiagVariableView* view = nullptr;
    {
        VOpBuildDiagVariableView builder;
        view = builder.CreateDiagVariableView(Layer(L"Doors"));
    }
    EXPECT_EQ(PrintEntries(*view), L"F@Doors L@Lib");
    VOpBuildDiagVariableView().DestroyDiagVariableView(*view);
    EXPECT_EQ(ById<NODX201::VDiagVariable>(L"Doors.F").GetShortName(), std::wstring(L"F"))
        << "the DIAG-VARIABLEs live on";
}

TEST_F(OpBuildDiagVariableViewTest, DestroyGoesThroughTheVirtualDestructor) {
    class VTellingView : public VDiagVariableView {
    public:
        VTellingView(NODX201::VEcuSharedData& layer, bool& isDestroyed)
            : VDiagVariableView(layer), m_isDestroyed(&isDestroyed) {}
        ~VTellingView() override { *m_isDestroyed = true; }

    private:
        bool* m_isDestroyed;
    };
    bool isDestroyed = false;
    VOpBuildDiagVariableView().DestroyDiagVariableView(
        *new VTellingView(LayerAs<NODX201::VEcuSharedData>(L"Lib"), isDestroyed));
    EXPECT_TRUE(isDestroyed);
}

TEST_F(OpBuildDiagVariableViewTest, ACopyAndAnAssignedBuilderRememberTheSameView) {
    VOpBuildDiagVariableView original;
    VDiagVariableView* const shared = original.CreateDiagVariableView(Layer(L"Doors"));
    VOpBuildDiagVariableView copy(original);
    VOpBuildDiagVariableView assigned;
    assigned = copy;
    EXPECT_EQ(PrintEntries(*shared), L"F@Doors L@Lib") << "copying a builder leaves the view alone";
    VDiagVariableView* const last = assigned.CreateDiagVariableView(Layer(L"Lib")); // destroys the shared view
    EXPECT_EQ(PrintEntries(*last), L"L@Lib");
    assigned.DestroyDiagVariableView(*last);
}

TEST_F(OpBuildDiagVariableViewTest, AcceptThatVisitsNothingLogsAndAssertsOnAFreshBuilder) {
    VRecordedLog log;
    VSilentLayer silent;
    VOpBuildDiagVariableView builder;
    EXPECT_EQ(builder.CreateDiagVariableView(silent), nullptr);
    EXPECT_EQ(log.Lines(), (std::vector<VRecordedLog::VLine>{{0, L"mpDiagVariableView != NULL."}}));
    EXPECT_EQ(m_assertions.Take(), kNoDiagVariableView);
    VDiagVariableView* const view = builder.CreateDiagVariableView(Layer(L"Lib"));
    EXPECT_EQ(PrintEntries(*view), L"L@Lib") << "the builder is usable afterwards";
    builder.DestroyDiagVariableView(*view);
}

TEST_F(OpBuildDiagVariableViewTest, AListenerThatLetsTheBuilderMakeTheViewPreventsTheAssertion) {
    VOpBuildDiagVariableView builder;
    VRecordedLog log([&] { builder.CreateDiagVariableView(Layer(L"Lib")); });
    VSilentLayer silent;
    VDiagVariableView* const view = builder.CreateDiagVariableView(silent);
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(PrintEntries(*view), L"L@Lib");
    builder.DestroyDiagVariableView(*view);
}

TEST_F(OpBuildDiagVariableViewTest, ADisabledLoggerGetsNoMessage) {
    VRecordedLog log;
    NLogging::VSharedLogger::Instance()->Disable();
    VSilentLayer silent;
    EXPECT_EQ(VOpBuildDiagVariableView().CreateDiagVariableView(silent), nullptr);
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take(), kNoDiagVariableView);
}

TEST_F(OpBuildDiagVariableViewTest, WithoutAListenerTheFailureIsOnlyAsserted) {
    ASSERT_EQ(NLogging::VSharedLogger::Instance()->GetLogger(), nullptr);
    VSilentLayer silent;
    EXPECT_EQ(VOpBuildDiagVariableView().CreateDiagVariableView(silent), nullptr);
    EXPECT_EQ(m_assertions.Take(), kNoDiagVariableView);
}

TEST_F(OpBuildDiagVariableViewTest, AViewThatIsMadeIsNeitherLoggedNorAsserted) {
    VRecordedLog log;
    VOpBuildDiagVariableView builder;
    std::unique_ptr<VDiagVariableView> const view(builder.CreateDiagVariableView(Layer(L"Lib")));
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
}

} // namespace
} // namespace NTest
