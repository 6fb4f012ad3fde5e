// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/GmHeuristic.h>

#include <diagkit/model/Comparams.h>
#include <diagkit/tools/oem/Conditions.h>
#include <diagkit/tools/oem/ElementTexts.h>
#include <diagkit/tools/oem/OwnDiagComms.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>

namespace NDIAGKIT {
namespace {

constexpr int kCheckedComparams = 6;

bool IsIdMadeOfOid(std::wstring_view id, std::wstring_view oid) { return IsJoined(id, L"ID", oid); }

/// Deliberate: further COMPARAMs are not looked at (GmHeuristicTest.ASeventhComparamIsNotLookedAt).
bool AreFirstComparamsMadeOfOids(NODX201::VComparamCollection& comparams) {
    int checked = 0;
    for (NODX201::VComparam& comparam : comparams) {
        if (checked++ == kCheckedComparams) {
            return true;
        }
        if (!IsIdMadeOfOid(comparam.GetId(), comparam.GetOid())) {
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
    return !protocols.empty() &&
           AllOf(protocols, [](NODX201::VProtocol* protocol) { return !HasOwnDiagComms(*protocol); });
}

bool VGmFunctionalGroupRule::Matches() { return mpContext->m_functionalGroups.empty(); }

bool VGmComparamSpecRule::Matches() {
    NODX201::VComparamSpecCollection& specs = mpContext->m_odx.ComparamSpecCollection();
    if (specs.Count() == 0) {
        return false;
    }
    for (NODX201::VComparamSpec& spec : specs) {
        if (!IsIdMadeOfOid(spec.GetId(), OidOf(spec)) || !AreFirstComparamsMadeOfOids(spec.ComparamCollection())) {
            return false;
        }
    }
    return true;
}

} // namespace NDIAGKIT
