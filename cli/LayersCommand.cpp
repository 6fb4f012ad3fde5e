// SPDX-License-Identifier: Apache-2.0
#include <nlohmann/json.hpp>

#include <diagkit/cli/Commands.h>
#include <diagkit/cli/Entry.h>
#include <diagkit/cli/LayerTree.h>
#include <diagkit/cli/Layers.h>
#include <diagkit/cli/Load.h>
#include <diagkit/cli/Parents.h>
#include <diagkit/cli/Text.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

nlohmann::ordered_json JsonOf(VParent const& parent) {
    nlohmann::ordered_json entry;
    entry["short_name"] = TextOrNull(parent.name.c_str());
    entry["kind"] = parent.kind.empty() ? nlohmann::ordered_json() : nlohmann::ordered_json(parent.kind);
    entry["resolved"] = parent.layer != nullptr;
    return entry;
}

nlohmann::ordered_json JsonOf(VPlacedLayer const& placed) {
    nlohmann::ordered_json entry;
    entry["short_name"] = TextOrNull(placed.layer->GetShortName());
    entry["kind"] = TagTextOf(*placed.layer);
    entry["id"] = TextOrNull(placed.layer->GetId());
    entry["container"] = TextOrNull(placed.container->GetShortName());
    entry["parents"] = nlohmann::ordered_json::array();
    for (VParent const& parent : ParentsOf(*placed.layer)) {
        entry["parents"].push_back(JsonOf(parent));
    }
    return entry;
}

nlohmann::ordered_json JsonOf(std::vector<VPlacedLayer> const& layers) {
    nlohmann::ordered_json answer;
    answer["layers"] = nlohmann::ordered_json::array();
    for (VPlacedLayer const& placed : layers) {
        answer["layers"].push_back(JsonOf(placed));
    }
    return answer;
}

} // namespace

VStatus RunLayers(VArguments const& arguments, VOutput& output) {
    NReader::VReadResult result;
    if (VStatus const status = Load(arguments, output, result); status != VStatus::Done) {
        return status;
    }
    std::vector<VPlacedLayer> const layers = LayersOf(*result.database);
    if (arguments.isJson) {
        output.WriteJson(JsonOf(layers));
    } else {
        WriteLayerTree(layers, output);
    }
    return VStatus::Done;
}

} // namespace NCli
