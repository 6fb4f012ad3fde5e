// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <diagkit/memory/Database.h>
#include <diagkit/model/Layers.h>
#include <diagkit/model/ParentRefs.h>

/// Which layer inherits from which, as nodes and edges to be drawn.
///
///     NQuery::VInheritanceGraph const graph = NQuery::InheritanceGraphOf(database);
///     for (NQuery::VGraphEdge const& edge : graph.edges) {
///         Print(graph.nodes[edge.child], graph.nodes[edge.parent], edge.excluded);
///     }

namespace NQuery {

/// A layer, or what a PARENT-REF names that no loaded layer is.
struct VGraphNode {
    NODX201::VDiagLayer* layer;              ///< of the database; null for what is not there
    NODX201::VDiagLayerContainer* container; ///< that the layer stands in; null for what is not there
    std::wstring name;                       ///< the layer's short name, or the ID that the PARENT-REF names
    std::wstring kind; ///< the layer's ODX tag, or the one that the PARENT-REF asks for; "" when it asks for none
};

/// What becomes of a PARENT-REF.
enum class VParentRefState {
    Inherited,     ///< the layer inherits from its target
    Contradicting, ///< its target is a layer of another kind than its xsi:type says; nothing is inherited
    NotAllowed,    ///< its target is a layer that such a layer can have nothing from: of a wrong kind, or itself
    Unresolved,    ///< it has no target
};

/// A PARENT-REF.
struct VGraphEdge {
    std::size_t child;              ///< the node of the layer that has the PARENT-REF
    std::size_t parent;             ///< the node of what it names
    NODX201::VParentRef* parentRef; ///< of the database
    VParentRefState state;
    std::wstring kind;             ///< of layer, which the PARENT-REF asks for: its ODX tag; "" when it asks for none
    std::size_t excludedDiagComms; ///< NOT-INHERITED-DIAG-COMMs in the PARENT-REF
    std::size_t excludedVariables; ///< NOT-INHERITED-VARIABLEs
};

/// The nodes are all layers in document order, then what the PARENT-REFs name that is not there, each name and kind
/// once, in the order in which they come. The edges are all PARENT-REFs in document order.
struct VInheritanceGraph {
    std::vector<VGraphNode> nodes;
    std::vector<VGraphEdge> edges;
};

/// The graph of a database. It points into the database, which must outlive it and stay as it is.
VInheritanceGraph InheritanceGraphOf(NMemory::VDatabase& database);

/// What a layer inherits from and what inherits from it, directly or through others: these layers and the edges of
/// inheritance among them, and besides them the edges that break off, of the layer and of all that it inherits from,
/// with what those name. Nodes and edges keep their order. Empty when the graph does not hold the layer.
VInheritanceGraph PartAround(VInheritanceGraph const& graph, NODX201::VDiagLayer const& layer);

} // namespace NQuery
