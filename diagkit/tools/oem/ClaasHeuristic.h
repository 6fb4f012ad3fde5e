// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/oem/Heuristic.h>

/// Claas.

namespace NDIAGKIT {

class VClaasHeuristic final : public VHeuristic {
public:
    using VHeuristic::VHeuristic;
    void CreateRules() override;
    wchar_t const* GetName() const override { return L"VClaasHeuristic"; }
};

/// A parameter of a POS-RESPONSE of a BASE-VARIANT has the processing instruction ClaasParamInformation. A BASE-VARIANT
/// without responses ends the search, unless one was found before.
class VClaasProcessingInstructionRule final : public VHeuristicRule {
public:
    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VClaasProcessingInstructionRule"; }
};

} // namespace NDIAGKIT
