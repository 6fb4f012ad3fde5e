// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/util/Assertion.h>

namespace NTest {

/// One failed assertion as a test compares it.
struct VRecordedAssertion {
    std::wstring expression;
    std::wstring source;
    int line;

    bool operator==(VRecordedAssertion const& other) const {
        return expression == other.expression && source == other.source && line == other.line;
    }
};

std::ostream& operator<<(std::ostream& out, VRecordedAssertion const& assertion);

/// While it exists, failed assertions are recorded and execution continues; one at a time. A test that ends with
/// assertions it did not `Take` has failed.
class VRecordedAssertions {
public:
    VRecordedAssertions();
    ~VRecordedAssertions();
    VRecordedAssertions(VRecordedAssertions const&) = delete;
    VRecordedAssertions& operator=(VRecordedAssertions const&) = delete;

    /// The failures since the last call, in order.
    std::vector<VRecordedAssertion> Take();

private:
    static void Record(NPavonaUtil::VAssertion const& assertion);

    static std::vector<VRecordedAssertion> s_recorded;
    NPavonaUtil::VScopedAssertionHandler m_handler;
};

} // namespace NTest
