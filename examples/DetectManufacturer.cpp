// SPDX-License-Identifier: Apache-2.0

// Prints which manufacturer's tools wrote a database, and why the other manufacturers do not match:
//
//     detect_manufacturer FILE...

#include <iostream>
#include <string>
#include <vector>

#include <diagkit/Reader.h>
#include <diagkit/Toolkit.h>

namespace {

void PrintReason(NDIAGKIT::VOemRuleReport const& rule) {
    NDIAGKIT::VOemReason const& reason = rule.reason;
    std::cout << "  " << NReader::ToUtf8(rule.name) << ": expected " << NReader::ToUtf8(reason.expected) << ", found "
              << NReader::ToUtf8(reason.found);
    if (reason.where != nullptr) {
        std::cout << " at " << NReader::ToUtf8(reason.where->GetShortName());
    }
    std::cout << '\n';
}

} // namespace

int main(int count, char** words) {
    NReader::VReadResult const result = NReader::ReadOdx(std::vector<std::string>(words + 1, words + count));
    if (result.database == nullptr) {
        std::cerr << "cannot be read\n";
        return 1;
    }
    NDIAGKIT::VOemChecker checker;
    NDIAGKIT::VOemReport const report = checker.Report(result.database->GetOdx());
    bool const isKnown = report.manufacturer != NDIAGKIT::VManufacturer::Unknown;
    std::cout << (isKnown ? "manufacturer " : "unknown: ") << static_cast<int>(report.manufacturer) << '\n';
    for (NDIAGKIT::VOemHeuristicReport const& heuristic : report.heuristics) {
        std::cout << NReader::ToUtf8(heuristic.name) << (heuristic.matches ? " matches\n" : " does not match\n");
        for (NDIAGKIT::VOemRuleReport const& rule : heuristic.rules) {
            if (rule.isDecisive) {
                PrintReason(rule);
            }
        }
    }
}
