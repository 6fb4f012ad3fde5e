// SPDX-License-Identifier: Apache-2.0
#include <cli/LayerTree.h>

#include <map>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>

#include <fmt/format.h>

#include <cli/Columns.h>
#include <cli/Parents.h>
#include <cli/Text.h>

namespace NCli {
namespace {

constexpr char const* kSharedData = "ECU-SHARED-DATA";

/// A layer, or the missing target of a PARENT-REF.
struct VNode {
    /// Heirs inherit from their parent. The others refer to a parent of a kind from which such a layer inherits
    /// nothing.
    struct VChild {
        std::size_t node;
        bool isHeir;
    };

    std::string name;
    std::string kind;
    std::string id;
    std::string container;
    bool isResolved = true;
    bool isBelowAnother = false; ///< in the hierarchy, where libraries do not count
    bool isUnfolded = false;     ///< its children have been shown
    std::vector<VChild> children;
};

class VLayerTree {
public:
    explicit VLayerTree(std::vector<VPlacedLayer> const& layers);

    std::string Format();

private:
    void AddLayer(VPlacedLayer const& placed);
    void AddBelowParents(std::size_t node, NODX201::VDiagLayer& layer);
    std::size_t NodeOf(VNamedParent const& parent);
    void ShowHeir(std::size_t index, std::size_t depth);
    void ShowLine(VNode const& node, std::size_t depth, char const* note);

    template <class Test>
    void ShowRoots(Test isRoot);

    std::vector<VNode> m_nodes; // the layers in document order, then the unresolved parents
    std::unordered_map<NODX201::VDiagLayer const*, std::size_t> m_layers;
    std::map<std::pair<std::wstring, std::string>, std::size_t> m_unresolved; // by name and kind
    VColumns m_columns;
};

VLayerTree::VLayerTree(std::vector<VPlacedLayer> const& layers) {
    for (VPlacedLayer const& placed : layers) {
        AddLayer(placed);
    }
    for (std::size_t index = 0; index < layers.size(); ++index) {
        AddBelowParents(index, *layers[index].layer);
    }
}

void VLayerTree::AddLayer(VPlacedLayer const& placed) {
    m_layers.emplace(placed.layer, m_nodes.size());
    VNode& node = m_nodes.emplace_back();
    node.name = Cut(ShownName(*placed.layer));
    node.kind = TagTextOf(*placed.layer);
    node.id = Cut(ShownId(*placed.layer));
    node.container = Cut("in " + ShownName(*placed.container));
}

void VLayerTree::AddBelowParents(std::size_t node, NODX201::VDiagLayer& layer) {
    for (VNamedParent const& parent : NamedParentsOf(layer)) {
        bool const isHeir = parent.layer == nullptr || parent.isFollowed;
        std::size_t const parentNode = NodeOf(parent);
        std::vector<VNode::VChild>& siblings = m_nodes[parentNode].children;
        // A layer may refer to one parent twice; all its references are processed together.
        if (siblings.empty() || siblings.back().node != node) {
            siblings.push_back({node, isHeir});
        }
        m_nodes[node].isBelowAnother |= isHeir && parent.kind != kSharedData;
    }
}

std::size_t VLayerTree::NodeOf(VNamedParent const& parent) {
    if (parent.layer != nullptr) {
        return m_layers.at(parent.layer);
    }
    auto const [position, isNew] = m_unresolved.try_emplace({parent.name, parent.kind}, m_nodes.size());
    if (isNew) {
        VNode& node = m_nodes.emplace_back();
        node.name = "?";
        node.kind = parent.kind;
        node.id = Cut(Shown(parent.name));
        node.isResolved = false;
    }
    return position->second;
}

std::string VLayerTree::Format() {
    ShowRoots([](VNode const& node) { return node.isResolved && !node.isBelowAnother && node.kind != kSharedData; });
    ShowRoots([](VNode const& node) { return !node.isResolved; });
    ShowRoots([](VNode const& node) { return node.isResolved && node.kind == kSharedData; });
    return m_columns.Format();
}

template <class Test>
void VLayerTree::ShowRoots(Test isRoot) {
    for (std::size_t index = 0; index < m_nodes.size(); ++index) {
        if (isRoot(m_nodes[index])) {
            ShowHeir(index, 0);
        }
    }
}

/// Every level has another kind of heir, so this goes no deeper than the number of kinds.
void VLayerTree::ShowHeir(std::size_t index, std::size_t depth) {
    VNode& node = m_nodes[index];
    if (node.isUnfolded) {
        ShowLine(node, depth, node.children.empty() ? "" : "children above");
        return;
    }
    node.isUnfolded = true;
    ShowLine(node, depth, node.isResolved ? "" : "unresolved parent");
    for (VNode::VChild const& child : node.children) {
        if (child.isHeir) {
            ShowHeir(child.node, depth + 1);
        } else {
            ShowLine(m_nodes[child.node], depth + 1, "inherits nothing from this kind of parent");
        }
    }
}

void VLayerTree::ShowLine(VNode const& node, std::size_t depth, char const* note) {
    m_columns.Add({std::string(2 * depth, ' ') + node.name, node.kind, node.id, node.container, note});
}

std::size_t CountContainers(std::vector<VPlacedLayer> const& layers) {
    std::set<NODX201::VDiagLayerContainer const*> containers;
    for (VPlacedLayer const& placed : layers) {
        containers.insert(placed.container);
    }
    return containers.size();
}

} // namespace

void WriteLayerTree(std::vector<VPlacedLayer> const& layers, VOutput& output) {
    std::string const heading =
        fmt::format("{} in {}", Counted(layers.size(), "layer"), Counted(CountContainers(layers), "container"));
    output.Write(output.Heading(heading) + "\n");
    output.Write(VLayerTree(layers).Format());
}

} // namespace NCli
