// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/oem/Heuristic.h>

/// Fiat.

namespace NDIAGKIT {

class VFiatHeuristic final : public VHeuristic {
public:
    using VHeuristic::VHeuristic;
    void CreateRules() override;
    wchar_t const* GetName() const override { return L"VFiatHeuristic"; }
};

/// Every DIAG-SERVICE of every BASE-VARIANT and ECU-VARIANT has an SDG captioned State_Model, and before it none
/// without a caption.
class VFiatStateSdgRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VFiatStateSdgRule"; }
};

/// The COMPARAM-SPECs together have the six additional COMPARAMs for KWP on CAN, or the six for UDS.
class VFiatAdditionalComparamsRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VFiatAdditionalComparamsRule"; }
};

} // namespace NDIAGKIT
