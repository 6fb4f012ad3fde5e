// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/oem/Heuristic.h>

/// BMW, in an older and a newer layout of its databases.

namespace NDIAGKIT {

class VBmwHeuristic final : public VHeuristic {
public:
    using VHeuristic::VHeuristic;
    void CreateRules() override;
    wchar_t const* GetName() const override { return L"VBmwHeuristic"; }
};

class VBmwHeuristicNew final : public VHeuristic {
public:
    using VHeuristic::VHeuristic;
    void CreateRules() override;
    wchar_t const* GetName() const override { return L"VBmwHeuristicNew"; }
};

/// The ID of every BASE-VARIANT, PROTOCOL and ECU-VARIANT, and of every DOP of the variants, is its OID.
class VBmwIdRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VBmwIdRule"; }
};

/// A COMPANY-DATA of an ECU-SHARED-DATA names BMW, with the one role of manufacturer.
class VBmwEcuSharedDataRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VBmwEcuSharedDataRule"; }
};

/// There are PROTOCOLs, none has DIAG-COMMs of its own, and one inherits from a library of BMW services.
class VBmwProtocolRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VBmwProtocolRule"; }
};

/// There is an ECU-SHARED-DATA named BMW_LIB.
class VBmwEcuSharedDataRuleNew final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VBmwEcuSharedDataRuleNew"; }
};

/// The FUNCTIONAL-GROUPs have the MUXes PRIM_DTC_MUX and SEC_DTC_MUX, in one group or in two.
class VBmwFunctionalGroupRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VBmwFunctionalGroupRule"; }
};

} // namespace NDIAGKIT
