// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/PagHeuristic.h>

#include <diagkit/model/Comparams.h>
#include <diagkit/tools/oem/Conditions.h>
#include <diagkit/tools/oem/ElementTexts.h>
#include <diagkit/tools/oem/LayerDops.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>
#include <diagkit/tools/oem/Reasons.h>

namespace NDIAGKIT {
namespace {

bool HasOid(VOemCheckContext const& context, NODX201::VDiagLayer& layer) {
    return layer.HasOid() || No(context, [&layer] { return VOemReason{L"an OID", L"none", &layer}; });
}

constexpr std::wstring_view kTemperature = L"_26_Temperatur_C";
constexpr std::wstring_view kVoltage = L"_21_Spannung_V";

} // namespace

void VPagHeuristic::CreateRules() {
    Add<VPagOidRule>();
    Add<VPagModelRule>();
    Add<VPagFunctionalGroupRule>();
    Add<VProcessingInstructionRule>(L"4");

    AddTo<VPagComparamSpecRule>(m_secondRules);
    AddTo<VPagDopRule>(m_secondRules);
    AddTo<VProcessingInstructionRule>(m_secondRules, L"4");
}

/// Deliberate: the second list is evaluated whatever the result of the first one (PagHeuristicTest.BothListsAreAsked).
bool VPagHeuristic::Matches() {
    bool const isFirstMet = AllMatch(m_rules);
    return AllMatch(m_secondRules) || isFirstMet;
}

bool VPagOidRule::Matches() {
    VOemCheckContext const& context = *mpContext;
    auto const hasOid = [&context](NODX201::VDiagLayer* layer) { return HasOid(context, *layer); };
    return AllOf(context.m_protocols, hasOid) && AllOf(context.m_baseVariants, hasOid) &&
           Yes(context, !context.m_protocols.empty() || !context.m_baseVariants.empty());
}

bool VPagModelRule::Matches() {
    return IsAnyThere(*mpContext, mpContext->m_protocols, L"a PROTOCOL") &&
           IsAnyThere(*mpContext, mpContext->m_functionalGroups, L"a FUNCTIONAL-GROUP") &&
           IsAnyThere(*mpContext, mpContext->m_baseVariants, L"a BASE-VARIANT");
}

bool VPagFunctionalGroupRule::Matches() {
    auto const& groups = mpContext->m_functionalGroups;
    if (groups.size() != 1) {
        return No(*mpContext, [&] { return VOemReason{L"one FUNCTIONAL-GROUP", Named(groups, L"FUNCTIONAL-GROUP")}; });
    }
    std::wstring_view const name = groups.front()->GetShortName();
    if (StartsWithIgnoringCase(name, L"FunctionalGroupUDS") || StartsWithIgnoringCase(name, L"FunctionalGroupKWP")) {
        return true;
    }
    return No(*mpContext, [&] {
        return VOemReason{L"a short name that begins with 'FunctionalGroupUDS' or 'FunctionalGroupKWP'",
                          Stated(L"short name", name), groups.front()};
    });
}

bool VPagComparamSpecRule::Matches() {
    NODX201::VComparamSpecCollection& specs = mpContext->m_odx.ComparamSpecCollection();
    bool const isThere = AnyOf(
        specs, [](NODX201::VComparamSpec& spec) { return EqualsIgnoringCase(spec.GetShortName(), L"VW2000_on_TP20"); });
    if (isThere) {
        return true;
    }
    return No(*mpContext, [&specs] {
        return VOemReason{L"the COMPARAM-SPEC 'VW2000_on_TP20'", Named(specs, L"COMPARAM-SPEC")};
    });
}

bool VPagDopRule::Matches() {
    bool isTemperatureFound = false;
    bool isVoltageFound = false;
    for (NODX201::VBaseVariant* const baseVariant : mpContext->m_baseVariants) {
        NODX201::VDopBaseCollection* const dops = DopsOf(*baseVariant);
        if (dops == nullptr) {
            return No(*mpContext, [baseVariant] {
                return VOemReason{L"a DIAG-DATA-DICTIONARY-SPEC in every BASE-VARIANT", L"none", baseVariant};
            });
        }
        for (NODX201::VDopBase& dop : *dops) {
            if (dynamic_cast<NODX201::VDataObjectProp*>(&dop) == nullptr) {
                continue;
            }
            std::wstring_view const name = dop.GetShortName();
            isTemperatureFound = isTemperatureFound || name == kTemperature;
            isVoltageFound = isVoltageFound || name == kVoltage;
        }
    }
    if (isTemperatureFound && isVoltageFound) {
        return true;
    }
    return No(*mpContext, [&] {
        return VOemReason{L"the DATA-OBJECT-PROPs " + Quoted(kTemperature) + L" and " + Quoted(kVoltage),
                          LookedAt(OneOfTwo(kTemperature, isTemperatureFound, kVoltage, isVoltageFound),
                                   mpContext->m_baseVariants.size(), L"BASE-VARIANT")};
    });
}

} // namespace NDIAGKIT
