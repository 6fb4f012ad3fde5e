// SPDX-License-Identifier: Apache-2.0
#include <diagkit/tools/InheritanceNotes.h>

#include <algorithm>
#include <utility>

#include <diagkit/model/Layers.h>
#include <diagkit/model/ParentRefs.h>

namespace NDIAGKIT {

/// Goes all ways up from a layer, and judges each own element of a name that it meets.
template <class Kind>
class VInheritanceNotes<Kind>::VWayFinder {
public:
    VWayFinder(VInheritanceNotes& notes, VLayerOfKind layer, std::wstring_view shortName)
        : m_notes(notes), m_start(layer), m_shortName(shortName) {}

    std::vector<VWay> Walk() {
        GoInPasses(m_start);
        GoAsTheyStand(m_start, 0);
        return std::move(m_ways);
    }

private:
    void GoInPasses(VLayerOfKind const& layer) {
        AddOwn(layer);
        for (std::vector<VParent> const& pass : Kind::kRow.ParentsOf(layer)) {
            for (VParent const& parent : pass) {
                Enter(parent, [&] { GoInPasses(parent.layer); });
            }
        }
    }

    /// `missing` counts the PARENT-REFs on the way that no pass takes: without one, the way has been gone in passes.
    void GoAsTheyStand(VLayerOfKind const& layer, int missing) {
        if (missing != 0) {
            AddOwn(layer);
        }
        NODX201::VParentRefCollection* const parentRefs = ParentRefsOf(layer);
        if (parentRefs == nullptr) {
            return;
        }
        for (NODX201::VParentRef& parentRef : *parentRefs) {
            if (auto const parent = ParentBy(parentRef)) {
                int const more = Kind::kRow.TakesFrom(layer.kind, parent->kind) ? 0 : 1;
                Enter({&parentRef, *parent}, [&] { GoAsTheyStand(*parent, missing + more); });
            }
        }
    }

    template <class Go>
    void Enter(VParent const& parent, Go const& go) {
        bool const isEntered = parent.layer.layer == m_start.layer ||
                               std::any_of(m_path.begin(), m_path.end(), [&parent](VParent const& step) {
                                   return step.layer.layer == parent.layer.layer;
                               });
        if (isEntered) {
            return;
        }
        m_path.push_back(parent);
        go();
        m_path.pop_back();
    }

    void AddOwn(VLayerOfKind const& layer) {
        std::vector<NODX201::VOdxElement*> seen;
        for (VCandidate const* const candidate : Named(layer)) {
            bool const isOwn = !candidate->parent.has_value();
            if (isOwn && std::find(seen.begin(), seen.end(), candidate->element) == seen.end()) {
                seen.push_back(candidate->element);
                m_ways.push_back(Judge(layer, *candidate));
            }
        }
    }

    /// Follows an own element of the last layer of the way down to the first.
    VWay Judge(VLayerOfKind const& owner, VCandidate const& own) {
        VWay way{own.element, m_path, VFate::Visible, nullptr, nullptr, nullptr};
        if (own.hiddenBy != nullptr) {
            return Stopped(way, VFate::Hidden, owner, own.hiddenBy->element, nullptr);
        }
        for (std::size_t step = m_path.size(); step-- > 0;) {
            VLayerOfKind const& heir = step == 0 ? m_start : m_path[step - 1].layer;
            VParent const& parent = m_path[step];
            if (!Kind::kRow.TakesFrom(heir.kind, parent.layer.kind)) {
                return Stopped(way, VFate::NoPass, heir, nullptr, parent.parentRef);
            }
            VCandidate const* const offer = OfferedTo(heir, parent, *own.element);
            if (offer == nullptr) { // the parent is named again, and has brought it before
                return Stopped(way, VFate::Hidden, heir, own.element, nullptr);
            }
            if (offer->hiddenBy != nullptr) {
                return Stopped(way, VFate::Hidden, heir, offer->hiddenBy->element, nullptr);
            }
            if (offer->exclusion != nullptr) {
                return Stopped(way, VFate::Excluded, heir, nullptr, offer->exclusion);
            }
        }
        return way;
    }

    static VWay Stopped(VWay way, VFate fate, VLayerOfKind const& at, NODX201::VOdxElement* by,
                        NODX201::VOdxElement* decidedBy) {
        way.fate = fate;
        way.at = at.layer;
        way.by = by;
        way.decidedBy = decidedBy;
        return way;
    }

    VCandidate const* OfferedTo(VLayerOfKind const& heir, VParent const& parent, NODX201::VOdxElement& element) {
        for (VCandidate const* const candidate : Named(heir)) {
            bool const isThere = candidate->parent.has_value() && candidate->parent->parentRef == parent.parentRef;
            if (isThere && candidate->element == &element) {
                return candidate;
            }
        }
        return nullptr;
    }

    std::vector<VCandidate const*> const& Named(VLayerOfKind const& layer) {
        static std::vector<VCandidate const*> const kNone;
        auto const& byName = m_notes.NotesOf(layer).byName;
        auto const found = byName.find(m_shortName);
        return found != byName.end() ? found->second : kNone;
    }

    VInheritanceNotes& m_notes;
    VLayerOfKind const m_start;
    std::wstring_view const m_shortName;
    std::vector<VParent> m_path;
    std::vector<VWay> m_ways;
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
std::vector<VParent> VInheritanceNotes<Kind>::PathOf(VCandidate const& candidate) {
    std::vector<VParent> path;
    for (VCandidate const* step = &candidate; step->parent.has_value();) {
        path.push_back(*step->parent);
        step = NotesOf(step->parent->layer).visible.at(candidate.element);
    }
    return path;
}

template <class Kind>
std::vector<VWay> VInheritanceNotes<Kind>::WaysOf(VLayerOfKind layer, std::wstring_view shortName) {
    return VWayFinder(*this, layer, shortName).Walk();
}

template <class Kind>
typename VInheritanceNotes<Kind>::VLayerNotes const& VInheritanceNotes<Kind>::NotesOf(VLayerOfKind layer) {
    if (auto const known = m_notes.find(layer.layer); known != m_notes.end()) {
        return known->second;
    }
    VLayerNotes notes; // known only when they are whole
    notes.candidates = m_inheritance.CandidatesOf(layer);
    for (VCandidate const& candidate : notes.candidates) {
        notes.byName[candidate.element->GetShortName()].push_back(&candidate);
        if (candidate.isVisible) {
            notes.visible.try_emplace(candidate.element, &candidate);
        }
    }
    return m_notes.emplace(layer.layer, std::move(notes)).first->second;
}

#define INSTANTIATE(Kind) template class VInheritanceNotes<Kind>;
DIAGKIT_INHERITED_KINDS(INSTANTIATE)

} // namespace NDIAGKIT
