// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/Heuristic.h>

namespace NDIAGKIT {

VHeuristicRule::~VHeuristicRule() = default;

VHeuristic::~VHeuristic() = default;

bool VHeuristic::Matches() { return AllMatch(m_rules); }

VOemHeuristicReport VHeuristic::Report() {
    VOemHeuristicReport report{GetName(), VManufacturer::Unknown, false, 0, {}};
    mpReport = &report;
    report.matches = Matches();
    mpReport = nullptr;
    return report;
}

bool VHeuristic::AllMatch(VRules const& rules) {
    int const list = mpReport != nullptr ? ++mpReport->lists : 0;
    bool allMatch = true;
    for (auto const& rule : rules) {
        bool const matches = rule->Matches();
        if (mpReport != nullptr) {
            mpReport->rules.push_back({rule->GetName(), matches, list, allMatch && !matches});
        } else if (!matches) {
            return false;
        }
        allMatch = allMatch && matches;
    }
    return allMatch;
}

} // namespace NDIAGKIT
