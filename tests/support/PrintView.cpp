// SPDX-License-Identifier: Apache-2.0
#include "support/PrintView.h"

#include <diagkit/model/Layers.h>
#include <diagkit/tools/Inheritance.h>
#include <diagkit/tools/OpBuildDiagCommView.h>

namespace NTest {

std::wstring LayerNameOf(NODX201::VOdxObject const& element) {
    NODX201::VDiagLayer const* const layer = NDIAGKIT::LayerOf(element);
    return layer != nullptr ? layer->GetShortName() : L"";
}

std::wstring Print(NODX201::VDiagComm& diagComm) {
    return std::wstring(diagComm.GetShortName()) + L"@" + LayerNameOf(diagComm);
}

std::wstring Print(NDIAGKIT::VDiagCommView& view) {
    std::wstring text;
    for (NODX201::VDiagComm& diagComm : view) {
        text += (text.empty() ? L"" : L" ") + Print(diagComm);
    }
    return text;
}

std::wstring PrintDiagComms(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDiagCommView builder;
    NDIAGKIT::VDiagCommView* const view = builder.CreateDiagCommView(layer);
    std::wstring text = Print(*view);
    builder.DestroyDiagCommView(*view);
    return text;
}

} // namespace NTest
