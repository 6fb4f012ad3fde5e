// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/ServiceGraph.h>

#include <algorithm>
#include <utility>

#include <diagkit/model/Params.h>

namespace NCheck {

VServiceGraph::VServiceGraph(std::vector<NODX201::VDiagComm*> const& diagComms, NDIAGKIT::IDopFinder& dops) {
    for (NODX201::VDiagComm* const diagComm : diagComms) {
        if (auto* const service = dynamic_cast<NODX201::VDiagService*>(diagComm)) {
            AddService(*service);
        }
    }
    Explore(dops);
    MakeGroups();
}

void VServiceGraph::AddService(NODX201::VDiagService& service) {
    VNode const node = m_elements.size();
    m_elements.push_back(nullptr);
    m_to.emplace_back();
    m_from.emplace_back();
    if (service.HasRequestRef() && service.GetRequestRef().HasRequest()) {
        AddWay(node, service.GetRequestRef().GetRequest());
    }
    for (NODX201::VPosResponseLink& link : service.PosResponseLinkCollection()) {
        if (link.HasPosResponse()) {
            AddWay(node, link.GetPosResponse());
        }
    }
    for (NODX201::VNegResponseLink& link : service.NegResponseLinkCollection()) {
        if (link.HasNegResponse()) {
            AddWay(node, link.GetNegResponse());
        }
    }
}

void VServiceGraph::AddWay(VNode from, NODX201::VReferencable& to) {
    VNode const target = NodeOf(to);
    m_to[from].push_back(target);
    m_from[target].push_back(from);
}

VServiceGraph::VNode VServiceGraph::NodeOf(NODX201::VReferencable& container) {
    auto const [node, isNew] = m_nodes.try_emplace(&container, m_elements.size());
    if (isNew) {
        m_elements.push_back(&container);
        m_to.emplace_back();
        m_from.emplace_back();
    }
    return node->second;
}

void VServiceGraph::Explore(NDIAGKIT::IDopFinder& dops) {
    for (VNode node = 0; node < m_elements.size(); ++node) { // grows on the way
        if (m_elements[node] == nullptr) {
            continue;
        }
        for (NReader::VEdge const& edge : EdgesOf(*m_elements[node], NReader::VFollow::Tables, dops)) {
            AddWay(node, *edge.target);
        }
    }
}

/// From the services on: what is contained comes after all that contains it.
void VServiceGraph::MakeGroups() {
    std::vector<std::size_t> waiting(m_elements.size());
    std::vector<VNode> ready;
    for (VNode node = 0; node < m_elements.size(); ++node) {
        waiting[node] = m_from[node].size();
        if (waiting[node] == 0) {
            ready.push_back(node);
        }
    }
    m_groups.assign(m_elements.size(), kNoGroup);
    for (std::size_t next = 0; next < ready.size(); ++next) { // grows on the way
        VNode const node = ready[next];
        std::vector<VGroup> containers;
        for (VNode const from : m_from[node]) {
            containers.push_back(m_groups[from]);
        }
        m_groups[node] = containers.empty() ? m_groupContainers.size() : GroupOf(std::move(containers));
        if (m_groups[node] == m_groupContainers.size()) {
            m_groupContainers.emplace_back();
            m_groupService.push_back(node);
        }
        for (VNode const to : m_to[node]) {
            if (--waiting[to] == 0) {
                ready.push_back(to);
            }
        }
    }
}

VServiceGraph::VGroup VServiceGraph::GroupOf(std::vector<VGroup> containers) {
    std::sort(containers.begin(), containers.end());
    containers.erase(std::unique(containers.begin(), containers.end()), containers.end());
    if (containers.size() == 1) {
        return containers.front();
    }
    auto const [group, isNew] = m_groupsByContainers.try_emplace(containers, m_groupContainers.size());
    if (isNew) {
        m_groupContainers.push_back(std::move(containers));
        m_groupService.push_back(0);
    }
    return group->second;
}

std::vector<VServiceGraph::VNode> VServiceGraph::ServicesOf(VGroup group, VNode node) const {
    std::vector<VNode> services;
    if (group == kNoGroup) { // back from the node itself
        std::vector<bool> isSeen(m_elements.size());
        std::vector<VNode> back{node};
        for (std::size_t next = 0; next < back.size(); ++next) { // grows on the way
            if (m_elements[back[next]] == nullptr) {
                services.push_back(back[next]);
            }
            for (VNode const from : m_from[back[next]]) {
                if (!isSeen[from]) {
                    isSeen[from] = true;
                    back.push_back(from);
                }
            }
        }
        return services;
    }
    std::unordered_set<VGroup> seen{group};
    std::vector<VGroup> groups{group};
    for (std::size_t next = 0; next < groups.size(); ++next) { // grows on the way
        if (m_groupContainers[groups[next]].empty()) {
            services.push_back(m_groupService[groups[next]]);
        }
        for (VGroup const container : m_groupContainers[groups[next]]) {
            if (seen.insert(container).second) {
                groups.push_back(container);
            }
        }
    }
    return services;
}

VNames VServiceGraph::NamesBelow(std::vector<VNode> const& services) const {
    VNames names;
    std::vector<VNode> nodes = services;
    std::unordered_set<VNode> seen(nodes.begin(), nodes.end());
    for (std::size_t next = 0; next < nodes.size(); ++next) { // grows on the way
        NODX201::VReferencable* const element = m_elements[nodes[next]];
        auto* const params = element != nullptr ? NReader::ParamsOf(*element) : nullptr;
        if (params != nullptr) {
            for (NODX201::VParam& param : *params) {
                if (dynamic_cast<NODX201::VValue*>(&param) != nullptr) {
                    names.insert(param.GetShortName());
                }
            }
        }
        for (VNode const to : m_to[nodes[next]]) {
            if (seen.insert(to).second) {
                nodes.push_back(to);
            }
        }
    }
    return names;
}

std::optional<bool> VServiceGraph::HasParamFor(NODX201::VEnvDataDesc& envDataDesc, std::wstring_view shortName) {
    auto const node = m_nodes.find(&envDataDesc);
    if (node == m_nodes.end()) {
        return std::nullopt;
    }
    VGroup const group = m_groups[node->second];
    std::pair<VGroup, VNode> const key{group, group == kNoGroup ? node->second : 0};
    auto known = m_names.find(key);
    if (known == m_names.end()) {
        known = m_names.emplace(key, NamesBelow(ServicesOf(group, node->second))).first;
    }
    return known->second.count(shortName) != 0;
}

} // namespace NCheck
