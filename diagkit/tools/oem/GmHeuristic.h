// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/oem/Heuristic.h>

/// General Motors.

namespace NDIAGKIT {

class VGmHeuristic final : public VHeuristic {
public:
    using VHeuristic::VHeuristic;
    void CreateRules() override;
    wchar_t const* GetName() const override { return L"VGmHeuristic"; }
};

/// There are PROTOCOLs, and none has DIAG-COMMs of its own.
class VGmProtocolRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VGmProtocolRule"; }
};

/// There is no FUNCTIONAL-GROUP.
class VGmFunctionalGroupRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VGmFunctionalGroupRule"; }
};

/// There are COMPARAM-SPECs, and the ID of each and of its first six COMPARAMs is "ID" and the OID.
class VGmComparamSpecRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VGmComparamSpecRule"; }
};

} // namespace NDIAGKIT
