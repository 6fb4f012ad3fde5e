// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Findings.h>

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace NReader {

std::string Clipped(std::string message) {
    constexpr std::size_t kLongest = 2000;
    if (message.size() <= kLongest) {
        return message;
    }
    std::size_t end = kLongest;
    while ((static_cast<unsigned char>(message[end]) & 0xC0) == 0x80) { // inside a character of UTF-8
        --end;
    }
    return message.substr(0, end) + "...";
}

void VFindings::Add(NMemory::VPosition const& position, VSeverity severity, std::string code, std::string message) {
    m_findings.push_back({position, severity, std::move(code), Clipped(std::move(message))});
}

void VFindings::Append(VFindings&& later) {
    m_findings.insert(m_findings.end(), std::make_move_iterator(later.m_findings.begin()),
                      std::make_move_iterator(later.m_findings.end()));
    later.m_findings.clear();
}

std::vector<VDiagnostic> VFindings::Sorted(NMemory::VDatabase const& database) const {
    std::vector<VFinding> findings = m_findings;
    std::stable_sort(findings.begin(), findings.end(), [](VFinding const& a, VFinding const& b) {
        return std::tie(a.position.document, a.position.line, a.position.column) <
               std::tie(b.position.document, b.position.line, b.position.column);
    });
    std::vector<VDiagnostic> diagnostics;
    diagnostics.reserve(findings.size());
    for (VFinding& finding : findings) {
        diagnostics.push_back({database.GetDocumentName(finding.position), finding.position.line,
                               finding.position.column, finding.severity, std::move(finding.code),
                               std::move(finding.message)});
    }
    return diagnostics;
}

} // namespace NReader
