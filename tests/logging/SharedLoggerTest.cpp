// SPDX-License-Identifier: Apache-2.0
#include <diagkit/logging/SharedLogger.h>

#include <gtest/gtest.h>

#include "support/RecordedLog.h"

namespace NTest {
namespace {

using NLogging::VSharedLogger;

TEST(SharedLoggerTest, ThereIsOneLogger) {
    ASSERT_NE(VSharedLogger::Instance(), nullptr);
    EXPECT_EQ(VSharedLogger::Instance(), VSharedLogger::Instance());
}

TEST(SharedLoggerTest, ItStartsEnabledAndWithoutAListener) {
    EXPECT_TRUE(VSharedLogger::Instance()->IsEnabled());
    EXPECT_EQ(VSharedLogger::Instance()->GetLogger(), nullptr);
}

TEST(SharedLoggerTest, ItIsDisabledAndEnabledAgain) {
    VSharedLogger& logger = *VSharedLogger::Instance();
    logger.Disable();
    EXPECT_FALSE(logger.IsEnabled());
    logger.Enable();
    EXPECT_TRUE(logger.IsEnabled());
}

TEST(SharedLoggerTest, AListenerIsSetAndRemoved) {
    VSharedLogger& logger = *VSharedLogger::Instance();
    {
        VRecordedLog log;
        EXPECT_EQ(logger.GetLogger(), &log);
        logger.GetLogger()->Log(0, L"text");
        EXPECT_EQ(log.Lines(), (std::vector<VRecordedLog::VLine>{{0, L"text"}}));
    }
    EXPECT_EQ(logger.GetLogger(), nullptr);
}

} // namespace
} // namespace NTest
