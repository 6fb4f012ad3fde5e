// SPDX-License-Identifier: Apache-2.0
#include <diagkit/util/Assertion.h>

#include <csignal>

#include <gtest/gtest.h>

#include <diagkit/tools/StringContainer.h>

#include "support/RecordedAssertions.h"

namespace NTest {
namespace {

using NPavonaUtil::VAssertion;

int s_called = 0;

void CountCalls(VAssertion const&) { ++s_called; }

void IgnoreCalls(VAssertion const&) {}

TEST(AssertionTest, TheHandlerGetsExpressionSourceAndLine) {
    VRecordedAssertions recorded;
    NPavonaUtil::ReportAssertion({L"a != b", L"Source", 12});
    NPavonaUtil::ReportAssertion({L"false", L"Other", 3});
    EXPECT_EQ(recorded.Take(), (std::vector<VRecordedAssertion>{{L"a != b", L"Source", 12}, {L"false", L"Other", 3}}));
}

TEST(AssertionTest, SettingAHandlerReturnsTheOneBefore) {
    NPavonaUtil::VAssertionHandler const first = NPavonaUtil::SetAssertionHandler(&CountCalls);
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(NPavonaUtil::SetAssertionHandler(&IgnoreCalls), &CountCalls);
    EXPECT_EQ(NPavonaUtil::SetAssertionHandler(nullptr), &IgnoreCalls);
    EXPECT_EQ(NPavonaUtil::SetAssertionHandler(first), first) << "null installs the first one again";
}

TEST(AssertionTest, AScopedHandlerEndsWithItsScope) {
    s_called = 0;
    NPavonaUtil::VScopedAssertionHandler const outer(&CountCalls);
    {
        NPavonaUtil::VScopedAssertionHandler const inner(&IgnoreCalls);
        NPavonaUtil::ReportAssertion({L"false", L"Source", 1});
        EXPECT_EQ(s_called, 0);
    }
    NPavonaUtil::ReportAssertion({L"false", L"Source", 1});
    EXPECT_EQ(s_called, 1);
}

/// Fails in the container, with the installed handler.
void RemoveAbsentText() {
    NDIAGKIT::VStringContainer container;
    container.Remove(L"absent");
}

TEST(AssertionDeathTest, TheFirstHandlerWritesToStandardErrorAndAborts) {
#ifdef _WIN32
    EXPECT_DEATH(RemoveAbsentText(), "Assertion failed: false, file StringContainer, line 94");
#else
    EXPECT_EXIT(RemoveAbsentText(), testing::KilledBySignal(SIGABRT),
                "Assertion failed: false, file StringContainer, line 94");
#endif
}

} // namespace
} // namespace NTest
