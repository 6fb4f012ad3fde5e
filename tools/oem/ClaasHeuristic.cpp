// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/ClaasHeuristic.h>

#include <diagkit/model/Params.h>
#include <diagkit/model/Responses.h>
#include <diagkit/tools/oem/Conditions.h>
#include <diagkit/tools/oem/ElementTexts.h>
#include <diagkit/tools/oem/ProcessingInstructionRule.h>

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

} // namespace

void VClaasHeuristic::CreateRules() {
    Add<VClaasProcessingInstructionRule>();
    Add<VProcessingInstructionRule>(L"3");
}

bool VClaasProcessingInstructionRule::Matches() {
    for (NODX201::VBaseVariant* const baseVariant : mpContext->m_baseVariants) {
        NODX201::VResponseCollection& responses = baseVariant->ResponseCollection();
        if (responses.Count() == 0) {
            return false;
        }
        if (AnyOf(responses, &IsOfClaas)) {
            return true;
        }
    }
    return false;
}

} // namespace NDIAGKIT
