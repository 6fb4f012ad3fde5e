// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildGlobalNegResponseView.h>

#include <type_traits>

#include "support/MockElements.h"
#include "support/RecordedLog.h"
#include "support/Slots.h"
#include "tools/ContentGraph.h"

namespace NTest {
namespace {

using NDIAGKIT::VGlobalNegResponseView;
using NDIAGKIT::VOpBuildGlobalNegResponseView;

static_assert(std::is_convertible_v<VOpBuildGlobalNegResponseView*, NODX201::VDiagLayerVisitor*>, "derived publicly");
static_assert(std::has_virtual_destructor_v<VOpBuildGlobalNegResponseView>);

class OpBuildGlobalNegResponseViewTest : public VContentTest {
protected:
    OpBuildGlobalNegResponseViewTest() : VContentTest(VContent::GlobalNegResponses) {}

    void SetUp() override {
        Graph(LR"(
            esd  Lib   : L
            prot Uds   : P   < Lib
            func Doors : F   < Uds
            base Bv    : B   < Doors
            ecu  Ecu   : E   < Bv
        )");
    }

    std::wstring Built(wchar_t const* layer) {
        VOpBuildGlobalNegResponseView builder;
        std::unique_ptr<VGlobalNegResponseView> const view(builder.CreateGlobalNegResponseView(Layer(layer)));
        return PrintEntries(*view);
    }
};

TEST_F(OpBuildGlobalNegResponseViewTest, CreateMakesTheViewOfALayerOfAnyKind) {
    EXPECT_EQ(Built(L"Lib"), L"L@Lib");
    EXPECT_EQ(Built(L"Uds"), L"P@Uds L@Lib");
    EXPECT_EQ(Built(L"Doors"), L"F@Doors P@Uds L@Lib");
    EXPECT_EQ(Built(L"Bv"), L"B@Bv F@Doors P@Uds L@Lib");
    EXPECT_EQ(Built(L"Ecu"), L"E@Ecu B@Bv F@Doors P@Uds L@Lib");
}

#ifdef DIAGKIT_TEST_SLOTS
TEST_F(OpBuildGlobalNegResponseViewTest, TheVisitOperationsKeepTheVisitorsPlaces) {
    using VBuilder = VOpBuildGlobalNegResponseView;
    EXPECT_EQ(SlotsOf(&VBuilder::VisitBaseVariant, &VBuilder::VisitProtocol, &VBuilder::VisitFunctionalGroup,
                      &VBuilder::VisitEcuVariant, &VBuilder::VisitEcuSharedData, &VBuilder::DispatchDiagLayer),
              SlotsAfterDestructor(6));
}
#endif

TEST_F(OpBuildGlobalNegResponseViewTest, ASecondCreateDestroysTheFirstView) {
    VOpBuildGlobalNegResponseView builder; // the sanitizers see that nothing leaks or dies twice
    builder.CreateGlobalNegResponseView(Layer(L"Ecu"));
    VGlobalNegResponseView* const last = builder.CreateGlobalNegResponseView(Layer(L"Lib"));
    EXPECT_EQ(PrintEntries(*last), L"L@Lib");
    builder.DestroyGlobalNegResponseView(*last);
}

TEST_F(OpBuildGlobalNegResponseViewTest, ACopyAndAnAssignedBuilderRememberTheSameView) {
    VOpBuildGlobalNegResponseView original;
    VGlobalNegResponseView* const shared = original.CreateGlobalNegResponseView(Layer(L"Uds"));
    VOpBuildGlobalNegResponseView copy(original);
    VOpBuildGlobalNegResponseView assigned;
    assigned = copy;
    EXPECT_EQ(PrintEntries(*shared), L"P@Uds L@Lib") << "copying a builder leaves the view alone";
    VGlobalNegResponseView* const last = assigned.CreateGlobalNegResponseView(Layer(L"Lib")); // destroys the shared one
    EXPECT_EQ(PrintEntries(*last), L"L@Lib");
    assigned.DestroyGlobalNegResponseView(*last);
}

TEST_F(OpBuildGlobalNegResponseViewTest, DestroyLeavesTheElementsAlive) {
    VOpBuildGlobalNegResponseView maker;
    VGlobalNegResponseView* const view = maker.CreateGlobalNegResponseView(Layer(L"Uds"));
    VOpBuildGlobalNegResponseView().DestroyGlobalNegResponseView(*view);
    EXPECT_EQ(Built(L"Uds"), L"P@Uds L@Lib");
}

TEST_F(OpBuildGlobalNegResponseViewTest, BuilderWithoutViewIsSilent) {
    VRecordedLog log;
    VSilentLayer silent;
    VOpBuildGlobalNegResponseView builder;
    EXPECT_EQ(builder.CreateGlobalNegResponseView(silent), nullptr);
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
    VGlobalNegResponseView* const view = builder.CreateGlobalNegResponseView(Layer(L"Lib"));
    EXPECT_EQ(PrintEntries(*view), L"L@Lib") << "the builder is usable afterwards";
    builder.DestroyGlobalNegResponseView(*view);
}

TEST_F(OpBuildGlobalNegResponseViewTest, ABuilderThatMadeAViewReturnsWhatItRemembers) {
    // What it returns has been destroyed, so it must neither be used nor followed by another Create.
    VRecordedLog log;
    VSilentLayer silent;
    VOpBuildGlobalNegResponseView builder;
    builder.CreateGlobalNegResponseView(Layer(L"Lib"));
    EXPECT_NE(builder.CreateGlobalNegResponseView(silent), nullptr);
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
}

} // namespace
} // namespace NTest
