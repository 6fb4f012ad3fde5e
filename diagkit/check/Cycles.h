// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/Reference.h>

namespace NCheck {

/// The kinds of cycle.
enum class VCycleKind {
    Containment,      ///< DOPs that contain themselves; the reader severs them, so only databases made by hand have any
    TableRows,        ///< DOPs that reach themselves through tables
    RelatedDiagComms, ///< DIAG-COMMs by their RELATED-DIAG-COMM-REFs
};

/// A chain of elements that leads back to its start. Walks and searches that follow references do not end on it.
struct VCycle {
    VCycleKind kind; ///< the kind of elements in the chain
    /// The chain, each element followed by one that it refers to or contains: DOPs, TABLEs and TABLE-ROWs, or
    /// DIAG-COMMs.
    std::vector<NODX201::VReferencable*> elements;
    NODX201::VLink* reference; ///< the one that leads from the end of the chain back to its start
    /// The layers in which short names refer to these elements, in document order; cycles share them. Null where the
    /// references are all by ID.
    std::shared_ptr<std::vector<NODX201::VDiagLayer*> const> layers;
};

/// The cycles of a database, for programs that check before they walk or search. Every reference that closes a chain
/// gives one cycle: a walk in a layer terminates if it follows none of the references given for every layer or for that
/// one. First come those that exist in every layer, DOPs and tables before DIAG-COMMs, then those that exist only by
/// short names, once for all layers in which the relevant names have the same meaning; these in the order of their
/// first layers.
///
/// Layers are only examined when a short name might lead into a cycle at all. Nothing is changed. The pointers are
/// valid until something is removed from the database.
std::vector<VCycle> FindCycles(NMemory::VDatabase& database);

} // namespace NCheck
