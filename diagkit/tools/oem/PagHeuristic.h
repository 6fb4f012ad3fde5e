// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/oem/Heuristic.h>

/// Porsche.

namespace NDIAGKIT {

/// Has two lists of rules, of which one must match in full.
class VPagHeuristic final : public VHeuristic {
public:
    using VHeuristic::VHeuristic;
    bool Matches() override;
    void CreateRules() override;
    wchar_t const* GetName() const override { return L"VPagHeuristic"; }

private:
    VRules m_secondRules;
};

/// Every PROTOCOL and BASE-VARIANT has an OID.
class VPagOidRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VPagOidRule"; }
};

/// There are PROTOCOLs, FUNCTIONAL-GROUPs and BASE-VARIANTs.
class VPagModelRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VPagModelRule"; }
};

/// There is one FUNCTIONAL-GROUP, and its name begins as is usual for Porsche.
class VPagFunctionalGroupRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VPagFunctionalGroupRule"; }
};

/// There is a COMPARAM-SPEC named VW2000_on_TP20.
class VPagComparamSpecRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VPagComparamSpecRule"; }
};

/// There are BASE-VARIANTs, each has a dictionary, and in these are the DATA-OBJECT-PROPs of temperature and voltage.
class VPagDopRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VPagDopRule"; }
};

} // namespace NDIAGKIT
