// SPDX-License-Identifier: Apache-2.0
#include "check/CheckTest.h"

namespace NTest {

void VCheckTest::CheckDocuments(std::vector<std::string> const& documents) {
    if (documents.size() == 1) {
        Read(documents.front());
    } else {
        Read(documents);
    }
    m_result.diagnostics = NCheck::CheckDatabase(m_result);
}

std::string VCheckTest::Finding() const {
    if (m_result.diagnostics.size() != 1) {
        return Diagnostics();
    }
    NReader::VDiagnostic const& finding = m_result.diagnostics.front();
    return std::to_string(finding.line) + ':' + std::to_string(finding.column) + ' ' + SeverityText(finding.severity) +
           ' ' + finding.code + ": " + finding.message;
}

} // namespace NTest
