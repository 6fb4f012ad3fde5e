// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <diagkit/check/Views.h>
#include <diagkit/reader/Containment.h>

namespace NCheck {

/// What the messages of some DIAG-SERVICEs lead to in one layer, for the question which parameters an ENV-DATA-DESC may
/// read: those of whatever message leads to it.
class VServiceGraph {
public:
    VServiceGraph(std::vector<NODX201::VDiagComm*> const& diagComms, NDIAGKIT::IDopFinder& dops);

    /// Whether a service that leads to the ENV-DATA-DESC has a VALUE parameter of that name in what its messages lead
    /// to; nothing where none leads to it.
    std::optional<bool> HasParamFor(NODX201::VEnvDataDesc& envDataDesc, std::wstring_view shortName);

private:
    using VNode = std::size_t;
    /// Nodes that the same services lead to are in one group; it is told by the groups of what contains them.
    using VGroup = std::size_t;

    static constexpr VGroup kNoGroup = static_cast<VGroup>(-1);

    void AddService(NODX201::VDiagService& service);
    void AddWay(VNode from, NODX201::VReferencable& to);
    VNode NodeOf(NODX201::VReferencable& container);
    void Explore(NDIAGKIT::IDopFinder& dops);
    void MakeGroups();
    VGroup GroupOf(std::vector<VGroup> containers);
    std::vector<VNode> ServicesOf(VGroup group, VNode node) const;
    VNames NamesBelow(std::vector<VNode> const& services) const;

    std::vector<NODX201::VReferencable*> m_elements; // by node; null for a service
    std::vector<std::vector<VNode>> m_to;            // by node
    std::vector<std::vector<VNode>> m_from;          // by node
    std::unordered_map<NODX201::VReferencable*, VNode> m_nodes;
    std::vector<VGroup> m_groups;                       // by node; none for what is part of a circle or behind it
    std::vector<std::vector<VGroup>> m_groupContainers; // by group; empty for that of a service
    std::vector<VNode> m_groupService;                  // by group; the service where it is that of one
    std::map<std::vector<VGroup>, VGroup> m_groupsByContainers;
    std::map<std::pair<VGroup, VNode>, VNames> m_names; // that have been asked for; by node where there is no group
};

} // namespace NCheck
