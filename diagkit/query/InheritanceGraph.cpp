// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/InheritanceGraph.h>

#include <algorithm>
#include <map>
#include <string_view>
#include <unordered_map>
#include <utility>

#include <diagkit/memory/Link.h>
#include <diagkit/memory/ParentRefs.h>
#include <diagkit/model/Odx.h>
#include <diagkit/tools/Inheritance.h>

namespace NQuery {
namespace {

/// "PROTOCOL" for a PARENT-REF of the type PROTOCOL-REF; "" for one without a type.
std::wstring KindAskedFor(NODX201::VParentRef const& parentRef) {
    constexpr std::wstring_view kEnding = L"-REF";
    std::wstring_view type = NODX201::OdxTypeText(parentRef.GetOdxTag());
    if (!type.empty()) {
        type.remove_suffix(kEnding.size());
    }
    return std::wstring(type);
}

/// The layer that the reference refers to, whatever kind it requires; null when there is none.
NODX201::VDiagLayer* NamedLayer(NMemory::VDatabase& database, NODX201::VParentRef& parentRef) {
    auto const* const link = dynamic_cast<NODX201::VOdxLink*>(&parentRef.GetLink());
    if (link == nullptr) {
        return nullptr;
    }
    NMemory::VExpect const anyLayer = &NMemory::IsOfClass<NODX201::VDiagLayer>;
    return dynamic_cast<NODX201::VDiagLayer*>(NMemory::ResolveId(database, *link, parentRef, anyLayer));
}

std::wstring NameIn(NODX201::VParentRef& parentRef) {
    NODX201::ILink& link = parentRef.GetLink();
    if (auto const* const byId = dynamic_cast<NODX201::VOdxLink*>(&link)) {
        return byId->GetIdRef();
    }
    auto const* const snref = dynamic_cast<NODX201::VSnref*>(&link);
    return snref != nullptr ? snref->GetShortName() : L"";
}

class VGraphMaker {
public:
    explicit VGraphMaker(NMemory::VDatabase& database) : m_database(database) {}

    VInheritanceGraph Make() {
        for (NODX201::VDiagLayerContainer& container : m_database.GetOdx().DiagLayerContainerCollection()) {
            for (NODX201::VDiagLayer& layer : container.DiagLayerCollection()) {
                m_nodes.emplace(&layer, m_graph.nodes.size());
                m_graph.nodes.push_back(
                    {&layer, &container, layer.GetShortName(), NODX201::OdxTagText(layer.GetOdxTag())});
            }
        }
        std::size_t const layers = m_graph.nodes.size();
        for (std::size_t node = 0; node < layers; ++node) {
            AddEdgesOf(node);
        }
        return std::move(m_graph);
    }

private:
    void AddEdgesOf(std::size_t node) {
        NDIAGKIT::VLayerOfKind const child(*m_graph.nodes[node].layer);
        NODX201::VParentRefCollection* const parentRefs = NDIAGKIT::ParentRefsOf(child);
        if (parentRefs == nullptr) {
            return;
        }
        for (NODX201::VParentRef& parentRef : *parentRefs) {
            AddEdge(node, child, parentRef);
        }
    }

    void AddEdge(std::size_t node, NDIAGKIT::VLayerOfKind const& child, NODX201::VParentRef& parentRef) {
        VGraphEdge edge{node,
                        0,
                        &parentRef,
                        VParentRefState::Inherited,
                        KindAskedFor(parentRef),
                        parentRef.NotInheritedDiagCommCollection().Count(),
                        parentRef.NotInheritedVariableCollection().Count()};
        if (auto const parent = NDIAGKIT::ParentBy(parentRef)) {
            bool const isFollowed = NDIAGKIT::InheritsFrom(child.kind, parent->kind);
            edge.state = isFollowed ? VParentRefState::Inherited : VParentRefState::NotAllowed;
            edge.parent = m_nodes.at(parent->layer);
        } else if (NODX201::VDiagLayer* const named = NamedLayer(m_database, parentRef)) {
            // A reference without a type takes the kind of its target; where it could not, nothing can be inherited.
            edge.state = edge.kind.empty() ? VParentRefState::NotAllowed : VParentRefState::Contradicting;
            edge.parent = m_nodes.at(named);
        } else {
            edge.state = VParentRefState::Unresolved;
            edge.parent = NodeOfAbsent(NameIn(parentRef), edge.kind);
        }
        m_graph.edges.push_back(std::move(edge));
    }

