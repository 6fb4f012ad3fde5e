// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "check/CheckTest.h"

namespace NTest {
namespace {

class VCheckSamplesTest : public VCheckTest {
protected:
    std::string FindingsOf(std::string const& file) {
        ReadFiles({file});
        std::string text;
        for (NReader::VDiagnostic const& diagnostic : NCheck::CheckDatabase(m_result)) {
            text += FormatDiagnostic(diagnostic) + '\n';
        }
        return text;
    }
};

TEST_F(VCheckSamplesTest, OurOwnGivesNoFindings) {
    EXPECT_EQ(FindingsOf(std::string(DIAGKIT_SAMPLES) + "/WiperDatabase.pdx"), "");
}

#ifdef DIAGKIT_SHARED_SAMPLES
TEST_F(VCheckSamplesTest, SomersaultHasNoErrors) {
    std::string const findings = FindingsOf(std::string(DIAGKIT_SHARED_SAMPLES) + "/somersault.pdx");
    EXPECT_EQ(findings.find(": error: "), std::string::npos) << findings;
}

TEST_F(VCheckSamplesTest, ThreeConversionsOfFlxc1000AreBetweenTypesThatDoNotFit) {
    std::string const findings = FindingsOf(std::string(DIAGKIT_SHARED_SAMPLES) + "/FLXC1000.pdx");
    std::size_t count = 0;
    for (std::size_t at = 0; (at = findings.find("[conversion-types]", at)) != std::string::npos; ++at) {
        ++count;
    }
    EXPECT_EQ(count, 3U) << findings;
}
#endif

} // namespace
} // namespace NTest
