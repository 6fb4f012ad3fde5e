// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/InheritanceNotes.h>

#include <algorithm>
#include <limits>
#include <map>
#include <unordered_set>
#include <utility>

#include <diagkit/model/Layers.h>
#include <diagkit/model/ParentRefs.h>
#include <diagkit/tools/WayGraph.h>

namespace NDIAGKIT {

/// Follows the ways up from a layer, and judges each own element of a name that it finds.
template <class Kind>
class VInheritanceNotes<Kind>::VWayFinder {
public:
    VWayFinder(VInheritanceNotes& notes, VLayerOfKind layer, std::wstring_view shortName, std::size_t most)
        : m_notes(notes), m_shortName(shortName), m_mostWays(most),
          m_mostSteps(most <= kNoLimit / kStepsOfWay ? kStepsOfWay * most : kNoLimit) {
        for (VLayerOfKind const& above : LayersAbove(layer)) {
            m_numbers.try_emplace(above.layer, m_layers.size());
            m_layers.push_back(LayerWith(above));
        }
    }

    VWays Find() {
        m_found.leftOut = 0;
        Go(InPasses(), 1);
        Go(AsTheyStand(), 2);
        return std::move(m_found);
    }

private:
    static constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();
    static constexpr std::size_t kStepsOfWay = 100; // limit for the average of all ways

    struct VLayer {
        VLayerOfKind layer;
        std::vector<VCandidate const*> own;
        /// What a PARENT-REF offers; made when it is first asked for.
        std::map<std::pair<NODX201::VParentRef const*, NODX201::VOdxElement const*>, VCandidate const*> offers;
        bool knowsOffers = false;
    };

    /// The layer with its own elements of the name, each once.
    VLayer LayerWith(VLayerOfKind const& layer) {
        VLayer found{layer, {}, {}};
        std::unordered_set<NODX201::VOdxElement const*> seen;
        for (VCandidate const* const candidate : Named(layer)) {
            if (!candidate->parent.has_value() && seen.insert(candidate->element).second) {
                found.own.push_back(candidate);
            }
        }
        return found;
    }

    /// The ways that the passes take.
    VWayGraph InPasses() const {
        VWayGraph graph(m_layers.size());
        for (std::size_t number = 0; number < m_layers.size(); ++number) {
            graph.SetGoals(number, m_layers[number].own.size());
            for (std::vector<VParent> const& pass : Kind::kRow.ParentsOf(m_layers[number].layer)) {
                for (VParent const& parent : pass) {
                    graph.Add(number, {parent, m_numbers.at(parent.layer.layer)});
                }
            }
        }
        return graph;
    }

    /// The ways with a PARENT-REF that no pass takes. Each layer has two states: before such a PARENT-REF, and after.
    VWayGraph AsTheyStand() const {
        VWayGraph graph(m_layers.size(), 2);
        for (std::size_t number = 0; number < m_layers.size(); ++number) {
            VLayerOfKind const& layer = m_layers[number].layer;
            graph.SetGoals(2 * number + 1, m_layers[number].own.size());
            NODX201::VParentRefCollection* const parentRefs = ParentRefsOf(layer, false);
            if (parentRefs == nullptr) {
                continue;
            }
            for (NODX201::VParentRef& parentRef : *parentRefs) {
                if (auto const parent = ParentBy(parentRef)) {
                    std::size_t const to = 2 * m_numbers.at(parent->layer);
                    std::size_t const missing = Kind::kRow.TakesFrom(layer.kind, parent->kind) ? 0 : 1;
                    graph.Add(2 * number, {{&parentRef, *parent}, to + missing});
                    graph.Add(2 * number + 1, {{&parentRef, *parent}, to + 1});
                }
            }
        }
        return graph;
    }

    void Go(VWayGraph graph, std::size_t statesOfLayer) {
        constexpr std::size_t kStart = 0;
        graph.Prune(kStart);
        std::size_t const before = m_found.ways.size();
        bool const isWhole = graph.Walk(kStart, [&](std::size_t state, VWayGraph::VWayEdges const& way) {
            return AddOwn(m_layers[state / statesOfLayer], way);
        });
        if (isWhole || !m_found.leftOut.has_value()) {
            return;
        }
        std::optional<std::uint64_t> const count = graph.Count(kStart);
        m_found.leftOut = count.has_value() ? std::optional(Rest(*count, m_found.ways.size() - before)) : std::nullopt;
    }

    std::uint64_t Rest(std::uint64_t count, std::size_t given) const {
        constexpr std::uint64_t kMost = VWayGraph::kMostCounted;
        return count == kMost ? kMost : std::min(*m_found.leftOut + (count - given), kMost);
    }

    /// False when there is no room for all of them.
    bool AddOwn(VLayer const& owner, VWayGraph::VWayEdges const& way) {
        for (VCandidate const* const own : owner.own) {
            if (m_found.ways.size() >= m_mostWays || m_steps > m_mostSteps) {
                return false;
            }
            m_steps += way.size();
            m_found.ways.push_back(Judge(owner, way, *own));
        }
        return true;
    }

