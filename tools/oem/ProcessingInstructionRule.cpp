// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/ProcessingInstructionRule.h>

#include <string_view>

namespace NDIAGKIT {
namespace {

bool IsTemplateManufacturer(NODX201::VProcessingInstruction const& instruction) {
    return std::wstring_view(instruction.GetName()) == L"PavonaTemplateManufacturer";
}

} // namespace

bool VProcessingInstructionRule::Matches() {
    bool isDeclared = false;
    for (NODX201::VProcessingInstruction& instruction : mpContext->m_odx.ProcessingInstructionCollection()) {
        if (!IsTemplateManufacturer(instruction)) {
            continue;
        }
        isDeclared = true;
        if (std::wstring_view(instruction.GetContent()) == mpExpected) {
            return true;
        }
    }
    return !isDeclared;
}

} // namespace NDIAGKIT
