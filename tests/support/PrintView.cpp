// SPDX-License-Identifier: Apache-2.0
#include "support/PrintView.h"

#include <diagkit/model/Layers.h>
#include <diagkit/tools/OpBuildDiagCommView.h>

namespace NTest {

std::wstring LayerOf(NODX201::VOdxObject const& element) {
    for (NODX201::VOdxObject const* object = &element; object != nullptr; object = object->GetOwner()) {
        if (auto const* const layer = dynamic_cast<NODX201::VDiagLayer const*>(object)) {
            return layer->GetShortName();
        }
    }
    return L"";
}

std::wstring Print(NODX201::VDiagComm& diagComm) {
    return std::wstring(diagComm.GetShortName()) + L"@" + LayerOf(diagComm);
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