    /// Follows an own element from the last layer of the way down to the first.
    VWay Judge(VLayer const& owner, VWayGraph::VWayEdges const& edges, VCandidate const& own) {
        VWay way{own.element, PathOf(edges), VFate::Visible, nullptr, nullptr, nullptr};
        if (own.hiddenBy != nullptr) {
            return Stopped(std::move(way), VFate::Hidden, owner.layer, own.hiddenBy->element, nullptr);
        }
        for (std::size_t step = way.path.size(); step-- > 0;) {
            VLayer& heir = step == 0 ? m_layers.front() : m_layers[m_numbers.at(way.path[step - 1].layer.layer)];
            VParent const& parent = way.path[step];
            if (!Kind::kRow.TakesFrom(heir.layer.kind, parent.layer.kind)) {
                return Stopped(std::move(way), VFate::NoPass, heir.layer, nullptr, parent.parentRef);
            }
            VCandidate const* const offer = OfferedTo(heir, parent, *own.element);
            if (offer == nullptr) { // the parent is referenced again, and has contributed the element before
                return Stopped(std::move(way), VFate::Hidden, heir.layer, own.element, nullptr);
            }
            if (offer->hiddenBy != nullptr) {
                return Stopped(std::move(way), VFate::Hidden, heir.layer, offer->hiddenBy->element, nullptr);
            }
            if (offer->exclusion != nullptr) {
                return Stopped(std::move(way), VFate::Excluded, heir.layer, nullptr, offer->exclusion);
            }
        }
        return way;
    }

    static std::vector<VParent> PathOf(VWayGraph::VWayEdges const& edges) {
        std::vector<VParent> path;
        path.reserve(edges.size());
        for (VWayGraph::VEdge const* const edge : edges) {
            path.push_back(edge->parent);
        }
        return path;
    }

    static VWay Stopped(VWay way, VFate fate, VLayerOfKind const& at, NODX201::VOdxElement* by,
                        NODX201::VOdxElement* decidedBy) {
        way.fate = fate;
        way.at = at.layer;
        way.by = by;
        way.decidedBy = decidedBy;
        return way;
    }

    VCandidate const* OfferedTo(VLayer& heir, VParent const& parent, NODX201::VOdxElement const& element) {
        if (!heir.knowsOffers) {
            for (VCandidate const* const candidate : Named(heir.layer)) {
                if (candidate->parent.has_value()) {
                    heir.offers.try_emplace({candidate->parent->parentRef, candidate->element}, candidate);
                }
            }
            heir.knowsOffers = true;
        }
        auto const offer = heir.offers.find({parent.parentRef, &element});
        return offer != heir.offers.end() ? offer->second : nullptr;
    }

    std::vector<VCandidate const*> const& Named(VLayerOfKind const& layer) {
        static std::vector<VCandidate const*> const kNone;
        auto const& byName = m_notes.NotesOf(layer).byName;
        auto const found = byName.find(m_shortName);
        return found != byName.end() ? found->second : kNone;
    }

    VInheritanceNotes& m_notes;
    std::wstring_view const m_shortName;
    std::size_t const m_mostWays;
    std::size_t const m_mostSteps;
    std::vector<VLayer> m_layers; // the layer asked about first
    std::unordered_map<NODX201::VDiagLayer const*, std::size_t> m_numbers;
    std::size_t m_steps = 0;
    VWays m_found;
};

template <class Kind>
VInheritanceNotes<Kind>::VInheritanceNotes(VInheritance<Kind>& inheritance) : m_inheritance(inheritance) {}

template <class Kind>
VInheritanceNotes<Kind>::~VInheritanceNotes() = default;

template <class Kind>
std::deque<VCandidate> const& VInheritanceNotes<Kind>::CandidatesOf(VLayerOfKind layer) {
    return NotesOf(layer).candidates;
}

template <class Kind>
std::vector<VParent> VInheritanceNotes<Kind>::PathOf(VCandidate const& candidate) const {
    return m_inheritance.WayOf(candidate);
}

template <class Kind>
VWays VInheritanceNotes<Kind>::WaysOf(VLayerOfKind layer, std::wstring_view shortName, std::size_t most) {
    return VWayFinder(*this, layer, shortName, most).Find();
}

template <class Kind>
typename VInheritanceNotes<Kind>::VLayerNotes const& VInheritanceNotes<Kind>::NotesOf(VLayerOfKind layer) {
    if (auto const known = m_notes.find(layer.layer); known != m_notes.end()) {
        return known->second;
    }
    VLayerNotes notes; // set when they are complete
    notes.candidates = m_inheritance.CandidatesOf(layer);
    for (VCandidate const& candidate : notes.candidates) {
        notes.byName[candidate.element->GetShortName()].push_back(&candidate);
    }
    return m_notes.emplace(layer.layer, std::move(notes)).first->second;
}

#define INSTANTIATE(Kind) template class VInheritanceNotes<Kind>;
DIAGKIT_INHERITED_KINDS(INSTANTIATE)

} // namespace NDIAGKIT
