// SPDX-License-Identifier: Apache-2.0
#include <cli/Layers.h>

#include <cli/Text.h>
#include <diagkit/model/Odx.h>
#include <diagkit/tools/Inheritance.h>

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

NODX201::VDiagLayer const* LayerAround(NODX201::VOdxElement const& element) {
    NODX201::VOdxObject const* const owner = element.GetOwner();
    return owner != nullptr ? NDIAGKIT::LayerOf(*owner) : nullptr;
}

std::string Titled(NODX201::VDiagLayer const& layer) { return TagTextOf(layer) + " " + ShownName(layer); }

} // namespace NCli
