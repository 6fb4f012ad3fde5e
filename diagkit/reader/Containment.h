// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <unordered_set>

#include <diagkit/memory/Database.h>
#include <diagkit/memory/Odx.h>
#include <diagkit/reader/CycleSearch.h>
#include <diagkit/tools/Containment.h>

/// What contains what in data dictionaries, as ways from DOPs, TABLEs and TABLE-ROWs into others.

namespace NReader {

/// Follows references to DOPs by ID only.
class VDopsById final : public NDIAGKIT::IDopFinder {
public:
    NODX201::VDopBase* Find(NODX201::VDopBaseLink& link) override;
};

/// The short name in a reference; empty for one by ID.
std::wstring_view ShortNameIn(NODX201::VLink& reference);

/// How far containment is followed.
enum class VFollow {
    Dops,   ///< through parameters, fields, multiplexers and environment data
    Tables, ///< also through the tables and rows that table parameters name
};

/// The ways out of a DOP, a TABLE, a TABLE-ROW, a request or a response, in document order; those through table
/// parameters come last.
VEdges EdgesOf(NODX201::VReferencable& container, VFollow follow, NDIAGKIT::IDopFinder& dops);

using VLinks = std::unordered_set<NODX201::VLink const*>;

/// The targets of the same ways by ID, and the short names that they refer to; the targets of those are not included.
VMayLead MayLeadFrom(NODX201::VReferencable& container, VFollow follow, VLinks const& leftOut);

/// The DOPs that can contain others, TABLEs and TABLE-ROWs that stand inside and to which references by ID lead, also
/// those that the reader cut.
VReferencables TargetsById(NODX201::VReferencable& container);

/// The parameters of a STRUCTURE, an ENV-DATA, a request or a response; null for anything else.
NODX201::VParamCollection* ParamsOf(NODX201::VReferencable& container);

/// Every DOP of every dictionary that can contain others, in document order, except those inside of others.
VReferencables ContainersOf(NMemory::VDatabase& database);

/// Every layer, in document order.
template <class Run>
void ForEachLayer(NMemory::VDatabase& database, Run run) {
    for (NODX201::VDiagLayerContainer& container : database.GetOdx().DiagLayerContainerCollection()) {
        for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
            run(layer);
        }
    }
}

std::vector<NODX201::VDiagLayer*> LayersOf(NMemory::VDatabase& database); ///< in document order

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
