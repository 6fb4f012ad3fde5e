// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <diagkit/check/Views.h>
#include <diagkit/reader/Containment.h>

namespace NCheck {

/// The targets of the messages of some DIAG-SERVICEs in one layer, to find the parameters that an ENV-DATA-DESC may
/// read: those of every message that leads to it.
class VServiceGraph {
public:
    VServiceGraph(std::vector<NODX201::VDiagComm*> const& diagComms, NDIAGKIT::IDopFinder& dops);

    /// Whether a service that leads to the ENV-DATA-DESC has a VALUE parameter of that name below its messages; nothing
    /// where none leads to it.
    std::optional<bool> HasParamFor(NODX201::VEnvDataDesc& envDataDesc, std::wstring_view shortName);

    /// All these parameters; of several in one STRUCTURE or message, the first.
    std::vector<NODX201::VOdxElement*> const& ParamsFor(NODX201::VEnvDataDesc& envDataDesc,
                                                        std::wstring_view shortName);

private:
    using VNode = std::size_t;
    /// Nodes that lead to one another, in any cycles, are one component.
    using VComponent = std::size_t;
    /// Components to which the same services lead are in one group; it is identified by the groups of the containing
    /// components.
    using VGroup = std::size_t;

    class VComponentSearch;

    using VHolders = std::unordered_map<VNode, NODX201::VOdxElement*>; ///< the parameters that nodes have
    using VQuestion = std::pair<VGroup, std::wstring_view>;

    void AddService(NODX201::VDiagService& service);
    void AddWay(VNode from, NODX201::VReferencable& to);
    VNode NodeOf(NODX201::VReferencable& container);
    void Explore(NDIAGKIT::IDopFinder& dops);
    void MakeGroups();
    VGroup GroupOf(std::vector<VGroup> containers);
    void CollectNames();
    std::vector<VNode> ServicesOf(VGroup group) const;
    void LookBelow(VGroup group);
    std::optional<VGroup> GroupOf(NODX201::VEnvDataDesc& envDataDesc) const;
    template <class Take>
    bool AnyBelow(VHolders const& holders, Take take) const;

    std::vector<NODX201::VReferencable*> m_elements; // by node; null for a service
    std::vector<std::vector<VNode>> m_to;            // by node
    std::unordered_map<NODX201::VReferencable*, VNode> m_nodes;
    std::unordered_map<std::wstring_view, VHolders> m_holders; // of VALUE parameters, by short name
    std::vector<VComponent> m_components;                      // by node
    std::vector<VGroup> m_groups;                              // by component
    std::vector<std::vector<VGroup>> m_groupContainers;        // by group; empty for that of a service
    std::vector<VNode> m_groupService;                         // by group; the service where it is that of one
    std::map<std::vector<VGroup>, VGroup> m_groupsByContainers;
    std::map<VQuestion, bool> m_answers;
    std::map<VQuestion, std::vector<NODX201::VOdxElement*>> m_params;
    std::vector<VNode> m_below; // nodes below the services of the group that was queried last
    std::unordered_set<VNode> m_isBelow;
    std::optional<VGroup> m_asked;
};

} // namespace NCheck
