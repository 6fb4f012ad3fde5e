// SPDX-License-Identifier: Apache-2.0
#include <diagkit/reader/Findings.h>

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

#include <diagkit/reader/Limits.h>

namespace NReader {

bool IsBefore(NMemory::VPosition const& a, NMemory::VPosition const& b) {
    return std::tie(a.document, a.line, a.column) < std::tie(b.document, b.line, b.column);
}

std::string Clipped(std::string message) {
    if (message.size() <= kLongestMessage) {
        return message;
    }
    std::size_t end = kLongestMessage;
    while ((static_cast<unsigned char>(message[end]) & 0xC0) == 0x80) { // inside a character of UTF-8
        --end;
    }
    return message.substr(0, end) + "...";
}

void VFindings::Add(NMemory::VPosition const& position, VCode const& code, std::string message) {
    Keep({position, code, Clipped(std::move(message))});
}

void VFindings::Append(VFindings&& later) {
    for (VKept& finding : later.m_findings) {
        Keep(std::move(finding));
    }
    if (later.m_firstLeftOut) {
        LeaveOut(*later.m_firstLeftOut, later.m_leftOut);
    }
    later = VFindings(later.m_limit);
}

void VFindings::Keep(VKept finding) {
    std::size_t const index = IndexOf(finding.code.severity);
    if (m_kept[index] < m_limit) {
        ++m_kept[index];
        m_findings.push_back(std::move(finding));
        return;
    }
    VCounts counts{};
    counts[index] = 1;
    LeaveOut(finding.position, counts);
}

void VFindings::LeaveOut(NMemory::VPosition const& first, VCounts const& counts) {
    for (std::size_t index = 0; index < counts.size(); ++index) {
        m_leftOut[index] += counts[index];
    }
    if (!m_firstLeftOut || IsBefore(first, *m_firstLeftOut)) {
        m_firstLeftOut = first;
    }
}

VFindings::VKept VFindings::Closing() const {
    std::uint64_t const errors = m_leftOut[IndexOf(VSeverity::Error)];
    std::uint64_t const warnings = m_leftOut[IndexOf(VSeverity::Warning)];
    std::uint64_t const all = errors + warnings + m_leftOut[IndexOf(VSeverity::Note)];
    VSeverity const worst = errors > 0 ? VSeverity::Error : warnings > 0 ? VSeverity::Warning : VSeverity::Note;
    std::string const what = "left out are " + std::to_string(all) + " diagnostics, " + std::to_string(errors) +
                             " of them errors, the first here: there are more errors, warnings or notes than";
    return {*m_firstLeftOut, NCode::TooManyDiagnostics.As(worst), OverLimit(what, m_limit, "", "--max-diagnostics")};
}

std::vector<VDiagnostic> VFindings::Sorted(NMemory::VDatabase const& database) const {
    std::vector<VKept> findings = m_findings;
    if (m_firstLeftOut) {
        findings.push_back(Closing());
    }
    std::stable_sort(findings.begin(), findings.end(),
                     [](VKept const& a, VKept const& b) { return IsBefore(a.position, b.position); });
    std::vector<VDiagnostic> diagnostics;
    diagnostics.reserve(findings.size());
    for (VKept& finding : findings) {
        diagnostics.push_back({database.GetDocumentName(finding.position), finding.position.line,
                               finding.position.column, finding.code.severity, finding.code.code,
                               std::move(finding.message)});
    }
    return diagnostics;
}

} // namespace NReader
