// SPDX-License-Identifier: Apache-2.0
#include <cli/Commands.h>
#include <cli/JsonWriter.h>
#include <cli/LayerTree.h>
#include <cli/Layers.h>
#include <cli/Load.h>
#include <cli/Parents.h>
#include <cli/Text.h>

namespace NCli {
namespace {

void WriteParent(VJsonWriter& json, VNamedParent const& parent) {
    json.Object([&] {
        json.TextOrNull("short_name", parent.name);
        json.TextOrNull("kind", parent.kind);
        json.Member("resolved", parent.layer != nullptr);
    });
}

void WriteLayer(VJsonWriter& json, VPlacedLayer const& placed) {
    json.Object([&] {
        json.TextOrNull("short_name", placed.layer->GetShortName());
        json.Member("kind", TagTextOf(*placed.layer));
        json.TextOrNull("id", placed.layer->GetId());
        json.TextOrNull("container", placed.container->GetShortName());
        json.ArrayOf("parents", NamedParentsOf(*placed.layer),
                     [&json](VNamedParent const& parent) { WriteParent(json, parent); });
    });
}

} // namespace

VStatus RunLayers(VArguments const& arguments, VOutput& output) {
    NReader::VReadResult result;
    if (VStatus const status = Load(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    std::vector<VPlacedLayer> const layers = LayersOf(*result.database);
    if (arguments.isJson) {
        WriteJson(output, [&layers](VJsonWriter& json) {
            json.Object([&] {
                json.ArrayOf("layers", layers, [&json](VPlacedLayer const& placed) { WriteLayer(json, placed); });
            });
        });
    } else {
        WriteLayerTree(layers, output);
    }
    return VStatus::Done;
}

} // namespace NCli
