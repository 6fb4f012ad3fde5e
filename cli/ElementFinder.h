// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <cli/Output.h>
#include <diagkit/memory/Database.h>
#include <diagkit/memory/DiagComms.h>
#include <diagkit/memory/Flash.h>
#include <diagkit/memory/Layers.h>

namespace NCli {

// The one element of its kind with this short name or ID. Where several documents have the same names and IDs, that of
// its owner may come first: CONTAINER/LAYER, MULTIPLE-ECU-JOB-SPEC/JOB. Null, with a message that helps to correct the
// name, when there is none or when several match.

NODX201::VDiagLayer* FindLayer(NMemory::VDatabase& database, std::string const& name, VOutput const& output);
/// The layers of two databases that match the name, at most one of each. Empty, with a message, when neither has one or
/// when several of one database match.
std::vector<NODX201::VDiagLayer*> FindLayerInEither(NMemory::VDatabase& oldDatabase, NMemory::VDatabase& newDatabase,
                                                    std::string const& name, VOutput const& output);
NODX201::VDiagLayerContainer* FindContainer(NMemory::VDatabase& database, std::string const& name,
                                            VOutput const& output);
NMemory::VMemFlash* FindFlash(NMemory::VDatabase& database, std::string const& name, VOutput const& output);
NMemory::VMemMultipleEcuJob* FindJob(NMemory::VDatabase& database, std::string const& name, VOutput const& output);

/// The first DIAG-COMM of this short name among those visible in the layer; where none has the name, the one with this
/// ID. Messages name the layer as the call does.
NODX201::VDiagComm* FindDiagComm(NMemory::VDatabase& database, NODX201::VDiagLayer& layer, std::string const& name,
                                 std::string const& layerInCall, VOutput const& output);

} // namespace NCli
