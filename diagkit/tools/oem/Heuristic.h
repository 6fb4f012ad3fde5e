// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <list>
#include <memory>

#include <diagkit/tools/oem/HeuristicRule.h>
#include <diagkit/tools/oem/OemReport.h>

namespace NDIAGKIT {

/// The characteristics of one manufacturer's databases. A database matches when it has all of them.
class VHeuristic {
public:
    explicit VHeuristic(VOemCheckContext* context) : mpContext(context) {}
    virtual ~VHeuristic();
    VHeuristic(VHeuristic const&) = delete;
    VHeuristic& operator=(VHeuristic const&) = delete;

    virtual bool Matches();         ///< whether all rules match
    virtual void CreateRules() = 0; ///< adds the rules in the order in which they are to be evaluated
    virtual wchar_t const* GetName() const = 0;

    /// The result of `Matches`, with the result of every rule. The caller sets the manufacturer.
    VOemHeuristicReport Report();

protected:
    using VRules = std::list<std::unique_ptr<VHeuristicRule>>;

    template <class Rule, class... Arguments>
    void Add(Arguments... arguments) {
        AddTo<Rule>(m_rules, arguments...);
    }

    template <class Rule, class... Arguments>
    void AddTo(VRules& rules, Arguments... arguments) {
        rules.push_back(std::make_unique<Rule>(mpContext, arguments...));
    }

    /// Whether every rule of a list matches. Evaluates them in order up to the first that does not; for a report, all
    /// of them.
    bool AllMatch(VRules const& rules);

    VOemCheckContext* mpContext;
    VRules m_rules;

private:
    bool ReportAll(VRules const& rules);

    VOemHeuristicReport* mpReport = nullptr; // while a report is being made
};

} // namespace NDIAGKIT
