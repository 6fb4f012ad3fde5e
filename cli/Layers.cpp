// SPDX-License-Identifier: Apache-2.0
#include <cli/Layers.h>

#include <cli/Text.h>
#include <diagkit/model/Odx.h>

namespace NCli {

std::vector<VPlacedLayer> LayersOf(NMemory::VDatabase& database) {
    std::vector<VPlacedLayer> layers;
    for (NODX201::VDiagLayerContainer& container : database.GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            layers.push_back({&layer, &container});
        }
    }
    return layers;
}

NODX201::VDiagLayer* LayerOf(NODX201::VOdxElement const& element) {
    for (NODX201::VOdxObject* owner = element.GetOwner(); owner != nullptr; owner = owner->GetOwner()) {
        if (auto* const layer = dynamic_cast<NODX201::VDiagLayer*>(owner)) {
            return layer;
        }
    }
    return nullptr;
}

std::string Titled(NODX201::VDiagLayer const& layer) { return TagTextOf(layer) + " " + ShownName(layer); }

} // namespace NCli
