// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/Heuristic.h>

#include <diagkit/tools/oem/Conditions.h>

namespace NDIAGKIT {

VHeuristicRule::~VHeuristicRule() = default;

VHeuristic::~VHeuristic() = default;

bool VHeuristic::Matches() { return AllMatch(m_rules); }

VOemHeuristicReport VHeuristic::Report() {
    VOemHeuristicReport report{GetName(), VManufacturer::Unknown, false, 0, {}};
    mpReport = &report;
    report.matches = Matches();
    mpReport = nullptr;
    for (VOemRuleReport& rule : report.rules) {
        rule.isDecisive = !rule.matches && !report.matches;
    }
    return report;
}

bool VHeuristic::AllMatch(VRules const& rules) {
    if (mpReport != nullptr) {
        return ReportAll(rules);
    }
    return AllOf(rules, [](auto const& rule) { return rule->Matches(); });
}

bool VHeuristic::ReportAll(VRules const& rules) {
    int const list = ++mpReport->lists;
    bool allMatch = true;
    for (auto const& rule : rules) {
        VOemRuleReport& report = mpReport->rules.emplace_back(VOemRuleReport{rule->GetName(), false, list});
        mpContext->m_report = &report;
        report.matches = rule->Matches();
        mpContext->m_report = nullptr;
        allMatch = allMatch && report.matches;
    }
    return allMatch;
}

} // namespace NDIAGKIT
