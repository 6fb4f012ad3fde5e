// SPDX-License-Identifier: Apache-2.0
#include "support/RecordedAssertions.h"

#include <ostream>
#include <utility>

#include <gtest/gtest.h>

namespace NTest {

std::ostream& operator<<(std::ostream& out, VRecordedAssertion const& assertion) {
    return out << testing::PrintToString(assertion.expression) << ", " << testing::PrintToString(assertion.source)
               << ", line " << assertion.line;
}

std::vector<VRecordedAssertion> VRecordedAssertions::s_recorded;

VRecordedAssertions::VRecordedAssertions() : m_handler(&Record) { s_recorded.clear(); }

VRecordedAssertions::~VRecordedAssertions() {
    EXPECT_EQ(Take(), std::vector<VRecordedAssertion>{}) << "assertions that the test did not expect";
}

std::vector<VRecordedAssertion> VRecordedAssertions::Take() { return std::exchange(s_recorded, {}); }

void VRecordedAssertions::Record(NPavonaUtil::VAssertion const& assertion) {
    s_recorded.push_back({assertion.expression, assertion.source, assertion.line});
}

} // namespace NTest
