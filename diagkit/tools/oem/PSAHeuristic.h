// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Visitors.h>
#include <diagkit/tools/oem/Heuristic.h>

/// PSA.

namespace NDIAGKIT {

class VPSAHeuristic final : public VHeuristic {
public:
    using VHeuristic::VHeuristic;
    void CreateRules() override;
    wchar_t const* GetName() const override { return L"VPSAHeuristic"; }
};

/// The container of the first BASE-VARIANT has one ECU-SHARED-DATA, and that has the two diagnostic FUNCT-CLASSes of
/// PSA.
class VPSAEcuSharedDataRule final : public VHeuristicRule {
public:
    class VFindEcuSharedDataVisitor;

    using VHeuristicRule::VHeuristicRule;
    bool Matches() override;
    wchar_t const* GetName() const override { return L"VPSAEcuSharedDataRule"; }
};

/// Counts ECU-SHARED-DATAs and remembers whether one has two FUNCT-CLASSes of PSA.
class VPSAEcuSharedDataRule::VFindEcuSharedDataVisitor final : public NODX201::VDiagLayerVisitor {
public:
    void VisitBaseVariant(NODX201::VBaseVariant&) override {}
    void VisitProtocol(NODX201::VProtocol&) override {}
    void VisitFunctionalGroup(NODX201::VFunctionalGroup&) override {}
    void VisitEcuVariant(NODX201::VEcuVariant&) override {}
    void VisitEcuSharedData(NODX201::VEcuSharedData& layer) override;

    int GetCount() const { return m_count; }
    bool IsFound() const { return m_isFound; }

private:
    int m_count = 0;
    bool m_isFound = false;
};

} // namespace NDIAGKIT
