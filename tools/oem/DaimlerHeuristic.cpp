// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/DaimlerHeuristic.h>

#include <diagkit/model/Comparams.h>
#include <diagkit/tools/oem/Conditions.h>
#include <diagkit/tools/oem/ElementTexts.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>

namespace NDIAGKIT {
namespace {

bool AreIdsHierarchical(NODX201::VDiagLayer& layer, std::wstring_view prefix) {
    std::wstring_view const id = layer.GetId();
    if (!IsJoined(id, prefix, layer.GetShortName())) {
        return false;
    }
    return AllOf(layer.FunctClassCollection(), [id](NODX201::VFunctClass& functClass) {
        return IsJoined(functClass.GetId(), id, L".FNC.", functClass.GetShortName());
    });
}

bool HasComparamSpecOfDaimler(NODX201::VProtocol& protocol) {
    if (!protocol.HasComparamSpecRef() || !protocol.GetComparamSpecRef().HasComparamSpec()) {
        return false;
    }
    std::wstring_view const id = protocol.GetComparamSpecRef().GetComparamSpec().GetId();
    return id == L"ISO_14230_3_on_ISO_14230_2" || id == L"ISO_14230_3_on_ISO_15765_2" ||
           id == L"ISO_15765_3_on_ISO_15765_2";
}

} // namespace

void VDaimlerHeuristic::CreateRules() {
    Add<VDaimlerHierarchicalIdsRule>();
    Add<VDaimlerComparamsRule>();
    Add<VProcessingInstructionRule>(L"1");
}

bool VDaimlerHierarchicalIdsRule::Matches() {
    auto const& baseVariants = mpContext->m_baseVariants;
    auto const& protocols = mpContext->m_protocols;
    return !baseVariants.empty() && !protocols.empty() &&
           AllOf(baseVariants, [](NODX201::VBaseVariant* layer) { return AreIdsHierarchical(*layer, L"BV."); }) &&
           AllOf(protocols, [](NODX201::VProtocol* layer) { return AreIdsHierarchical(*layer, L"PT."); });
}

bool VDaimlerComparamsRule::Matches() {
    auto const& protocols = mpContext->m_protocols;
    return !protocols.empty() &&
           AllOf(protocols, [](NODX201::VProtocol* protocol) { return HasComparamSpecOfDaimler(*protocol); });
}

} // namespace NDIAGKIT
