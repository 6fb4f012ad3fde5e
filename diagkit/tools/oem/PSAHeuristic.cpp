// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/PSAHeuristic.h>

#include <string_view>

#include <diagkit/tools/oem/ProcessingInstructionRule.h>
#include <diagkit/tools/oem/Reasons.h>

namespace NDIAGKIT {
namespace {

bool IsOfPsa(NODX201::VFunctClass& functClass) {
    std::wstring_view const name = functClass.GetShortName();
    return name == L"DIAGNOSTIC_CONSTRUCTEUR" || name == L"DIAGNOSTIC_REGLEMENTAIRE";
}

/// Why the layers, which have one ECU-SHARED-DATA, are not PSA's.
VOemReason OtherFunctClasses(NODX201::VDiagLayerCollection& layers) {
    VOemReason reason{L"two FUNCT-CLASSes named 'DIAGNOSTIC_CONSTRUCTEUR' or 'DIAGNOSTIC_REGLEMENTAIRE'", L""};
    for (NODX201::VDiagLayer& layer : layers) {
        if (dynamic_cast<NODX201::VEcuSharedData*>(&layer) != nullptr) {
            reason.found = Named(layer.FunctClassCollection(), L"FUNCT-CLASS");
            reason.where = &layer;
        }
    }
    return reason;
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
    if (!IsAnyThere(*mpContext, mpContext->m_baseVariants, L"a BASE-VARIANT")) {
        return false;
    }
    NODX201::VBaseVariant& first = *mpContext->m_baseVariants.front();
    auto* const layers = dynamic_cast<NODX201::VDiagLayerCollection*>(first.GetOwner());
    if (layers == nullptr) {
        return No(*mpContext, [&first] { return VOemReason{L"a container around the BASE-VARIANT", L"none", &first}; });
    }
    VFindEcuSharedDataVisitor visitor;
    for (NODX201::VDiagLayer& layer : *layers) {
        layer.Accept(visitor);
    }
    if (visitor.GetCount() != 1) {
        return No(*mpContext, [&] {
            return VOemReason{L"one ECU-SHARED-DATA beside the first BASE-VARIANT",
                              Counted(static_cast<std::size_t>(visitor.GetCount()), L"ECU-SHARED-DATA"), &first};
        });
    }
    return visitor.IsFound() || No(*mpContext, [layers] { return OtherFunctClasses(*layers); });
}

} // namespace NDIAGKIT
