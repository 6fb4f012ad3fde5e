// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/PSAHeuristic.h>

#include <string_view>

#include <diagkit/tools/oem/ProcessingInstructionRule.h>

namespace NDIAGKIT {
namespace {

bool IsOfPsa(NODX201::VFunctClass& functClass) {
    std::wstring_view const name = functClass.GetShortName();
    return name == L"DIAGNOSTIC_CONSTRUCTEUR" || name == L"DIAGNOSTIC_REGLEMENTAIRE";
}

} // namespace

void VPSAHeuristic::CreateRules() {
    Add<VPSAEcuSharedDataRule>();
    Add<VProcessingInstructionRule>(L"19");
}

/// Deliberate: two of them, not one of each (PSAHeuristicTest.TwoFunctClassesOfOneNameCountAsTheTwo).
void VPSAEcuSharedDataRule::VFindEcuSharedDataVisitor::VisitEcuSharedData(NODX201::VEcuSharedData& layer) {
    ++m_count;
    int functClasses = 0;
    for (NODX201::VFunctClass& functClass : layer.FunctClassCollection()) {
        functClasses += IsOfPsa(functClass) ? 1 : 0;
    }
    m_isFound = m_isFound || functClasses == 2;
}

bool VPSAEcuSharedDataRule::Matches() {
    if (mpContext->m_baseVariants.empty()) {
        return false;
    }
    NODX201::VBaseVariant& first = *mpContext->m_baseVariants.front();
    auto* const layers = dynamic_cast<NODX201::VDiagLayerCollection*>(first.GetOwner());
    if (layers == nullptr) {
        return false;
    }
    VFindEcuSharedDataVisitor visitor;
    for (NODX201::VDiagLayer& layer : *layers) {
        layer.Accept(visitor);
    }
    return visitor.GetCount() == 1 && visitor.IsFound();
}

} // namespace NDIAGKIT
