// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/PagHeuristic.h>

#include <diagkit/model/Comparams.h>
#include <diagkit/tools/oem/Conditions.h>
#include <diagkit/tools/oem/ElementTexts.h>
#include <diagkit/tools/oem/LayerDops.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>

namespace NDIAGKIT {

void VPagHeuristic::CreateRules() {
    Add<VPagOidRule>();
    Add<VPagModelRule>();
    Add<VPagFunctionalGroupRule>();
    Add<VProcessingInstructionRule>(L"4");

    AddTo<VPagComparamSpecRule>(m_secondRules);
    AddTo<VPagDopRule>(m_secondRules);
    AddTo<VProcessingInstructionRule>(m_secondRules, L"4");
}

/// Deliberate: the second list is asked whatever the first one answers (PagHeuristicTest.BothListsAreAsked).
bool VPagHeuristic::Matches() {
    bool const isFirstMet = AllMatch(m_rules);
    return AllMatch(m_secondRules) || isFirstMet;
}

bool VPagOidRule::Matches() {
    auto const hasOid = [](NODX201::VDiagLayer* layer) { return layer->HasOid(); };
    return AllOf(mpContext->m_protocols, hasOid) && AllOf(mpContext->m_baseVariants, hasOid);
}

bool VPagModelRule::Matches() {
    return !mpContext->m_protocols.empty() && !mpContext->m_functionalGroups.empty() &&
           !mpContext->m_baseVariants.empty();
}

bool VPagFunctionalGroupRule::Matches() {
    if (mpContext->m_functionalGroups.size() != 1) {
        return false;
    }
    std::wstring_view const name = mpContext->m_functionalGroups.front()->GetShortName();
    return StartsWithIgnoringCase(name, L"FunctionalGroupUDS") || StartsWithIgnoringCase(name, L"FunctionalGroupKWP");
}

bool VPagComparamSpecRule::Matches() {
    return AnyOf(mpContext->m_odx.ComparamSpecCollection(), [](NODX201::VComparamSpec& spec) {
        return EqualsIgnoringCase(spec.GetShortName(), L"VW2000_on_TP20");
    });
}

bool VPagDopRule::Matches() {
    bool isTemperatureFound = false;
    bool isVoltageFound = false;
    for (NODX201::VBaseVariant* const baseVariant : mpContext->m_baseVariants) {
        NODX201::VDopBaseCollection* const dops = DopsOf(*baseVariant);
        if (dops == nullptr) {
            return false;
        }
        for (NODX201::VDopBase& dop : *dops) {
            if (dynamic_cast<NODX201::VDataObjectProp*>(&dop) == nullptr) {
                continue;
            }
            std::wstring_view const name = dop.GetShortName();
            isTemperatureFound = isTemperatureFound || name == L"_26_Temperatur_C";
            isVoltageFound = isVoltageFound || name == L"_21_Spannung_V";
        }
    }
    return isTemperatureFound && isVoltageFound;
}

} // namespace NDIAGKIT
