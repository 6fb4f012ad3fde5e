// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <iterator>

#include <cli/Commands.h>
#include <cli/Csv.h>
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

void WriteAsCsv(std::vector<VPlacedLayer> const& layers, VOutput& output) {
    VCsvWriter csv(output, {"short_name", "kind", "id", "container", "parents", "unresolved_parents"});
    for (VPlacedLayer const& placed : layers) {
        std::vector<VNamedParent> const parents = NamedParentsOf(*placed.layer);
        std::vector<VNamedParent> unresolved;
        std::copy_if(parents.begin(), parents.end(), std::back_inserter(unresolved),
                     [](VNamedParent const& parent) { return parent.layer == nullptr; });
        auto const nameOf = [](VNamedParent const& parent) { return parent.name; };
        csv.Row([&] {
            csv.Cell(std::wstring_view(placed.layer->GetShortName()));
            csv.Cell(std::string_view(TagTextOf(*placed.layer)));
            csv.Cell(std::wstring_view(placed.layer->GetId()));
            csv.Cell(std::wstring_view(placed.container->GetShortName()));
            csv.CellOf(parents, nameOf);
            csv.CellOf(unresolved, nameOf);
        });
    }
}

} // namespace

void DeclareLayers(CLI::App& command, VArguments& arguments) {
    DeclareCsv(command, arguments);
    DeclareWide(command, arguments);
    DeclareFiles(command, arguments);
}

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
    } else if (arguments.isCsv) {
        WriteAsCsv(layers, output);
    } else {
        WriteLayerTree(layers, output);
    }
    return VStatus::Done;
}

} // namespace NCli
