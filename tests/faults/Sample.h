// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <diagkit/model/Layers.h>
#include <diagkit/reader/OdxReader.h>

namespace NTest {

inline std::string const kSample = std::string(DIAGKIT_SAMPLES) + "/WiperDatabase.pdx";

/// The sample, loaded, and its layers in document order.
struct VSample {
    NReader::VReadResult result = NReader::ReadOdx({kSample});
    NMemory::VDatabase& database = *result.database;
    std::vector<NODX201::VDiagLayer*> layers = LayersOf(database);

    static std::vector<NODX201::VDiagLayer*> LayersOf(NMemory::VDatabase& database);
};

inline std::vector<NODX201::VDiagLayer*> VSample::LayersOf(NMemory::VDatabase& database) {
    std::vector<NODX201::VDiagLayer*> layers;
    for (NODX201::VDiagLayerContainer& container : database.GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            layers.push_back(&layer);
        }
    }
    return layers;
}

} // namespace NTest
