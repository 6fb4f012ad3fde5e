// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/GmHeuristic.h>

#include <diagkit/model/Comparams.h>
#include <diagkit/tools/oem/Conditions.h>
#include <diagkit/tools/oem/ElementTexts.h>
#include <diagkit/tools/oem/OwnDiagComms.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>
#include <diagkit/tools/oem/Reasons.h>

namespace NDIAGKIT {
namespace {

constexpr int kCheckedComparams = 6;

bool IsIdMadeOfOid(VOemCheckContext const& context, NODX201::VReferencable& element, std::wstring_view oid) {
    if (IsJoined(element.GetId(), L"ID", oid)) {
        return true;
    }
    return No(context, [&] {
        return VOemReason{L"an ID of 'ID' and the OID", Stated(L"ID", element.GetId()) + L" and " + Stated(L"OID", oid),
                          &element};
    });
}

/// Deliberate: further COMPARAMs are not looked at (GmHeuristicTest.ASeventhComparamIsNotLookedAt).
bool AreFirstComparamsMadeOfOids(VOemCheckContext const& context, NODX201::VComparamCollection& comparams) {
    int checked = 0;
    for (NODX201::VComparam& comparam : comparams) {
        if (checked++ == kCheckedComparams) {
            return true;
        }
        if (!IsIdMadeOfOid(context, comparam, comparam.GetOid())) {
            return false;
        }
    }
    return true;
}

} // namespace

void VGmHeuristic::CreateRules() {
    Add<VGmProtocolRule>();
    Add<VGmFunctionalGroupRule>();
    // Deliberate: the authoring tool's own number, which for GM is not the manufacturer's code
    // (GmHeuristicTest.TheProcessingInstructionIsTheToolsNumber).
    Add<VProcessingInstructionRule>(L"2");
    Add<VGmComparamSpecRule>();
}

bool VGmProtocolRule::Matches() {
    auto const& protocols = mpContext->m_protocols;
    return IsAnyThere(*mpContext, protocols, L"a PROTOCOL") &&
           AllOf(protocols, [this](NODX201::VProtocol* protocol) { return HasNoOwnDiagComms(*mpContext, *protocol); });
}

bool VGmFunctionalGroupRule::Matches() {
    auto const& groups = mpContext->m_functionalGroups;
    if (groups.empty()) {
        return true;
    }
    return No(*mpContext, [&] {
        return VOemReason{L"no FUNCTIONAL-GROUP", Named(groups, L"FUNCTIONAL-GROUP"), groups.front()};
    });
}

bool VGmComparamSpecRule::Matches() {
    NODX201::VComparamSpecCollection& specs = mpContext->m_odx.ComparamSpecCollection();
    if (specs.Count() == 0) {
        return No(*mpContext, [] { return VOemReason{L"a COMPARAM-SPEC", L"none"}; });
    }
    return AllOf(specs, [this](NODX201::VComparamSpec& spec) {
        return IsIdMadeOfOid(*mpContext, spec, OidOf(spec)) &&
               AreFirstComparamsMadeOfOids(*mpContext, spec.ComparamCollection());
    });
}

} // namespace NDIAGKIT
