// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/reader/CycleSearch.h>
#include <diagkit/reader/Types.h>

/// What contains what in data dictionaries.

namespace NReader {

/// The DOPs that a reference by short name is to be followed to.
using VShortNameTargets = std::function<VReferencables(NMemory::VMemDopBaseLink& link)>;

/// None: only references by ID are followed.
VReferencables NoTargets(NMemory::VMemDopBaseLink& link);

/// What a layer means by the name.
VShortNameTargets TargetsIn(NODX201::VDiagLayer& layer);

/// Every DOP that bears the name. Where this leads into no cycle, no layer needs to be asked what it means by a name.
class VDopsByName {
public:
    explicit VDopsByName(VReferencables const& dops);

    VReferencables operator()(NMemory::VMemDopBaseLink& link) const;

private:
    std::unordered_map<std::wstring_view, VReferencables> m_dops;
};

/// Adds the ways out of VALUE parameters.
void AddParams(VEdges& edges, NODX201::VParamCollection& params, VShortNameTargets const& shortNameTargets);

/// The ways out of a DOP through its parameters, fields, multiplexers and environment data, in document order. The
/// references of VALUE parameters are the only ones among them that may be by short name.
VEdges EdgesOf(NODX201::VDopBase& dop, VShortNameTargets const& shortNameTargets);

/// Every DOP of every dictionary, in document order, those inside of others left out.
VReferencables DopsOf(NMemory::VDatabase& database);

/// Every layer, in document order.
template <class Run>
void ForEachLayer(NMemory::VDatabase& database, Run run) {
    for (NODX201::VDiagLayerContainer& container : database.GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            run(layer);
        }
    }
}

/// Every DIAG-DATA-DICTIONARY-SPEC: those of the layers, then those of the MULTIPLE-ECU-JOB-SPECs.
template <class Run>
void ForEachDictionary(NMemory::VDatabase& database, Run run) {
    ForEachLayer(database, [&run](NODX201::VDiagLayer& layer) {
        if (layer.HasDiagDataDictionarySpec()) {
            run(layer.GetDiagDataDictionarySpec());
        }
    });
    for (NMemory::VMemMultipleEcuJobSpec& spec : database.MultipleEcuJobSpecCollection()) {
        if (spec.HasDiagDataDictionarySpec()) {
            run(spec.GetDiagDataDictionarySpec());
        }
    }
}

} // namespace NReader
