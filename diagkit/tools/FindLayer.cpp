// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/FindLayer.h>

#include <diagkit/model/Layers.h>
#include <diagkit/model/Odx.h>

namespace NDIAGKIT {
namespace {

bool IsNamed(NODX201::VDiagLayer const& layer, std::wstring_view name) {
    return !name.empty() && (name == layer.GetShortName() || name == layer.GetId());
}

/// What the name says of a layer in the container; all of it where the container is not named.
bool FitsIn(NODX201::VDiagLayerContainer const& container, NODX201::VDiagLayer const& layer, std::wstring_view name) {
    std::wstring_view const place = container.GetShortName();
    bool const namesPlace =
        name.size() > place.size() && name[place.size()] == L'/' && name.substr(0, place.size()) == place;
    return IsNamed(layer, name) || (namesPlace && IsNamed(layer, name.substr(place.size() + 1)));
}

/// Calls `take(container, layer)` with every layer, until that returns false.
template <class Take>
void ForEachLayer(NODX201::VOdx& odx, Take take) {
    for (NODX201::VDiagLayerContainer& container : odx.DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            if (!take(container, layer)) {
                return;
            }
        }
    }
}

} // namespace

std::vector<NODX201::VDiagLayer*> LayersOf(NODX201::VOdx& odx) {
    std::vector<NODX201::VDiagLayer*> layers;
    ForEachLayer(odx, [&layers](NODX201::VDiagLayerContainer&, NODX201::VDiagLayer& layer) {
        layers.push_back(&layer);
        return true;
    });
    return layers;
}

std::vector<NODX201::VDiagLayer*> FindLayers(NODX201::VOdx& odx, std::wstring_view name) {
    std::vector<NODX201::VDiagLayer*> fitting;
    ForEachLayer(odx, [&fitting, name](NODX201::VDiagLayerContainer& container, NODX201::VDiagLayer& layer) {
        if (FitsIn(container, layer, name)) {
            fitting.push_back(&layer);
        }
        return true;
    });
    return fitting;
}

NODX201::VDiagLayer* FindLayer(NODX201::VOdx& odx, std::wstring_view name) {
    NODX201::VDiagLayer* found = nullptr;
    ForEachLayer(odx, [&found, name](NODX201::VDiagLayerContainer& container, NODX201::VDiagLayer& layer) {
        found = FitsIn(container, layer, name) ? &layer : nullptr;
        return found == nullptr;
    });
    return found;
}

} // namespace NDIAGKIT
