// SPDX-License-Identifier: Apache-2.0
#include <diagkit/check/ServiceGraph.h>

#include <algorithm>
#include <tuple>
#include <unordered_set>
#include <utility>

#include <diagkit/check/Messages.h>
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
    CollectNames();
}

void VServiceGraph::AddService(NODX201::VDiagService& service) {
    VNode const node = m_elements.size();
    m_elements.push_back(nullptr);
    m_to.emplace_back();
    ForEachMessage(service, [this, node](NODX201::VReferencable& message) { AddWay(node, message); });
}

void VServiceGraph::AddWay(VNode from, NODX201::VReferencable& to) {
    VNode const target = NodeOf(to);
    m_to[from].push_back(target);
}

VServiceGraph::VNode VServiceGraph::NodeOf(NODX201::VReferencable& container) {
    auto const [node, isNew] = m_nodes.try_emplace(&container, m_elements.size());
    if (isNew) {
        m_elements.push_back(&container);
        m_to.emplace_back();
    }
    return node->second;
}

void VServiceGraph::Explore(NDIAGKIT::IDopFinder& dops) {
    for (VNode node = 0; node < m_elements.size(); ++node) { // grows during the loop
        if (m_elements[node] == nullptr) {
            continue;
        }
        for (NReader::VEdge const& edge : EdgesOf(*m_elements[node], NReader::VFollow::Tables, dops)) {
            AddWay(node, *edge.target);
        }
    }
}

/// Finds the components, contained nodes before all that contain them (Tarjan's algorithm, with a list in place of
/// recursion).
class VServiceGraph::VComponentSearch {
public:
    explicit VComponentSearch(std::vector<std::vector<VNode>> const& to)
        : m_to(to), m_numbers(to.size()), m_lowest(to.size()), m_components(to.size(), kNone) {}

    /// The component of each node, and how many there are.
    std::pair<std::vector<VComponent>, std::size_t> Find() {
        for (VNode node = 0; node < m_to.size(); ++node) {
            if (m_numbers[node] == 0) {
                From(node);
            }
        }
        return {std::move(m_components), m_count};
    }

private:
    static constexpr VComponent kNone = static_cast<VComponent>(-1);

    struct VStep {
        VNode node;
        std::size_t next; // of the ways out of it
    };

    void From(VNode root) {
        Enter(root);
        while (!m_path.empty()) {
            VStep& step = m_path.back();
            VNode const node = step.node;
            if (step.next < m_to[node].size()) {
                Look(node, m_to[node][step.next++]);
                continue;
            }
            m_path.pop_back();
            if (!m_path.empty()) {
                Lower(m_path.back().node, m_lowest[node]);
            }
            if (m_lowest[node] == m_numbers[node]) {
                Close(node);
            }
        }
    }

    void Enter(VNode node) {
        m_numbers[node] = m_lowest[node] = ++m_latest;
        m_open.push_back(node);
        m_path.push_back({node, 0});
    }

    void Look(VNode from, VNode to) {
        if (m_numbers[to] == 0) {
            Enter(to);
        } else if (m_components[to] == kNone) {
            Lower(from, m_numbers[to]);
        }
    }

    void Lower(VNode node, std::size_t number) { m_lowest[node] = std::min(m_lowest[node], number); }

    void Close(VNode first) {
        VNode node = 0;
        do {
            node = m_open.back();
            m_open.pop_back();
            m_components[node] = m_count;
        } while (node != first);
        ++m_count;
    }

    std::vector<std::vector<VNode>> const& m_to;
    std::vector<std::size_t> m_numbers; // by node, in the order of entering; 0 for none yet
    std::vector<std::size_t> m_lowest;  // by node, the lowest number to which it leads
    std::vector<VComponent> m_components;
    std::vector<VNode> m_open; // that are in no component yet
    std::vector<VStep> m_path;
    std::size_t m_latest = 0;
    std::size_t m_count = 0;
};

