// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/WayGraph.h>

#include <algorithm>

namespace NDIAGKIT {
namespace {

// A search among places in cycles may reach too many dead ends to finish in reasonable time.
constexpr std::size_t kMostLooks = 10'000'000;

std::uint64_t Sum(std::uint64_t left, std::uint64_t right) {
    return std::min(left + right, VWayGraph::kMostCounted); // neither is greater than that, so nothing wraps
}

/// A state on the way, and which of its edges comes next.
struct VPlaceOnWay {
    std::size_t state;
    std::size_t next = 0;
};

} // namespace

std::vector<char> VWayGraph::LeadingToGoals() const {
    std::vector<std::vector<std::size_t>> back(m_edges.size());
    std::vector<std::size_t> found;
    std::vector<char> leads(m_edges.size());
    for (std::size_t state = 0; state < m_edges.size(); ++state) {
        for (VEdge const& edge : m_edges[state]) {
            back[edge.to].push_back(state);
        }
        if (m_goals[state] != 0) {
            found.push_back(state);
            leads[state] = 1;
        }
    }
    while (!found.empty()) {
        std::size_t const state = found.back();
        found.pop_back();
        for (std::size_t const from : back[state]) {
            if (leads[from] == 0) {
                leads[from] = 1;
                found.push_back(from);
            }
        }
    }
    return leads;
}

void VWayGraph::Prune(std::size_t start) {
    auto const forget = [this](auto const& isUseless) {
        for (std::size_t state = 0; state < m_edges.size(); ++state) {
            std::vector<VEdge>& edges = m_edges[state];
            auto const isForgotten = [&](VEdge const& edge) { return isUseless(state, edge.to); };
            edges.erase(std::remove_if(edges.begin(), edges.end(), isForgotten), edges.end());
        }
    };
    forget([&](std::size_t from, std::size_t to) {
        return PlaceOf(to) == PlaceOf(start) || PlaceOf(to) == PlaceOf(from);
    });
    std::vector<char> const leads = LeadingToGoals();
    forget([&leads](std::size_t, std::size_t to) { return leads[to] == 0; });
}

std::optional<std::uint64_t> VWayGraph::Count(std::size_t start) const {
    constexpr std::uint64_t kUnknown = std::numeric_limits<std::uint64_t>::max();
    std::vector<std::uint64_t> counts(m_edges.size(), kUnknown);
    std::vector<char> isOnWay(m_edges.size());
    std::vector<VPlaceOnWay> way{{start}};
    isOnWay[start] = 1;
    while (!way.empty()) {
        VPlaceOnWay& last = way.back();
        std::vector<VEdge> const& edges = m_edges[last.state];
        if (last.next < edges.size()) {
            std::size_t const to = edges[last.next++].to;
            if (isOnWay[to] != 0) {
                return std::nullopt;
            }
            if (counts[to] == kUnknown) {
                isOnWay[to] = 1;
                way.push_back({to});
            }
            continue;
        }
        std::uint64_t count = m_goals[last.state];
        for (VEdge const& edge : edges) {
            count = Sum(count, counts[edge.to]);
        }
        counts[last.state] = count;
        isOnWay[last.state] = 0;
        way.pop_back();
    }
    return counts[start];
}

/// A walk that never enters a place twice and, where there are cycles, takes no step into a dead end.
class VWayGraph::VWalk {
public:
    VWalk(VWayGraph const& graph, bool hasCircles, VSee const& see)
        : m_graph(graph), m_hasCircles(hasCircles), m_see(see), m_isOnWay(graph.m_edges.size() / graph.m_statesOfPlace),
          m_meetings(graph.m_edges.size()) {}

    bool Go(std::size_t start) {
        if (!Enter(start)) {
            return false;
        }
        while (!m_way.empty()) {
            VPlaceOnWay& last = m_way.back();
            std::vector<VEdge> const& edges = m_graph.m_edges[last.state];
            if (last.next == edges.size()) {
                Leave();
                continue;
            }
            VEdge const& edge = edges[last.next++];
            bool const isOpen = !m_hasCircles || LeadsOn(edge.to);
            if (m_looks > kMostLooks) {
                return false;
            }
            if (isOpen) {
                m_edges.push_back(&edge);
                if (!Enter(edge.to)) {
                    return false;
                }
            }
        }
        return true;
    }

private:
    bool Enter(std::size_t state) {
        m_isOnWay[m_graph.PlaceOf(state)] = 1;
        m_way.push_back({state});
        return m_graph.m_goals[state] == 0 || m_see(state, m_edges);
    }

    void Leave() {
        m_isOnWay[m_graph.PlaceOf(m_way.back().state)] = 0;
        m_way.pop_back();
        if (!m_edges.empty()) {
            m_edges.pop_back();
        }
    }

    /// Whether a state leads to a goal by places that are not on the way. Places that exclude each other further on are
    /// not recognised, so a dead end is still possible.
    bool LeadsOn(std::size_t state) {
        ++m_meeting;
        m_found.clear();
        Meet(state);
        while (!m_found.empty()) {
            std::size_t const at = m_found.back();
            m_found.pop_back();
            if (m_graph.m_goals[at] != 0) {
                return true;
            }
            for (VEdge const& edge : m_graph.m_edges[at]) {
                Meet(edge.to);
            }
        }
        return false;
    }

    void Meet(std::size_t state) {
        ++m_looks;
        if (m_isOnWay[m_graph.PlaceOf(state)] == 0 && m_meetings[state] != m_meeting) {
            m_meetings[state] = m_meeting;
            m_found.push_back(state);
        }
    }

    VWayGraph const& m_graph;
    bool const m_hasCircles;
    VSee const& m_see;
    std::vector<VPlaceOnWay> m_way;
    VWayEdges m_edges;
    std::vector<char> m_isOnWay; // by place
    std::size_t m_looks = 0;
    std::size_t m_meeting = 0;
    std::vector<std::size_t> m_meetings; // by state, in which search it was met last
    std::vector<std::size_t> m_found;
};

bool VWayGraph::Walk(std::size_t start, VSee const& see) const {
    return VWalk(*this, !Count(start).has_value(), see).Go(start);
}

} // namespace NDIAGKIT
