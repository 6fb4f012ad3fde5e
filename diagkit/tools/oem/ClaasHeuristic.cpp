// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/ClaasHeuristic.h>

#include <utility>

#include <diagkit/model/Params.h>
#include <diagkit/model/Responses.h>
#include <diagkit/tools/oem/Conditions.h>
#include <diagkit/tools/oem/ElementTexts.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>
#include <diagkit/tools/oem/Reasons.h>

namespace NDIAGKIT {
namespace {

bool HasClaasInstruction(NODX201::VParam& param) {
    return AnyOf(param.ProcessingInstructionCollection(), [](NODX201::VProcessingInstruction& instruction) {
        return EqualsIgnoringCase(instruction.GetName(), L"ClaasParamInformation");
    });
}

bool IsOfClaas(NODX201::VResponse& response) {
    return dynamic_cast<NODX201::VPosResponse*>(&response) != nullptr &&
           AnyOf(response.ParamCollection(), &HasClaasInstruction);
}

VOemReason NoInstruction(std::wstring found, NODX201::VOdxElement const* where) {
    return {L"a PARAM of a POS-RESPONSE with the processing instruction ClaasParamInformation", std::move(found),
            where};
}

} // namespace

void VClaasHeuristic::CreateRules() {
    Add<VClaasProcessingInstructionRule>();
    Add<VProcessingInstructionRule>(L"3");
}

bool VClaasProcessingInstructionRule::Matches() {
    auto const& baseVariants = mpContext->m_baseVariants;
    for (NODX201::VBaseVariant* const baseVariant : baseVariants) {
        NODX201::VResponseCollection& responses = baseVariant->ResponseCollection();
        if (responses.Count() == 0) {
            return No(*mpContext, [&] { return NoInstruction(L"no responses", baseVariant); });
        }
        if (AnyOf(responses, &IsOfClaas)) {
            return true;
        }
    }
    return No(*mpContext,
              [&] { return NoInstruction(LookedAt(L"none", baseVariants.size(), L"BASE-VARIANT"), nullptr); });
}

} // namespace NDIAGKIT
