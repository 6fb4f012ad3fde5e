// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/OpBuildInParamIfView.h>

#include <memory>
#include <type_traits>

#include "support/MockElements.h"
#include "tools/ParamTest.h"

namespace NTest {
namespace {

using NDIAGKIT::VInParamIfView;
using VConcreteInParamIfBuilder = VConcreteBuilder<NDIAGKIT::VOpBuildInParamIfView>;

static_assert(std::is_abstract_v<NDIAGKIT::VOpBuildInParamIfView>);
static_assert(std::is_convertible_v<NDIAGKIT::VOpBuildInParamIfView*, NODX201::VDiagLayerVisitor*>);
static_assert(std::has_virtual_destructor_v<NDIAGKIT::VOpBuildInParamIfView>);

class OpBuildInParamIfViewTest : public VParamTest {
protected:
    void SetUp() override {
        PosResponse().AddValue(L"OfService");
        m_singleJob.AddInputParam(L"OfSingleJob");
        m_multipleJob.AddInputParam(L"OfMultipleJob");
    }
};

VAssertionList const kNoInParamIfView{{L"(mpInParamIfView != 0)", L"OpBuildInParamIfView", 62}};

TEST_F(OpBuildInParamIfViewTest, CreateMakesTheViewOfTheDiagCommsKind) {
    VConcreteInParamIfBuilder ofService;
    std::unique_ptr<VInParamIfView> const service(ofService.CreateInParamIfView(m_service));
    EXPECT_EQ(PrintParams(*service), L"OfService");
    VConcreteInParamIfBuilder ofSingleJob;
    std::unique_ptr<VInParamIfView> const singleJob(ofSingleJob.CreateInParamIfView(m_singleJob));
    EXPECT_EQ(PrintParams(*singleJob), L"OfSingleJob");
    VConcreteInParamIfBuilder ofMultipleJob;
    std::unique_ptr<VInParamIfView> const multipleJob(ofMultipleJob.CreateInParamIfView(m_multipleJob));
    EXPECT_EQ(PrintParams(*multipleJob), L"OfMultipleJob");
}

TEST_F(OpBuildInParamIfViewTest, ASecondCreateDestroysTheFirstView) {
    VConcreteInParamIfBuilder builder; // the sanitizers see that nothing leaks or dies twice
    builder.CreateInParamIfView(m_service);
    builder.CreateInParamIfView(m_multipleJob);
    std::unique_ptr<VInParamIfView> const last(builder.CreateInParamIfView(m_singleJob));
    EXPECT_EQ(PrintParams(*last), L"OfSingleJob");
}

TEST_F(OpBuildInParamIfViewTest, ACopyRemembersTheSameView) {
    VConcreteInParamIfBuilder original;
    VInParamIfView* const shared = original.CreateInParamIfView(m_service);
    VConcreteInParamIfBuilder copy(original);
    EXPECT_EQ(PrintParams(*shared), L"OfService");
    std::unique_ptr<VInParamIfView> const last(copy.CreateInParamIfView(m_singleJob)); // destroys the shared view
    EXPECT_EQ(PrintParams(*last), L"OfSingleJob");
}

TEST_F(OpBuildInParamIfViewTest, AnAssignedBuilderRemembersTheSameView) {
    VConcreteInParamIfBuilder original;
    VInParamIfView* const shared = original.CreateInParamIfView(m_service);
    VConcreteInParamIfBuilder assigned;
    assigned = original;
    EXPECT_EQ(PrintParams(*shared), L"OfService");
    std::unique_ptr<VInParamIfView> const last(assigned.CreateInParamIfView(m_singleJob)); // destroys the shared view
    EXPECT_EQ(PrintParams(*last), L"OfSingleJob");
}

TEST_F(OpBuildInParamIfViewTest, AMultipleEcuJobAsADiagCommIsLoggedAndAsserted) {
    VRecordedLog log;
    VConcreteInParamIfBuilder builder;
    builder.CreateInParamIfView(m_service);
    EXPECT_EQ(builder.CreateInParamIfView(MultipleJobAsDiagComm()), nullptr) << "the earlier view is gone as well";
    EXPECT_EQ(log.Lines(), (std::vector<VRecordedLog::VLine>{{0, L"mpInParamIfView != NULL."}}));
    EXPECT_EQ(m_assertions.Take(), kNoInParamIfView);
    std::unique_ptr<VInParamIfView> const view(builder.CreateInParamIfView(m_service));
    ASSERT_NE(view, nullptr) << "the builder is usable afterwards";
    EXPECT_EQ(PrintParams(*view), L"OfService");
}

TEST_F(OpBuildInParamIfViewTest, TheTagDecidesWhatADiagCommIsTakenFor) {
    VMockDiagService untagged(L"Untagged"); // a service without the tag of one
    EXPECT_EQ(VConcreteInParamIfBuilder().CreateInParamIfView(untagged), nullptr);
    EXPECT_EQ(m_assertions.Take(), kNoInParamIfView);
}

TEST_F(OpBuildInParamIfViewTest, AListenerThatLetsTheBuilderMakeTheViewPreventsTheAssertion) {
    VConcreteInParamIfBuilder builder;
    VRecordedLog log([&] { builder.CreateInParamIfView(m_service); });
    std::unique_ptr<VInParamIfView> const view(builder.CreateInParamIfView(MultipleJobAsDiagComm()));
    EXPECT_EQ(m_assertions.Take(), VAssertionList{});
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(PrintParams(*view), L"OfService");
}

TEST_F(OpBuildInParamIfViewTest, ADisabledLoggerGetsNoMessage) {
    VRecordedLog log;
    NLogging::VSharedLogger::Instance()->Disable();
    EXPECT_EQ(VConcreteInParamIfBuilder().CreateInParamIfView(MultipleJobAsDiagComm()), nullptr);
    EXPECT_EQ(log.Lines(), std::vector<VRecordedLog::VLine>{});
    EXPECT_EQ(m_assertions.Take(), kNoInParamIfView);
}

} // namespace
} // namespace NTest
