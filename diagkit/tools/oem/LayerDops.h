// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <diagkit/model/Dops.h>
#include <diagkit/model/Layers.h>

namespace NDIAGKIT {

/// The DOPs of a layer's own dictionary; null for a layer without one.
inline NODX201::VDopBaseCollection* DopsOf(NODX201::VDiagLayer& layer) {
    return layer.HasDiagDataDictionarySpec() ? &layer.GetDiagDataDictionarySpec().DopBaseCollection() : nullptr;
}

} // namespace NDIAGKIT
