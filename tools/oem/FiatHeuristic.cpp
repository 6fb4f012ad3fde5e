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

namespace NDIAGKIT {
namespace {

/// Deliberate: an SDG without caption is fatal before the one of the state model and not looked at behind it
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

template <class Layer>
bool HaveServicesStateModels(Layer* layer) {
    return AllOwnServices(*layer, &HasStateModel);
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

} // namespace

void VFiatHeuristic::CreateRules() {
    Add<VFiatStateSdgRule>();
    Add<VFiatAdditionalComparamsRule>();
    Add<VProcessingInstructionRule>(L"12");
}

bool VFiatStateSdgRule::Matches() {
    return AllOf(mpContext->m_baseVariants, &HaveServicesStateModels<NODX201::VBaseVariant>) &&
           AllOf(mpContext->m_ecuVariants, &HaveServicesStateModels<NODX201::VEcuVariant>);
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
    return false;
}

} // namespace NDIAGKIT
