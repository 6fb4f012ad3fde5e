// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/DaimlerHeuristic.h>

#include <diagkit/model/Comparams.h>
#include <diagkit/tools/oem/Conditions.h>
#include <diagkit/tools/oem/ElementTexts.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>
#include <diagkit/tools/oem/Reasons.h>

namespace NDIAGKIT {
namespace {

/// Whether the ID of an element is the concatenation of the parts.
template <class... Parts>
bool IsIdJoined(VOemCheckContext const& context, NODX201::VReferencable& element, Parts... parts) {
    if (IsJoined(element.GetId(), parts...)) {
        return true;
    }
    return No(context, [&] {
        std::wstring const expected = (std::wstring() + ... + std::wstring(parts));
        return VOemReason{Stated(L"ID", expected), Stated(L"ID", element.GetId()), &element};
    });
}

bool AreIdsHierarchical(VOemCheckContext const& context, NODX201::VDiagLayer& layer, std::wstring_view prefix) {
    if (!IsIdJoined(context, layer, prefix, layer.GetShortName())) {
        return false;
    }
    return AllOf(layer.FunctClassCollection(), [&context, id = layer.GetId()](NODX201::VFunctClass& functClass) {
        return IsIdJoined(context, functClass, id, L".FNC.", functClass.GetShortName());
    });
}

bool IsComparamSpecOfDaimler(NODX201::VProtocol& protocol) {
    if (!protocol.HasComparamSpecRef() || !protocol.GetComparamSpecRef().HasComparamSpec()) {
        return false;
    }
    std::wstring_view const id = protocol.GetComparamSpecRef().GetComparamSpec().GetId();
    return id == L"ISO_14230_3_on_ISO_14230_2" || id == L"ISO_14230_3_on_ISO_15765_2" ||
           id == L"ISO_15765_3_on_ISO_15765_2";
}

std::wstring ComparamSpecOf(NODX201::VProtocol& protocol) {
    if (!protocol.HasComparamSpecRef()) {
        return L"no COMPARAM-SPEC-REF";
    }
    NODX201::VComparamSpecLink& link = protocol.GetComparamSpecRef();
    return link.HasComparamSpec() ? L"one with " + Stated(L"ID", link.GetComparamSpec().GetId())
                                  : L"a COMPARAM-SPEC-REF that does not resolve";
}

bool HasComparamSpecOfDaimler(VOemCheckContext const& context, NODX201::VProtocol& protocol) {
    if (IsComparamSpecOfDaimler(protocol)) {
        return true;
    }
    return No(context, [&protocol] {
        return VOemReason{L"a COMPARAM-SPEC with the ID 'ISO_14230_3_on_ISO_14230_2', "
                          L"'ISO_14230_3_on_ISO_15765_2' or 'ISO_15765_3_on_ISO_15765_2'",
                          ComparamSpecOf(protocol), &protocol};
    });
}

} // namespace

void VDaimlerHeuristic::CreateRules() {
    Add<VDaimlerHierarchicalIdsRule>();
    Add<VDaimlerComparamsRule>();
    Add<VProcessingInstructionRule>(L"1");
}

bool VDaimlerHierarchicalIdsRule::Matches() {
    VOemCheckContext const& context = *mpContext;
    auto const areHierarchical = [&context](auto const& layers, std::wstring_view prefix) {
        return AllOf(layers, [&](auto* layer) { return AreIdsHierarchical(context, *layer, prefix); });
    };
    return IsAnyThere(context, context.m_baseVariants, L"a BASE-VARIANT") &&
           IsAnyThere(context, context.m_protocols, L"a PROTOCOL") && areHierarchical(context.m_baseVariants, L"BV.") &&
           areHierarchical(context.m_protocols, L"PT.");
}

bool VDaimlerComparamsRule::Matches() {
    VOemCheckContext const& context = *mpContext;
    return IsAnyThere(context, context.m_protocols, L"a PROTOCOL") &&
           AllOf(context.m_protocols,
                 [&context](NODX201::VProtocol* protocol) { return HasComparamSpecOfDaimler(context, *protocol); });
}

} // namespace NDIAGKIT
