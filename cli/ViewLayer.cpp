// SPDX-License-Identifier: Apache-2.0

// The views of a layer that are told by where their entries stand: DOPs, DIAG-VARIABLEs, global negative responses.

#include <memory>

#include <fmt/format.h>

#include <diagkit/cli/ElementFinder.h>
#include <diagkit/cli/Layers.h>
#include <diagkit/cli/ViewText.h>
#include <diagkit/cli/Views.h>
#include <diagkit/model/DiagVariables.h>
#include <diagkit/model/Dops.h>
#include <diagkit/model/Responses.h>
#include <diagkit/model/Visitors.h>
#include <diagkit/tools/OpBuildDiagVariableView.h>
#include <diagkit/tools/OpBuildDopView.h>
#include <diagkit/tools/OpBuildGlobalNegResponseView.h>

namespace NCli {
namespace {

template <class View>
std::vector<NODX201::VOdxElement const*> EntriesOf(View& view) {
    std::vector<NODX201::VOdxElement const*> entries;
    for (auto& element : view) {
        entries.push_back(&element);
    }
    return entries;
}

std::vector<NODX201::VOdxElement const*> Dops(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDopView builder;
    return EntriesOf(*std::unique_ptr<NDIAGKIT::VDopView>(builder.CreateDopView(layer)));
}

std::vector<NODX201::VOdxElement const*> DiagVariables(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildDiagVariableView builder;
    return EntriesOf(*std::unique_ptr<NDIAGKIT::VDiagVariableView>(builder.CreateDiagVariableView(layer)));
}

std::vector<NODX201::VOdxElement const*> GlobalNegResponses(NODX201::VDiagLayer& layer) {
    NDIAGKIT::VOpBuildGlobalNegResponseView builder;
    return EntriesOf(*std::unique_ptr<NDIAGKIT::VGlobalNegResponseView>(builder.CreateGlobalNegResponseView(layer)));
}

/// Finds the DIAG-VARIABLES of a layer: null for a PROTOCOL, which has none.
struct VDiagVariablesFinder : NODX201::VDiagLayerVisitor {
    NODX201::VDiagVariableProxyCollection* found = nullptr;

    void VisitProtocol(NODX201::VProtocol&) override {}
    void VisitFunctionalGroup(NODX201::VFunctionalGroup& layer) override { Take(layer); }
    void VisitBaseVariant(NODX201::VBaseVariant& layer) override { Take(layer); }
    void VisitEcuVariant(NODX201::VEcuVariant& layer) override { Take(layer); }
    void VisitEcuSharedData(NODX201::VEcuSharedData& layer) override { Take(layer); }

    template <class Layer>
    void Take(Layer& layer) {
        found = &layer.DiagVariableProxyCollection();
    }
};

VReferencedEntries NothingReferenced(NODX201::VDiagLayer&) { return {}; }

VReferencedEntries ReferencedDiagVariables(NODX201::VDiagLayer& layer) {
    VDiagVariablesFinder finder;
    layer.Accept(finder);
    VReferencedEntries referenced;
    if (finder.found == nullptr) {
        return referenced;
    }
    for (NODX201::IDiagVariableProxy& proxy : *finder.found) {
        auto* const link = dynamic_cast<NODX201::VDiagVariableLink*>(&proxy);
        if (link == nullptr || !link->HasDiagVariable(layer)) {
            continue;
        }
        NODX201::VDiagVariable const& target = link->GetDiagVariable();
        NODX201::VDiagLayer const* const owner = LayerOf(target);
        if (owner != nullptr && owner != &layer) {
            referenced.try_emplace(&target, "DIAG-VARIABLE-REF to " + Titled(*owner));
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
