// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cli/Layers.h>
#include <cli/Output.h>

namespace NCli {

/// Writes the layers as a tree for people: parents with their children below.
///
/// First come the layers from PROTOCOLs down, then unresolved parents, each a line of its own, and last the
/// ECU-SHARED-DATAs with the layers that inherit from them. A layer appears under each of its parents, its own children
/// only where it appears first.
void WriteLayerTree(std::vector<VPlacedLayer> const& layers, VOutput& output);

} // namespace NCli
