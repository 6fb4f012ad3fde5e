// SPDX-License-Identifier: Apache-2.0

// Detection while memory runs out at every point.

#include <gtest/gtest.h>

#include <diagkit/tools/oem/OemChecker.h>

#include "faults/FailEverywhere.h"
#include "faults/Sample.h"

namespace NTest {
namespace {

TEST(DetectionFaultsTest, AnswerAndReportOfTheSample) {
    VSample sample;
    NODX201::VOdx& odx = sample.database.GetOdx();
    NDIAGKIT::VOemChecker checker;
    NDIAGKIT::VManufacturer const before = checker.GetManufacturer(odx);
    checker.Report(odx); // the process's buffers for text conversion exist from now on
    EXPECT_GT(FailEverywhere([&] { checker.GetManufacturer(odx); }), 10u);
    EXPECT_GT(FailEverywhere([&] { checker.Report(odx); }), 50u);
    EXPECT_EQ(checker.GetManufacturer(odx), before);
}

} // namespace
} // namespace NTest
