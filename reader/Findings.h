// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/reader/Diagnostic.h>

namespace NReader {

/// The message, cut off where it is longer than anybody reads: it may quote a text of many megabytes.
std::string Clipped(std::string message);

/// The diagnostics of one reading, while they are collected.
class VFindings {
public:
    void Add(NMemory::VPosition const& position, VSeverity severity, std::string code, std::string message);
    void Append(VFindings&& later);

    /// All of them, by document and position, with the documents' names.
    std::vector<VDiagnostic> Sorted(NMemory::VDatabase const& database) const;

private:
    struct VFinding {
        NMemory::VPosition position;
        VSeverity severity;
        std::string code;
        std::string message;
    };
    std::vector<VFinding> m_findings;
};

} // namespace NReader
