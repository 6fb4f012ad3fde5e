// SPDX-License-Identifier: Apache-2.0
#include "reader/LayersInPrint.h"

#include <diagkit/model/DiagComms.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>

#include "support/ParentRefsOf.h"
#include "support/PrintView.h"

namespace NTest {
namespace {

template <class Print>
std::wstring OfEachLayer(NMemory::VDatabase& database, Print print) {
    std::wstring text;
    for (NODX201::VDiagLayerContainer& container : database.GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            text += print(layer) + L'\n';
        }
    }
    return text;
}

std::wstring Target(NODX201::VParentRef& parentRef) {
    if (auto* const ref = dynamic_cast<NODX201::VProtocolRef*>(&parentRef)) {
        return ref->HasProtocol() ? ref->GetProtocol().GetShortName() : L"?";
    }
    if (auto* const ref = dynamic_cast<NODX201::VFunctionalGroupRef*>(&parentRef)) {
        return ref->HasFunctionalGroup() ? ref->GetFunctionalGroup().GetShortName() : L"?";
    }
    if (auto* const ref = dynamic_cast<NODX201::VBaseVariantRef*>(&parentRef)) {
        return ref->HasBaseVariant() ? ref->GetBaseVariant().GetShortName() : L"?";
    }
    if (auto* const ref = dynamic_cast<NODX201::VEcuSharedDataRef*>(&parentRef)) {
        return ref->HasEcuSharedData() ? ref->GetEcuSharedData().GetShortName() : L"?";
    }
    return L"?";
}

std::wstring PrintLayer(NODX201::VDiagLayer& layer) {
    std::wstring text = std::wstring(NODX201::OdxTagText(layer.GetOdxTag())) + L' ' + layer.GetShortName();
    NODX201::VParentRefCollection* const parentRefs = ParentRefsOf(layer);
    if (parentRefs == nullptr || parentRefs->Count() == 0) {
        return text;
    }
    text += L" <";
    for (NODX201::VParentRef& parentRef : *parentRefs) {
        text += L' ' + Target(parentRef);
        for (NODX201::VNotInheritedDiagComm& excluded : parentRef.NotInheritedDiagCommCollection()) {
            auto const& snref = dynamic_cast<NODX201::VSnref&>(excluded.GetDiagCommSnref().GetLink());
            text += std::wstring(L" -") + snref.GetShortName();
        }
    }
    return text;
}

std::wstring PrintVariables(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDiagVariableView builder;
    NDIAGKIT::VDiagVariableView* const view = builder.CreateDiagVariableView(layer);
    std::wstring text = std::wstring(layer.GetShortName()) + L':';
    for (NODX201::VDiagVariable& variable : *view) {
        text += std::wstring(L" ") + variable.GetShortName() + L'@' + LayerNameOf(variable);
    }
    builder.DestroyDiagVariableView(*view);
    return text;
}

} // namespace

std::wstring PrintLayers(NMemory::VDatabase& database) { return OfEachLayer(database, &PrintLayer); }

std::wstring PrintDiagCommViews(NMemory::VDatabase& database) {
    return OfEachLayer(database, [](NODX201::VDiagLayer& layer) {
        std::wstring const view = PrintDiagComms(layer);
        return std::wstring(layer.GetShortName()) + (view.empty() ? L":" : L": ") + view;
    });
}

std::wstring PrintDiagVariableViews(NMemory::VDatabase& database) { return OfEachLayer(database, &PrintVariables); }

} // namespace NTest
