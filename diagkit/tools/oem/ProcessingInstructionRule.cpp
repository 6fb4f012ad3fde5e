// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/oem/ProcessingInstructionRule.h>

#include <string_view>

#include <diagkit/tools/oem/Reasons.h>

namespace NDIAGKIT {
namespace {

constexpr std::wstring_view kName = L"PavonaTemplateManufacturer";

bool IsTemplateManufacturer(NODX201::VProcessingInstruction const& instruction) {
    return instruction.GetName() == kName;
}

std::wstring ContentsIn(NODX201::VProcessingInstructionCollection& instructions) {
    VListing contents;
    for (NODX201::VProcessingInstruction& instruction : instructions) {
        if (IsTemplateManufacturer(instruction)) {
            contents.Add(Quoted(instruction.GetContent()));
        }
    }
    return contents.As(L"content");
}

} // namespace

bool VProcessingInstructionRule::Matches() {
    bool isDeclared = false;
    NODX201::VProcessingInstructionCollection& instructions = mpContext->m_odx.ProcessingInstructionCollection();
    for (NODX201::VProcessingInstruction& instruction : instructions) {
        if (!IsTemplateManufacturer(instruction)) {
            continue;
        }
        isDeclared = true;
        if (std::wstring_view(instruction.GetContent()) == mpExpected) {
            return true;
        }
    }
    if (!isDeclared) {
        return Yes(*mpContext, false);
    }
    return No(*mpContext, [&] {
        return VOemReason{L"the processing instruction " + std::wstring(kName) + L' ' + Quoted(mpExpected),
                          ContentsIn(instructions)};
    });
}

} // namespace NDIAGKIT
