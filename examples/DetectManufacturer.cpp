// SPDX-License-Identifier: Apache-2.0

// Tells whose tools wrote a database, and for each manufacturer what speaks against it:
//
//     detect_manufacturer FILE...

#include <iostream>
#include <string>
#include <vector>

#include <diagkit/model/Odx.h>
#include <diagkit/reader/OdxReader.h>
#include <diagkit/reader/Utf8.h>
#include <diagkit/tools/oem/OemChecker.h>

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
        std::cout << NReader::ToUtf8(heuristic.name) << (heuristic.matches ? " matches\n" : "\n");
        for (NDIAGKIT::VOemRuleReport const& rule : heuristic.rules) {
            if (rule.isDecisive) {
                std::cout << "  not, because of " << NReader::ToUtf8(rule.name) << '\n';
            }
        }
    }
}
