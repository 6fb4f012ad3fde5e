// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/model/Layers.h>

namespace NCli {

/// A layer and its container.
struct VPlacedLayer {
    NODX201::VDiagLayer* layer;
    NODX201::VDiagLayerContainer* container;
};

/// Every layer of the database, in document order.
std::vector<VPlacedLayer> LayersOf(NMemory::VDatabase& database);

/// The layer around an element; null outside layers, and for a layer itself.
NODX201::VDiagLayer const* LayerAround(NODX201::VOdxElement const& element);

/// A layer with its kind, for headings and notes: "PROTOCOL UDS".
std::string Titled(NODX201::VDiagLayer const& layer);

} // namespace NCli
