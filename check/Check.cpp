// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/Check.h>

#include <algorithm>
#include <tuple>
#include <unordered_map>

#include <diagkit/check/Codes.h>
#include <diagkit/check/Topics.h>
#include <diagkit/reader/Findings.h>

namespace NCheck {
namespace {

constexpr void (*kTopics[])(VChecked const& checked, VFindings& findings) = {
    &CheckShortNames, &CheckDocrefs, &CheckExclusions, &CheckAmbiguousNames, &CheckShortNameReferences, &CheckCycles,
};

/// The files by name, in the order in which they were read.
std::unordered_map<std::string, std::uint32_t> FileOrder(NMemory::VDatabase const& database) {
    std::unordered_map<std::string, std::uint32_t> order;
    for (std::uint32_t document = 1; !database.GetDocumentName({document, 0, 0}).empty(); ++document) {
        order.emplace(database.GetDocumentName({document, 0, 0}), document);
    }
    return order;
}

} // namespace

std::vector<NReader::VDiagnostic> CheckDatabase(NReader::VReadResult& result) {
    std::vector<NReader::VDiagnostic> diagnostics = result.diagnostics;
    if (result.database == nullptr) {
        return diagnostics;
    }
    NMemory::VDatabase& database = *result.database;
    VFindings findings;
    for (auto const topic : kTopics) {
        topic({database, result.elements}, findings);
        database.StartNewResolver(); // the views of all layers are more than most programs want to hold
    }
    for (VFinding& finding : findings) {
        diagnostics.push_back({database.GetDocumentName(finding.position), finding.position.line,
                               finding.position.column, FindCode(finding.code)->severity, finding.code,
                               NReader::Clipped(std::move(finding.message))});
    }
    auto order = FileOrder(database);
    std::stable_sort(
        diagnostics.begin(), diagnostics.end(), [&order](NReader::VDiagnostic const& a, NReader::VDiagnostic const& b) {
            return std::make_tuple(order[a.file], a.line, a.column) < std::make_tuple(order[b.file], b.line, b.column);
        });
    return diagnostics;
}

} // namespace NCheck
