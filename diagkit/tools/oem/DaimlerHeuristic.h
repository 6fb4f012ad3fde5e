// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/oem/Heuristic.h>

/// Daimler.

namespace NDIAGKIT {

class VDaimlerHeuristic final : public VHeuristic {
public:
    using VHeuristic::VHeuristic;
    void CreateRules() override;
    wchar_t const* GetName() const override { return L"VDaimlerHeuristic"; }
};

/// There are BASE-VARIANTs and PROTOCOLs, and their IDs and those of their FUNCT-CLASSes are made from the path of
/// short names: BV.Engine and BV.Engine.FNC.Diag, PT.Uds and PT.Uds.FNC.Diag.
class VDaimlerHierarchicalIdsRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VDaimlerHierarchicalIdsRule"; }
};

/// There are PROTOCOLs, and each refers to one of three COMPARAM-SPECs.
class VDaimlerComparamsRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VDaimlerComparamsRule"; }
};

} // namespace NDIAGKIT
