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

/// A layer, or the missing target of a PARENT-REF.
struct VGraphNode {
    NODX201::VDiagLayer* layer;              ///< of the database; null for a missing target
    NODX201::VDiagLayerContainer* container; ///< that contains the layer; null for a missing target
    std::wstring name;                       ///< the layer's short name, or the ID in the PARENT-REF
    std::wstring kind; ///< the layer's ODX tag, or the one required by the PARENT-REF; "" when it requires none
};

/// The effect of a PARENT-REF.
enum class VParentRefState {
    Inherited,     ///< the layer inherits from its target
    Contradicting, ///< its target is a layer of another kind than its xsi:type requires; nothing is inherited
    NotAllowed,    ///< its target is a layer from which such a layer cannot inherit: of a wrong kind, or itself
    Unresolved,    ///< it has no target
};

/// A PARENT-REF.
struct VGraphEdge {
    std::size_t child;              ///< the node of the layer that has the PARENT-REF
    std::size_t parent;             ///< the node of its target
    NODX201::VParentRef* parentRef; ///< of the database
    VParentRefState state;
    std::wstring kind;             ///< the ODX tag of the layers that the PARENT-REF requires; "" when it requires none
    std::size_t excludedDiagComms; ///< NOT-INHERITED-DIAG-COMMs in the PARENT-REF
    std::size_t excludedVariables; ///< NOT-INHERITED-VARIABLEs
};

/// The nodes are all layers in document order, then the missing targets of PARENT-REFs, each name and kind once, in the
/// order in which they come. The edges are all PARENT-REFs in document order.
struct VInheritanceGraph {
    std::vector<VGraphNode> nodes;
    std::vector<VGraphEdge> edges;
};

/// The graph of a database. It points into the database, which must outlive it and must not be changed.
VInheritanceGraph InheritanceGraphOf(NMemory::VDatabase& database);

/// The part of a graph around a layer: all layers from which it inherits and that inherit from it, directly or
/// indirectly, and the edges of inheritance among them; in addition the edges without inheritance, of the layer and of
/// all layers from which it inherits, with their targets. Nodes and edges keep their order. Empty when the layer is not
/// in the graph.
VInheritanceGraph PartAround(VInheritanceGraph const& graph, NODX201::VDiagLayer const& layer);

} // namespace NQuery
