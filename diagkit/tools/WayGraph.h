// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <vector>

#include <diagkit/tools/Inheritance.h>

namespace NDIAGKIT {

/// Ways from one place to goals: counts them without following each, or follows one after the other. No way enters a
/// place twice. A place may be entered in several states; states are numbered, those of one place consecutively.
class VWayGraph {
public:
    struct VEdge {
        VParent parent; ///< the PARENT-REF that is followed
        std::size_t to; ///< the state in which its layer is entered
    };
    using VWayEdges = std::vector<VEdge const*>;

    /// Called with each state that has goals and the way to it; false ends the walk.
    using VSee = std::function<bool(std::size_t state, VWayEdges const& way)>;

    /// Upper limit of counts. Every JSON parser represents this number exactly.
    static constexpr std::uint64_t kMostCounted = (std::uint64_t{1} << 53U) - 1;

    explicit VWayGraph(std::size_t places, std::size_t statesOfPlace = 1)
        : m_edges(places * statesOfPlace), m_goals(places * statesOfPlace), m_statesOfPlace(statesOfPlace) {}

    void Add(std::size_t from, VEdge const& edge) { m_edges[from].push_back(edge); }
    void SetGoals(std::size_t state, std::size_t count) { m_goals[state] = count; }

    /// Removes what leads to no goal, to the place that it comes from, or back to where the ways start. Call it once,
    /// before the others.
    void Prune(std::size_t start);

    /// How many ways there are, one for each goal; none where places form a cycle, because only following the ways
    /// could count them.
    std::optional<std::uint64_t> Count(std::size_t start) const;

    /// Follows all ways, depth first, each state's goals before its edges, in the order in which these were added.
    /// False when `see` ended it, or when a search among places in cycles took too long.
    bool Walk(std::size_t start, VSee const& see) const;

private:
    class VWalk;

    std::size_t PlaceOf(std::size_t state) const { return state / m_statesOfPlace; }
    std::vector<char> LeadingToGoals() const;

    std::vector<std::vector<VEdge>> m_edges; // by state
    std::vector<std::size_t> m_goals;
    std::size_t m_statesOfPlace;
};

} // namespace NDIAGKIT
