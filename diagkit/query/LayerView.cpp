// SPDX-License-Identifier: Apache-2.0
#include <diagkit/query/LayerView.h>

#include <algorithm>
#include <type_traits>
#include <unordered_set>

#include <diagkit/check/Views.h>
#include <diagkit/query/ForKind.h>
#include <diagkit/tools/DopView.h>

namespace NQuery {
namespace {

using NDIAGKIT::VCandidate;

/// The view of DOPs is in the order of their short names, whatever the passes look at first.
void SortByShortName(std::vector<VCandidate const*>& candidates) {
    NDIAGKIT::VDopView::Map::key_compare const isBefore;
    std::sort(candidates.begin(), candidates.end(), [&isBefore](VCandidate const* left, VCandidate const* right) {
        return isBefore(left->element->GetShortName(), right->element->GetShortName());
    });
}

template <class Kind>
class VViewMaker {
public:
    explicit VViewMaker(NODX201::VDiagLayer& layer) : m_candidates(m_notes.CandidatesOf(layer)) {}

    VLayerView Make() {
        TakeVisible();
        for (VCandidate const& candidate : m_candidates) {
            if (!candidate.isVisible && m_told.insert(candidate.element).second) {
                bool const isHidden = candidate.hiddenBy != nullptr; // the passes look for the name first
                (isHidden ? m_view.hidden : m_view.excluded).push_back(EntryFor(candidate));
            }
        }
        return std::move(m_view);
    }

private:
    void TakeVisible() {
        std::vector<VCandidate const*> visible;
        for (VCandidate const& candidate : m_candidates) {
            if (candidate.isVisible) {
                visible.push_back(&candidate);
                m_told.insert(candidate.element);
            }
        }
        if constexpr (std::is_same_v<Kind, NDIAGKIT::VInheritedDops>) {
            SortByShortName(visible);
        }
        m_view.entries.reserve(visible.size());
        for (VCandidate const* const candidate : visible) {
            m_view.entries.push_back(EntryFor(*candidate));
        }
    }

    VViewEntry EntryFor(VCandidate const& candidate) {
        bool const isHidden = !candidate.isVisible && candidate.hiddenBy != nullptr;
        bool const isExcluded = !candidate.isVisible && !isHidden;
        return {candidate.element, m_notes.PathOf(candidate), isHidden ? candidate.hiddenBy->element : nullptr,
                isExcluded ? candidate.exclusion : nullptr};
    }

    NDIAGKIT::VInheritance<Kind> m_inheritance;
    NDIAGKIT::VInheritanceNotes<Kind> m_notes{m_inheritance};
    std::deque<VCandidate> const& m_candidates;
    std::unordered_set<NODX201::VOdxElement const*> m_told;
    VLayerView m_view;
};

template <class Element>
std::vector<NODX201::VOdxElement*> AsElements(std::vector<Element*> const& elements) {
    return {elements.begin(), elements.end()};
}

} // namespace

VLayerView ViewOf(NODX201::VDiagLayer& layer, VInheritedKind kind) {
    return ForKind(kind, [&layer](auto row) { return VViewMaker<decltype(row)>(layer).Make(); });
}

std::vector<NODX201::VOdxElement*> EntriesOf(NODX201::VDiagLayer& layer, VInheritedKind kind) {
    switch (kind) {
    case VInheritedKind::DiagVariable:
        return AsElements(NCheck::DiagVariablesIn(layer));
    case VInheritedKind::GlobalNegResponse:
        return AsElements(NCheck::GlobalNegResponsesIn(layer));
    case VInheritedKind::Dop:
        return AsElements(NCheck::DopsIn(layer));
    default:
        return AsElements(NCheck::DiagCommsIn(layer));
    }
}

} // namespace NQuery
