// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildOutParamIfView.h>

#include <memory>
#include <type_traits>

#include "support/MockElements.h"
#include "tools/ParamTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VOutParamIfView;
using NODX201::VSearchRange;
using VConcreteOutParamIfBuilder = VConcreteBuilder<NDIAGKIT::VOpBuildOutParamIfView>;

static_assert(std::is_abstract_v<NDIAGKIT::VOpBuildOutParamIfView>);
static_assert(std::is_convertible_v<NDIAGKIT::VOpBuildOutParamIfView*, NODX201::VDiagLayerVisitor*>);
static_assert(std::has_virtual_destructor_v<NDIAGKIT::VOpBuildOutParamIfView>);

class OpBuildOutParamIfViewTest : public VParamTest {
protected:
    void SetUp() override {
        Request().AddValue(L"OfRequest");
        PosResponse().AddValue(L"OfResponse");
        m_singleJob.AddOutputParam(L"OfSingleJob");
        m_multipleJob.AddOutputParam(L"OfMultipleJob");
    }
};

VAssertionList const kNoOutParamIfView{{L"(mpOutParamIfView != 0)", L"OpBuildOutParamIfView", 62}};

TEST_F(OpBuildOutParamIfViewTest, CreateMakesTheViewOfTheDiagCommsKind) {
    VConcreteOutParamIfBuilder ofService;
    std::unique_ptr<VOutParamIfView> const service(ofService.CreateOutParamIfView(m_service, VSearchRange::Request));
    EXPECT_EQ(PrintParams(*service), L"OfRequest");
    VConcreteOutParamIfBuilder ofMultipleJob;
    std::unique_ptr<VOutParamIfView> const multipleJob(ofMultipleJob.CreateOutParamIfView(m_multipleJob));
    EXPECT_EQ(PrintParams(*multipleJob), L"OfMultipleJob");
}

TEST_F(OpBuildOutParamIfViewTest, TheRangeIsPassedOnForAServiceAndIgnoredForAJob) {
    VConcreteOutParamIfBuilder builder;
    wchar_t const* const ofService[] = {L"OfResponse", L"OfRequest",  L"",
                                        L"OfRequest",  L"OfResponse", L"OfRequest OfResponse"};
    VOutParamIfView* last = nullptr;
    for (int range = 0; range < 6; ++range) {
        last = builder.CreateOutParamIfView(m_service, static_cast<VSearchRange>(range));
        EXPECT_EQ(PrintParams(*last), ofService[range]);
        last = builder.CreateOutParamIfView(m_singleJob, static_cast<VSearchRange>(range));
        EXPECT_EQ(PrintParams(*last), L"OfSingleJob");
    }
    delete last; // all views before it died in the next Create, as the sanitizers see
}

TEST_F(OpBuildOutParamIfViewTest, ACopyRemembersTheSameView) {
    VConcreteOutParamIfBuilder original;
    VOutParamIfView* const shared = original.CreateOutParamIfView(m_service, VSearchRange::Request);
    VConcreteOutParamIfBuilder copy(original);
    EXPECT_EQ(PrintParams(*shared), L"OfRequest");
    std::unique_ptr<VOutParamIfView> const last(copy.CreateOutParamIfView(m_multipleJob)); // destroys the shared view
    EXPECT_EQ(PrintParams(*last), L"OfMultipleJob");
}

TEST_F(OpBuildOutParamIfViewTest, AnAssignedBuilderRemembersTheSameView) {
    VConcreteOutParamIfBuilder original;
    VOutParamIfView* const shared = original.CreateOutParamIfView(m_service, VSearchRange::Request);
    VConcreteOutParamIfBuilder assigned;
    assigned = original;
    EXPECT_EQ(PrintParams(*shared), L"OfRequest");
    // It destroys the view that both remember.
    std::unique_ptr<VOutParamIfView> const last(assigned.CreateOutParamIfView(m_multipleJob));
    EXPECT_EQ(PrintParams(*last), L"OfMultipleJob");
}

TEST_F(OpBuildOutParamIfViewTest, AMultipleEcuJobAsADiagCommIsLoggedAndAsserted) {
    VRecordedLog log;
    VConcreteOutParamIfBuilder builder;
    builder.CreateOutParamIfView(m_service, VSearchRange::Request);
    EXPECT_EQ(builder.CreateOutParamIfView(MultipleJobAsDiagComm(), VSearchRange::Request), nullptr);
    EXPECT_EQ(log.Lines(), (std::vector<VRecordedLog::VLine>{{0, L"mpOutParamIfView != NULL."}}));
    EXPECT_EQ(m_assertions.Take(), kNoOutParamIfView);
    std::unique_ptr<VOutParamIfView> const view(builder.CreateOutParamIfView(m_service, VSearchRange::Request));
    ASSERT_NE(view, nullptr) << "the builder is usable afterwards";
    EXPECT_EQ(PrintParams(*view), L"OfRequest");
}

TEST_F(OpBuildOutParamIfViewTest, TheTagDecidesWhatADiagCommIsTakenFor) {
    VMockDiagService untagged(L"Untagged"); // a service without the tag of one
    EXPECT_EQ(VConcreteOutParamIfBuilder().CreateOutParamIfView(untagged, VSearchRange::Request), nullptr);
    EXPECT_EQ(m_assertions.Take(), kNoOutParamIfView);
}

TEST_F(OpBuildOutParamIfViewTest, AListenerThatLetsTheBuilderMakeTheViewPreventsTheAssertion) {
    VConcreteOutParamIfBuilder builder;
    VRecordedLog log([&] { builder.CreateOutParamIfView(m_service, VSearchRange::Request); });
    std::unique_ptr<VOutParamIfView> const view(
        builder.CreateOutParamIfView(MultipleJobAsDiagComm(), VSearchRange::Request));
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(PrintParams(*view), L"OfRequest");
}

TEST_F(OpBuildOutParamIfViewTest, ADisabledLoggerGetsNoMessage) {
    VRecordedLog log;
    NLogging::VSharedLogger::Instance()->Disable();
    EXPECT_EQ(VConcreteOutParamIfBuilder().CreateOutParamIfView(MultipleJobAsDiagComm(), VSearchRange::Request),
              nullptr);
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take(), kNoOutParamIfView);
}

} // namespace
} // namespace NTest
