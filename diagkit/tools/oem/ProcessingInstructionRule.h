// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/tools/oem/HeuristicRule.h>

namespace NDIAGKIT {

/// The database's processing instruction PavonaTemplateManufacturer, in which an authoring tool records whose template
/// it used: one of them has the expected content, or there is none. A database without it passes for every
/// manufacturer.
class VProcessingInstructionRule final : public VHeuristicRule {
public:
    VProcessingInstructionRule(VOemCheckContext* context, wchar_t const* expected)
        : VHeuristicRule(context), mpExpected(expected) {}

    bool Matches() override;
    wchar_t const* GetName() const override { return L"VProcessingInstructionRule"; }

private:
    wchar_t const* mpExpected;
};

} // namespace NDIAGKIT
