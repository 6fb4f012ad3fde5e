// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>

#include <diagkit/conformance/Conformance.h>

namespace NConformance {

/// The checks, for the sources that report; the values are positions in `Checks()`.
enum class VCheckId : int {
#define CHECK(identifier, name, promise) identifier,
#include <diagkit/conformance/Checks.def>
};

/// Collects violations.
class VViolations {
public:
    /// No effect when the check has been reported often enough.
    void Add(VCheckId check, std::wstring where, std::wstring expected, std::wstring found);
    std::vector<VViolation> Take() { return std::move(m_violations); }

private:
    std::vector<VViolation> m_violations;
    std::map<VCheckId, int> m_told;
};

/// For every answer that is missing, different or unexpected, in the order of what is expected.
std::vector<VViolation> CompareAnswers(std::vector<std::wstring> const& expected,
                                       std::vector<std::wstring> const& found);

} // namespace NConformance