    std::size_t NodeOfAbsent(std::wstring const& name, std::wstring const& kind) {
        auto const [known, isNew] = m_absent.try_emplace({name, kind}, m_graph.nodes.size());
        if (isNew) {
            m_graph.nodes.push_back({nullptr, nullptr, name, kind});
        }
        return known->second;
    }

    NMemory::VDatabase& m_database;
    VInheritanceGraph m_graph;
    std::unordered_map<NODX201::VDiagLayer const*, std::size_t> m_nodes;
    std::map<std::pair<std::wstring, std::wstring>, std::size_t> m_absent; // by name and kind
};

/// The nodes that can be reached from a start by edges of inheritance, in one direction.
class VReach {
public:
    VReach(VInheritanceGraph const& graph, std::size_t VGraphEdge::*from, std::size_t VGraphEdge::*to)
        : m_next(graph.nodes.size()), m_isReached(graph.nodes.size()) {
        for (VGraphEdge const& edge : graph.edges) {
            if (edge.state == VParentRefState::Inherited) {
                m_next[edge.*from].push_back(edge.*to);
            }
        }
    }

    /// Whether each node is reached, including the start.
    std::vector<bool> From(std::size_t start) && {
        std::vector<std::size_t> open{start};
        m_isReached[start] = true;
        while (!open.empty()) {
            std::size_t const node = open.back();
            open.pop_back();
            for (std::size_t const next : m_next[node]) {
                if (!m_isReached[next]) {
                    m_isReached[next] = true;
                    open.push_back(next);
                }
            }
        }
        return std::move(m_isReached);
    }

private:
    std::vector<std::vector<std::size_t>> m_next;
    std::vector<bool> m_isReached;
};

/// The nodes and edges that are kept, with the numbers that the nodes then have.
VInheritanceGraph Kept(VInheritanceGraph const& graph, std::vector<bool> const& keepsNode,
                       std::vector<bool> const& keepsEdge) {
    VInheritanceGraph kept;
    std::vector<std::size_t> numbers(graph.nodes.size());
    for (std::size_t node = 0; node < graph.nodes.size(); ++node) {
        if (keepsNode[node]) {
            numbers[node] = kept.nodes.size();
            kept.nodes.push_back(graph.nodes[node]);
        }
    }
    for (std::size_t index = 0; index < graph.edges.size(); ++index) {
        if (keepsEdge[index]) {
            VGraphEdge& edge = kept.edges.emplace_back(graph.edges[index]);
            edge.child = numbers[edge.child];
            edge.parent = numbers[edge.parent];
        }
    }
    return kept;
}

} // namespace

VInheritanceGraph InheritanceGraphOf(NMemory::VDatabase& database) { return VGraphMaker(database).Make(); }

VInheritanceGraph PartAround(VInheritanceGraph const& graph, NODX201::VDiagLayer const& layer) {
    auto const found = std::find_if(graph.nodes.begin(), graph.nodes.end(),
                                    [&layer](VGraphNode const& node) { return node.layer == &layer; });
    if (found == graph.nodes.end()) {
        return {};
    }
    auto const start = static_cast<std::size_t>(found - graph.nodes.begin());
    std::vector<bool> const isAbove = VReach(graph, &VGraphEdge::child, &VGraphEdge::parent).From(start);
    std::vector<bool> const isBelow = VReach(graph, &VGraphEdge::parent, &VGraphEdge::child).From(start);
    std::vector<bool> keepsNode(graph.nodes.size());
    for (std::size_t node = 0; node < graph.nodes.size(); ++node) {
        keepsNode[node] = isAbove[node] || isBelow[node];
    }
    std::vector<bool> const isRelated = keepsNode;
    std::vector<bool> keepsEdge(graph.edges.size());
    for (std::size_t index = 0; index < graph.edges.size(); ++index) {
        VGraphEdge const& edge = graph.edges[index];
        bool const breaksOff = edge.state != VParentRefState::Inherited && isAbove[edge.child];
        keepsEdge[index] = breaksOff || (isRelated[edge.child] && isRelated[edge.parent]);
        keepsNode[edge.parent] = keepsNode[edge.parent] || keepsEdge[index];
    }
    return Kept(graph, keepsNode, keepsEdge);
}

} // namespace NQuery
