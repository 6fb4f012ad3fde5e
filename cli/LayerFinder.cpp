// SPDX-License-Identifier: Apache-2.0
#include <diagkit/cli/LayerFinder.h>

#include <string_view>

#include <fmt/format.h>

#include <diagkit/cli/Columns.h>
#include <diagkit/cli/NearNames.h>
#include <diagkit/cli/Text.h>
#include <diagkit/reader/Utf8.h>

namespace NCli {
namespace {

std::string MissingMessage(std::wstring_view wanted, std::vector<VPlacedLayer> const& layers) {
    std::vector<std::wstring_view> names;
    for (VPlacedLayer const& placed : layers) {
        names.emplace_back(placed.layer->GetShortName());
        names.emplace_back(placed.layer->GetId());
    }
    std::string message = fmt::format("no layer has the short name or ID '{}'", Shown(wanted));
    char const* separator = "; near names: ";
    for (std::wstring_view const name : NearNames(wanted, names)) {
        message += separator + Shown(name);
        separator = ", ";
    }
    return message;
}

std::string AmbiguousMessage(std::wstring_view wanted, std::vector<VPlacedLayer> const& candidates) {
    VColumns columns;
    for (VPlacedLayer const& placed : candidates) {
        columns.Add({ShownName(*placed.layer), TagTextOf(*placed.layer), ShownId(*placed.layer),
                     "in " + ShownName(*placed.container)});
    }
    std::string message = fmt::format("'{}' fits {}, choose one by its ID:\n{}", Shown(wanted),
                                      Counted(candidates.size(), "layer"), columns.Format());
    message.pop_back(); // the last line end
    return message;
}

} // namespace

NODX201::VDiagLayer* FindLayer(NMemory::VDatabase& database, std::string const& name, VOutput const& output) {
    std::wstring const wanted = NReader::FromUtf8(name);
    std::vector<VPlacedLayer> const layers = LayersOf(database);
    std::vector<VPlacedLayer> candidates;
    for (VPlacedLayer const& placed : layers) {
        if (wanted == placed.layer->GetShortName() || wanted == placed.layer->GetId()) {
            candidates.push_back(placed);
        }
    }
    if (candidates.size() == 1) {
        return candidates.front().layer;
    }
    output.Complain(candidates.empty() ? MissingMessage(wanted, layers) : AmbiguousMessage(wanted, candidates));
    return nullptr;
}

} // namespace NCli