/// From the services on: contained nodes come after all that contain them.
void VServiceGraph::MakeGroups() {
    std::size_t count = 0;
    std::tie(m_components, count) = VComponentSearch(m_to).Find();
    std::vector<std::vector<VNode>> nodes(count);
    for (VNode node = 0; node < m_components.size(); ++node) {
        nodes[m_components[node]].push_back(node);
    }
    std::vector<std::vector<VGroup>> containers(count);
    m_groups.resize(count);
    for (VComponent component = count; component-- > 0;) {
        bool const isService = containers[component].empty();
        VGroup const group = isService ? m_groupContainers.size() : GroupOf(std::move(containers[component]));
        if (isService) {
            m_groupContainers.emplace_back();
            m_groupService.push_back(nodes[component].front());
        }
        m_groups[component] = group;
        for (VNode const node : nodes[component]) {
            for (VNode const to : m_to[node]) {
                if (m_components[to] != component) {
                    containers[m_components[to]].push_back(group);
                }
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

void VServiceGraph::CollectNames() {
    for (VNode node = 0; node < m_elements.size(); ++node) {
        auto* const params = m_elements[node] != nullptr ? NReader::ParamsOf(*m_elements[node]) : nullptr;
        if (params == nullptr) {
            continue;
        }
        for (NODX201::VParam& param : *params) {
            if (dynamic_cast<NODX201::VValue*>(&param) != nullptr) {
                m_holders[param.GetShortName()].emplace(node, &param);
            }
        }
    }
}

std::vector<VServiceGraph::VNode> VServiceGraph::ServicesOf(VGroup group) const {
    std::vector<VNode> services;
    std::unordered_set<VGroup> seen{group};
    std::vector<VGroup> groups{group};
    for (std::size_t next = 0; next < groups.size(); ++next) { // grows during the loop
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

void VServiceGraph::LookBelow(VGroup group) {
    if (m_asked == group) {
        return;
    }
    m_asked = group;
    m_below = ServicesOf(group);
    m_isBelow.clear();
    for (std::size_t next = 0; next < m_below.size(); ++next) { // grows during the loop
        for (VNode const to : m_to[m_below[next]]) {
            if (m_isBelow.insert(to).second) {
                m_below.push_back(to);
            }
        }
    }
}

/// Whether `take` returns true for one of the parameters below the group that was queried last; searches the smaller
/// set.
template <class Take>
bool VServiceGraph::AnyBelow(VHolders const& holders, Take take) const {
    if (holders.size() < m_below.size()) {
        return std::any_of(holders.begin(), holders.end(), [&](VHolders::value_type const& holder) {
            return m_isBelow.count(holder.first) != 0 && take(*holder.second);
        });
    }
    return std::any_of(m_below.begin(), m_below.end(), [&](VNode node) {
        auto const holder = holders.find(node);
        return holder != holders.end() && take(*holder->second);
    });
}

std::optional<VServiceGraph::VGroup> VServiceGraph::GroupOf(NODX201::VEnvDataDesc& envDataDesc) const {
    auto const node = m_nodes.find(&envDataDesc);
    return node != m_nodes.end() ? std::optional(m_groups[m_components[node->second]]) : std::nullopt;
}

std::optional<bool> VServiceGraph::HasParamFor(NODX201::VEnvDataDesc& envDataDesc, std::wstring_view shortName) {
    std::optional<VGroup> const group = GroupOf(envDataDesc);
    if (!group.has_value()) {
        return std::nullopt;
    }
    auto const known = m_answers.find({*group, shortName});
    if (known != m_answers.end()) {
        return known->second;
    }
    LookBelow(*group);
    auto const holders = m_holders.find(shortName);
    bool const hasParam =
        holders != m_holders.end() && AnyBelow(holders->second, [](NODX201::VOdxElement&) { return true; });
    m_answers.emplace(VQuestion(*group, shortName), hasParam);
    return hasParam;
}

std::vector<NODX201::VOdxElement*> const& VServiceGraph::ParamsFor(NODX201::VEnvDataDesc& envDataDesc,
                                                                   std::wstring_view shortName) {
    static std::vector<NODX201::VOdxElement*> const none;
    std::optional<VGroup> const group = GroupOf(envDataDesc);
    auto const holders = m_holders.find(shortName);
    if (!group.has_value() || holders == m_holders.end()) {
        return none;
    }
    auto const [answer, isNew] = m_params.try_emplace({*group, shortName});
    if (isNew) {
        LookBelow(*group);
        AnyBelow(holders->second, [&params = answer->second](NODX201::VOdxElement& param) {
            params.push_back(&param);
            return false;
        });
    }
    return answer->second;
}

} // namespace NCheck
