// SPDX-License-Identifier: Apache-2.0

// The views of a layer that are told by where their entries stand: DOPs, DIAG-VARIABLEs, global negative responses.

#include <fmt/format.h>

#include <cli/ElementFinder.h>
#include <cli/Layers.h>
#include <cli/ViewText.h>
#include <cli/Views.h>
#include <diagkit/check/Views.h>

namespace NCli {
namespace {

template <class Element>
std::vector<NODX201::VOdxElement const*> AsElements(std::vector<Element*> const& visible) {
    return {visible.begin(), visible.end()};
}

std::vector<NODX201::VOdxElement const*> Dops(NODX201::VDiagLayer& layer) { return AsElements(NCheck::DopsIn(layer)); }

std::vector<NODX201::VOdxElement const*> DiagVariables(NODX201::VDiagLayer& layer) {
    return AsElements(NCheck::DiagVariablesIn(layer));
}

std::vector<NODX201::VOdxElement const*> GlobalNegResponses(NODX201::VDiagLayer& layer) {
    return AsElements(NCheck::GlobalNegResponsesIn(layer));
}

VReferencedEntries NothingReferenced(NODX201::VDiagLayer&) { return {}; }

VReferencedEntries ReferencedDiagVariables(NODX201::VDiagLayer& layer) {
    VReferencedEntries referenced;
    for (NODX201::VDiagVariable const* const variable : NCheck::OwnDiagVariables(layer)) {
        NODX201::VDiagLayer const* const owner = LayerAround(*variable);
        if (owner != nullptr && owner != &layer) {
            referenced.try_emplace(variable, "DIAG-VARIABLE-REF to " + Titled(*owner));
        }
    }
    return referenced;
}

/// One of the views: what is visible, and what of it is the layer's own by a reference.
struct VLayerView {
    char const* title;
    std::vector<NODX201::VOdxElement const*> (*entriesOf)(NODX201::VDiagLayer& layer);
    VReferencedEntries (*referencedBy)(NODX201::VDiagLayer& layer);
};

VStatus ViewLayer(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output, VLayerView const& view) {
    NODX201::VDiagLayer* const layer = FindLayer(database, arguments.layer, output);
    if (layer == nullptr) {
        return VStatus::NotThere;
    }
    std::vector<NODX201::VOdxElement const*> const entries = view.entriesOf(*layer);
    if (arguments.isJson) {
        WriteViewAsJson(arguments.kind, *layer, entries, output);
    } else {
        WriteEntriesByOrigin(view.title, *layer, entries, view.referencedBy(*layer), output);
    }
    return VStatus::Done;
}

} // namespace

VStatus ViewDops(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    return ViewLayer(arguments, database, output, {"DOPs", &Dops, &NothingReferenced});
}

VStatus ViewDiagVariables(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    return ViewLayer(arguments, database, output, {"DIAG-VARIABLEs", &DiagVariables, &ReferencedDiagVariables});
}

VStatus ViewGlobalNegResponses(VArguments const& arguments, NMemory::VDatabase& database, VOutput& output) {
    return ViewLayer(arguments, database, output, {"GLOBAL-NEG-RESPONSEs", &GlobalNegResponses, &NothingReferenced});
}

} // namespace NCli
