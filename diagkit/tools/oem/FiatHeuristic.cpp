// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/FiatHeuristic.h>

#include <algorithm>
#include <array>
#include <bitset>

#include <diagkit/model/Comparams.h>
#include <diagkit/model/Sdgs.h>
#include <diagkit/tools/oem/Conditions.h>
#include <diagkit/tools/oem/ElementTexts.h>
#include <diagkit/tools/oem/OwnDiagComms.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>
#include <diagkit/tools/oem/Reasons.h>

namespace NDIAGKIT {
namespace {

/// Deliberate: an SDG without caption makes the rule fail before that of the state model and is ignored after it
/// (FiatHeuristicTest.AnSdgWithoutCaptionIsFatalOnlyBeforeTheStateModel).
bool HasStateModel(NODX201::VDiagService& service) {
    for (NODX201::VSdg& sdg : service.SdgCollection()) {
        if (!sdg.HasSdgCaption()) {
            return false;
        }
        if (std::wstring_view(sdg.GetSdgCaption().GetShortName()) == L"State_Model") {
            return true;
        }
    }
    return false;
}

std::wstring SdgsOf(NODX201::VDiagService& service) {
    VListing captions;
    for (NODX201::VSdg& sdg : service.SdgCollection()) {
        captions.Add(sdg.HasSdgCaption() ? Quoted(sdg.GetSdgCaption().GetShortName()) : L"without caption");
    }
    return captions.As(L"SDG");
}

using VComparamIds = std::array<std::wstring_view, 6>;
using VFoundIds = std::bitset<std::tuple_size_v<VComparamIds>>;

// clang-format off
constexpr VComparamIds kKwpOnCan{
    L"COMPARAM-SPEC.KWP_on_CAN_CPS.COMPARAM.CANFrame",
    L"COMPARAM-SPEC.KWP_on_CAN_CPS.COMPARAM.CanIdType",
    L"COMPARAM-SPEC.KWP_on_CAN_CPS.COMPARAM.EDlyTxFast",
    L"COMPARAM-SPEC.KWP_on_CAN_CPS.COMPARAM.EDlyTxSlow",
    L"COMPARAM-SPEC.KWP_on_CAN_CPS.COMPARAM.ETmoRx",
    L"COMPARAM-SPEC.KWP_on_CAN_CPS.COMPARAM.Max_Waiting_Time_for_External_Tool",
};
constexpr VComparamIds kUds{
    L"COMPARAM-SPEC.UDS_CPS.COMPARAM.MaxDeltaP2Can",
    L"COMPARAM-SPEC.UDS_CPS.COMPARAM.S3_Tester",
    L"COMPARAM-SPEC.UDS_CPS.COMPARAM.S3_ECU",
    L"COMPARAM-SPEC.UDS_CPS.COMPARAM.NL_buffer_NormalCommunication",
    L"COMPARAM-SPEC.UDS_CPS.COMPARAM.NL_buffer_FlashProgramming",
    L"COMPARAM-SPEC.UDS_CPS.COMPARAM.Max_Waiting_Time_for_External_Tool",
};
// clang-format on

void Note(std::wstring_view id, VComparamIds const& wanted, VFoundIds& found) {
    auto const position = std::find(wanted.begin(), wanted.end(), id);
    if (position != wanted.end()) {
        found.set(static_cast<std::size_t>(position - wanted.begin()));
    }
}

std::wstring Missing(wchar_t const* protocol, VComparamIds const& wanted, VFoundIds const& found) {
    VListing missing;
    for (std::size_t index = 0; index < wanted.size(); ++index) {
        if (!found[index]) {
            missing.Add(Quoted(wanted[index]));
        }
    }
    return (found.none() ? L"none for " : L"for ") + std::wstring(protocol) +
           (found.none() ? L"" : L" all but " + missing.Text());
}

} // namespace

void VFiatHeuristic::CreateRules() {
    Add<VFiatStateSdgRule>();
    Add<VFiatAdditionalComparamsRule>();
    Add<VProcessingInstructionRule>(L"12");
}

bool VFiatStateSdgRule::Matches() {
    VOemCheckContext const& context = *mpContext;
    bool isAnySeen = false;
    auto const haveServicesStateModels = [&](NODX201::VDiagLayer* layer) {
        return AllOwnServices(*layer, [&](NODX201::VDiagService& service) {
            isAnySeen = true;
            if (HasStateModel(service)) {
                return true;
            }
            return No(context, [&service] {
                return VOemReason{L"an SDG 'State_Model' before any without caption", SdgsOf(service), &service};
            });
        });
    };
    return AllOf(context.m_baseVariants, haveServicesStateModels) &&
           AllOf(context.m_ecuVariants, haveServicesStateModels) && Yes(context, isAnySeen);
}

bool VFiatAdditionalComparamsRule::Matches() {
    VFoundIds kwpOnCan;
    VFoundIds uds;
    for (NODX201::VComparamSpec& spec : mpContext->m_odx.ComparamSpecCollection()) {
        for (NODX201::VComparam& comparam : spec.ComparamCollection()) {
            Note(comparam.GetId(), kKwpOnCan, kwpOnCan);
            Note(comparam.GetId(), kUds, uds);
        }
        if (kwpOnCan.all() || uds.all()) {
            return true;
        }
    }
    return No(*mpContext, [&] {
        return VOemReason{L"the six additional COMPARAMs for KWP on CAN, or the six for UDS",
                          Missing(L"KWP on CAN", kKwpOnCan, kwpOnCan) + L", " + Missing(L"UDS", kUds, uds)};
    });
}

} // namespace NDIAGKIT
