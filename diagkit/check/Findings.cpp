// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Findings.h>

#include <algorithm>
#include <utility>

#include <diagkit/check/Codes.h>

namespace NCheck {

void VFindings::Add(VFinding finding) {
    VCode const* const code = FindCode(finding.code);
    // One that is in no table is a fault of the topic; the finding is told all the same.
    NReader::VSeverity const severity = code != nullptr ? code->severity : NReader::VSeverity::Error;
    m_findings.Add(finding.position, severity, finding.code, std::move(finding.message));
}

std::vector<NReader::VDiagnostic> VFindings::Sorted(NMemory::VDatabase const& database) const {
    return m_findings.Sorted(database);
}

NMemory::VPosition PositionOf(NODX201::VOdxElement const& element) {
    auto const* const node = dynamic_cast<NMemory::VMemNode const*>(&element);
    return node != nullptr ? node->GetPosition() : NMemory::VPosition{};
}

std::string ListedIn(NReader::VCycleSearch::VChain const& chain) {
    std::vector<std::string> titles;
    for (std::size_t index = 0; index < std::min(chain.Count(), kMostListed); ++index) {
        titles.push_back(Titled(chain[index]));
    }
    return NReader::ListedOf(titles, chain.Count());
}

} // namespace NCheck
